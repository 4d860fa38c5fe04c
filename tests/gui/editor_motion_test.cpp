// The motion check of the document window: the Options menu's passes say in the status bar
// whether the program's motion changed, and "Compare Motion With..." names the first line where
// the active document and a file part and puts the caret there.
#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include "frame_fixture.h"
#include "shell/gui/status_panels.h"

using namespace lathwick;
using lathwick::test::child;
using lathwick::test::FrameTest;

namespace {
class MotionTest : public FrameTest {
 protected:
  std::string status() { return frame->statusPanels().text("Stat"); }
};

const char* const kProgram = "G21 G90\r\nG0 X0 Y0\r\nG1 X10 F100\r\nG2 X20 Y0 I5 J0\r\n";
}  // namespace

TEST_F(MotionTest, PassesThatKeepTheMotionSaySoAndOperateCountsTheMovesItChanged) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", kProgram));
  trigger("mnuRemove");
  EXPECT_EQ(e->rtfTextBox().text(), "G21G90\r\nG0X0Y0\r\nG1X10F100\r\nG2X20Y0I5J0\r\n");
  EXPECT_EQ(status(), "Motion unchanged.");

  trigger("mnuOperate");
  QDialog* dialog = frame->findChild<QDialog*>("frmOperate");
  ASSERT_NE(dialog, nullptr);
  child<QComboBox>(dialog, "cboAddress")->setEditText("X");
  child<QComboBox>(dialog, "cboOperators")->setCurrentText("*");
  child<QComboBox>(dialog, "cboValue")->setEditText("2");
  child<QComboBox>(dialog, "cboFormat")->setEditText("##0.0###");
  child<QPushButton>(dialog, "cmdOK")->click();
  QApplication::processEvents();
  // The result comes back as rich text (the changed values marked); the characters read:
  EXPECT_EQ(e->rtfTextBox().text(), "G21G90\r\nG0X0.0Y0\r\nG1X20.0F100\r\nG2X40.0Y0I5J0\r\n");
  EXPECT_TRUE(e->FileUndoable());
  EXPECT_EQ(status(), "2 moves changed, the first at line 3: G1X20.0F100");
}

TEST_F(MotionTest, CompareMotionWithAFilePutsTheCaretWhereTheyPart) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", kProgram));
  dialogs.files.push_back(files.write("other.nc", "G21 G90\r\nG0 X0 Y0\r\nG1 X10 F100\r\n(ARC)\r\nG3 X20 Y0 I5 J0\r\n"));
  trigger("mnuCompareMotion");
  EXPECT_EQ(status(), "Motion differs from other.nc at line 4: G2 X20 Y0 I5 J0 (its line 5)");
  EXPECT_EQ(e->rtfTextBox().lineFromChar(e->rtfTextBox().selStart()), 3);

  dialogs.files.push_back(files.write("same.nc", "G21G90\nG0X0Y0\nG1X10F100\nG2X20Y0I5J0\n"));
  trigger("mnuCompareMotion");
  EXPECT_EQ(status(), "Same motion as same.nc.");
  EXPECT_TRUE(dialogs.messages.empty());
}
