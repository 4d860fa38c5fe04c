// The colorizer's rules on single lines, with short readable attribute strings: "[k] " is set 0
// style k, "[ck] " set 1 style k, "[X] " the X style, "\plain[P] " the end of a marked word in
// the Codes view (nothing in the Modes view).
#include <gtest/gtest.h>

#include "format/line_colorizer.h"

using namespace lathwick;

namespace {

PassFrame tokenFrame() {
  PassFrame f;
  for (int k = 0; k < kStyleCount; ++k) {
    f.attributes[0][k] = "[" + std::to_string(k) + "]";
    f.attributes[1][k] = "[c" + std::to_string(k) + "]";
  }
  f.attributes[0][0] = "[X]";
  f.plainText = "[P] ";
  f.blockSkipText = "/";
  f.comment = commentDelimitersFor("(");
  return f;
}

struct Lines {
  LineColorizer colorizer;
  std::string operator()(const std::string& line) {
    std::string out;
    colorizer.colorize(line, out);
    return out;
  }
};

Lines modes(const PassFrame& f = tokenFrame()) { return {LineColorizer(f, ColorizeView::Modes, {})}; }
Lines codes(std::vector<MarkerEntry> markers = {}, const PassFrame& f = tokenFrame()) {
  return {LineColorizer(f, ColorizeView::Codes, std::move(markers))};
}

}  // namespace

TEST(LineColorizerModes, ModalStyleStartsEachLineAndCarriesOver) {
  Lines run = modes();
  EXPECT_EQ(run("X0 Y0"), "[3] X0 Y0");  // G00 mode before any G word
  EXPECT_EQ(run("G01X1.0Y2.0"), "[4] G01X1.0Y2.0");
  EXPECT_EQ(run("X6"), "[4] X6");
  EXPECT_EQ(run(""), "[4] ");
  EXPECT_EQ(run("N5 g2 x1 i5"), "[4] N5 [5] g2 x1 i5");  // lower case is read as upper case
  EXPECT_EQ(run("G 01 X1"), "[5] G 01 X1");               // a word with a blank inside is no word
  EXPECT_EQ(run("G41 G90 X1"), "[7] G41 [5] G90 X1");  // G90 shows the mode in force
}

TEST(LineColorizerModes, LastModeTestedWinsWhateverTheOrderInTheLine) {
  Lines run = modes();
  EXPECT_EQ(run("G03 X1 G00"), "[6] G03 X1 [3] G00");
  EXPECT_EQ(run.colorizer.modalStyle(), 6);
  EXPECT_EQ(run("Y2"), "[6] Y2");
}

TEST(LineColorizerGWords, AWordCountsWholeButIsMarkedAtItsFirstOccurrence) {
  // G1 is a whole word of "G10 G1 X5", and its text first occurs inside G10 at position 1.
  EXPECT_EQ(modes()("G10 G1 X5"), "[4] G10 G1 X5");
  EXPECT_EQ(codes()("G10 G1 X5"), "[4] G1\\plain[P] 0 G1 [X] X5\\plain[P] ");
  // G10 alone holds no G1 word.
  EXPECT_EQ(codes()("G10 L2"), "G10 L2");
  EXPECT_EQ(codes()("G0G91X5"), "[3] G0[9] G91[X] X5\\plain[P] ");
}

TEST(LineColorizerCodes, PositionsTakeTheirStylesAndEndInTheDefault) {
  Lines run = codes();
  EXPECT_EQ(run("G01X1.0Y2.0"), "[4] G01[X] X1.0[1] Y2.0\\plain[P] ");
  EXPECT_EQ(run("Z-1.5/2 F100"), "[2] Z-1.5/2\\plain[P]  F100");  // "/" belongs to the number
  EXPECT_EQ(run(""), "");
  // The next X search starts one past the end of the previous number.
  EXPECT_EQ(run("X1X2"), "[X] X1\\plain[P] X2");
}

TEST(LineColorizerCodes, XSearchStartsAfterTheLastTestedPosition) {
  Lines run = codes();
  // After a G91 word the X search begins behind it; Y and Z searches start afresh.
  EXPECT_EQ(run("X1 Y1 G91 X2"), "X1 [1] Y1\\plain[P]  [9] G91\\plain[P]  [X] X2\\plain[P] ");
  EXPECT_EQ(run("X1 X2"), "[X] X1\\plain[P]  [X] X2\\plain[P] ");
  // Without a G the block-skip search (here "/" at position 8) sets where X starts.
  EXPECT_EQ(run("X1 N10 /X2"), "X1 N10 /[X] X2\\plain[P] ");
}

