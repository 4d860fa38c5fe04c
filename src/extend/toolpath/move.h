#pragma once
// What the motion model hands on: one move at a time, each with the program line that commands
// it. Coordinates are in the units in force at that move (millimetre or inch), absolute, after
// incremental words have been added up. A move's start is the end of the move before it (the
// first move starts at X0 Y0 Z0).
#include <cstdint>
#include <string>

namespace lathwick::toolpath {

enum class MoveKind : std::uint8_t { Rapid, Feed, ArcCw, ArcCcw };
enum class Plane : std::uint8_t { XY, ZX, YZ };  // G17, G18, G19
enum class Units : std::uint8_t { Millimetre, Inch };

inline constexpr double kMillimetresPerInch = 25.4;

struct Point {
  double x = 0, y = 0, z = 0;
  double& operator[](int axis) { return axis == 0 ? x : axis == 1 ? y : z; }
  double operator[](int axis) const { return axis == 0 ? x : axis == 1 ? y : z; }
  bool operator==(const Point&) const = default;
};

struct Move {
  Point start;
  Point end;
  Point centre;          // arcs only: the centre at the start's height along the plane's normal
  double feed = 0;       // units per minute in force (0: none programmed yet); rapids keep it too
  std::uint32_t line = 0;  // 1-based program line
  std::uint16_t tool = 0;  // last T called by an M6 (0: none)
  MoveKind kind = MoveKind::Rapid;
  Plane plane = Plane::XY;  // arcs: the plane they turn in
  Units units = Units::Millimetre;
  bool isArc() const { return kind == MoveKind::ArcCw || kind == MoveKind::ArcCcw; }
};

// A line the model could not follow whole: `text` is e.g. "unsupported G41" (shown after the
// line number as "12: unsupported G41").
struct Warning {
  std::uint32_t line = 0;
  std::string text;
};

}  // namespace lathwick::toolpath
