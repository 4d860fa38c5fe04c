#pragma once
// What a machinist checks before running a program, added up move by move: the extents of the
// feed moves and of all moves (arcs by their furthest points, not only their ends), the feed and
// rapid lengths, and the time the feed moves take at their programmed feeds. Everything is in
// one display unit: the unit of the first move, unless set before it.
#include <cstdint>
#include <optional>

#include "extend/toolpath/move.h"

namespace lathwick::toolpath {

struct Extents {
  Point min, max;
  bool empty = true;
  void add(const Point& p);
};

struct PathSummary {
  std::optional<Units> units;  // the display unit
  Extents feedExtents;         // feed and arc moves, start and end
  Extents allExtents;          // every move, start and end
  double feedLength = 0;
  double rapidLength = 0;
  double feedMinutes = 0;      // feed moves at their feeds; moves without a feed count nothing
  std::uint64_t moves = 0;
  std::uint64_t untimedMoves = 0;  // feed moves made before any feed rate was given

  void add(const Move& move);
  Units displayUnits() const { return units.value_or(Units::Millimetre); }
};

// A point or length in the units of `from`, converted to `to`.
double convertLength(double value, Units from, Units to);

}  // namespace lathwick::toolpath
