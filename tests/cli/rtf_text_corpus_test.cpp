// rtf-text over real documents from word processors: it never fails, and its lines are the
// paragraphs a reader of each document sees (text outside Windows-1252 shows as "?").
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "support/cli_runner.h"

namespace {

using lathwick::test::corpusDir;
using lathwick::test::CliResult;
using lathwick::test::runCli;

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find("\r\n", from);
    lines.push_back(text.substr(from, at == std::string::npos ? std::string::npos : at - from));
    if (at == std::string::npos) return lines;
    from = at + 2;
  }
}

struct Expected {
  const char* file;
  std::vector<std::string> paragraphs;  // each must be one whole line of the output
};

// Paragraphs read off each document's body, as the editor holds them. List bullets written in
// the Symbol font keep their byte (0xB7), which that font draws as a bullet.
const std::vector<Expected> kExpected = {
    {"rtfjs__simple1.rtf", {"This is a simple one paragraph document."}},
    {"rtfjs__simple5.rtf",
     {"This is a simple five paragraph document.", "This is the second paragraph with a",
      "line break and it is centered.", "This is the third paragraph.",
      "This is the fourth paragraph and it is right aligned.", "And this paragraph is left aligned again."}},
    {"rtfjs__hyperlink.rtf",
     {"This is a document with", "a hyperlink to this project.",
      "And this last paragraph should be left-aligned again."}},
    {"rtfjs__colors.rtf",
     {"", "Normal Line 1", "Normal Line 2", "Colored Line", "Highlighted Line", "Colored & Highlighted Line"}},
    {"rtfjs__pile-of-poo.rtf", {"I\xF1t\xEBrn\xE2ti\xF4n\xE0liz\xE6ti\xF8n??"}},
    {"rtfjs__simplepict.rtf", {"Then a JPEG: (which is really a WMF image)"}},
    {"rtfjs__sample.rtf",
     {"This is a test RTF", "\xB7\tItem 1", "\xB7\tItem 4", "Cell 1\tCell 2", "And here\x92s yet another paragraph. "}},
    {"rtfjs__superscript-subscript.rtf", {"Normalsupersub and normal once again."}},
    {"rtfjs__HOMEAUDIOMETER.RTF",
     {"Audiometer Main Screen Help", "The main program window consists of three main elements:",
      "\xB7\tPull-down menu"}},
    {"rtfjs__japanese-single-double-byte.rtf", {"Changing Keyboard language layout"}},
    {"rtfpipe__List.rtf", {"Paragraph", "\xB7\tBullet", "Paragraph 2", "1.\tList 1", "2.\tList 2"}},
    {"rtfpipe__RtfParserTest_1.rtf", {"Hello world in {RTF}\x85", ""}},
    {"rtfpipe__RtfParserTest_3.rtf", {"Hello world in {RTF}\x85", ""}},
    {"rtfpipe__RtfParserTest_4.rtf", {std::string(17, '?')}},
    {"rtfpipe__RtfParserTest_fail_2.rtf", {"Hello world in {RTF}\x85", ""}},
    {"rtfpipe__Test01.rtf",
     {"Hellou RTF World", "with some symbols: \"abc\"", "and some bold, italic, underlined and strikethrough text",
      "different ways: [A] == [A] == [A] == [A]", "something to ignore: visible."}},
    {"rtfpipe__rtf2xml_table_simple.rtf", {"2 X 2 Table", "Cell one\tCell two", "Cell three\tCell four"}},
    {"rtfpipe__rtf2xml_ted_hello_world.rtf", {"hello world"}},
    {"rtfpipe__rtf2xml_os_x_text_edit_faces_mixed.rtf", {"Normal text", "added color no color", "bold normal"}},
    {"striprtf__line_break_textedit_mac.rtf", {"A", "B", "C"}},
    {"striprtf__pages_table_sample.rtf",
     {"Tabelle ist:", "Header A\tHeader B\tHeader C", "A3\tB3\tC3", "Hier steht wieder normaler Text."}},
    {"striprtf__calcium_score.rtf", {"Calcium-Score", "RCA\t 0", "Gesamt Calcium-Score\t 0"}},
    {"striprtf__hyperlinks.rtf", {"Wikipedia", "Text", "Search"}},
    {"striprtf__mac_textedit_hyperlink.rtf",
     {"macOS text edit hyperlink", "First one is: striprtf.dev (plain)", "Second one is: github (real)"}},
    {"striprtf__ansicpg1250.rtf", {"Prosz? o zapoznanie si? z poni?sz? klauzul? informacyjn?."}},
    {"pandoc__unicode.rtf", {"\x93hi\x94\x91hi\x92??\xE4"}},
    {"pandoc__table_nested.rtf",
     {"Level two before", "Deep A\tDeep B", "Deep C\tDeep D", "Level two after", "Outer after", "Outside table"}},
    {"pandoc__writer.rtf", {"Pandoc Test Suite", "Headers", "Level 2 with an embedded link"}},
    {"libreoffice__bin-skipping.rtf", {"text"}},
    {"libreoffice__fdo85889-pc.rtf", {"\xB1??"}},
    {"libreoffice__fdo85889-pca.rtf", {"\xB1?\xBE"}},
    {"libreoffice__hyperlink-with-backslashes.rtf", {"link"}},
};

}  // namespace

