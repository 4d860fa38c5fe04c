// A document window's read-out, its enabling rules, the Alt keys across windows and the
// status-bar bookmarks.
#include <QAbstractScrollArea>
#include <QMenu>

#include "document/document_table.h"
#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"
#include "shell/gui/status_panels.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {
std::string lines(int n) {
  std::string text;
  for (int i = 1; i <= n; ++i) text += "N" + std::to_string(i * 10) + " G01 X" + std::to_string(i) + "\r\n";
  return text;
}
}  // namespace

TEST_F(FrameTest, StatusReadOutFollowsTheCaret) {
  start();
  gui::frmEditor* e = openFile(files.write("ten.nc", lines(9) + "M30"));
  EXPECT_EQ(frame->statusPanels().text("Range"), "Line 1 of 10 ");
  e->rtfTextBox().setSelection(e->rtfTextBox().lineIndex(4) + 2, 0);
  lathwick::test::keyRelease(e->rtfTextBox().widget(), Qt::Key_Right);
  EXPECT_EQ(frame->statusPanels().text("Range"), "Line 5 of 10 ");
  EXPECT_EQ(frame->statusPanels().text("Stat"), "Press {F1} for help");
}

TEST_F(FrameTest, SelectionAndEditsDriveTheEnablingRules) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", lines(3)));
  for (const char* name : {"mnuCut", "mnuCopy", "mnuUcase", "mnuLcase", "mnuTitlecase", "mnuAppend", "mnuUndo"})
    EXPECT_FALSE(frame->menuAction(name)->isEnabled()) << name;
  EXPECT_FALSE(frame->toolButton("Cut")->isEnabled());
  EXPECT_TRUE(frame->toolButton("Paste")->isEnabled());
  e->rtfTextBox().setSelection(4, 3);
  for (const char* name : {"mnuCut", "mnuCopy", "mnuUcase", "mnuLcase", "mnuTitlecase", "mnuAppend"})
    EXPECT_TRUE(frame->menuAction(name)->isEnabled()) << name;
  EXPECT_TRUE(frame->toolButton("Copy")->isEnabled());
  EXPECT_EQ(frame->lastSelection().start, 4);
  EXPECT_EQ(frame->lastSelection().text, "G01");
  // A hand edit marks the document changed and offers the control's own undo.
  lathwick::test::keyClick(e->rtfTextBox().widget(), Qt::Key_Z, Qt::NoModifier, QStringLiteral("Z"));
  EXPECT_TRUE(e->record().changed);
  EXPECT_TRUE(frame->menuAction("mnuUndo")->isEnabled());
  EXPECT_TRUE(frame->toolButton("Undo")->isEnabled());
  EXPECT_FALSE(frame->menuAction("mnuCut")->isEnabled());
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), lines(3));
}

