#include "extend/toolpath/path_summary.h"

#include <algorithm>
#include <cmath>

#include "extend/toolpath/arcs.h"

namespace lathwick::toolpath {

void Extents::add(const Point& p) {
  if (empty) {
    min = max = p;
    empty = false;
    return;
  }
  for (int axis = 0; axis < 3; ++axis) {
    min[axis] = std::min(min[axis], p[axis]);
    max[axis] = std::max(max[axis], p[axis]);
  }
}

double convertLength(double value, Units from, Units to) {
  if (from == to) return value;
  return to == Units::Millimetre ? value * kMillimetresPerInch : value / kMillimetresPerInch;
}

void PathSummary::add(const Move& move) {
  if (!units) units = move.units;
  const Units to = *units;
  auto shown = [&](const Point& p) {
    return Point{convertLength(p.x, move.units, to), convertLength(p.y, move.units, to), convertLength(p.z, move.units, to)};
  };
  const bool feedMove = move.kind != MoveKind::Rapid;
  auto addPoint = [&](const Point& p) {
    const Point q = shown(p);
    allExtents.add(q);
    if (feedMove) feedExtents.add(q);
  };
  addPoint(move.start);
  addPoint(move.end);
  double length = 0;
  if (move.isArc()) {
    const ArcShape shape = arcShape(move);
    visitArcExtremes(move, shape, addPoint);
    length = arcLength(move, shape);
  } else {
    length = std::hypot(move.end.x - move.start.x, move.end.y - move.start.y, move.end.z - move.start.z);
  }
  ++moves;
  if (!feedMove) {
    rapidLength += convertLength(length, move.units, to);
    return;
  }
  feedLength += convertLength(length, move.units, to);
  if (move.feed > 0)
    feedMinutes += length / move.feed;
  else
    ++untimedMoves;
}

}  // namespace lathwick::toolpath
