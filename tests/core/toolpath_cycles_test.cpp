// Drilling cycles written as the moves they make: R plane, G98/G99 return, pecks, incremental
// steps with repeats.
#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

struct Expected {
  MoveKind kind;
  double x, y, z;
};

void expectMoves(const std::vector<Move>& moves, std::size_t from, const std::vector<Expected>& expected) {
  ASSERT_GE(moves.size(), from + expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(moves[from + i].kind, expected[i].kind);
    expectPoint(moves[from + i].end, expected[i].x, expected[i].y, expected[i].z);
  }
}

constexpr MoveKind R = MoveKind::Rapid;
constexpr MoveKind F = MoveKind::Feed;

TEST(ToolpathCycles, G81ReturnsToTheRPlaneUnderG99AndToTheStartLevelUnderG98) {
  const Modelled r = model("G0 Z10\nG99 G81 X5 Y5 Z-2 R1 F100\nX10\nG98 X15\nG80\nX20\n");
  expectMoves(r.moves, 1,
              {{R, 5, 5, 10}, {R, 5, 5, 1}, {F, 5, 5, -2}, {R, 5, 5, 1},
               {R, 10, 5, 1}, {F, 10, 5, -2}, {R, 10, 5, 1},
               {R, 15, 5, 1}, {F, 15, 5, -2}, {R, 15, 5, 10},
               {R, 20, 5, 10}});
  EXPECT_EQ(r.moves.size(), 12u);
  EXPECT_EQ(r.moves[5].line, 3u);
  EXPECT_TRUE(r.warnings.empty());
}

TEST(ToolpathCycles, IncrementalCycleMeasuresRFromTheStartLevelAndZFromR) {
  // Start level 10: R plane 10 - 9 = 1, bottom 1 - 3 = -2; three holes 10 apart from X0.
  const Modelled r = model("G0 X0 Y0 Z10\nG91 G81 X10 Z-3 R-9 L3 F100\n");
  ASSERT_EQ(r.moves.size(), 1u + 3 * 4);
  for (int hole = 0; hole < 3; ++hole) {
    const double x = 10.0 * (hole + 1);
    expectMoves(r.moves, 1 + 4 * hole, {{R, x, 0, 10}, {R, x, 0, 1}, {F, x, 0, -2}, {R, x, 0, 10}});
  }
}

TEST(ToolpathCycles, G83PecksBackToRAndG73BreaksChipsInPlace) {
  const Modelled deep = model("G0 Z5\nG99 G83 X0 Y0 Z-2 R1 Q1 F100\n");
  expectMoves(deep.moves, 1,
              {{R, 0, 0, 1}, {F, 0, 0, 0}, {R, 0, 0, 1}, {R, 0, 0, 0.5}, {F, 0, 0, -1},
               {R, 0, 0, 1}, {R, 0, 0, -0.5}, {F, 0, 0, -2}, {R, 0, 0, 1}});
  EXPECT_EQ(deep.moves.size(), 10u);
  const Modelled chip = model("G0 Z5\nG98 G73 X0 Y0 Z-1 R1 Q1 F100\n");
  expectMoves(chip.moves, 1,
              {{R, 0, 0, 1}, {F, 0, 0, 0}, {R, 0, 0, 0.5}, {F, 0, 0, -1}, {R, 0, 0, 5}});
  EXPECT_EQ(chip.moves.size(), 6u);
}

TEST(ToolpathCycles, CycleWithoutDepthWarnsAndModeEndsWithAMotionWord) {
  const Modelled r = model("G0 Z5\nG81 X1 Y1 F100\nG1 X2\n");
  ASSERT_EQ(r.warnings.size(), 1u);
  EXPECT_EQ(r.warnings[0].line, 2u);
  EXPECT_EQ(r.warnings[0].text, "drilling cycle without Z");
  ASSERT_EQ(r.moves.size(), 2u);
  EXPECT_EQ(r.moves[1].kind, F);
  expectPoint(r.moves[1].end, 2, 0, 5);
}

}  // namespace
}  // namespace lathwick::toolpath::test
