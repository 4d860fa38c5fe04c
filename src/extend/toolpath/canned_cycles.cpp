// The drilling cycles G81 G82 G83 G73 written as the moves they make: a rapid over the hole, a
// rapid down to the R plane, the feed to the bottom (in pecks for G83 and G73), and a rapid back
// to the R plane (G99) or to the level the cycle began at (G98). In G91 the R plane is measured
// from the initial level and the bottom from the R plane, X and Y are steps from hole to hole,
// and L repeats the hole that many times.
#include <algorithm>
#include <cmath>

#include "extend/toolpath/arcs.h"
#include "extend/toolpath/motion_state.h"

namespace lathwick::toolpath {

namespace {

// How far a peck backs off before it feeds on: the chip-breaking retract of G73 and the
// clearance above the last depth that G83 comes back down to at rapid.
double peckClearance(Units units) { return units == Units::Millimetre ? 0.5 : 0.02; }

}  // namespace

void MotionModel::State::runCycle() {
  const PlaneAxes ax = axesOf(plane);
  const char axisLetter[3] = {'X', 'Y', 'Z'};
  const char drill = axisLetter[ax.n];
  if (lw.says('R')) levels.r = lw['R'], levels.haveR = true;
  if (lw.says(drill)) levels.z = lw[drill], levels.haveZ = true;
  if (lw.says('Q')) levels.q = std::abs(lw['Q']);
  if (!levels.haveR || !levels.haveZ) {
    warn(levels.haveZ ? "drilling cycle without R" : std::string("drilling cycle without ") + drill);
    return;
  }
  const double rLevel = incremental ? levels.initialLevel + levels.r : levels.r;
  const double bottom = incremental ? rLevel + levels.z : levels.z;
  const double returnLevel = returnToR ? rLevel : levels.initialLevel;
  double repeats = lw.says('L') ? std::floor(lw['L']) : 1;
  if (repeats > 10000 || repeats < 0) {
    warn("drilling cycle repeat count out of range");
    repeats = 1;
  }
  for (int i = 0; i < static_cast<int>(repeats); ++i) {
    Point over = pos;
    for (int axis : {ax.a, ax.b})
      if (lw.says(axisLetter[axis])) over[axis] = incremental ? pos[axis] + lw[axisLetter[axis]] : lw[axisLetter[axis]];
    if (!(over == pos)) emit(MoveKind::Rapid, over);
    drillHole(ax.n, rLevel, bottom, returnLevel);
  }
}

void MotionModel::State::drillHole(int axis, double rLevel, double bottom, double returnLevel) {
  auto at = [&](double level) {
    Point p = pos;
    p[axis] = level;
    return p;
  };
  if (pos[axis] != rLevel) emit(MoveKind::Rapid, at(rLevel));
  bool pecks = (cycle == Cycle::Peck || cycle == Cycle::ChipBreak) && levels.q > 0;
  if (pecks && std::abs(bottom - rLevel) / levels.q > 10000) {
    warn("drilling cycle with more than 10000 pecks drawn as one feed");
    pecks = false;
  }
  if (!pecks) {
    emit(MoveKind::Feed, at(bottom));
  } else {
    const double dir = bottom < rLevel ? -1.0 : 1.0;
    const double clearance = peckClearance(units);
    double depth = rLevel;
    while (depth != bottom) {
      const double next = dir < 0 ? std::max(depth - levels.q, bottom) : std::min(depth + levels.q, bottom);
      emit(MoveKind::Feed, at(next));
      depth = next;
      if (depth == bottom) break;
      if (cycle == Cycle::ChipBreak) {
        emit(MoveKind::Rapid, at(depth - dir * clearance));
      } else {
        emit(MoveKind::Rapid, at(rLevel));
        emit(MoveKind::Rapid, at(depth - dir * clearance));
      }
    }
  }
  if (pos[axis] != returnLevel) emit(MoveKind::Rapid, at(returnLevel));
}

}  // namespace lathwick::toolpath
