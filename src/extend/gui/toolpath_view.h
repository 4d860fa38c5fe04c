#pragma once
// The drawing of a tool path: rapid, feed and arc moves in their colours, seen from the top,
// front, side or isometric, zoomed with the wheel about the mouse, panned with the left button
// and turned with the right one (or Shift and the left). The path is drawn once into an image
// for each view and only the image is shown while nothing moves; the marked moves (the caret's
// line), the axes and the part's extents are drawn over it. A click on a move reports it.
// While the view is being zoomed, panned or turned, each frame is quick: the last image scaled
// and shifted (zoom, pan) or the path drawn from every n-th point (turn); the whole path is drawn
// again once the mouse has rested for a moment.
#include <QColor>
#include <QImage>
#include <QPoint>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "extend/toolpath/path_drawing.h"

namespace lathwick::gui {

struct PathColours {
  QColor rapid{200, 0, 0}, feed{0, 110, 0}, arcCw{0, 0, 220}, arcCcw{150, 0, 170};
  QColor background{255, 255, 255}, marked{255, 140, 0};
};

class ToolpathView : public QWidget {
  Q_OBJECT
 public:
  explicit ToolpathView(QWidget* parent = nullptr);

  void setPath(std::shared_ptr<const toolpath::PathLines> path, const toolpath::Extents& partExtents);
  void setViewKind(toolpath::ViewKind kind);  // turns to the standard view and fits
  toolpath::ViewKind viewKind() const { return kind_; }
  void setShowRapids(bool show);
  bool showRapids() const { return showRapids_; }
  void setColours(const PathColours& colours);
  void setMarkedMoves(std::size_t first, std::size_t last);  // [first, last), empty for none
  void zoomToFit();
  void zoomAt(QPointF at, double factor);
  void panBy(QPointF delta);
  void turnBy(float yaw, float pitch);

  // Draws the whole path into the cached image now (what a settled view costs).
  void redraw();
  // How long the view waits after the last zoom, pan or turn before drawing the whole path.
  static constexpr int kSettleMs = 150;
  const QImage& image() const { return cache_; }
  const toolpath::ViewTransform& transform() const { return view_; }

 signals:
  void moveClicked(long move);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void changed();   // colours, path or rapids changed: the whole image is drawn before the next paint
  void moved(bool turned);  // zoom, pan or turn: quick frames until the view settles
  void drawQuick(QPainter& p);
  void drawRuns(QPainter& p, const toolpath::ScreenRuns& runs);
  QColor colourOf(toolpath::MoveKind kind) const;
  void drawMarked(QPainter& p) const;
  void drawExtents(QPainter& p) const;
  void drawAxes(QPainter& p) const;
  QPointF project(const toolpath::Point& p) const;

  std::shared_ptr<const toolpath::PathLines> path_;
  toolpath::Extents extents_;
  toolpath::ViewKind kind_ = toolpath::ViewKind::Top;
  float yaw_ = 0, pitch_ = 0;
  toolpath::ViewTransform view_;
  bool showRapids_ = true;
  PathColours colours_;
  std::size_t markedFirst_ = 0, markedLast_ = 0;
  QImage cache_;
  toolpath::ViewTransform cacheView_;  // the view the cached image was drawn for
  bool dirty_ = true;
  bool moving_ = false;   // a zoom, pan or turn since the last whole drawing
  bool turned_ = false;   // ... that turned the view, so the image cannot be reused
  QTimer settle_;
  toolpath::ScreenRuns runs_;
  std::vector<QPoint> points_;
  QPoint pressAt_, lastAt_;
  bool dragged_ = false;
};

}  // namespace lathwick::gui
