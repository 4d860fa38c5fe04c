#pragma once
// The drawing of a tool path: rapid, feed and arc moves in their colours, seen from the top,
// front, side or isometric, zoomed with the wheel about the mouse, panned with the left button
// and turned with the right one (or Shift and the left). The path is drawn once into an image
// for each view and only the image is shown while nothing moves; the marked moves (the caret's
// line), the axes and the part's extents are drawn over it. A click on a move reports it.
#include <QColor>
#include <QImage>
#include <QPoint>
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

  // Draws the path into the cached image now (what a change of view costs), for benchmarks.
  void redraw();
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
  void changed();  // the view moved: the image is drawn again before the next paint
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
  bool dirty_ = true;
  toolpath::ScreenRuns runs_;
  std::vector<QPoint> points_;
  QPoint pressAt_, lastAt_;
  bool dragged_ = false;
};

}  // namespace lathwick::gui