TEST(RtfTextCorpus, EveryDocumentLoadsAndShowsNoMarkup) {
  const std::string dir = corpusDir("rtf");
  if (dir.empty()) GTEST_SKIP() << "the shared RTF corpus is not here";
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(dir)) {
    const std::string ext = entry.path().extension().string();
    if (ext != ".rtf" && ext != ".RTF") continue;
    ++files;
    const auto r = runCli({"rtf-text", entry.path().string()});
    const std::string name = entry.path().filename().string();
    EXPECT_EQ(r.exitCode, 0) << name << ": " << r.err;
    EXPECT_EQ(r.out.find('\0'), std::string::npos) << name;
    for (const char* leak : {"\\par", "\\f0", "{\\", "\\'", "\\u", "fonttbl", "colortbl", "Times New Roman;"})
      EXPECT_EQ(r.out.find(leak), std::string::npos) << name << " shows " << leak;
    // Line ends in the output are paragraph breaks only: never a lone CR or LF.
    for (std::size_t i = 0; i < r.out.size(); ++i) {
      const bool paired = r.out[i] == '\r' ? (i + 1 < r.out.size() && r.out[i + 1] == '\n')
                                            : r.out[i] != '\n' || (i > 0 && r.out[i - 1] == '\r');
      EXPECT_TRUE(paired) << name << " has a lone line end at " << i;
    }
  }
  EXPECT_GT(files, 40);
}

TEST(RtfTextCorpus, ParagraphsAgreeWithTheDocuments) {
  const std::string dir = corpusDir("rtf");
  if (dir.empty()) GTEST_SKIP() << "the shared RTF corpus is not here";
  for (const auto& e : kExpected) {
    const auto r = runCli({"rtf-text", dir + "/" + e.file});
    ASSERT_EQ(r.exitCode, 0) << e.file;
    const auto lines = splitLines(r.out);
    const std::set<std::string> have(lines.begin(), lines.end());
    for (const auto& p : e.paragraphs) EXPECT_EQ(have.count(p), 1u) << e.file << " lacks the paragraph [" << p << "]";
  }
}

TEST(RtfTextCli, MissingFileIsRefusedAndNoFileIsAUsageError) {
  lathwick::test::TempDir dir;
  auto r = runCli({"rtf-text", dir.file("absent.rtf")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_FALSE(r.err.empty());
  r = runCli({"rtf-text"});
  EXPECT_EQ(r.exitCode, 2);
  const std::string path = dir.write("plain.rtf", "{\\rtf1 one\\par two\\par}");
  EXPECT_EQ(runCli({"rtf-text", path}), (CliResult{0, "one\r\ntwo", ""}));
}