TEST_F(FrameTest, AltArrowsScrollEveryWindowAndAltPageAlignsTheOthers) {
  start();
  frame->resize(900, 700);
  gui::frmEditor* a = openFile(files.write("a.nc", lines(300)));
  gui::frmEditor* b = openFile(files.write("b.nc", lines(300)));
  trigger("mnuTileVert");
  QApplication::processEvents();
  lathwick::test::keyClick(b->rtfTextBox().widget(), Qt::Key_Down, Qt::AltModifier);
  lathwick::test::keyClick(b->rtfTextBox().widget(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(a->rtfTextBox().firstVisibleLine(), 2);
  EXPECT_EQ(b->rtfTextBox().firstVisibleLine(), 2);
  lathwick::test::keyClick(b->rtfTextBox().widget(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(a->rtfTextBox().firstVisibleLine(), 1);
  b->rtfTextBox().scrollLines(40);
  lathwick::test::keyClick(b->rtfTextBox().widget(), Qt::Key_PageDown, Qt::AltModifier);
  EXPECT_EQ(a->rtfTextBox().firstVisibleLine(), b->rtfTextBox().firstVisibleLine());
  EXPECT_EQ(b->rtfTextBox().firstVisibleLine(), 41);
}

TEST_F(FrameTest, BookmarksRememberTheTopLineAndGoBackToIt) {
  start();
  frame->resize(900, 700);
  gui::frmEditor* e = openFile(files.write("a.nc", lines(300)));
  gui::StatusPanel* book2 = frame->statusPanels().panel("Book2");
  EXPECT_EQ(book2->toolTip().toStdString(), gui::kBookmarkTip);
  e->rtfTextBox().scrollLines(25);
  lathwick::test::mouseClick(book2, Qt::RightButton);
  EXPECT_EQ(book2->toolTip().toStdString(), "Top line 26");
  EXPECT_EQ(frame->statusPanels().markedBookmark(), 2);
  EXPECT_EQ(book2->frameShadow(), QFrame::Sunken);
  EXPECT_EQ(frame->statusPanels().panel("Book1")->frameShadow(), QFrame::Raised);
  e->rtfTextBox().scrollLines(100);
  lathwick::test::mouseClick(book2, Qt::LeftButton);
  EXPECT_EQ(e->rtfTextBox().firstVisibleLine(), 25);
  // An unset bookmark does nothing.
  lathwick::test::mouseClick(frame->statusPanels().panel("Book3"), Qt::LeftButton);
  EXPECT_EQ(e->rtfTextBox().firstVisibleLine(), 25);
}

TEST_F(FrameTest, RightButtonOpensTheEditMenuAndCtrlRightTheSendToMenu) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", lines(3)));
  auto* area = qobject_cast<QAbstractScrollArea*>(e->rtfTextBox().widget());
  ASSERT_NE(area, nullptr);
  QWidget* view = area->viewport();
  const QPointF at(10, 10);
  QMouseEvent right(QEvent::MouseButtonPress, at, view->mapToGlobal(at), Qt::RightButton, Qt::RightButton,
                    Qt::NoModifier);
  QApplication::sendEvent(view, &right);
  QMenu* edit = e->menus().menu("mnuEdit");
  EXPECT_TRUE(edit->isVisible());
  edit->hide();
  QMouseEvent ctrlRight(QEvent::MouseButtonPress, at, view->mapToGlobal(at), Qt::RightButton, Qt::RightButton,
                        Qt::ControlModifier);
  QApplication::sendEvent(view, &ctrlRight);
  EXPECT_TRUE(e->menus().menu("mnuSend")->isVisible());
  EXPECT_FALSE(edit->isVisible());
  e->menus().menu("mnuSend")->hide();
}

TEST_F(FrameTest, LockKeyAndInsertPanelsFollowTheKeyboard) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", lines(2)));
  QWidget* text = e->rtfTextBox().widget();
  auto& panels = frame->statusPanels();
  EXPECT_TRUE(panels.panel("Ins")->isEnabled());
  lathwick::test::keyClick(text, Qt::Key_Insert);  // overtype on
  EXPECT_FALSE(panels.panel("Ins")->isEnabled());
  lathwick::test::keyClick(text, Qt::Key_Insert);
  EXPECT_TRUE(panels.panel("Ins")->isEnabled());
  // The lock states come with each key event (X11: Lock = 0x02, Mod2 = 0x10 for Num Lock).
  QKeyEvent capsOn(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier, 0, 0, 0x02);
  QApplication::sendEvent(text, &capsOn);
  EXPECT_TRUE(panels.panel("Caps")->isEnabled());
  EXPECT_FALSE(panels.panel("Num")->isEnabled());
  QKeyEvent numOn(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier, 0, 0, 0x10);
  QApplication::sendEvent(text, &numOn);
  EXPECT_FALSE(panels.panel("Caps")->isEnabled());
  EXPECT_TRUE(panels.panel("Num")->isEnabled());
}
