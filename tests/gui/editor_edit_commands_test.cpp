// The Edit menu's line, clipboard and case commands, driven through their menu entries.
#include <QClipboard>

#include "frame_fixture.h"
#include "document/gui/rich_text_box.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, CutLineAndPasteLineMoveALineWithItsLook) {
  start();
  gui::frmEditor* e = openFile(files.write(
      "p.rtf", "{\\rtf1\\ansi{\\fonttbl{\\f0 Courier New;}}\\f0 N10 G00\\par\\b N20 G01\\b0\\par N30 M30}"));
  auto& text = e->rtfTextBox();
  const RichTextBox& box = e->richTextBox();
  const auto boldAt = [&box](long at) {
    return box.styleTable().format(static_cast<unsigned char>(box.stylesOf(at, at + 1).at(0))).bold;
  };
  ASSERT_TRUE(boldAt(text.lineIndex(1)));
  text.setSelection(text.lineIndex(1) + 3, 0);
  trigger("mnuCutLine");
  EXPECT_EQ(text.text(), "N10 G00\r\nN30 M30");
  text.setSelection(0, 0);
  trigger("mnuPasteLine");
  EXPECT_EQ(text.text(), "N20 G01\r\nN10 G00\r\nN30 M30");
  EXPECT_TRUE(boldAt(0));
  EXPECT_TRUE(boldAt(6));
  EXPECT_FALSE(boldAt(text.lineIndex(1)));
}

TEST_F(FrameTest, CutToEndStopsAtTheLineBreak) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "N10 G00 X1\r\nN20\r\n"));
  e->rtfTextBox().setSelection(4, 0);
  trigger("mnuCutToEnd");
  EXPECT_EQ(e->rtfTextBox().text(), "N10 \r\nN20\r\n");
}

TEST_F(FrameTest, CaseCommandsChangeOnlyTheSelection) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "n10 g01 x1 (tool one)\r\n"));
  auto& text = e->rtfTextBox();
  text.setSelection(0, 10);
  trigger("mnuUcase");
  EXPECT_EQ(text.text(), "N10 G01 X1 (tool one)\r\n");
  text.setSelection(12, 8);
  trigger("mnuTitlecase");
  EXPECT_EQ(text.text(), "N10 G01 X1 (Tool One)\r\n");
  text.setSelection(0, 3);
  trigger("mnuLcase");
  EXPECT_EQ(text.text(), "n10 G01 X1 (Tool One)\r\n");
  EXPECT_TRUE(e->record().changed);
}

TEST_F(FrameTest, AppendEmptyClipboardSelectAllAndGetLastSelection) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "G00 X1\r\nG01 Y2\r\n"));
  auto& text = e->rtfTextBox();
  trigger("mnuCleaeClip");
  EXPECT_TRUE(QApplication::clipboard()->text().isEmpty());
  text.setSelection(8, 6);
  trigger("mnuAppend");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "\r\nG01 Y2");
  text.setSelection(0, 3);
  trigger("mnuAppend");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "\r\nG01 Y2\r\nG00");
  text.setSelection(0, 0);
  trigger("mnuSelectAll");
  EXPECT_EQ(text.selLength(), text.textLength());
  text.setSelection(8, 3);
  text.setSelection(1, 0);
  trigger("mnuGetLast");  // the whole text was the last selection before "G01"
  EXPECT_EQ(text.selStart(), 8);
  EXPECT_EQ(text.selLength(), 3);
}

TEST_F(FrameTest, MenuKeysRunTheirCommandsInTheActiveDocumentNotInTheTextControl) {
  start();
  QApplication::setActiveWindow(frame.get());
  gui::frmEditor* e = openFile(files.write("p.nc", "N10 G00\r\nN20 G01\r\n"));
  e->rtfTextBox().widget()->setFocus();
  QApplication::clipboard()->setText(QStringLiteral("x"));
  EXPECT_TRUE(lathwick::test::pressShortcut(e->rtfTextBox().widget(), Qt::Key_E, Qt::ControlModifier));
  EXPECT_TRUE(QApplication::clipboard()->text().isEmpty());
  EXPECT_TRUE(lathwick::test::pressShortcut(e->rtfTextBox().widget(), Qt::Key_F5));
  EXPECT_EQ(e->rtfTextBox().text(), "N20 G01\r\n");
  EXPECT_TRUE(lathwick::test::pressShortcut(e->rtfTextBox().widget(), Qt::Key_A, Qt::ControlModifier));
  EXPECT_EQ(e->rtfTextBox().selLength(), e->rtfTextBox().textLength());
  // Ctrl+L lists the macros (none are loaded here, so nothing pops up).
  EXPECT_TRUE(lathwick::test::pressShortcut(e->rtfTextBox().widget(), Qt::Key_L, Qt::ControlModifier));
  app.write("help/index.html", "<html></html>");
  EXPECT_TRUE(lathwick::test::pressShortcut(e->rtfTextBox().widget(), Qt::Key_F1));
  EXPECT_EQ(dialogs.opened.size(), 1u);
  // Ctrl+D is the menu's too; the control's own editing keys stay with it.
  const auto claims = [&](int key) {
    QKeyEvent probe(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    probe.ignore();
    QApplication::sendEvent(e->rtfTextBox().widget(), &probe);
    return probe.isAccepted();
  };
  EXPECT_FALSE(claims(Qt::Key_D));
  EXPECT_TRUE(claims(Qt::Key_Z));
  EXPECT_TRUE(claims(Qt::Key_X));
}