TEST(LineColorizerCodes, CodeTextsPlainAndNumbered) {
  const std::vector<MarkerEntry> markers = {{"M#", 0}, {"S#", 2}, {"G43 H#", 4}, {"COOL", 6}};
  Lines run = codes(markers);
  EXPECT_EQ(run("M3 S1200 s5"), "[c0] M3\\plain[P]  [c2] S1200\\plain[P]  s5");
  EXPECT_EQ(run("M S[#1]"), "M [c2] S\\plain[P] [#1]");  // "[" may follow, but is no part of the number
  EXPECT_EQ(run("G43 H1 Z5"), "[c4] G43 H1\\plain[P]  [2] Z5\\plain[P] ");
  EXPECT_EQ(run("COOLANT"), "[c6] COOL\\plain[P] ANT");
  // A code text clears the marks inside it.
  Lines axisInside = codes({{"TX#", 1}});
  EXPECT_EQ(axisInside("TX12 X3"), "[c1] TX12\\plain[P]  [X] X3\\plain[P] ");
  // A "#" text whose remainder is not in the line goes on after the hit instead of looping.
  Lines odd = codes({{"A#B#", 3}});
  EXPECT_EQ(odd("A1 A2"), "[c3] A1\\plain[P]  [c3] A2");
}

// After a mark the search goes on from the mark's end, so a code text right after another one
// is marked too; two marks of one style side by side read as one.
TEST(LineColorizerCodes, CodeTextSearchGoesOnFromTheEndOfEachMark) {
  Lines m = codes({{"M", 0}});
  EXPECT_EQ(m("MM"), "[c0] MM\\plain[P] ");
  EXPECT_EQ(m("MMM M"), "[c0] MMM\\plain[P]  [c0] M\\plain[P] ");
  Lines mm = codes({{"MM", 0}});
  EXPECT_EQ(mm("MMM"), "[c0] MM\\plain[P] M");
  EXPECT_EQ(mm("MMMM"), "[c0] MMMM\\plain[P] ");
  Lines numbered = codes({{"M#", 0}, {"S#", 2}});
  EXPECT_EQ(numbered("M3M8"), "[c0] M3M8\\plain[P] ");
  EXPECT_EQ(numbered("S1200M3"), "[c2] S1200[c0] M3\\plain[P] ");
  EXPECT_EQ(numbered("MM3"), "M[c0] M3\\plain[P] ");  // an M without a number is no hit
  // Words of different texts side by side keep their own styles.
  Lines two = codes({{"AB", 0}, {"C", 1}});
  EXPECT_EQ(two("ABABC"), "[c0] ABAB[c1] C\\plain[P] ");
}

TEST(LineColorizerComments, FirstCommentOverridesMarksInsideIt) {
  Lines run = codes({{"M#", 0}});
  EXPECT_EQ(run("(COMMENT X1)"), "[10] (COMMENT X1)\\plain[P] ");
  EXPECT_EQ(run("G1 (X2 M3"), "[4] G1\\plain[P]  [10] (X2 M3\\plain[P] ");  // no closing: to the end
  EXPECT_EQ(run("(A) (B X3)"), "[10] (A)\\plain[P]  (B [X] X3\\plain[P] )");
  Lines semi = codes({}, [] {
    PassFrame f = tokenFrame();
    f.comment = commentDelimitersFor(";");
    return f;
  }());
  EXPECT_EQ(semi("X1 ;X2; X3"), "[X] X1\\plain[P]  [10] ;X2;\\plain[P]  [X] X3\\plain[P] ");
  EXPECT_EQ(modes()("G01 (G02 ARC)"), "[4] G01 [10] (G02 ARC)");
}

TEST(LineColorizerComments, BracesAndBackslashesAreEscapedAfterTheCodeString) {
  EXPECT_EQ(codes()("({A}\\)"), "[10] (\\{A\\}\\\\)\\plain[P] ");
  EXPECT_EQ(modes()("{X1"), "[3] \\{X1");
}

TEST(LineColorizerBlockSkip, SkipTextAtPositionsOneToFourMakesABlockSkipLine) {
  Lines run = modes();
  EXPECT_EQ(run("/N10 G01 X1"), "[13] /N10 G01 X1");
  EXPECT_EQ(run.colorizer.modalStyle(), 3);
  EXPECT_EQ(run("   /G02"), "   [13] /G02");
  EXPECT_EQ(run("N10 /G01"), "[3] N10 /[4] G01");  // "/" at position 5
  EXPECT_EQ(codes()("/X1 (C)"), "[13] /X1 [10] (C)\\plain[P] ");
  PassFrame noSkip = tokenFrame();
  noSkip.blockSkipText = "";
  EXPECT_EQ(modes(noSkip)("/N10"), "[3] /N10");
}

TEST(GWordHelpers, NumberEndAndInStr) {
  EXPECT_EQ(numberEnd(1, "X-1.5+2/3A", "X"), 10u);
  EXPECT_EQ(numberEnd(3, "X1X2", "X"), 5u);
  EXPECT_EQ(inStr(1, "ABC", ""), 1u);
  EXPECT_EQ(inStr(4, "ABC", "C"), 0u);
  EXPECT_EQ(inStr(1, "", "A"), 0u);
}
