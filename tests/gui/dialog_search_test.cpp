// The search dialog driven through its buttons against a fake document: Replace All and
// Highlight All over a range, the one-line selection rule, the option flags and the histories
// in the settings store, and a pass cancelled half-way. (F3 and F4 are driven through a
// document window's menu, with the transformation commands.)
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "dialog_fixture.h"
#include "transform/gui/frm_search.h"

using namespace lathwick;
using namespace lathwick::gui;
using lathwick::test::FakeDocument;

namespace {

class SearchDialog : public test::DialogTest<frmSearch> {
 protected:
  void enter(const char* find, const char* replace) {
    child<QComboBox>("cboFind")->setEditText(find);
    child<QComboBox>("cboReplace")->setEditText(replace);
  }
  void click(const char* name) { child<QPushButton>(name)->click(); }
  std::string label(const char* name) { return child<QLabel>(name)->text().toStdString(); }
};

TEST_F(SearchDialog, ReplaceAllActsOnTheSelectedLinesOnlyAndSavesTheHistories) {
  FakeDocument doc({"G01 X1", "G01 X1 Y1", "X1 X1", "G00 X1"});
  doc.selectLines(2, 3);
  dialog->showFor(doc);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(label("lblRange"), "Range= Line 2 to 3");
  EXPECT_EQ(child<QComboBox>("cboFind")->currentText(), "");  // a range, not a find text

  enter("X1", "X22");
  EXPECT_FALSE(child<QPushButton>("cmdUndo")->isEnabled());
  click("cmdReplaceAll");

  ASSERT_EQ(doc.reloads, 1);
  EXPECT_EQ(doc.lastFormat, ReloadFormat::Rich);
  EXPECT_TRUE(doc.fileUndoable);
  EXPECT_EQ(test::richBody(doc.reloaded),
            (std::vector<std::string>{"G01 X1", "G01 \\cf1 X22\\plain\\cf0  Y1",
                                      "\\cf1 X22\\plain\\cf0  \\cf1 X22\\plain\\cf0 ", "G00 X1"}));
  EXPECT_EQ(label("lblStatus"), "3 Replacements made.");
  EXPECT_EQ(doc.statusTexts, (std::vector<std::string>{"Replacing... [Esc] to cancel", "Press F1 for help."}));
  EXPECT_EQ(settings.get("cboFind", "cboFind1"), "X1");
  EXPECT_EQ(settings.get("cboReplace", "cboReplace1"), "X22");
  EXPECT_TRUE(dialogs.messages.empty());

  ASSERT_TRUE(child<QPushButton>("cmdUndo")->isEnabled());
  click("cmdUndo");
  EXPECT_EQ(doc.undos, 1);
  EXPECT_FALSE(child<QPushButton>("cmdUndo")->isEnabled());
}

TEST_F(SearchDialog, AOneLineSelectionIsHighlightedEverywhereAndNoMatchLeavesTheDocumentAlone) {
  FakeDocument doc({"G01 X1 (X1)", "G00 Z5"});
  doc.selStart = 4;
  doc.selLength = 2;  // inside one line: the find text, over all lines
  dialog->showFor(doc);
  EXPECT_EQ(child<QComboBox>("cboFind")->currentText(), "X1");
  EXPECT_EQ(label("lblRange"), "Range= All Lines");
  child<QCheckBox>("chkSearchMethod_2")->click();  // exclude comments: flag 1
  click("cmdHighlight");
  ASSERT_EQ(doc.reloads, 1);
  EXPECT_EQ(test::richBody(doc.reloaded)[0], "G01 \\cf1 X1\\plain\\cf0  (X1)");
  EXPECT_EQ(label("lblStatus"), "1 Highlights made.");
  EXPECT_EQ(doc.statusTexts.front(), "Highlighting... [Esc] to cancel");

  enter("Q7", "Q8");
  click("cmdReplaceAll");
  EXPECT_EQ(doc.reloads, 1);  // nothing found: the document is not touched
  EXPECT_EQ(label("lblStatus"), "0 Replacements made.");
}

TEST_F(SearchDialog, OptionFlagsRunOppositeToTheBoxIndexesAndAreStoredOnUnload) {
  FakeDocument doc({"A"});
  dialog->showFor(doc);
  child<QCheckBox>("chkSearchMethod_0")->click();
  EXPECT_EQ(dialog->searchFlags(), 4);
  child<QCheckBox>("chkSearchMethod_1")->click();
  EXPECT_EQ(dialog->searchFlags(), 6);
  click("cmdCancel");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(settings.get("Startup", "search"), "6");

  settings.save("Startup", "search", "1");
  frmSearch again(settings);
  again.showFor(doc);
  EXPECT_FALSE(again.findChild<QCheckBox*>("chkSearchMethod_0")->isChecked());
  EXPECT_TRUE(again.findChild<QCheckBox*>("chkSearchMethod_2")->isChecked());
  EXPECT_EQ(again.searchFlags(), 1);
}

TEST_F(SearchDialog, CancelDuringALongPassLeavesTheDocumentAndSaysSoOnce) {
  std::vector<std::string> lines(5000, "G01 X1 Y1");
  FakeDocument doc(lines);
  dialog->showFor(doc);
  enter("X1", "X2");
  // The Cancel click arrives while the pass lets window events run; by then the other buttons
  // are held so that no second pass can start inside the first.
  bool othersHeld = false;
  QTimer::singleShot(0, dialog.get(), [&] {
    othersHeld = !child<QPushButton>("cmdReplaceAll")->isEnabled() && !child<QPushButton>("cmdOK")->isEnabled();
    click("cmdCancel");
  });
  click("cmdReplaceAll");
  EXPECT_TRUE(othersHeld);
  EXPECT_TRUE(child<QPushButton>("cmdReplaceAll")->isEnabled());
  EXPECT_FALSE(child<QPushButton>("cmdUndo")->isEnabled());  // nothing was replaced
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_EQ(doc.text, test::joinLines(lines, "\n"));
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{"Operation canceled by user.", "Operation Incomplete.",
                                                             Buttons::Ok, Icon::Information}}));
  EXPECT_FALSE(dialog->isVisible());
  // The progress bar was set up for the document's lines and is put away again.
  EXPECT_EQ(child<QProgressBar>("progReplace")->maximum(), 5000);
  EXPECT_FALSE(child<QProgressBar>("progReplace")->isVisible());
}

}  // namespace
