// View Modes, View Codes and Reload through the menus, with undo and Esc cancelling a long run.
#include <algorithm>
#include <filesystem>

#include "document/document_table.h"
#include "document/line_ending_checks.h"
#include "format/colorizer.h"
#include "frame_fixture.h"
#include "support/temp_dir.h"
#include "document/gui/rich_text_box.h"
#include "shell/gui/status_panels.h"
#include "shell/gui/mdi_form.h"

#include <QKeyEvent>
#include <QTimer>

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {
class ColorizeTest : public FrameTest {
 protected:
  void SetUp() override {
    const std::string bundled = std::string(LATHWICK_APP_DIR) + "/Lathwick.dat";
    if (!std::filesystem::exists(bundled)) GTEST_SKIP() << "no bundled scheme data file in the build folder";
    std::filesystem::copy_file(bundled, values.DataFilePath, std::filesystem::copy_options::overwrite_existing);
  }
  // The style number of the first character of each line.
  static std::vector<int> lineStyles(gui::frmEditor* e) {
    std::vector<int> out;
    for (int line = 0; line < e->LineCount(); ++line) {
      if (e->rtfTextBox().lineLength(line) == 0) continue;
      const long at = e->rtfTextBox().lineIndex(line);
      out.push_back(static_cast<unsigned char>(e->richTextBox().stylesOf(at, at + 1).at(0)));
    }
    return out;
  }
};

std::string program(int lines) {
  std::string text;
  for (int i = 1; i <= lines; ++i) text += "N" + std::to_string(i) + (i % 2 ? " G00 X1" : " G01 Y2") + "\r\n";
  return text;
}
}  // namespace

TEST_F(ColorizeTest, ViewModesColoursByModeAndUndoTakesItBack) {
  const std::string text = "G00 X1\r\nX2\r\nG01 Y3\r\n(NOTE)\r\n";
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", text));
  trigger("mnuModal", 0);
  // The characters stay, the final line break too; only their look changes.
  EXPECT_EQ(e->rtfTextBox().text(), text);
  const std::vector<int> modes = lineStyles(e);
  ASSERT_EQ(modes.size(), 4u);
  EXPECT_EQ(modes[0], modes[1]);  // G00 stays in force on the next line
  EXPECT_NE(modes[0], modes[2]);  // G01 looks different
  EXPECT_NE(modes[2], modes[3]);  // and so does the comment
  EXPECT_TRUE(e->FileUndoable());
  EXPECT_TRUE(frame->toolButton("Undo")->isEnabled());
  EXPECT_EQ(frame->statusPanels().text("Stat"), kReadyStatus);
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), text);
  const std::vector<int> undone = lineStyles(e);  // one look for every line again
  EXPECT_EQ(std::count(undone.begin(), undone.end(), undone.front()), 4);
  EXPECT_FALSE(e->FileUndoable());
}

TEST_F(ColorizeTest, ToolbarCodesAndReloadAreAvailableWithADocument) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "G00 X1 Y2 Z3\r\n"));
  ASSERT_TRUE(frame->toolButton("Codes")->isEnabled());
  frame->toolButton("Codes")->trigger();
  QApplication::processEvents();
  EXPECT_TRUE(e->FileUndoable());
  const std::string x = e->richTextBox().stylesOf(4, 5), y = e->richTextBox().stylesOf(7, 8);
  EXPECT_NE(x, y);  // X and Y positions in their own styles
  trigger("mnuModal", 2);  // Reload: the text as it is, formats dropped
  EXPECT_EQ(e->rtfTextBox().text(), "G00 X1 Y2 Z3\r\n");
  EXPECT_EQ(e->richTextBox().stylesOf(4, 5), e->richTextBox().stylesOf(7, 8));
}

TEST_F(ColorizeTest, EscOrAClickOnTheMessagePanelCancelsALongRunAndLeavesTheDocument) {
  const std::string text = program(5000);
  start();
  gui::frmEditor* e = openFile(files.write("long.nc", text));
  const std::vector<int> before = lineStyles(e);
  // Esc is pressed in the document while the run is under way (the first time it lets window
  // events run).
  bool pressed = false;
  QTimer::singleShot(0, frame.get(), [&] {
    pressed = frame->passRunning();
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(e->rtfTextBox().widget(), &esc);
  });
  trigger("mnuModal", 0);
  ASSERT_TRUE(pressed);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kCancelledMessage);
  EXPECT_EQ(dialogs.messages[0].caption, kCancelledTitle);
  EXPECT_EQ(e->rtfTextBox().text(), text);
  EXPECT_EQ(lineStyles(e), before);
  EXPECT_FALSE(e->FileUndoable());
  EXPECT_FALSE(frame->passRunning());
  EXPECT_EQ(frame->statusPanels().text("Stat"), kReadyStatus);
  // A click on the status bar's message panel stops a run too.
  dialogs.messages.clear();
  QTimer::singleShot(0, frame.get(), [&] { lathwick::test::mouseClick(frame->statusPanels().panel("Stat"), Qt::LeftButton); });
  trigger("mnuModal", 1);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kCancelledMessage);
  EXPECT_FALSE(e->FileUndoable());
  // The next run starts with the flag cleared and completes.
  trigger("mnuModal", 0);
  EXPECT_TRUE(e->FileUndoable());
}

// The undo file of a colour run is written while the colorizer runs: meanwhile the document
// takes no typing, a run that is cancelled leaves the undo file as it was, and a completed run's
// undo file brings back the document from before it, colours and all.
TEST_F(ColorizeTest, TheUndoFileIsWrittenDuringTheRunAndReplacedOnlyWhenTheResultComes) {
  const std::string text = program(5000);
  start();
  gui::frmEditor* e = openFile(files.write("long.nc", text));
  trigger("mnuModal", 0);
  const std::vector<int> modes = lineStyles(e);
  const std::string plainSnapshot = lathwick::test::readBytes(values.UndoFile);
  ASSERT_FALSE(plainSnapshot.empty());

  // Typing and Esc while View Codes runs: the typing is refused, the run is cancelled.
  bool readOnly = false;
  QTimer::singleShot(0, frame.get(), [&] {
    readOnly = e->richTextBox().isReadOnly();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");
    QApplication::sendEvent(e->rtfTextBox().widget(), &key);
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(e->rtfTextBox().widget(), &esc);
  });
  trigger("mnuModal", 1);
  EXPECT_TRUE(readOnly);
  EXPECT_FALSE(e->richTextBox().isReadOnly());
  EXPECT_EQ(e->rtfTextBox().text(), text);
  EXPECT_EQ(lathwick::test::readBytes(values.UndoFile), plainSnapshot);
  EXPECT_EQ(lineStyles(e), modes);

  // A completed View Codes: Undo brings the colours by modes back.
  dialogs.messages.clear();
  trigger("mnuModal", 1);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_NE(lineStyles(e), modes);
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), text);
  EXPECT_EQ(lineStyles(e), modes);
}
