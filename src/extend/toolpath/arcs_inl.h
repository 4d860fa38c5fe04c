#pragma once
// Template part of arcs.h.
#include <cmath>
#include <numbers>

namespace lathwick::toolpath {

template <class Visit>
void visitArcExtremes(const Move& arc, const ArcShape& shape, Visit&& visit) {
  constexpr double kQuarter = std::numbers::pi / 2;
  const double span = std::abs(shape.sweep);
  if (span <= 0) return;
  const double dir = shape.sweep < 0 ? -1.0 : 1.0;
  // Quarter angles k * pi/2 met when turning from the start angle by up to span.
  for (int k = 0; k < 4; ++k) {
    double delta = dir * (k * kQuarter - shape.startAngle);
    delta = std::fmod(delta, 2 * std::numbers::pi);
    if (delta < 0) delta += 2 * std::numbers::pi;
    if (delta > 0 && delta < span) visit(pointOnArc(arc, shape, delta / span));
  }
}

}  // namespace lathwick::toolpath
