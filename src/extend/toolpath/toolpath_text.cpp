#include "extend/toolpath/toolpath_text.h"

#include <cmath>
#include <cstdio>

namespace lathwick::toolpath {

std::string fixed4(double value) {
  if (std::abs(value) < 0.00005) value = 0;
  char text[48];
  std::snprintf(text, sizeof text, "%.4f", value);
  return text;
}

const char* unitsName(Units units) { return units == Units::Inch ? "inch" : "mm"; }

std::string moveText(const Move& m) {
  static const char* const kNames[] = {"rapid", "feed", "arc-cw", "arc-ccw"};
  std::string s = std::to_string(m.line);
  s += ' ';
  s += kNames[static_cast<int>(m.kind)];
  for (double v : {m.end.x, m.end.y, m.end.z}) s += ' ' + fixed4(v);
  if (m.isArc())
    for (double v : {m.centre.x, m.centre.y, m.centre.z}) s += ' ' + fixed4(v);
  return s;
}

std::string warningText(const Warning& w) { return std::to_string(w.line) + ": " + w.text; }

std::string summaryText(const PathSummary& s) {
  std::string out;
  auto line = [&](const std::string& name, const std::string& value) { out += name + ' ' + value + '\n'; };
  line("units", unitsName(s.displayUnits()));
  line("moves", std::to_string(s.moves));
  for (const auto& [prefix, extents] : {std::pair{"feed", &s.feedExtents}, std::pair{"all", &s.allExtents}}) {
    const char axes[3] = {'x', 'y', 'z'};
    for (int axis = 0; axis < 3; ++axis) {
      const std::string name = std::string(prefix) + '-' + axes[axis];
      line(name + "-min", extents->empty ? "none" : fixed4(extents->min[axis]));
      line(name + "-max", extents->empty ? "none" : fixed4(extents->max[axis]));
    }
  }
  line("feed-length", fixed4(s.feedLength));
  line("rapid-length", fixed4(s.rapidLength));
  line("time-minutes", fixed4(s.feedMinutes));
  return out;
}

}  // namespace lathwick::toolpath
