// Comparing motion: what counts (kind, plane, centre, end, feed, units, tool) and what does not
// (numbers, spaces, comments, feeds of rapids, differences within the tolerance), and the texts
// the editor shows after a pass and after a comparison.
#include <gtest/gtest.h>

#include "extend/verify/motion_compare.h"
#include "extend/verify/motion_verdict.h"

using namespace lathwick::verify;

namespace {
const lathwick::toolpath::ModelOptions kModel{};
const char* const kPlate = "G21 G90 G17\nG0 X0 Y0 Z5.\nG1 Z-1. F100.\nG1 X20.\nG2 X30. Y10. I0 J10.\nG1 Y30.\nM30\n";

MotionComparison compare(std::string_view a, std::string_view b, bool countAll = false) {
  CompareOptions o;
  o.countAll = countAll;
  return compareProgramTexts(a, b, o);
}
}  // namespace

TEST(VerifyMotion, WhatMakesAMoveDiffer) {
  EXPECT_TRUE(compare(kPlate, "N1G21G90G17\r\nN2G0X0Y0Z5.(SAFE)\r\nN3G1Z-1.F100.\r\nN4X20\r\nN5G2X30Y10I0J10.00009\r\nN6G1Y30\r\nN7M30").same);
  struct Case {
    const char* from;
    const char* to;
    std::uint32_t line;
  };
  const Case cases[] = {
      {"G2 X30. Y10. I0 J10.", "G3 X30. Y10. I0 J10.", 5},        // direction
      {"G2 X30. Y10. I0 J10.", "G2 X30. Y10. I0.0002 J10.", 5},   // centre
      {"G1 Y30.", "G1 Y30.0002", 6},                              // end point
      {"G1 X20.", "G1 X20. F120.", 4},                            // feed
      {"G1 Y30.", "G0 Y30.", 6},                                  // rapid instead of feed
  };
  for (const Case& c : cases) {
    std::string other = kPlate;
    other.replace(other.find(c.from), std::string_view(c.from).size(), c.to);
    const MotionComparison r = compare(kPlate, other);
    EXPECT_FALSE(r.same) << c.to;
    EXPECT_EQ(r.lineA, c.line) << c.to;
    EXPECT_EQ(r.lineB, c.line) << c.to;
  }
  // A feed that only rapids carry changes nothing the machine does.
  EXPECT_TRUE(compare("G0 X1 F100\nG0 X2\n", "G0 X1 F200\nG0 X2\n").same);
}

TEST(VerifyMotion, CountingEveryChangedMoveAndProgramsOfDifferentLength) {
  const MotionComparison r = compare("G1 X1 F10\nG1 X2\nG1 X3\nG1 X4\n", "G1 X2 F10\nG1 X2\nG1 X6\n", true);
  EXPECT_FALSE(r.same);
  EXPECT_EQ(r.moveNumber, 1u);
  EXPECT_EQ(r.changedMoves, 3u);  // X1, X3 and the fourth move, missing in the second program
  EXPECT_EQ(r.movesA, 4u);
  EXPECT_EQ(r.movesB, 3u);
}

TEST(VerifyMotion, TheEditorsTexts) {
  std::string arc = kPlate;
  arc.replace(arc.find("G2 X30."), 2, "G3");
  EXPECT_EQ(verdictAfterPass(kPlate, kPlate, kModel).text, "Motion unchanged.");
  const MotionVerdict changed = verdictAfterPass(kPlate, arc, kModel);
  EXPECT_EQ(changed.text, "Motion changed at line 5: G3 X30. Y10. I0 J10.");
  EXPECT_EQ(changed.line, 5u);
  EXPECT_EQ(verdictAfterPass(kPlate, "G21 G90 G17\nG0 X0 Y0 Z5.\n", kModel).text,
            "Motion changed at the end, after 1 move.");

  const MotionVerdict operated = verdictAfterOperate("G1 X1 F10\nG1 X2\nG1 X3\n", "G1 X2 F10\nG1 X2\nG1 X6\n", kModel);
  EXPECT_EQ(operated.text, "2 moves changed, the first at line 1: G1 X2 F10");

  const MotionVerdict compared = verdictOfComparison(arc, "\n\n" + std::string(kPlate), "PLATE.NC", kModel);
  EXPECT_EQ(compared.text, "Motion differs from PLATE.NC at line 5: G3 X30. Y10. I0 J10. (its line 7)");
  EXPECT_EQ(compared.line, 5u);
  EXPECT_EQ(verdictOfComparison(kPlate, kPlate, "PLATE.NC", kModel).text, "Same motion as PLATE.NC.");
}
