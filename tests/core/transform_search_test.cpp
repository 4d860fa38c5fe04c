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

TEST(SearchMatch, CaseBlindByDefaultAndExactWithMatchCase) {
  EXPECT_EQ(matchInLine("g01 x1", "X1", 1, 0, 0, 0), 5);
  EXPECT_EQ(matchInLine("g01 x1 X1", "X1", 1, kMatchCase, 0, 0), 8);
  EXPECT_EQ(matchInLine("g01 x1", "X1", 1, kMatchCase, 0, 0), 0);
  EXPECT_EQ(matchInLine("X1 X1", "x1", 2, 0, 0, 0), 4);
  EXPECT_EQ(matchInLine("X1", "X1", 3, 0, 0, 0), 0);
  EXPECT_EQ(matchInLine("X1", "", 1, 0, 0, 0), 0);
}

TEST(SearchMatch, WholeWordNeedsASpaceOrTheLineEndOnBothSides) {
  EXPECT_EQ(matchInLine("X1 Y2", "X1", 1, kWholeWord, 0, 0), 1);
  EXPECT_EQ(matchInLine("Y2 X1", "X1", 1, kWholeWord, 0, 0), 4);
  EXPECT_EQ(matchInLine("X10", "X1", 1, kWholeWord, 0, 0), 0);
  EXPECT_EQ(matchInLine("Y2\tX1", "X1", 1, kWholeWord, 0, 0), 0);  // a tab is not a space
  EXPECT_EQ(matchInLine("Y2,X1", "X1", 1, kWholeWord, 0, 0), 0);
  EXPECT_EQ(matchInLine("X1;", "X1", 1, kWholeWord, 0, 0), 0);
}

TEST(SearchMatch, ExcludeCommentsRejectsOnlyBetweenTheFirstDelimiters) {
  // "G01 X1 (X1 HERE)": open 8, close 16.
  EXPECT_EQ(matchInLine("G01 X1 (X1 HERE)", "X1", 1, kExcludeComments, 8, 16), 5);
  EXPECT_EQ(matchInLine("G01 X1 (X1 HERE)", "X1", 7, kExcludeComments, 8, 16), 0);
  // An opening delimiter without a closing one protects nothing.
  EXPECT_EQ(matchInLine("G01 (X1", "X1", 1, kExcludeComments, 5, 0), 6);
}

TEST(ReplaceLine, WholeWordStopsTheLineAtTheFirstRejectedOccurrence) {
  long n = 0;
  EXPECT_EQ(replaced("X1 X10 X1", "X1", "X2", kWholeWord, &n), "<X2> X10 X1");
  EXPECT_EQ(n, 1);
  EXPECT_EQ(replaced("X10 X1", "X1", "X2", kWholeWord, &n), "X10 X1");
  EXPECT_EQ(n, 0);
}

TEST(ReplaceLine, ExcludeCommentsLeavesTheCommentAndStopsInsideIt) {
  long n = 0;
  EXPECT_EQ(replaced("G01 X1 (X1 HERE)", "X1", "X5", kExcludeComments, &n), "G01 <X5> (X1 HERE)");
  EXPECT_EQ(n, 1);
  // The first occurrence lies in the comment: the line's search ends there.
  EXPECT_EQ(replaced("(NOTE X1) X1", "X1", "X5", kExcludeComments, &n), "(NOTE X1) X1");
  EXPECT_EQ(n, 0);
  // Without the flag both are replaced.
  EXPECT_EQ(replaced("(NOTE X1) X1", "X1", "X5", 0, &n), "(NOTE <X5>) <X5>");
}

TEST(ReplaceLine, EveryOccurrenceIsReplacedAndMarkedLeftToRight) {
  long n = 0;
  EXPECT_EQ(replaced("x1y1x1", "X1", "Z22", 0, &n), "<Z22>y1<Z22>");
  EXPECT_EQ(n, 2);
  // Adjacent occurrences: each gets its own pair of markers.
  EXPECT_EQ(replaced("AAA", "A", "b", kMatchCase, &n), "<b><b><b>");
  // A replacement that contains the find text is not searched again.
  EXPECT_EQ(replaced("X X", "X", "XX", 0, &n), "<XX> <XX>");
  EXPECT_EQ(n, 2);
  // Replacing with nothing leaves the two markers side by side.
  EXPECT_EQ(replaced("G01 X1", " ", "", 0, &n), "G01<>X1");
}

TEST(ReplaceLine, LaterOccurrencesSeeTheLineAsAlreadyChanged) {
  // Whole word looks at the character before, which may be the end of the previous replacement.
  EXPECT_EQ(replaced(" X X", " X", " Y ", kWholeWord), "< Y >< Y >");
  EXPECT_EQ(replaced(" X X", " X", " Y", kWholeWord), "< Y> X");
  // The comment positions were taken before any change, so a shrinking line can move a later
  // occurrence between them: here the second XYZ1 is then taken as inside the comment.
  EXPECT_EQ(replaced("XYZ1 (AB) XYZ1", "XYZ1", "", kExcludeComments), "<> (AB) XYZ1");
}

TEST(ReplaceLine, BracesAndBackslashesAreFoundBecauseBothSidesAreEscaped) {
  long n = 0;
  EXPECT_EQ(replaced("A{B}C", "{", "[", 0, &n), "A<[>B\\}C");
  EXPECT_EQ(n, 1);
  EXPECT_EQ(replaced("A\\B", "\\", "/", 0, &n), "A</>B");
  EXPECT_EQ(replaced("A[B", "[", "{", 0, &n), "A<\\{>B");
}

TEST(ReplaceLine, HighlightKeepsTheTextAndColoursIt) {
  long n = 0;
  EXPECT_EQ(replaced("G01 x1 Y1", "X1", "X1", 0, &n), "G01 <X1> Y1");  // the find text's case
  EXPECT_EQ(n, 1);
  EXPECT_EQ(replaced("G01 x1 Y1", "X1", "X1", kMatchCase, &n), "G01 x1 Y1");
  EXPECT_EQ(n, 0);
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
