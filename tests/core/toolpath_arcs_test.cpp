// Arcs: by R the short and the long way, full circles by I J, incremental, in G18 and G19,
// helical, and radii that cannot reach.
#include <cmath>
#include <numbers>

#include "extend/toolpath/arcs.h"
#include "extend/toolpath/path_summary.h"
#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(ToolpathArcs, PositiveRadiusTurnsTheShortWayNegativeTheLongWay) {
  const Modelled r = model("G1 F100\nG2 X10 Y0 R10\nG0 X0 Y0\nG2 X10 Y0 R-10\n");
  ASSERT_EQ(r.moves.size(), 3u);
  const Move& shortWay = r.moves[0];
  EXPECT_EQ(shortWay.kind, MoveKind::ArcCw);
  EXPECT_EQ(shortWay.line, 2u);
  expectPoint(shortWay.centre, 5, -std::sqrt(75.0), 0);
  const Move& longWay = r.moves[2];
  expectPoint(longWay.centre, 5, std::sqrt(75.0), 0);
  const double shortSweep = arcShape(shortWay).sweep, longSweep = arcShape(longWay).sweep;
  EXPECT_NEAR(shortSweep, -kPi / 3, 1e-9);
  EXPECT_NEAR(longSweep, -(2 * kPi - kPi / 3), 1e-9);
  // The long way round passes over the top of the circle: its extents reach y = centre + 10.
  PathSummary s;
  s.add(longWay);
  EXPECT_NEAR(s.allExtents.max.y, std::sqrt(75.0) + 10, 1e-9);
  EXPECT_TRUE(r.warnings.empty());
}

TEST(ToolpathArcs, FullCircleByIJWithAndWithoutEndPoint) {
  const Modelled r = model("G1 F200\nG2 X0 Y0 I5 J0\nG3 I0 J-5\n");
  ASSERT_EQ(r.moves.size(), 2u);
  for (const Move& m : r.moves) {
    const ArcShape s = arcShape(m);
    EXPECT_NEAR(std::abs(s.sweep), 2 * kPi, 1e-12);
    EXPECT_NEAR(arcLength(m, s), 10 * kPi, 1e-9);
    expectPoint(m.end, 0, 0, 0);
  }
  EXPECT_LT(arcShape(r.moves[0]).sweep, 0);
  EXPECT_GT(arcShape(r.moves[1]).sweep, 0);
  expectPoint(r.moves[1].centre, 0, -5, 0);
  PathSummary s;
  s.add(r.moves[0]);
  expectPoint(s.allExtents.min, 0, -5, 0);
  expectPoint(s.allExtents.max, 10, 5, 0);
  EXPECT_NEAR(s.feedMinutes, 10 * kPi / 200, 1e-9);
}

TEST(ToolpathArcs, IncrementalArcEndsAndCentresCountFromTheStart) {
  const Modelled r = model("G0 X10 Y10\nG91 G3 X-10 Y10 I-10 J0 F50\nX10 Y10 R10\n");
  ASSERT_EQ(r.moves.size(), 3u);
  expectPoint(r.moves[1].end, 0, 20, 0);
  expectPoint(r.moves[1].centre, 0, 10, 0);
  EXPECT_NEAR(arcShape(r.moves[1]).sweep, kPi / 2, 1e-9);
  expectPoint(r.moves[2].end, 10, 30, 0);
  expectPoint(r.moves[2].centre, 0, 30, 0);
  EXPECT_EQ(r.moves[2].kind, MoveKind::ArcCcw);
}

TEST(ToolpathArcs, G18AndG19TurnClockwiseSeenFromThePlusSideOfTheirNormal) {
  // G18: Z across, X up; from X0 Z0 clockwise about X0 Z10 to X10 Z10 passes over the top left.
  const Modelled zx = model("G18 G1 F100\nG2 X10 Z10 I0 K10\n");
  ASSERT_EQ(zx.moves.size(), 1u);
  EXPECT_EQ(zx.moves[0].plane, Plane::ZX);
  expectPoint(zx.moves[0].centre, 0, 0, 10);
  const ArcShape s = arcShape(zx.moves[0]);
  EXPECT_NEAR(s.sweep, -kPi / 2, 1e-9);
  const Point mid = pointOnArc(zx.moves[0], s, 0.5);
  expectPoint(mid, 10 * std::sin(kPi / 4), 0, 10 - 10 * std::cos(kPi / 4), 1e-9);
  // G19: Y across, Z up; counter-clockwise the short way from Y0 Z0 to Y10 Z10 is about Y0 Z10.
  const Modelled yz = model("G19 G1 F100\nG3 Y10 Z10 R10\n");
  ASSERT_EQ(yz.moves.size(), 1u);
  expectPoint(yz.moves[0].centre, 0, 0, 10);
  EXPECT_NEAR(arcShape(yz.moves[0]).sweep, kPi / 2, 1e-9);
}

TEST(ToolpathArcs, HelicalArcRisesAlongTheNormalAndCountsItsRiseInLength) {
  const Modelled r = model("G17 G1 F100\nG3 X0 Y0 Z-5 I5 J0\n");
  ASSERT_EQ(r.moves.size(), 1u);
  const Move& m = r.moves[0];
  const ArcShape s = arcShape(m);
  EXPECT_NEAR(arcLength(m, s), std::hypot(10 * kPi, 5.0), 1e-9);
  EXPECT_NEAR(pointOnArc(m, s, 0.5).z, -2.5, 1e-12);
  expectPoint(pointOnArc(m, s, 0.5), 10, 0, -2.5, 1e-9);
}

TEST(ToolpathArcs, UnreachableRadiusWarnsAndGoesStraightToTheEndPointAndAnEndOffItsCircleIsWarned) {
  const Modelled r = model("G1 F100\nG2 X10 Y0 R2\nG1 X20\nG2 X20 Y0 R5\nG2 X30\n");
  ASSERT_EQ(r.moves.size(), 3u);
  EXPECT_EQ(r.moves[0].kind, MoveKind::Feed);
  expectPoint(r.moves[0].end, 10, 0, 0);
  ASSERT_EQ(r.warnings.size(), 3u);
  EXPECT_EQ(r.warnings[0].line, 2u);
  EXPECT_EQ(r.warnings[0].text, "arc radius R2.0000 cannot reach its end point");
  EXPECT_EQ(r.warnings[1].line, 4u);
  EXPECT_EQ(r.warnings[1].text, "arc by R cannot make a full circle");
  EXPECT_EQ(r.warnings[2].line, 5u);
  EXPECT_EQ(r.warnings[2].text, "arc without I J K or R");
  expectPoint(r.moves[2].end, 30, 0, 0);
  // An end point off its circle is drawn but warned.
  const Modelled off = model("G1 F100\nG2 X10 Y0.5 I5 J0\nG2 X20 Y0.5 I5 J0.001\n");
  ASSERT_EQ(off.moves.size(), 2u);
  ASSERT_EQ(off.warnings.size(), 1u);
  EXPECT_EQ(off.warnings[0].line, 2u);
  EXPECT_EQ(off.warnings[0].text.rfind("arc end point off its circle by", 0), 0u);
}

}  // namespace
}  // namespace lathwick::toolpath::test
