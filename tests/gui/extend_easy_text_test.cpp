// The easy-text dialog driven through its buttons: categories and snippets, Insert into the
// active document at the caret, Copy, New/Save/Delete, and the last choice shown again.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "extend/gui/frm_easy_text.h"
#include "frame_fixture.h"
#include "screenshot.h"

using namespace lathwick;
using lathwick::test::child;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;

namespace {

class EasyTextTest : public FrameTest {
 protected:
  EasyTextTest() {
    app.write("Mill.dis", "2\r\n\"Start\",\"G17 G40\r\n(SAY \x7fHI\x7f)\"\r\n\"End\",\"M30\"\r\n");
    app.write("Blank.dis", "");
  }
  gui::frmEasyText* openEasyText() {
    trigger("mnueasytext");
    auto* form = frame->findChild<gui::frmEasyText*>("frmEasyText");
    EXPECT_NE(form, nullptr);
    return form;
  }
  void chooseCategory(gui::frmEasyText* form, const QString& name) {
    auto* box = child<QComboBox>(form, "cboFileName");
    const int i = box->findText(name);
    ASSERT_GE(i, 0);
    box->setCurrentIndex(i);
    emit box->activated(i);
  }
  void chooseSnippet(gui::frmEasyText* form, int row) {
    auto* list = child<QListWidget>(form, "lstSections");
    list->setCurrentRow(row);
    emit list->itemClicked(list->item(row));
  }
  void press(gui::frmEasyText* form, const char* name) {
    QAbstractButton* b = form->findChild<QAbstractButton*>(name);
    ASSERT_NE(b, nullptr) << name;
    ASSERT_TRUE(b->isEnabled()) << name << " is disabled";
    b->click();
  }
  std::vector<std::string> snippets(gui::frmEasyText* form) {
    std::vector<std::string> names;
    auto* list = child<QListWidget>(form, "lstSections");
    for (int i = 0; i < list->count(); ++i) names.push_back(list->item(i)->text().toStdString());
    return names;
  }
};

TEST_F(EasyTextTest, InsertReplacesTheSelectionOfTheActiveDocumentAndCopyFillsTheClipboard) {
  const std::string path = files.write("p.nc", "N1 G00\r\nN2 M30\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  gui::frmEasyText* form = openEasyText();
  EXPECT_EQ(form->windowTitle(), "Easy Text");
  EXPECT_EQ(child<QLabel>(form, "lblCategory")->text(), "Category:");
  auto* box = child<QComboBox>(form, "cboFileName");
  ASSERT_EQ(box->count(), 2);
  EXPECT_EQ(box->itemText(0), "Blank.dis");
  EXPECT_EQ(box->currentText(), "Blank.dis");  // the first at the first opening
  EXPECT_FALSE(child<QToolButton>(form, "cmdSave")->isEnabled());
  chooseCategory(form, "Mill.dis");
  EXPECT_EQ(snippets(form), (std::vector<std::string>{"Start", "End"}));
  chooseSnippet(form, 0);
  EXPECT_EQ(child<QPlainTextEdit>(form, "txtEdit")->toPlainText(), "G17 G40\n(SAY \"HI\")");
  EXPECT_TRUE(child<QToolButton>(form, "cmdSave")->isEnabled());
  EXPECT_TRUE(child<QToolButton>(form, "cmdDelete")->isEnabled());
  lathwick::test::saveScreenshot(form, "easy_text");

  e->rtfTextBox().setSelection(8, 2);  // "N2" of the second line
  press(form, "cmdInsert");
  EXPECT_EQ(e->rtfTextBox().text(), "N1 G00\r\nG17 G40\r\n(SAY \"HI\") M30\r\n");
  EXPECT_TRUE(e->record().changed);
  press(form, "cmdInsert");  // again, after the first
  EXPECT_EQ(e->rtfTextBox().text(), "N1 G00\r\nG17 G40\r\n(SAY \"HI\")G17 G40\r\n(SAY \"HI\") M30\r\n");
  press(form, "cmdCopy");
  EXPECT_EQ(QApplication::clipboard()->text(), "G17 G40\r\n(SAY \"HI\")");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(EasyTextTest, NewSaveAndDeleteRewriteTheCategoryFile) {
  start();
  trigger("mnuNew");  // the entry is in the menu of a document window
  gui::frmEasyText* form = openEasyText();
  chooseCategory(form, "Mill.dis");
  dialogs.texts.push_back(std::string("Probe \"Z\""));
  press(form, "cmdNew");
  ASSERT_EQ(dialogs.queries, std::vector<std::string>{"New Easy Text"});
  EXPECT_EQ(snippets(form), (std::vector<std::string>{"Start", "End", "Probe \"Z\""}));
  EXPECT_EQ(child<QListWidget>(form, "lstSections")->currentRow(), 2);
  EXPECT_TRUE(child<QPlainTextEdit>(form, "txtEdit")->toPlainText().isEmpty());
  child<QPlainTextEdit>(form, "txtEdit")->setPlainText("G65 P9810 Z5.\nG65 P9811 Z0. (\"TOUCH\")");
  press(form, "cmdSave");
  EXPECT_EQ(readBytes(app.file("Mill.dis")),
            "3\r\n\"Start\",\"G17 G40\r\n(SAY \x7fHI\x7f)\"\r\n\"End\",\"M30\"\r\n"
            "\"Probe \x7fZ\x7f\",\"G65 P9810 Z5.\r\nG65 P9811 Z0. (\x7fTOUCH\x7f)\"\r\n");

  chooseSnippet(form, 0);
  press(form, "cmdDelete");
  EXPECT_EQ(snippets(form), (std::vector<std::string>{"End", "Probe \"Z\""}));
  EXPECT_FALSE(child<QToolButton>(form, "cmdSave")->isEnabled());
  EXPECT_TRUE(child<QPlainTextEdit>(form, "txtEdit")->toPlainText().isEmpty());
  EXPECT_EQ(readBytes(app.file("Mill.dis")),
            "2\r\n\"End\",\"M30\"\r\n\"Probe \x7fZ\x7f\",\"G65 P9810 Z5.\r\nG65 P9811 Z0. (\x7fTOUCH\x7f)\"\r\n");

  dialogs.texts.push_back(std::nullopt);  // cancelled: nothing changes
  press(form, "cmdNew");
  EXPECT_EQ(snippets(form).size(), 2u);
}

TEST_F(EasyTextTest, AnEmptyCategoryTakesItsFirstSnippetAndTheLastChoiceComesBack) {
  start();
  trigger("mnuNew");
  gui::frmEasyText* form = openEasyText();
  EXPECT_TRUE(snippets(form).empty());
  dialogs.texts.push_back(std::string("Safe start"));
  press(form, "cmdNew");
  child<QPlainTextEdit>(form, "txtEdit")->setPlainText("G17 G40 G49 G80 G90");
  press(form, "cmdSave");
  EXPECT_EQ(readBytes(app.file("Blank.dis")), "1\r\n\"Safe start\",\"G17 G40 G49 G80 G90\"\r\n");

  chooseCategory(form, "Mill.dis");
  chooseSnippet(form, 1);
  press(form, "cmdExit");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  form = openEasyText();
  EXPECT_EQ(child<QComboBox>(form, "cboFileName")->currentText(), "Mill.dis");
  EXPECT_EQ(child<QListWidget>(form, "lstSections")->currentRow(), 1);
  EXPECT_EQ(child<QPlainTextEdit>(form, "txtEdit")->toPlainText(), "M30");

  trigger("mnuClose");
  ASSERT_TRUE(frame->editors().empty());
  press(form, "cmdInsert");  // no document open: nothing happens, nothing is said
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
