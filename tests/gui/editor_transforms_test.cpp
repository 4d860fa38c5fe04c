// The transformation commands of a document window, driven through its menus: F3 and F4 with
// the search dialog's entries, renumber over a selected range, the space commands and the junk
// filter, each undoable from the undo file.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "document/document_table.h"
#include "frame_fixture.h"
#include "transform/gui/frm_renumber.h"
#include "transform/gui/frm_search.h"

using namespace lathwick;
using lathwick::test::child;
using TransformsTest = lathwick::test::FrameTest;

TEST_F(TransformsTest, F3AndF4WorkThroughTheActiveDocumentThenSayCompleteOnceAndStartAgain) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "X1 Y1\r\nX1\r\n"));
  trigger("mnuFind");  // no find text yet: the dialog comes up
  gui::frmSearch* search = frame->findChild<gui::frmSearch*>("frmSearch");
  ASSERT_NE(search, nullptr);
  EXPECT_TRUE(search->isVisible());
  child<QComboBox>(search, "cboFind")->setEditText("X1");
  child<QComboBox>(search, "cboReplace")->setEditText("X5");
  child<QPushButton>(search, "cmdOK")->click();
  trigger("mnuFind");
  EXPECT_EQ(e->rtfTextBox().selStart(), 0);
  EXPECT_EQ(e->rtfTextBox().selText(), "X1");
  trigger("mnuReplace");  // replaces the first and finds the second
  EXPECT_EQ(e->rtfTextBox().text(), "X5 Y1\r\nX1\r\n");
  EXPECT_EQ(e->rtfTextBox().selStart(), 7);
  EXPECT_TRUE(e->record().changed);
  trigger("mnuReplace");
  EXPECT_EQ(e->rtfTextBox().text(), "X5 Y1\r\nX5\r\n");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "Search complete.");
  EXPECT_TRUE(search->searchState().findText().empty());
  trigger("mnuFind");  // the entries went with the completed search: the dialog again
  EXPECT_TRUE(search->isVisible());
  EXPECT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(child<QComboBox>(search, "cboFind")->itemText(0), "X1");  // history, newest first
}

// On a program with Linux line ends: Ctrl+Z takes the renumbering back until a hand edit, after
// which it is the control's own undo of that edit; the file keeps its line ends.
TEST_F(TransformsTest, RenumberActsOnTheSelectedLinesAndCtrlZBringsThemBackUntilAHandEdit) {
  const std::string path = files.write("p.nc", "%\nG00 X0\nG01 X1\nG01 X2\n");
  const std::string text = "%\r\nG00 X0\r\nG01 X1\r\nG01 X2\r\n";
  start();
  gui::frmEditor* e = openFile(path);
  e->rtfTextBox().setSelection(e->rtfTextBox().lineIndex(1), e->rtfTextBox().lineIndex(3) - e->rtfTextBox().lineIndex(1) + 2);
  trigger("mnuResequence");
  gui::frmRenumber* dialog = frame->findChild<gui::frmRenumber*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(child<QLabel>(dialog, "lblRange")->text().toStdString(), "Range= Line 2 to 4");
  child<QLineEdit>(dialog, "txtStart")->setText("100");
  child<QLineEdit>(dialog, "txtStep")->setText("10");
  child<QRadioButton>(dialog, "Option1_2")->click();
  child<QPushButton>(dialog, "cmdOK")->click();
  QApplication::processEvents();
  EXPECT_EQ(e->rtfTextBox().text(), "%\r\nN100G00 X0\r\nN110G01 X1\r\nN120G01 X2\r\n");
  EXPECT_TRUE(e->FileUndoable());
  EXPECT_TRUE(frame->toolButton("Undo")->isEnabled());
  e->record().changed = false;  // as after a save: Undo must leave the flag as it finds it
  QWidget* control = e->rtfTextBox().widget();
  lathwick::test::keyClick(control, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(e->rtfTextBox().text(), text);
  EXPECT_FALSE(e->record().changed);
  EXPECT_FALSE(e->FileUndoable());  // once only
  EXPECT_FALSE(frame->menuAction("mnuUndo")->isEnabled());
  EXPECT_FALSE(frame->toolButton("Undo")->isEnabled());
  trigger("mnuSave");
  EXPECT_EQ(lathwick::test::readBytes(path), "%\nG00 X0\nG01 X1\nG01 X2\n");

  trigger("mnuAddSpaces");
  e->rtfTextBox().setSelection(0, 0);
  e->rtfTextBox().replaceSelection("(A)");
  QApplication::processEvents();
  const std::string spaced = e->rtfTextBox().text().substr(3);
  EXPECT_FALSE(e->FileUndoable());
  lathwick::test::keyClick(control, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(e->rtfTextBox().text(), spaced);
}

TEST_F(TransformsTest, SpacesAndTheJunkFilterThroughTheOptionsMenu) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "N10G01X-1.5Y2.0F100\r\n"));
  trigger("mnuAddSpaces");
  EXPECT_EQ(e->rtfTextBox().text(), "N10 G01 X-1.5 Y2.0 F100\r\n");
  EXPECT_TRUE(e->FileUndoable());
  trigger("mnuRemove");
  EXPECT_EQ(e->rtfTextBox().text(), "N10G01X-1.5Y2.0F100\r\n");
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), "N10 G01 X-1.5 Y2.0 F100\r\n");

  gui::frmEditor* junk = openFile(files.write("serial.nc", "\n\n\n%\nN10 G00\n"));
  trigger("mnuJunkFilter");
  EXPECT_EQ(junk->rtfTextBox().text(), "%\r\nN10 G00\r\n");
  EXPECT_TRUE(junk->FileUndoable());
  EXPECT_FALSE(e->FileUndoable());  // one undo file: the last window to use it has it
  EXPECT_TRUE(dialogs.messages.empty());
}
