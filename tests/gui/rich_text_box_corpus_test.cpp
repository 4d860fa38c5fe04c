// Documents from word processors load into the control, and what it saves loads back the same.
#include <filesystem>

#include "document/rtf_reader.h"
#include "rich_text_box_fixture.h"
#include "support/cli_runner.h"
#include "support/temp_dir.h"

using lathwick::FileKind;
using lathwick::test::RichTextBoxTest;

TEST_F(RichTextBoxTest, CorpusDocumentsLoadAndSurviveASaveAndReload) {
  const std::string dir = lathwick::test::corpusDir("rtf");
  if (dir.empty()) GTEST_SKIP() << "the shared RTF corpus is not here";
  lathwick::test::TempDir out;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(dir)) {
    const std::string ext = entry.path().extension().string();
    if (ext != ".rtf" && ext != ".RTF") continue;
    ++files;
    const std::string name = entry.path().filename().string();
    box->loadFile(entry.path().string(), FileKind::RichText);
    const std::string text = box->textBytes();
    EXPECT_EQ(text, lathwick::readRtfFile(entry.path().string()).text) << name;
    EXPECT_EQ(box->lineCount(), static_cast<int>(std::count(text.begin(), text.end(), '\n')) + 1) << name;

    box->saveFile(out.file("copy.rtf"), FileKind::RichText);
    const std::string styles = box->stylesOf(0, box->textLength());
    const auto strikes = box->strikeoutsOf(0, box->textLength());
    lathwick::RichTextBox copy;
    copy.loadFile(out.file("copy.rtf"), FileKind::RichText);
    ASSERT_EQ(copy.textBytes(), text) << name;
    EXPECT_EQ(copy.strikeoutsOf(0, copy.textLength()), strikes) << name;
    for (long i = 0; i < copy.textLength(); ++i) {
      if (text[i] == '\r' || text[i] == '\n') continue;
      const auto& want = box->styleTable().format(static_cast<unsigned char>(styles[i]));
      const auto& got = copy.styleTable().format(static_cast<unsigned char>(copy.stylesOf(i, i + 1)[0]));
      if (!(want == got)) {
        ADD_FAILURE() << name << ": format differs at " << i;
        break;
      }
    }
  }
  EXPECT_GT(files, 40);
}
