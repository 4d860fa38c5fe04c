#include "extend/toolpath/path_drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "extend/toolpath/arcs.h"

namespace lathwick::toolpath {

namespace {

constexpr double kChordAngle = std::numbers::pi / 24;  // 48 chords to a full circle
constexpr int kMaxChords = 96;

void addPoint(PathLines& path, const Point& p, Units from, std::uint32_t move, MoveKind kind) {
  path.xyz.push_back(static_cast<float>(convertLength(p.x, from, path.units)));
  path.xyz.push_back(static_cast<float>(convertLength(p.y, from, path.units)));
  path.xyz.push_back(static_cast<float>(convertLength(p.z, from, path.units)));
  path.move.push_back(move);
  path.kind.push_back(kind);
}

}  // namespace

PathLines buildPathLines(const ModelledProgram& program) {
  PathLines path;
  path.units = program.summary.displayUnits();
  const std::size_t n = program.moves.size();
  path.line.reserve(n);
  path.firstPoint.reserve(n + 1);
  path.xyz.reserve(3 * (n + 1));
  if (n == 0) return path;
  const Move first = program.moves[0];
  addPoint(path, first.start, first.units, 0, first.kind);
  for (std::size_t i = 0; i < n; ++i) {
    const Move m = program.moves[i];
    const auto index = static_cast<std::uint32_t>(i);
    path.line.push_back(m.line);
    path.firstPoint.push_back(static_cast<std::uint32_t>(path.points()));
    if (m.isArc()) {
      const ArcShape shape = arcShape(m);
      const int chords = std::clamp(static_cast<int>(std::ceil(std::abs(shape.sweep) / kChordAngle - 1e-9)), 1, kMaxChords);
      for (int k = 1; k <= chords; ++k)
        addPoint(path, pointOnArc(m, shape, static_cast<double>(k) / chords), m.units, index, m.kind);
    } else {
      addPoint(path, m.end, m.units, index, m.kind);
    }
  }
  path.firstPoint.push_back(static_cast<std::uint32_t>(path.points()));
  return path;
}

std::array<float, 9> viewRotation(ViewKind kind, float yaw, float pitch) {
  constexpr float kDeg = static_cast<float>(std::numbers::pi / 180);
  switch (kind) {
    case ViewKind::Top: break;
    case ViewKind::Front: pitch += -90 * kDeg; break;
    case ViewKind::Side: yaw += -90 * kDeg, pitch += -90 * kDeg; break;
    case ViewKind::Isometric: yaw += -45 * kDeg, pitch += -54.7356f * kDeg; break;
  }
  const float cy = std::cos(yaw), sy = std::sin(yaw), cp = std::cos(pitch), sp = std::sin(pitch);
  return {cy, -sy, 0, cp * sy, cp * cy, -sp, sp * sy, sp * cy, cp};
}

void fitView(const PathLines& path, ViewTransform& view, int width, int height, bool withRapids) {
  ViewTransform unit = view;
  unit.scale = 1, unit.offsetX = 0, unit.offsetY = 0;
  float minX = std::numeric_limits<float>::max(), minY = minX, maxX = -minX, maxY = -minX;
  for (std::size_t i = 0; i < path.points(); ++i) {
    // A point counts when a shown chord ends or starts there.
    const bool shown = withRapids || (i > 0 && path.kind[i] != MoveKind::Rapid) ||
                       (i + 1 < path.points() && path.kind[i + 1] != MoveKind::Rapid);
    if (!shown) continue;
    float sx, sy;
    unit.project(&path.xyz[3 * i], sx, sy);
    minX = std::min(minX, sx), maxX = std::max(maxX, sx), minY = std::min(minY, sy), maxY = std::max(maxY, sy);
  }
  if (minX > maxX) minX = maxX = minY = maxY = 0;
  const float margin = 20;
  const float spanX = std::max(maxX - minX, 1e-3f), spanY = std::max(maxY - minY, 1e-3f);
  view.scale = std::max(1e-6f, std::min((width - 2 * margin) / spanX, (height - 2 * margin) / spanY));
  view.offsetX = width / 2.0f - view.scale * (minX + maxX) / 2;
  view.offsetY = height / 2.0f - view.scale * (minY + maxY) / 2;
}

void projectForDrawing(const PathLines& path, const ViewTransform& view, bool showRapids, int width, int height,
                       ScreenRuns& out, std::size_t maxPoints) {
  out.xy.clear();
  out.runs.clear();
  const std::size_t n = path.points();
  if (n < 2) return;
  const float lo = -4, hiX = static_cast<float>(width) + 4, hiY = static_cast<float>(height) + 4;
  float px, py;
  view.project(&path.xyz[0], px, py);
  bool open = false;  // a run is open and its last point is (lastX, lastY)
  std::int32_t lastX = 0, lastY = 0;
  MoveKind runKind = MoveKind::Rapid;
  const std::size_t stride = maxPoints > 0 && n > maxPoints ? n / maxPoints + 1 : 1;
  for (std::size_t i = 1; i < n; ++i) {
    if (stride > 1) i = std::min(n - 1, i + stride - 1);  // sketching: every n-th point
    float x, y;
    view.project(&path.xyz[3 * i], x, y);
    const MoveKind kind = path.kind[i];
    const bool hidden = (kind == MoveKind::Rapid && !showRapids) || (px < lo && x < lo) || (py < lo && y < lo) ||
                        (px > hiX && x > hiX) || (py > hiY && y > hiY);
    if (hidden) {
      open = false;
    } else {
      // Far-off points are clamped so integer pixels cannot overflow; the chord's direction on
      // screen changes only outside the view.
      auto pixel = [](float v) { return static_cast<std::int32_t>(std::lround(std::clamp(v, -1e6f, 1e6f))); };
      const std::int32_t x0 = pixel(px), y0 = pixel(py), x1 = pixel(x), y1 = pixel(y);
      if (!open || kind != runKind || x0 != lastX || y0 != lastY) {
        out.runs.push_back({kind, static_cast<std::uint32_t>(out.xy.size() / 2), 1});
        out.xy.push_back(x0), out.xy.push_back(y0);
        runKind = kind, open = true, lastX = x0, lastY = y0;
      }
      if (x1 != lastX || y1 != lastY) {
        out.xy.push_back(x1), out.xy.push_back(y1);
        ++out.runs.back().count;
        lastX = x1, lastY = y1;
      }
    }
    px = x, py = y;
  }
}

long pickMove(const PathLines& path, const ViewTransform& view, float sx, float sy, float tolerance, bool showRapids) {
  long best = -1;
  float bestDistance = tolerance * tolerance;
  float px, py;
  if (path.points() < 2) return -1;
  view.project(&path.xyz[0], px, py);
  for (std::size_t i = 1; i < path.points(); ++i) {
    float x, y;
    view.project(&path.xyz[3 * i], x, y);
    if (showRapids || path.kind[i] != MoveKind::Rapid) {
      const float dx = x - px, dy = y - py, len2 = dx * dx + dy * dy;
      const float t = len2 > 0 ? std::clamp(((sx - px) * dx + (sy - py) * dy) / len2, 0.0f, 1.0f) : 0.0f;
      const float ex = px + t * dx - sx, ey = py + t * dy - sy, d2 = ex * ex + ey * ey;
      if (d2 <= bestDistance) bestDistance = d2, best = static_cast<long>(path.move[i]);
    }
    px = x, py = y;
  }
  return best;
}

std::pair<std::size_t, std::size_t> movesOfLine(const PathLines& path, std::uint32_t line) {
  const auto from = std::lower_bound(path.line.begin(), path.line.end(), line);
  const auto to = std::upper_bound(from, path.line.end(), line);
  return {static_cast<std::size_t>(from - path.line.begin()), static_cast<std::size_t>(to - path.line.begin())};
}

}  // namespace lathwick::toolpath
