// Modal state: G90/G91 with rapids, a unit switch in mid-program, feeds and tool changes, and
// what counts in the summary.
#include "extend/toolpath/path_summary.h"
#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

TEST(ToolpathModes, G91RapidsAddUpAndG90ReturnsToAbsolute) {
  const Modelled r = model("G91 G0 X1 Y1\nX1\nZ-2\nG90 X5\nG0 G91 X-1 Z1\n");
  ASSERT_EQ(r.moves.size(), 5u);
  for (const Move& m : r.moves) EXPECT_EQ(m.kind, MoveKind::Rapid);
  expectPoint(r.moves[0].end, 1, 1, 0);
  expectPoint(r.moves[1].end, 2, 1, 0);
  expectPoint(r.moves[2].end, 2, 1, -2);
  expectPoint(r.moves[3].end, 5, 1, -2);
  expectPoint(r.moves[4].end, 4, 1, -1);
  expectPoint(r.moves[4].start, 5, 1, -2);
  EXPECT_EQ(r.moves[3].line, 4u);
}

TEST(ToolpathModes, UnitSwitchKeepsTheMachineWhereItStandsAndReadsLaterWordsInTheNewUnit) {
  const Modelled r = model("G21 G0 X25.4 Y0\nG20 G1 X2 F10\nG21 X0\n");
  ASSERT_EQ(r.moves.size(), 3u);
  EXPECT_EQ(r.moves[1].units, Units::Inch);
  expectPoint(r.moves[1].start, 1, 0, 0);
  expectPoint(r.moves[1].end, 2, 0, 0);
  EXPECT_DOUBLE_EQ(r.moves[1].feed, 10);
  EXPECT_EQ(r.moves[2].units, Units::Millimetre);
  expectPoint(r.moves[2].start, 50.8, 0, 0);
  EXPECT_NEAR(r.moves[2].feed, 254, 1e-9);  // the feed carried over, in the new unit
  PathSummary s;
  for (const Move& m : r.moves) s.add(m);
  EXPECT_EQ(s.displayUnits(), Units::Millimetre);
  EXPECT_NEAR(s.allExtents.max.x, 50.8, 1e-9);
  EXPECT_NEAR(s.feedLength, 25.4 + 50.8, 1e-9);
  EXPECT_NEAR(s.rapidLength, 25.4, 1e-9);
  EXPECT_NEAR(s.feedMinutes, 0.1 + 50.8 / 254, 1e-9);
}

TEST(ToolpathModes, FeedsToolChangesAndQuietWords) {
  const Modelled r = model("O1000\nN10 T2 M6 S1200 M3\nN20 G54 G43 H2 G0 X1\nN30 G1 X2\nN40 F300 X3\nT5\nX4\nM06\nX5 M30\n");
  ASSERT_EQ(r.moves.size(), 5u);
  EXPECT_EQ(r.moves[0].tool, 2);
  EXPECT_EQ(r.moves[3].tool, 2);
  EXPECT_EQ(r.moves[4].tool, 5);
  EXPECT_DOUBLE_EQ(r.moves[1].feed, 0);
  EXPECT_DOUBLE_EQ(r.moves[2].feed, 300);
  ASSERT_EQ(r.warnings.size(), 1u);  // the first feed move without a feed rate, once
  EXPECT_EQ(r.warnings[0].line, 4u);
  EXPECT_EQ(r.warnings[0].text, "feed move without a feed rate");
  PathSummary s;
  for (const Move& m : r.moves) s.add(m);
  EXPECT_EQ(s.untimedMoves, 1u);
  EXPECT_NEAR(s.feedMinutes, 3.0 / 300, 1e-12);
}

TEST(ToolpathModes, SummaryOfAnEmptyProgramHasNoExtents) {
  const Modelled r = model("%\n(NOTHING)\n%\n");
  EXPECT_TRUE(r.moves.empty());
  EXPECT_TRUE(r.warnings.empty());
  const PathSummary s;
  EXPECT_TRUE(s.allExtents.empty);
  EXPECT_EQ(s.displayUnits(), Units::Millimetre);
}

}  // namespace
}  // namespace lathwick::toolpath::test
