// The operate dialog through its OK button: arithmetic over a selection range, the validation
// messages, the division-by-zero choice, the key filters of its fields, the comment switch
// taken from the stored search options, and the settings and histories it keeps.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "dialog_fixture.h"
#include "transform/gui/frm_operate.h"

using namespace lathwick;
using namespace lathwick::gui;
using lathwick::test::FakeDocument;

namespace {

class OperateDialog : public test::DialogTest<frmOperate> {
 protected:
  QComboBox* box(const char* name) { return child<QComboBox>(name); }
  void fill(const char* address, const char* op, const char* value, const char* format) {
    box("cboAddress")->setEditText(address);
    box("cboOperators")->setCurrentText(op);
    box("cboValue")->setEditText(value);
    box("cboFormat")->setEditText(format);
  }
  void ok() { dialog->findChild<QPushButton*>("cmdOK")->click(); }
  std::string status() { return dialog->findChild<QLabel*>("lblStatus")->text().toStdString(); }
};

TEST_F(OperateDialog, ScalesTheSelectedLinesAndKeepsTheEntries) {
  FakeDocument doc({"G00 X10 Y-2.5 Z.1", "G01 X10 Y-2.5 Z.1", "G01 X1"});
  doc.selectLines(2, 2);
  dialog->showFor(doc);
  EXPECT_EQ(box("cboAddress")->currentText(), "XYZ");  // defaults on a fresh store
  EXPECT_EQ(box("cboOperators")->currentText(), "*");
  EXPECT_EQ(box("cboValue")->currentText(), "1");
  EXPECT_EQ(box("cboFormat")->currentText(), "##0.0###");
  EXPECT_EQ(dialog->findChild<QLabel*>("lblRange")->text(), "Range= Line 2 to 2");

  fill("XYZ", "*", "2", "##0.0###");
  ok();
  ASSERT_EQ(doc.reloads, 1);
  EXPECT_TRUE(doc.fileUndoable);
  EXPECT_EQ(test::richBody(doc.reloaded),
            (std::vector<std::string>{"G00 X10 Y-2.5 Z.1",
                                      "G01 X\\cf1 20.0\\plain\\cf0  Y\\cf1 -5.0\\plain\\cf0  Z\\cf1 0.2\\plain\\cf0 ",
                                      "G01 X1"}));
  EXPECT_EQ(status(), "3 Operations made.");
  EXPECT_EQ(doc.statusTexts, (std::vector<std::string>{"Operating... [Esc] to cancel", "Press F1 for help."}));
  EXPECT_TRUE(dialogs.messages.empty());

  EXPECT_EQ((std::vector<std::string>{settings.get("Operate", "Address"), settings.get("Operate", "Operators"),
                                      settings.get("cboValue", "cboValue1"), settings.get("cboFormat", "cboFormat1")}),
            (std::vector<std::string>{"XYZ", "*", "2", "##0.0###"}));

  auto* undo = dialog->findChild<QPushButton*>("cmdUndo");
  ASSERT_TRUE(undo->isEnabled());
  undo->click();
  EXPECT_EQ(doc.undos, 1);

  frmOperate again(settings);
  again.showFor(doc);
  EXPECT_EQ(again.findChild<QComboBox*>("cboValue")->currentText(), "2");  // newest history entry
}

TEST_F(OperateDialog, ValidationMessagesInOrderLeaveTheDialogOpenAndDivisionByZeroIsRefusedAtOnce) {
  FakeDocument doc({"X1"});
  dialog->showFor(doc);
  struct Case {
    const char *address, *op, *value, *format, *message;
  };
  for (const Case& c : {Case{"X", "/", "0", "0.0", "Division by zero not allowed"},
                        Case{"X", "+", "", "0.0", "Value is required."},
                        Case{"", "+", "1", "0.0", "Address is required."},
                        Case{"X", "+", "1", "", "Format is required."}}) {
    dialogs.messages.clear();
    fill(c.address, c.op, c.value, c.format);
    ok();
    ASSERT_EQ(dialogs.messages.size(), 1u) << c.message;
    EXPECT_EQ(dialogs.messages[0].text, c.message);
  }
  EXPECT_EQ(box("cboOperators")->currentText(), "+");  // set back after the division by zero
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(settings.has("Operate", "Address"));

  // Choosing division while the value is zero is refused at once.
  dialogs.messages.clear();
  box("cboValue")->setEditText("0.0");
  QComboBox* op = box("cboOperators");
  op->setCurrentIndex(op->findText("/"));
  emit op->activated(op->currentIndex());
  EXPECT_EQ(dialogs.messages,
            (std::vector<test::Message>{{"Division by zero not allowed.", "Lathwick", Buttons::Ok, Icon::Information}}));
  EXPECT_EQ(op->currentText(), "+");
}

TEST_F(OperateDialog, KeyFiltersDiscardWhatTheFieldsDoNotTake) {
  FakeDocument doc({"X1"});
  dialog->showFor(doc);
  const struct {
    const char* name;
    const char* keys;
    const char* kept;
  } cases[] = {{"cboAddress", "xX1Y-", "XY"}, {"cboFormat", "#0..0a", "#0.0"}, {"cboValue", "1.2.3-a", "1.23"}};
  for (const auto& c : cases) {
    QLineEdit* edit = box(c.name)->lineEdit();
    edit->clear();
    test::typeKeys(edit, c.keys);
    EXPECT_EQ(edit->text().toStdString(), c.kept) << c.name;
  }
}

TEST_F(OperateDialog, AnyStoredSearchOptionKeepsCommentsOutOfTheOperation) {
  settings.save("Startup", "search", "4");  // Match Case alone switches the exclusion on
  FakeDocument doc({"G01 X1 (MOVE X)", "G01 X1 (MOVE"});
  dialog->showFor(doc);
  fill("X", "+", "1", "0.0");
  ok();
  ASSERT_EQ(doc.reloads, 1);
  const auto body = test::richBody(doc.reloaded);
  EXPECT_EQ(body[0], "G01 X1 (MOVE X)");  // a complete comment protects the whole line
  EXPECT_EQ(body[1], "G01 X\\cf1 2.0\\plain\\cf0  (MOVE");
  EXPECT_EQ(status(), "1 Operations made.");
}

}  // namespace
