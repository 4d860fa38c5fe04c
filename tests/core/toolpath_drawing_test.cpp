// The path as the window draws it: arcs cut into chords in the display unit, standard views,
// fitting, pixels that repeat dropped, picking a move under the mouse, the moves of a line, and
// the Setup choices kept in the settings.
#include <cmath>

#include "extend/toolpath/graphics_settings.h"
#include "extend/toolpath/path_drawing.h"
#include "platform/settings_store.h"
#include "support/temp_dir.h"
#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

PathLines pathOf(const std::string& program) { return buildPathLines(modelProgramText(program, {})); }

TEST(ToolpathDrawing, ArcsBecomeChordsInTheDisplayUnitAndLinesKnowTheirMoves) {
  const PathLines p = pathOf("G21 G0 X10\nG1 F100\nG2 X-10 Y0 I-10 J0\nG20 G1 X0\n");
  ASSERT_EQ(p.line, (std::vector<std::uint32_t>{1, 3, 4}));
  const std::size_t chords = p.firstPoint[2] - p.firstPoint[1];
  EXPECT_EQ(chords, 24u);  // a half circle
  for (std::uint32_t i = p.firstPoint[1]; i < p.firstPoint[2]; ++i) {
    EXPECT_NEAR(std::hypot(p.xyz[3 * i], p.xyz[3 * i + 1]), 10, 1e-4);
    EXPECT_EQ(p.move[i], 1u);
  }
  EXPECT_LT(p.xyz[3 * (p.firstPoint[1] + 11) + 1], -9.99f);  // clockwise passes below
  EXPECT_EQ(p.units, Units::Millimetre);
  EXPECT_EQ(movesOfLine(p, 3), (std::pair<std::size_t, std::size_t>{1, 2}));
  EXPECT_EQ(movesOfLine(p, 2), (std::pair<std::size_t, std::size_t>{1, 1}));
  EXPECT_EQ(p.points(), p.firstPoint.back());
}

TEST(ToolpathDrawing, StandardViewsShowTheirTwoAxes) {
  const float p[3] = {1, 2, 3};
  auto screen = [&](ViewKind k) {
    ViewTransform v;
    v.rotation = viewRotation(k);
    float x, y;
    v.project(p, x, y);
    return std::pair{x, -y};  // screen y grows downwards
  };
  const auto near = [](std::pair<float, float> a, float x, float y) {
    return std::abs(a.first - x) < 1e-5 && std::abs(a.second - y) < 1e-5;
  };
  EXPECT_TRUE(near(screen(ViewKind::Top), 1, 2));
  EXPECT_TRUE(near(screen(ViewKind::Front), 1, 3));
  EXPECT_TRUE(near(screen(ViewKind::Side), 2, 3));
  const auto iso = screen(ViewKind::Isometric);
  EXPECT_NEAR(iso.first, (1 + 2) / std::sqrt(2.0f), 1e-5);  // X and Y both lean right
}

TEST(ToolpathDrawing, FitKeepsThePathInsideTheViewAndRepeatedPixelsAreDropped) {
  std::string program = "G1 F100 X100 Y50\n";
  for (int i = 0; i < 1000; ++i) program += "X" + std::to_string(100 + i * 0.0001) + "\n";  // within a pixel
  program += "G0 X0 Y0\n";
  const PathLines p = pathOf(program);
  ViewTransform v;
  fitView(p, v, 400, 300, true);
  ScreenRuns runs;
  projectForDrawing(p, v, true, 400, 300, runs);
  ASSERT_EQ(runs.runs.size(), 2u);
  EXPECT_EQ(runs.runs[0].kind, MoveKind::Feed);
  EXPECT_LE(runs.runs[0].count, 3u);
  EXPECT_EQ(runs.runs[1].kind, MoveKind::Rapid);
  for (std::size_t i = 0; i < runs.xy.size(); i += 2) {
    EXPECT_GE(runs.xy[i], 0);
    EXPECT_LE(runs.xy[i], 400);
    EXPECT_GE(runs.xy[i + 1], 0);
    EXPECT_LE(runs.xy[i + 1], 300);
  }
  projectForDrawing(p, v, false, 400, 300, runs);
  ASSERT_EQ(runs.runs.size(), 1u);  // rapids hidden
}

TEST(ToolpathDrawing, PickFindsTheNearestShownMove) {
  const PathLines p = pathOf("G0 X10\nG1 F100 Y10\nG0 X0\n");
  ViewTransform v;
  v.rotation = viewRotation(ViewKind::Top);
  v.scale = 10, v.offsetX = 0, v.offsetY = 200;  // X10 Y10 lies at (100, 100)
  EXPECT_EQ(pickMove(p, v, 102, 150, 5, true), 1);   // beside the feed up X10
  EXPECT_EQ(pickMove(p, v, 50, 99, 5, true), 2);     // on the rapid back along Y10
  EXPECT_EQ(pickMove(p, v, 50, 99, 5, false), -1);   // not when rapids are hidden
  EXPECT_EQ(pickMove(p, v, 50, 150, 5, true), -1);   // nothing near
}

TEST(ToolpathDrawing, SetupChoicesRoundTripAndFallBackToTheScheme) {
  lathwick::test::TempDir dir;
  SettingsStore store(dir.file("s.ini"));
  GraphicsSettings s = GraphicsSettings::load(store);
  EXPECT_EQ(s.view, ViewKind::Isometric);
  EXPECT_TRUE(s.showRapids);
  const PathColours scheme{0x0000FF, 0x000000, 0x00FF00, 0xFF0000, 0x101010};
  EXPECT_EQ(s.colour(PathColour::Rapid, &scheme), 0x0000FF);
  EXPECT_EQ(s.colour(PathColour::Background, &scheme), 0x101010);
  s.view = ViewKind::Side;
  s.showRapids = false;
  s.colours[static_cast<int>(PathColour::Feed)] = 0x00AA00;
  s.save(store);
  const GraphicsSettings again = GraphicsSettings::load(SettingsStore(dir.file("s.ini")));
  EXPECT_EQ(again.view, ViewKind::Side);
  EXPECT_FALSE(again.showRapids);
  EXPECT_EQ(again.colour(PathColour::Feed, &scheme), 0x00AA00);
  EXPECT_EQ(again.colour(PathColour::Rapid, &scheme), 0x0000FF);
  store.save("Graphics", "View", "7");
  EXPECT_EQ(GraphicsSettings::load(store).view, ViewKind::Isometric);  // out of range: the default
}

}  // namespace
}  // namespace lathwick::toolpath::test
