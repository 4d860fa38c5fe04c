#include "extend/gui/toolpath_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace lathwick::gui {

using namespace lathwick::toolpath;

ToolpathView::ToolpathView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("toolpathView"));
  setMinimumSize(200, 150);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  view_.rotation = viewRotation(kind_);
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
  changed();
}

void ToolpathView::panBy(QPointF delta) {
  view_.offsetX += static_cast<float>(delta.x());
  view_.offsetY += static_cast<float>(delta.y());
  changed();
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
  changed();
}

void ToolpathView::changed() {
  dirty_ = true;
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
  dirty_ = false;
  if (!path_) return;
  projectForDrawing(*path_, view_, showRapids_, size.width(), size.height(), runs_);
  points_.resize(runs_.xy.size() / 2);
  for (std::size_t i = 0; i < points_.size(); ++i) points_[i] = QPoint(runs_.xy[2 * i], runs_.xy[2 * i + 1]);
  QPainter p(&cache_);
  for (const ScreenRun& run : runs_.runs) {
    if (run.count < 2) continue;
    QPen pen(colourOf(run.kind));
    if (run.kind == MoveKind::Rapid) pen.setStyle(Qt::DashLine);
    p.setPen(pen);
    p.drawPolyline(points_.data() + run.first, static_cast<int>(run.count));
  }
}

QPointF ToolpathView::project(const Point& pt) const {
  const float xyz[3] = {static_cast<float>(pt.x), static_cast<float>(pt.y), static_cast<float>(pt.z)};
  float sx, sy;
  view_.project(xyz, sx, sy);
  return {sx, sy};
}

void ToolpathView::paintEvent(QPaintEvent*) {
  if (dirty_ || cache_.size() != size()) redraw();
  QPainter p(this);
  p.drawImage(0, 0, cache_);
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
