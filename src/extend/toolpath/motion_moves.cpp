// Straight moves and arcs from the line's axis, centre and radius words.
#include <cmath>

#include "extend/toolpath/arcs.h"
#include "extend/toolpath/motion_state.h"
#include "extend/toolpath/toolpath_text.h"

namespace lathwick::toolpath {

void MotionModel::State::emit(MoveKind kind, const Point& end, const Point& centre) {
  Move m;
  m.start = pos;
  m.end = end;
  m.centre = centre;
  m.feed = feed;
  m.line = line;
  m.tool = tool;
  m.kind = kind;
  m.plane = plane;
  m.units = units;
  if (kind != MoveKind::Rapid && feed <= 0 && !warnedNoFeed) {
    warn("feed move without a feed rate");
    warnedNoFeed = true;
  }
  pos = end;
  if (onMove) onMove(m);
}

Point MotionModel::State::target() const {
  Point p = pos;
  const char letters[3] = {'X', 'Y', 'Z'};
  for (int axis = 0; axis < 3; ++axis)
    if (lw.says(letters[axis])) p[axis] = incremental ? pos[axis] + lw[letters[axis]] : lw[letters[axis]];
  return p;
}

void MotionModel::State::moveLine() {
  const Point end = target();
  emit(motion == Motion::Rapid ? MoveKind::Rapid : MoveKind::Feed, end);
}

void MotionModel::State::moveArc(const Point& end) {
  const bool cw = motion == Motion::ArcCw;
  const MoveKind kind = cw ? MoveKind::ArcCw : MoveKind::ArcCcw;
  const PlaneAxes ax = axesOf(plane);
  const double tolerance = units == Units::Millimetre ? 0.01 : 0.0005;
  Point centre = pos;
  if (lw.says('R')) {
    switch (centreFromRadius(pos, end, lw['R'], cw, plane, tolerance, centre)) {
      case RadiusFit::Ok:
        emit(kind, end, centre);
        return;
      case RadiusFit::FullCircle:
        warn("arc by R cannot make a full circle");
        if (!(end == pos)) emit(MoveKind::Feed, end);
        return;
      case RadiusFit::TooSmall:
        warn("arc radius R" + fixed4(lw['R']) + " cannot reach its end point");
        emit(MoveKind::Feed, end);
        return;
    }
  }
  const char offsetLetter[3] = {'I', 'J', 'K'};
  bool anyOffset = false;
  for (int axis : {ax.a, ax.b}) {
    const char letter = offsetLetter[axis];
    anyOffset = anyOffset || lw.says(letter);
    const double v = lw.says(letter) ? lw[letter] : 0.0;
    centre[axis] = centreAbsolute ? (lw.says(letter) ? v : pos[axis]) : pos[axis] + v;
  }
  const double r0 = std::hypot(pos[ax.a] - centre[ax.a], pos[ax.b] - centre[ax.b]);
  const double r1 = std::hypot(end[ax.a] - centre[ax.a], end[ax.b] - centre[ax.b]);
  if (!anyOffset || r0 < 1e-9) {
    warn(anyOffset ? "arc centre on its start point" : "arc without I J K or R");
    if (!(end == pos)) emit(MoveKind::Feed, end);
    return;
  }
  if (std::abs(r1 - r0) > tolerance + 0.001 * r0) warn("arc end point off its circle by " + fixed4(std::abs(r1 - r0)));
  emit(kind, end, centre);
}

}  // namespace lathwick::toolpath
