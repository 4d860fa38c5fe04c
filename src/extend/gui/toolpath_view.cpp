#include "extend/gui/toolpath_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace lathwick::gui {

using namespace lathwick::toolpath;

namespace {
// While the view turns, the path is drawn from about this many of its points.
constexpr std::size_t kQuickPoints = 60000;
}  // namespace

ToolpathView::ToolpathView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("toolpathView"));
  setMinimumSize(200, 150);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  view_.rotation = viewRotation(kind_);
  settle_.setSingleShot(true);
  settle_.setInterval(kSettleMs);
  connect(&settle_, &QTimer::timeout, this, [this] {
    moving_ = turned_ = false;
    changed();
  });
}

void ToolpathView::setPath(std::shared_ptr<const PathLines> path, const Extents& partExtents) {
  path_ = std::move(path);
  extents_ = partExtents;
  markedFirst_ = markedLast_ = 0;
  zoomToFit();
}

void ToolpathView::setViewKind(ViewKind kind) {
  kind_ = kind;
  yaw_ = pitch_ = 0;
  view_.rotation = viewRotation(kind_);
  zoomToFit();
}

void ToolpathView::setShowRapids(bool show) {
  showRapids_ = show;
  changed();
}

void ToolpathView::setColours(const PathColours& colours) {
  colours_ = colours;
  changed();
}

void ToolpathView::setMarkedMoves(std::size_t first, std::size_t last) {
  markedFirst_ = first, markedLast_ = last;
  update();  // drawn over the image: the image stays
}

void ToolpathView::zoomToFit() {
  if (path_) fitView(*path_, view_, width(), height(), showRapids_);
  changed();
}

void ToolpathView::zoomAt(QPointF at, double factor) {
  const float f = static_cast<float>(factor);
  view_.scale *= f;
  view_.offsetX = static_cast<float>(at.x()) - (static_cast<float>(at.x()) - view_.offsetX) * f;
  view_.offsetY = static_cast<float>(at.y()) - (static_cast<float>(at.y()) - view_.offsetY) * f;
  moved(false);
}

void ToolpathView::panBy(QPointF delta) {
  view_.offsetX += static_cast<float>(delta.x());
  view_.offsetY += static_cast<float>(delta.y());
  moved(false);
}

void ToolpathView::turnBy(float yaw, float pitch) {
  // Turns about the middle of the part, which stays where it is on the screen.
  Point middle;
  if (!extents_.empty)
    for (int axis = 0; axis < 3; ++axis) middle[axis] = (extents_.min[axis] + extents_.max[axis]) / 2;
  const QPointF before = project(middle);
  yaw_ += yaw, pitch_ += pitch;
  view_.rotation = viewRotation(kind_, yaw_, pitch_);
  const QPointF after = project(middle);
  view_.offsetX += static_cast<float>(before.x() - after.x());
  view_.offsetY += static_cast<float>(before.y() - after.y());
  moved(true);
}

void ToolpathView::changed() {
  dirty_ = true;
  update();
}

void ToolpathView::moved(bool turned) {
  if (dirty_ || cache_.isNull()) return changed();  // nothing to reuse yet
  moving_ = true;
  turned_ = turned_ || turned;
  settle_.start();
  update();
}

QColor ToolpathView::colourOf(MoveKind kind) const {
  switch (kind) {
    case MoveKind::Rapid: return colours_.rapid;
    case MoveKind::Feed: return colours_.feed;
    case MoveKind::ArcCw: return colours_.arcCw;
    case MoveKind::ArcCcw: return colours_.arcCcw;
  }
  return colours_.feed;
}

void ToolpathView::redraw() {
  const QSize size = this->size().expandedTo(QSize(1, 1));
  if (cache_.size() != size) cache_ = QImage(size, QImage::Format_RGB32);
  cache_.fill(colours_.background);
  cacheView_ = view_;
  dirty_ = moving_ = turned_ = false;
  if (!path_) return;
  projectForDrawing(*path_, view_, showRapids_, size.width(), size.height(), runs_);
  QPainter p(&cache_);
  drawRuns(p, runs_);
}

void ToolpathView::drawRuns(QPainter& p, const ScreenRuns& runs) {
  points_.resize(runs.xy.size() / 2);
  for (std::size_t i = 0; i < points_.size(); ++i) points_[i] = QPoint(runs.xy[2 * i], runs.xy[2 * i + 1]);
  const QPen pens[4] = {QPen(colours_.rapid), QPen(colours_.feed), QPen(colours_.arcCw), QPen(colours_.arcCcw)};
  int penNow = -1;
  for (const ScreenRun& run : runs.runs) {
    if (run.count < 2) continue;
    const int pen = static_cast<int>(run.kind);
    if (pen != penNow) p.setPen(pens[pen]), penNow = pen;
    p.drawPolyline(points_.data() + run.first, static_cast<int>(run.count));
  }
}

