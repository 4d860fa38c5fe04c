// Every program of the shared corpus through the window: opened, coloured by modes (after the
// junk filter when its line ends need it: mixed line ends, not Linux text), saved as rich text
// and opened again with the same characters.

#include "document/document_table.h"
#include "document/line_convention.h"
#include "document/line_ending_checks.h"
#include "frame_fixture.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, CorpusProgramsColourSaveAsRichTextAndReopen) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "no corpus";
  if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  start();
  int programs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (entry.path().filename() == "SOURCES.md" || std::filesystem::file_size(entry.path()) == 0) continue;
    ++programs;
    const std::string name = entry.path().filename().string();
    gui::frmEditor* e = openFile(entry.path().string());
    ASSERT_NE(e, nullptr) << name;
    dialogs.messages.clear();
    trigger("mnuModal", 0);
    if (!dialogs.messages.empty()) {
      // Bare line feeds among CR LFs: the only refusal, and the junk filter is the cure.
      ASSERT_EQ(dialogs.messages[0].text, kJunkFilterMessage) << name;
      ASSERT_NE(lineEndsOfFile(entry.path().string()), LineEnds::Lf) << name << ": Linux text refused";
      dialogs.messages.clear();
      trigger("mnuJunkFilter");
      trigger("mnuModal", 0);
      ASSERT_TRUE(dialogs.messages.empty()) << name << ": " << dialogs.messages[0].text;
    }
    ASSERT_TRUE(e->FileUndoable()) << name;
    const std::string shown = e->rtfTextBox().text();
    const std::string rtf = files.file(name + ".rtf");
    dialogs.files.push_back(rtf);
    trigger("mnuSaveRTF");
    ASSERT_EQ(lathwick::test::readBytes(rtf).substr(0, 5), "{\\rtf") << name;
    trigger("mnuClose");
    gui::frmEditor* again = openFile(rtf);
    ASSERT_NE(again, nullptr) << name;
    EXPECT_EQ(again->rtfTextBox().text(), shown) << name;
    trigger("mnuClose");
  }
  EXPECT_GT(programs, 0);
}
