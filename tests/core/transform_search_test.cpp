// Search and replace: the match function with its flags, the rule that a rejected occurrence
// ends the line, and the replace and highlight passes with their markers.
#include <gtest/gtest.h>

#include "marker_frame.h"
#include "support/temp_dir.h"
#include "transform/rich_text_escape.h"
#include "transform/search_match.h"
#include "transform/search_pass.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;
using lathwick::PassFrame;
using lathwick::test::TempDir;

namespace {
PassFrame frame() { return lathwick::test::markerFrame("{\\rtf1 H}", "\\par}"); }

// One line through the replace work, as the pass does it (escaped first).
std::string replaced(const std::string& raw, const std::string& find, const std::string& repl, int flags,
                     long* count = nullptr) {
  ReplaceLine r(find, repl, flags, frame());
  std::string line = escapeRichText(raw);
  const long n = r.apply(raw, line);
  if (count) *count = n;
  return line;
}
}  // namespace

TEST(SearchMatch, FindsWithTheFlags) {
  const struct { const char *line, *find; int start, flags, open, close, at; } rows[] = {
      // Case-blind by default, exact with Match Case.
      {"g01 x1", "X1", 1, 0, 0, 0, 5}, {"g01 x1 X1", "X1", 1, kMatchCase, 0, 0, 8},
      {"g01 x1", "X1", 1, kMatchCase, 0, 0, 0}, {"X1 X1", "x1", 2, 0, 0, 0, 4}, {"X1", "X1", 3, 0, 0, 0, 0},
      {"X1", "", 1, 0, 0, 0, 0},
      // Whole word needs a space (not a tab) or the line end on both sides.
      {"X1 Y2", "X1", 1, kWholeWord, 0, 0, 1}, {"Y2 X1", "X1", 1, kWholeWord, 0, 0, 4},
      {"X10", "X1", 1, kWholeWord, 0, 0, 0}, {"Y2\tX1", "X1", 1, kWholeWord, 0, 0, 0},
      {"Y2,X1", "X1", 1, kWholeWord, 0, 0, 0}, {"X1;", "X1", 1, kWholeWord, 0, 0, 0},
      // Exclude comments rejects only between the first delimiters ("(" at 8, ")" at 16); an
      // opening delimiter without a closing one protects nothing.
      {"G01 X1 (X1 HERE)", "X1", 1, kExcludeComments, 8, 16, 5},
      {"G01 X1 (X1 HERE)", "X1", 7, kExcludeComments, 8, 16, 0}, {"G01 (X1", "X1", 1, kExcludeComments, 5, 0, 6}};
  for (const auto& r : rows)
    EXPECT_EQ(matchInLine(r.line, r.find, r.start, r.flags, r.open, r.close), r.at) << r.line << " / " << r.find;
}

TEST(ReplaceLine, ReplacesAndMarksEachOccurrence) {
  const struct { const char *raw, *find, *repl; int flags; const char* line; long count; } rows[] = {
      // Whole word stops the line at the first rejected occurrence.
      {"X1 X10 X1", "X1", "X2", kWholeWord, "<X2> X10 X1", 1}, {"X10 X1", "X1", "X2", kWholeWord, "X10 X1", 0},
      // Exclude comments leaves the comment and stops inside it; without the flag both go.
      {"G01 X1 (X1 HERE)", "X1", "X5", kExcludeComments, "G01 <X5> (X1 HERE)", 1},
      {"(NOTE X1) X1", "X1", "X5", kExcludeComments, "(NOTE X1) X1", 0},
      {"(NOTE X1) X1", "X1", "X5", 0, "(NOTE <X5>) <X5>", 2},
      // Every occurrence, left to right, each with its own markers; a replacement holding the
      // find text is not searched again; replacing with nothing leaves the markers side by side.
      {"x1y1x1", "X1", "Z22", 0, "<Z22>y1<Z22>", 2}, {"AAA", "A", "b", kMatchCase, "<b><b><b>", 3},
      {"X X", "X", "XX", 0, "<XX> <XX>", 2}, {"G01 X1", " ", "", 0, "G01<>X1", 1},
      // Later occurrences see the line as already changed: whole word looks at the character
      // before, which may end the previous replacement; the comment positions were taken before
      // any change, so a shrinking line moves the second XYZ1 between them.
      {" X X", " X", " Y ", kWholeWord, "< Y >< Y >", 2}, {" X X", " X", " Y", kWholeWord, "< Y> X", 1},
      {"XYZ1 (AB) XYZ1", "XYZ1", "", kExcludeComments, "<> (AB) XYZ1", 1},
      // Braces and backslashes are found because both sides are escaped.
      {"A{B}C", "{", "[", 0, "A<[>B\\}C", 1}, {"A\\B", "\\", "/", 0, "A</>B", 1}, {"A[B", "[", "{", 0, "A<\\{>B", 1},
      // Highlight keeps the text (in the find text's case) and colours it.
      {"G01 x1 Y1", "X1", "X1", 0, "G01 <X1> Y1", 1}, {"G01 x1 Y1", "X1", "X1", kMatchCase, "G01 x1 Y1", 0}};
  for (const auto& r : rows) {
    long n = -1;
    EXPECT_EQ(replaced(r.raw, r.find, r.repl, r.flags, &n), r.line) << r.raw << " / " << r.find;
    EXPECT_EQ(n, r.count) << r.raw << " / " << r.find;
  }
}

TEST(SearchPass, ReplaceAllAndHighlightAllCountWithTheirPhrases) {
  TempDir dir;
  const auto in = dir.write("in.txt", "G01 X1\r\nG00 X1 Y1\r\nM30\r\n");
  SearchRequest req;
  req.findText = "X1";
  req.replaceText = "X9";
  auto r = runReplaceAll(in, dir.file("a.rtf"), req, frame(), lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(r.statusLabel, "2 Replacements made.");
  EXPECT_TRUE(r.reload);
  EXPECT_EQ(dir.read("a.rtf"), "{\\rtf1 H}\r\n\\li0 G01 <X9>\r\n\\par\\li0 G00 <X9> Y1\r\n\\par\\li0 M30\r\n\\par}\r\n");

  r = runHighlightAll(in, dir.file("b.rtf"), req, frame(), lathwick::silentMonitor());
  EXPECT_EQ(r.statusLabel, "2 Highlights made.");
  EXPECT_NE(dir.read("b.rtf").find("G00 <X1> Y1"), std::string::npos);

  req.replaceText = "X1";  // Replace All with equal texts counts highlights
  req.range = LineRange{2, 3};
  r = runReplaceAll(in, dir.file("c.rtf"), req, frame(), lathwick::silentMonitor());
  EXPECT_EQ(r.statusLabel, "1 Highlights made.");

  req.findText = "Q";
  r = runReplaceAll(in, dir.file("d.rtf"), req, frame(), lathwick::silentMonitor());
  EXPECT_EQ(r.statusLabel, "0 Replacements made.");
  EXPECT_FALSE(r.reload);
}

TEST(SearchPass, CommandErrorTexts) {
  EXPECT_EQ(replaceCommandError(5, "Invalid procedure call"), "Search/Replace Error 5; Invalid procedure call");
  EXPECT_EQ(highlightCommandError(13, "Type mismatch"), "Highlight Error 13; Type mismatch");
}
