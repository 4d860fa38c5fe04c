// The words of a line turned into modal state: G words as they come (units before the feed that
// follows them), then feed and tool, then the motion the line commands.
#include <algorithm>
#include <cmath>

#include "extend/toolpath/arcs.h"
#include "extend/toolpath/motion_state.h"

namespace lathwick::toolpath {

namespace {

// Letters that carry no motion and need no warning.
bool isQuietLetter(char c) { return c == 'N' || c == 'O' || c == 'S' || c == 'D' || c == 'H'; }
// Letters the motion words and cycles read.
bool isMotionLetter(char c) {
  switch (c) {
    case 'X': case 'Y': case 'Z': case 'I': case 'J': case 'K': case 'R':
    case 'P': case 'Q': case 'L': case 'F': case 'T':
      return true;
    default:
      return false;
  }
}

}  // namespace

void MotionModel::State::gather() {
  lw.has.fill(false);
  axesHeld = motionWord = cycleWord = false;
  bool toolChange = false;
  for (const Word& w : words) {
    if (w.letter == 'G') {
      applyG(static_cast<int>(std::lround(w.value * 10)), w);
    } else if (w.letter == 'M') {
      if (w.value == 6) toolChange = true;
      else applyM(w);
    } else if (isMotionLetter(w.letter)) {
      lw.has[static_cast<std::size_t>(w.letter - 'A')] = true;
      lw.value[static_cast<std::size_t>(w.letter - 'A')] = w.value;
    } else if (!isQuietLetter(w.letter)) {
      warn("unsupported " + std::string(w.text));
    }
  }
  // After the G words, so that an F on a G20 or G21 line is read in the new units.
  if (lw.says('F')) feed = lw['F'];
  if (lw.says('T')) calledTool = static_cast<std::uint16_t>(std::clamp(lw['T'], 0.0, 65535.0));
  if (toolChange) tool = calledTool;
}

void MotionModel::State::applyM(const Word& w) {
  if (w.value == 97 || w.value == 98 || w.value == 99 || w.value != std::floor(w.value))
    warn("unsupported " + std::string(w.text));
}

void MotionModel::State::setUnits(Units to) {
  if (to == units) return;
  const double f = to == Units::Millimetre ? kMillimetresPerInch : 1 / kMillimetresPerInch;
  pos = {pos.x * f, pos.y * f, pos.z * f};
  levels.r *= f;
  levels.z *= f;
  levels.q *= f;
  levels.initialLevel *= f;
  feed *= f;
  units = to;
}

void MotionModel::State::applyG(int code, const Word& w) {
  switch (code) {
    case 0: case 10: case 20: case 30:
      motion = static_cast<Motion>(code / 10);
      cycle = Cycle::None;
      motionWord = true;
      return;
    case 810: case 820: case 830: case 730:
      if (cycle == Cycle::None) levels.initialLevel = pos[axesOf(plane).n];
      cycle = code == 810 ? Cycle::Drill : code == 820 ? Cycle::DrillDwell : code == 830 ? Cycle::Peck : Cycle::ChipBreak;
      cycleWord = true;
      return;
    case 800: cycle = Cycle::None; return;
    case 170: plane = Plane::XY; return;
    case 180: plane = Plane::ZX; return;
    case 190: plane = Plane::YZ; return;
    case 200: setUnits(Units::Inch); return;
    case 210: setUnits(Units::Millimetre); return;
    case 900: incremental = false; return;
    case 910: incremental = true; return;
    case 901: centreAbsolute = true; return;
    case 911: centreAbsolute = false; return;
    case 980: returnToR = false; return;
    case 990: returnToR = true; return;
    case 40: axesHeld = true; return;  // dwell: X or P is its time
    // Compensation, length offsets, work offsets, path control, feed and spindle modes: the
    // programmed path is drawn as written.
    case 400: case 430: case 490: case 610: case 611: case 640: case 940: case 960: case 970:
    case 540: case 550: case 560: case 570: case 580: case 590:
      return;
    case 410: case 420: case 411: case 421: case 930: case 950:
      warn("unsupported " + std::string(w.text));
      return;
    default:
      // Anything else may use the axis words for its own ends (home, offsets, lathe cycles,
      // probing): they are not followed.
      warn("unsupported " + std::string(w.text));
      axesHeld = true;
      return;
  }
}

}  // namespace lathwick::toolpath
