// The renumber dialog through its OK button: a method over a selection range, the empty
// sequence character, the settings of section "Numbering" and the digit
// filters of the number fields.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "dialog_fixture.h"
#include "transform/gui/frm_renumber.h"

using namespace lathwick;
using namespace lathwick::gui;
using lathwick::test::FakeDocument;

namespace {

const std::vector<std::string> kProgram{"%", "O1000", "(SETUP)", "G00 X0", "N5 G01 X1"};

class RenumberDialog : public test::DialogTest<frmRenumber> {
 protected:
  void fill(const char* start, const char* step, int method) {
    child<QLineEdit>("txtStart")->setText(start);
    child<QLineEdit>("txtStep")->setText(step);
    child<QRadioButton>(("Option1_" + std::to_string(method)).c_str())->click();
  }
  void ok() { child<QPushButton>("cmdOK")->click(); }
};

TEST_F(RenumberDialog, RunsTheChosenMethodOverTheSelectedLines) {
  FakeDocument doc(kProgram);
  doc.selectLines(2, 3);
  dialog->showFor(doc);
  EXPECT_EQ(child<QLabel>("lblRange")->text().toStdString(), "Range= Line 2 to 3");
  fill("100", "10", 0);  // every line, the comment line too
  ok();
  ASSERT_EQ(doc.reloads, 1);
  EXPECT_EQ(doc.lastFormat, ReloadFormat::Plain);
  EXPECT_EQ(doc.text, "%\nN100O1000\nN110(SETUP)\nG00 X0\nN5 G01 X1");
  EXPECT_TRUE(doc.fileUndoable);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(doc.statusTexts, (std::vector<std::string>{"Renumbering file...", "Press F1 for help."}));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RenumberDialog, EmptySequenceCharacterIsRefusedAndTheDialogStays) {
  FakeDocument doc(kProgram);
  dialog->showFor(doc);
  child<QLineEdit>("txtSeqChr")->setText("   ");
  ok();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "Sequence character must be specified.");
  EXPECT_EQ(dialogs.messages[0].caption, "Error");
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(RenumberDialog, FieldsComeFromAndGoBackToTheNumberingSettings) {
  settings.save("Numbering", "Character", "O");
  settings.save("Numbering", "Method", "1");
  settings.save("Numbering", "Start", "7");
  dialog = std::make_unique<frmRenumber>(settings);
  EXPECT_EQ(child<QLineEdit>("txtSeqChr")->text(), "O");
  EXPECT_EQ(child<QLineEdit>("txtStep")->text(), "1");  // default
  EXPECT_EQ(child<QLineEdit>("txtSkipLines")->text(), "%");
  EXPECT_TRUE(child<QRadioButton>("Option1_1")->isChecked());
  EXPECT_EQ(dialog->method(), 1);

  FakeDocument doc(kProgram);
  dialog->showFor(doc);
  child<QRadioButton>("Option1_0")->click();
  test::typeKeys(child<QLineEdit>("txtStep"), "2x5");  // letters are discarded
  EXPECT_EQ(child<QLineEdit>("txtStep")->text(), "125");
  child<QPushButton>("Command1")->click();  // cancel: nothing changes, the fields are kept
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_EQ(settings.get("Numbering", "Method"), "0");
  EXPECT_EQ(settings.get("Numbering", "Increment"), "125");
  EXPECT_EQ(settings.get("Numbering", "Character"), "O");
}

TEST_F(RenumberDialog, UpdateReferencesIsOffByDefaultKeptInNumberingAndFollowsTheJumps) {
  EXPECT_FALSE(child<QCheckBox>("chkReferences")->isChecked());
  const std::vector<std::string> loop{"N1 G1 X1", "N2 GOTO 1"};
  FakeDocument plain(loop);
  dialog->showFor(plain);
  fill("10", "10", 2);
  ok();
  EXPECT_EQ(plain.text, "N10 G1 X1\nN20 GOTO 1");
  EXPECT_EQ(settings.get("Numbering", "UpdateReferences"), "False");

  dialog = std::make_unique<frmRenumber>(settings);
  FakeDocument kept(loop);
  dialog->showFor(kept);
  child<QCheckBox>("chkReferences")->click();
  ok();
  EXPECT_EQ(kept.text, "N10 G1 X1\nN20 GOTO 10");
  EXPECT_EQ(settings.get("Numbering", "UpdateReferences"), "True");

  // A jump to nowhere: the message names it and the document keeps its text.
  dialog = std::make_unique<frmRenumber>(settings);
  EXPECT_TRUE(child<QCheckBox>("chkReferences")->isChecked());
  FakeDocument broken({"N1 GOTO 7"});
  dialog->showFor(broken);
  ok();
  EXPECT_EQ(broken.reloads, 0);
  EXPECT_EQ(broken.text, "N1 GOTO 7");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, "Update References");
  EXPECT_NE(dialogs.messages[0].text.find("Line 1: GOTO 7 names N7, which no block has."), std::string::npos);
}

}  // namespace
