// The control's line model and selection, as every other part of the editor reads them.
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>

#include "rich_text_box_fixture.h"
#include "platform/errors.h"
#include "support/temp_dir.h"

using lathwick::FileKind;
using lathwick::test::RichTextBoxTest;

TEST_F(RichTextBoxTest, LinesAreSeparatedByCrLfAndExcludeTheirBreak) {
  EXPECT_EQ(box->lineCount(), 1);  // an empty document has one line
  EXPECT_EQ(box->lineTextLength(0), 0);
  EXPECT_EQ(box->lineFromChar(0), 0);
  EXPECT_EQ(box->textBytes(), "");
  box->setTextBytes("N10 G00\r\nN20\r\n\r\nlast");
  EXPECT_EQ(box->lineCount(), 4);
  EXPECT_EQ(box->lineIndex(0), 0);
  EXPECT_EQ(box->lineIndex(1), 9);
  EXPECT_EQ(box->lineIndex(3), 16);
  EXPECT_EQ(box->lineTextLength(0), 7);
  EXPECT_EQ(box->lineTextLength(2), 0);
  EXPECT_EQ(box->lineTextLength(3), 4);
  EXPECT_EQ(box->lineFromChar(8), 0);  // the LF of the first break still belongs to line 0
  EXPECT_EQ(box->lineFromChar(9), 1);
  EXPECT_EQ(box->lineFromChar(19), 3);
  box->setTextBytes("a\r\n");
  EXPECT_EQ(box->lineCount(), 2);  // a final break starts an empty last line
}

TEST_F(RichTextBoxTest, SelectionStartLengthAndTextAreByteOffsets) {
  box->setTextBytes("caf\xE9 X1\r\nY2");
  box->setSelStart(3);
  EXPECT_EQ(box->selStart(), 3);
  EXPECT_EQ(box->selLength(), 0);
  box->setSelLength(4);
  EXPECT_EQ(box->selText(), "\xE9 X1");  // one byte is one character
  box->setSelText("\xB0");
  EXPECT_EQ(box->textBytes(), "caf\xB0\r\nY2");
  EXPECT_EQ(box->selStart(), 4);  // the caret follows the new text
  EXPECT_EQ(box->selLength(), 0);
  box->setSelStart(1000);
  EXPECT_EQ(box->selStart(), box->textLength());
}

TEST_F(RichTextBoxTest, ScrollingAndFirstVisibleLine) {
  box->setTextBytes(numberedLines(500));
  EXPECT_EQ(box->firstVisibleLine(), 0);
  box->lineScroll(120);
  EXPECT_EQ(box->firstVisibleLine(), 120);
  box->lineScroll(-20);
  EXPECT_EQ(box->firstVisibleLine(), 100);
  box->setSelStart(box->lineIndex(50));  // above the view
  box->lineScroll(100 - box->firstVisibleLine());
  EXPECT_LT(box->caretPixelPosition().y(), 0);
  box->setSelStart(box->lineIndex(101));
  EXPECT_GE(box->caretPixelPosition().y(), 0);
}

TEST_F(RichTextBoxTest, PlainTextLoadsAndSavesByteForByte) {
  lathwick::test::TempDir dir;
  const std::string bytes = "%\r\nN10 G00 X\xB1" "1\r\n\tlone\nLF\r\n";
  const std::string in = dir.write("in.nc", bytes);
  box->loadFile(in, FileKind::PlainText);
  EXPECT_EQ(box->textBytes(), bytes);
  box->saveFile(dir.file("out.nc"), FileKind::PlainText);
  EXPECT_EQ(dir.read("out.nc"), bytes);
  EXPECT_FALSE(box->canUndo());  // a load is not an edit
  // The whole text counts as loaded, so a snapshot can be written from the load's styles.
  const auto loaded = box->unchangedDocument();
  ASSERT_TRUE(loaded.has_value());
  EXPECT_EQ(loaded->text, bytes);
  EXPECT_THROW(box->loadFile(dir.file("absent.nc"), FileKind::PlainText), lathwick::AppError);
  EXPECT_EQ(box->textBytes(), bytes);  // a failed load leaves the control as it was
}

TEST_F(RichTextBoxTest, FileKindFollowsTheRtfExtension) {
  EXPECT_EQ(lathwick::fileKindOf("C:/x.rtf"), FileKind::RichText);
  EXPECT_EQ(lathwick::fileKindOf("C:/X.RTF"), FileKind::RichText);
  EXPECT_EQ(lathwick::fileKindOf("x.rtf.nc"), FileKind::PlainText);
  EXPECT_EQ(lathwick::fileKindOf("rtf"), FileKind::PlainText);
}

TEST_F(RichTextBoxTest, EditsAreReportedAndAssistiveTechnologyGetsTheCheapDescription) {
  int reports = 0;
  QObject::connect(box.get(), &lathwick::RichTextBox::textModified, [&] { ++reports; });
  box->setTextBytes("N10");
  EXPECT_EQ(reports, 1);  // one report per load
  box->setFocus();
  box->setSelStart(3);
  QKeyEvent key(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "1");
  QApplication::sendEvent(box.get(), &key);
  EXPECT_EQ(box->textBytes(), "N101");
  EXPECT_EQ(reports, 2);
  EXPECT_TRUE(box->canUndo());
  // The control's own description has no text interface that counts characters from the start.
  QAccessibleInterface* description = QAccessible::queryAccessibleInterface(box.get());
  ASSERT_NE(description, nullptr);
  EXPECT_EQ(description->role(), QAccessible::EditableText);
  EXPECT_EQ(description->textInterface(), nullptr);
}
