// Add and remove spaces: the code part through the first comment start, the previous-numeric
// flag that survives line ends, and add-spaces being idempotent.
#include <gtest/gtest.h>

#include <vector>

#include "support/temp_dir.h"
#include "transform/spaces.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;
using Lines = std::vector<std::string>;

namespace {
template <class T>
Lines run(T&& transform, Lines lines) {
  for (size_t i = 0; i < lines.size(); ++i) transform.apply(static_cast<long>(i) + 1, lines[i]);
  return lines;
}
Lines added(Lines lines, const std::string& comment = "(") { return run(AddSpacesLine(comment), lines); }
Lines removed(Lines lines, const std::string& comment = "(") { return run(RemoveSpacesLine(comment), lines); }
}  // namespace

TEST(AddSpaces, SpaceOnlyWhereALetterFollowsADigitOrPointInTheCodePart) {
  EXPECT_EQ(added({"N10G01X-1.5Y2.0F100"}), Lines{"N10 G01 X-1.5 Y2.0 F100"});
  EXPECT_EQ(added({"X1.Y2", "GOTO5", "XY", "g1x2"}), (Lines{"X1. Y2", "GOTO5", "XY", "g1 x2"}));
  EXPECT_EQ(added({"G01 X1"}), Lines{"G01 X1"});  // a letter after a space gets no second one
  EXPECT_EQ(added({"G01X1(MOVEX1Y2)"}), Lines{"G01 X1(MOVEX1Y2)"});
  EXPECT_EQ(added({"G01X1;A1B2", "  G1X1  ;A1B2"}, ";"), (Lines{"G01 X1;A1B2", "G1 X1  ;A1B2"}));
  EXPECT_EQ(added({"G1X1   "}), Lines{"G1 X1"});  // blanks around the code part go
}

TEST(AddSpaces, PreviousNumericFlagCarriesAcrossLineEndsAndTwiceGivesTheSameAsOnce) {
  // The first line ends in a digit, so the next line's first letter gets a space, which the
  // trim then removes again; the carried flag shows on a line starting with a blank and a letter.
  EXPECT_EQ(added({"X1", "Y2"}), (Lines{"X1", "Y2"}));
  AddSpacesLine t("(");
  std::string a = "X1", b = "Y2";
  t.apply(1, a);
  EXPECT_FALSE(t.apply(2, b));
  const Lines in = {"N10G01X-1.5Y2.0F100", "G01X1(MOVEX1Y2)", "  X1.Y2  ", "", "   ", "%", "T1M6(TOOL1)G0"};
  const Lines once = added(in);
  EXPECT_EQ(added(once), once);
}

TEST(RemoveSpaces, DeletesSpacesOfTheCodePartOnly) {
  EXPECT_EQ(removed({"G01 X1 ( A B )"}), Lines{"G01X1( A B )"});
  EXPECT_EQ(removed({"     ", " G0 \tX1 "}), (Lines{"", "G0\tX1"}));
  EXPECT_EQ(removed({"G0 X1 ; A B"}, ";"), Lines{"G0X1; A B"});
  EXPECT_EQ(removed({"G0 X1 ( A B"}, ""), Lines{"G0X1(AB"});  // no comment text: all code
}

TEST(Spaces, PassesWriteCrLfLinesAndReportTheirFailureTexts) {
  lathwick::test::TempDir dir;
  const auto in = dir.write("in.txt", "G1X1\r\nG2 X2 (A B)");
  auto r = runAddSpaces(in, dir.file("a.txt"), " ( ", lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_TRUE(r.reload);
  EXPECT_EQ(dir.read("a.txt"), "G1 X1\r\nG2 X2 (A B)\r\n");
  r = runRemoveSpaces(in, dir.file("r.txt"), "(", lathwick::silentMonitor());
  EXPECT_EQ(dir.read("r.txt"), "G1X1\r\nG2X2(A B)\r\n");

  r = runAddSpaces(dir.file("missing"), dir.file("x.txt"), "(", lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Failed);
  EXPECT_EQ(r.message, "Unable to expand file.");
  r = runRemoveSpaces(dir.file("missing"), dir.file("x.txt"), "(", lathwick::silentMonitor());
  EXPECT_EQ(r.message, "Unable to remove spaces.");
}
