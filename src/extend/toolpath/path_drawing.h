#pragma once
// The path as the tool-path window draws it, without any window system: the moves as one
// polyline in the display unit (arcs cut into short chords), a view (rotation, scale, offset),
// the projection into runs of screen pixels with points that fall on the pixel before them
// dropped (so a million moves draw as fast as the pixels they cover), and picking the move under
// a screen point.
#include <array>
#include <cstdint>
#include <vector>

#include "extend/toolpath/model_program.h"

namespace lathwick::toolpath {

struct PathLines {
  std::vector<float> xyz;            // 3 per point, display unit
  std::vector<std::uint32_t> move;   // per point from 1: the move of the chord that ends there
  std::vector<MoveKind> kind;        // per point from 1: that move's kind
  std::vector<std::uint32_t> line;   // per move: its program line
  std::vector<std::uint32_t> firstPoint;  // per move: its first chord's end point; one extra at the end
  Units units = Units::Millimetre;
  std::size_t points() const { return xyz.size() / 3; }
};

PathLines buildPathLines(const ModelledProgram& program);

enum class ViewKind : std::uint8_t { Top, Front, Side, Isometric };

// Screen x = scale * (row0 . p) + offsetX, screen y = offsetY - scale * (row1 . p).
struct ViewTransform {
  std::array<float, 9> rotation{1, 0, 0, 0, 1, 0, 0, 0, 1};
  float scale = 1, offsetX = 0, offsetY = 0;
  void project(const float* p, float& sx, float& sy) const {
    sx = scale * (rotation[0] * p[0] + rotation[1] * p[1] + rotation[2] * p[2]) + offsetX;
    sy = offsetY - scale * (rotation[3] * p[0] + rotation[4] * p[1] + rotation[5] * p[2]);
  }
  // Depth towards the viewer (row 2), for nothing but completeness of the rotation.
};

// The rotation of a standard view; yaw and pitch (radians) turn it further.
std::array<float, 9> viewRotation(ViewKind kind, float yaw = 0, float pitch = 0);

// Scale and offset that fit the path's extents (as rotated) into width x height with a margin.
void fitView(const PathLines& path, ViewTransform& view, int width, int height, bool withRapids);

struct ScreenRun {
  MoveKind kind;
  std::uint32_t first, count;  // into ScreenRuns::xy (pairs)
};
struct ScreenRuns {
  std::vector<std::int32_t> xy;
  std::vector<ScreenRun> runs;
};

// The polyline in screen pixels for a width x height view, in runs of one move kind. With
// `maxPoints` the path is drawn from every n-th point only, so that at most about that many are
// projected (a quick sketch while the view turns).
void projectForDrawing(const PathLines& path, const ViewTransform& view, bool showRapids, int width, int height,
                       ScreenRuns& out, std::size_t maxPoints = 0);

// The move whose chord passes within `tolerance` pixels of (sx, sy), the nearest; -1 for none.
long pickMove(const PathLines& path, const ViewTransform& view, float sx, float sy, float tolerance, bool showRapids);

// The moves of a program line (first, one past last), found by the lines' order.
std::pair<std::size_t, std::size_t> movesOfLine(const PathLines& path, std::uint32_t line);

}  // namespace lathwick::toolpath
