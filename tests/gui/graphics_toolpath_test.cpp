// The tool-path window through the frame's real Graphics commands: Show opens it for the active
// document and follows the document on Show again, the caret's line is marked, a click on the
// path moves the caret, the wheel zooms about the mouse, and Setup's choices are applied.
#include <QLabel>
#include <QWheelEvent>

#include "extend/gui/toolpath_view.h"
#include "extend/gui/toolpath_window.h"
#include "extend/toolpath/graphics_settings.h"
#include "frame_fixture.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {

gui::ToolpathWindow* toolpathWindow(gui::MDIForm1& frame) {
  return frame.findChild<gui::ToolpathWindow*>(QStringLiteral("frmToolpath"));
}

QPointF screenOf(const gui::ToolpathView& view, float x, float y, float z) {
  const float p[3] = {x, y, z};
  float sx, sy;
  view.transform().project(p, sx, sy);
  return {sx, sy};
}

void click(QWidget* w, QPointF at) {
  QMouseEvent press(QEvent::MouseButtonPress, at, w->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(w, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, w->mapToGlobal(at), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(w, &release);
  QApplication::processEvents();
}

class GraphicsTest : public FrameTest {
 protected:
  gui::frmEditor* openProgram(const std::string& text) {
    return openFile(files.write("part.nc", text));
  }
};

TEST_F(GraphicsTest, ShowDrawsTheActiveDocumentAndShowAgainFollowsItsEdits) {
  start();
  EXPECT_EQ(toolpathWindow(*frame), nullptr);
  gui::frmEditor* e = openProgram("G21 G0 X0 Y0 Z5\r\nG1 Z-1 F100\r\nX50 Y20\r\nG2 X50 Y-20 R20\r\nG0 Z5\r\n");
  ASSERT_NE(e, nullptr);
  trigger("mnuShow");
  gui::ToolpathWindow* w = toolpathWindow(*frame);
  ASSERT_NE(w, nullptr);
  EXPECT_TRUE(w->isVisible());
  EXPECT_EQ(w->windowTitle().toStdString(), "Tool Path - part.nc");
  EXPECT_EQ(w->program().moves.size(), 5u);
  const QString summary = w->findChild<QLabel*>(QStringLiteral("lblSummary"))->text();
  // The clockwise half circle from X50 Y20 to X50 Y-20 reaches out to X70.
  EXPECT_TRUE(summary.contains(QStringLiteral("X 0.0000 to 70.0000"))) << summary.toStdString();
  EXPECT_TRUE(summary.contains(QStringLiteral("Time 0:01:14")));

  e->rtfTextBox().setSelection(e->rtfTextBox().textLength(), 0);
  e->rtfTextBox().replaceSelection("G0 X90\r\n");
  EXPECT_EQ(w->program().moves.size(), 5u);  // the drawn path is the one Show made
  trigger("mnuShow");
  EXPECT_EQ(toolpathWindow(*frame), w);
  EXPECT_EQ(w->program().moves.size(), 6u);
}

TEST_F(GraphicsTest, CaretLineIsMarkedAndAClickOnTheDrawingMovesTheCaret) {
  settings.save("Graphics", "View", "0");  // from the top: screen positions are plain X and Y
  start();
  gui::frmEditor* e = openProgram("G0 X0 Y0\r\nG1 X100 F100\r\nY100\r\nX0\r\n");
  ASSERT_NE(e, nullptr);
  trigger("mnuShow");
  gui::ToolpathWindow* w = toolpathWindow(*frame);
  ASSERT_NE(w, nullptr);
  gui::ToolpathView& view = w->view();
  EXPECT_EQ(view.viewKind(), toolpath::ViewKind::Top);
  click(&view, screenOf(view, 100, 50, 0));  // on the move up the right side: line 3
  EXPECT_EQ(e->currentLine(), 2);
  click(&view, screenOf(view, 50, 100, 0));  // along the top: line 4
  EXPECT_EQ(e->currentLine(), 3);
  e->rtfTextBox().setSelection(e->rtfTextBox().lineIndex(1), 0);
  QApplication::processEvents();
  EXPECT_EQ(e->currentLine(), 1);
  // The marked move is drawn over the image in the marking colour.
  const QImage shown = view.grab().toImage();
  const QPointF mid = screenOf(view, 50, 0, 0);
  int marked = 0;
  for (int dy = -2; dy <= 2; ++dy)
    if (shown.pixelColor(mid.toPoint() + QPoint(0, dy)).red() > 200 && shown.pixelColor(mid.toPoint() + QPoint(0, dy)).blue() < 60)
      ++marked;
  EXPECT_GT(marked, 0);
}

TEST_F(GraphicsTest, WheelZoomsAboutTheMouse) {
  settings.save("Graphics", "View", "0");
  start();
  openProgram("G1 X100 Y80 F100\r\n");
  trigger("mnuShow");
  gui::ToolpathView& view = toolpathWindow(*frame)->view();
  const QPointF at = screenOf(view, 30, 20, 0);
  const float scale = view.transform().scale;
  QWheelEvent wheel(at, view.mapToGlobal(at), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&view, &wheel);
  EXPECT_NEAR(view.transform().scale, scale * 1.5625f, scale * 1e-4);
  const QPointF after = screenOf(view, 30, 20, 0);
  EXPECT_NEAR(after.x(), at.x(), 0.01);
  EXPECT_NEAR(after.y(), at.y(), 0.01);
}

TEST_F(GraphicsTest, SetupChoicesReachTheOpenWindow) {
  start();
  openProgram("G0 X10 Y10\r\nG1 X20 F100\r\n");
  trigger("mnuShow");
  gui::ToolpathWindow* w = toolpathWindow(*frame);
  ASSERT_NE(w, nullptr);
  EXPECT_TRUE(w->view().showRapids());
  toolpath::GraphicsSettings s = toolpath::GraphicsSettings::load(settings);
  s.showRapids = false;
  s.view = toolpath::ViewKind::Front;
  s.colours[static_cast<int>(toolpath::PathColour::Background)] = 0x000000;
  s.save(settings);
  w->applySettings();
  EXPECT_FALSE(w->view().showRapids());
  EXPECT_EQ(w->view().viewKind(), toolpath::ViewKind::Front);
  w->view().redraw();
  EXPECT_EQ(w->view().image().pixelColor(1, 1), QColor(0, 0, 0));
}

}  // namespace