void ToolpathView::drawQuick(QPainter& p) {
  p.fillRect(rect(), colours_.background);
  if (!turned_) {
    // The image drawn for the old view, scaled and shifted onto the new one.
    const double s = view_.scale / cacheView_.scale;
    p.save();
    p.setTransform(QTransform(s, 0, 0, s, view_.offsetX - s * cacheView_.offsetX, view_.offsetY - s * cacheView_.offsetY));
    p.drawImage(0, 0, cache_);
    p.restore();
    return;
  }
  if (!path_) return;
  projectForDrawing(*path_, view_, showRapids_, width(), height(), runs_, kQuickPoints);
  drawRuns(p, runs_);
}

QPointF ToolpathView::project(const Point& pt) const {
  const float xyz[3] = {static_cast<float>(pt.x), static_cast<float>(pt.y), static_cast<float>(pt.z)};
  float sx, sy;
  view_.project(xyz, sx, sy);
  return {sx, sy};
}

void ToolpathView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (moving_ && cache_.size() == size()) {
    drawQuick(p);
  } else {
    if (dirty_ || moving_ || cache_.size() != size()) redraw();
    p.drawImage(0, 0, cache_);
  }
  p.setRenderHint(QPainter::Antialiasing);
  drawExtents(p);
  drawMarked(p);
  drawAxes(p);
}

void ToolpathView::drawMarked(QPainter& p) const {
  if (!path_ || markedFirst_ >= markedLast_ || markedLast_ > path_->line.size()) return;
  p.setPen(QPen(colours_.marked, 3));
  const std::uint32_t from = path_->firstPoint[markedFirst_] - 1, to = path_->firstPoint[markedLast_];
  QPolygonF line;
  for (std::uint32_t i = from; i < to && i < path_->points(); ++i) {
    float sx, sy;
    view_.project(&path_->xyz[3 * i], sx, sy);
    line << QPointF(sx, sy);
  }
  p.drawPolyline(line);
  if (!line.isEmpty()) p.drawEllipse(line.back(), 4, 4);
}

void ToolpathView::drawExtents(QPainter& p) const {
  if (extents_.empty) return;
  QPen pen(QColor(128, 128, 128), 1, Qt::DotLine);
  p.setPen(pen);
  const Point& a = extents_.min;
  const Point& b = extents_.max;
  // The twelve edges of the part's box: between corners that differ in one axis only.
  for (int c = 0; c < 8; ++c)
    for (int axis = 0; axis < 3; ++axis) {
      if (c & (1 << axis)) continue;
      const int d = c | (1 << axis);
      auto corner = [&](int k) { return Point{k & 1 ? b.x : a.x, k & 2 ? b.y : a.y, k & 4 ? b.z : a.z}; };
      p.drawLine(project(corner(c)), project(corner(d)));
    }
}

void ToolpathView::drawAxes(QPainter& p) const {
  const QPointF origin(40, height() - 40);
  const char* names[3] = {"X", "Y", "Z"};
  const QColor colours[3] = {QColor(220, 40, 40), QColor(30, 160, 30), QColor(40, 80, 230)};
  for (int axis = 0; axis < 3; ++axis) {
    const float dx = view_.rotation[axis], dy = -view_.rotation[3 + axis];
    const QPointF tip = origin + QPointF(dx, dy) * 28;
    p.setPen(QPen(colours[axis], 2));
    p.drawLine(origin, tip);
    p.drawText(tip + QPointF(dx, dy) * 8 + QPointF(-4, 4), QString::fromLatin1(names[axis]));
  }
}

void ToolpathView::resizeEvent(QResizeEvent*) { zoomToFit(); }

void ToolpathView::wheelEvent(QWheelEvent* event) {
  zoomAt(event->position(), std::pow(1.25, event->angleDelta().y() / 120.0));
  event->accept();
}

void ToolpathView::mousePressEvent(QMouseEvent* event) {
  pressAt_ = lastAt_ = event->position().toPoint();
  dragged_ = false;
}

void ToolpathView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if ((at - pressAt_).manhattanLength() > 3) dragged_ = true;
  if (!dragged_) return;
  const QPoint delta = at - lastAt_;
  lastAt_ = at;
  const bool turn = (event->buttons() & Qt::RightButton) ||
                    ((event->buttons() & Qt::LeftButton) && (event->modifiers() & Qt::ShiftModifier));
  if (turn)
    turnBy(delta.x() * 0.01f, delta.y() * 0.01f);
  else if (event->buttons() & (Qt::LeftButton | Qt::MiddleButton))
    panBy(delta);
}

void ToolpathView::mouseReleaseEvent(QMouseEvent* event) {
  if (dragged_ || event->button() != Qt::LeftButton || !path_) return;
  const QPointF at = event->position();
  const long move = pickMove(*path_, view_, static_cast<float>(at.x()), static_cast<float>(at.y()), 5, showRapids_);
  if (move >= 0) emit moveClicked(move);
}

}  // namespace lathwick::gui
