#include "extend/toolpath/arcs.h"

#include <cmath>
#include <numbers>

namespace lathwick::toolpath {

namespace {
constexpr double kTwoPi = 2 * std::numbers::pi;
constexpr double kSamePoint = 1e-9;
}  // namespace

PlaneAxes axesOf(Plane plane) {
  switch (plane) {
    case Plane::ZX: return {2, 0, 1};
    case Plane::YZ: return {1, 2, 0};
    case Plane::XY: break;
  }
  return {0, 1, 2};
}

RadiusFit centreFromRadius(const Point& start, const Point& end, double r, bool clockwise, Plane plane,
                           double tolerance, Point& centre) {
  const PlaneAxes ax = axesOf(plane);
  const double da = end[ax.a] - start[ax.a], db = end[ax.b] - start[ax.b];
  const double chord = std::hypot(da, db);
  if (chord < kSamePoint) return RadiusFit::FullCircle;
  const double half = chord / 2;
  const double radius = std::abs(r);
  if (radius < half - tolerance) return RadiusFit::TooSmall;
  const double h = radius > half ? std::sqrt(radius * radius - half * half) : 0.0;
  // Counter-clockwise the short way, the centre lies left of the chord; clockwise or the long
  // way, right of it; both: left again.
  const double side = (clockwise ? -1.0 : 1.0) * (r < 0 ? -1.0 : 1.0);
  centre = start;
  centre[ax.a] = start[ax.a] + da / 2 + side * h * (-db / chord);
  centre[ax.b] = start[ax.b] + db / 2 + side * h * (da / chord);
  return RadiusFit::Ok;
}

ArcShape arcShape(const Move& arc) {
  ArcShape s;
  s.axes = axesOf(arc.plane);
  const auto& [a, b, n] = s.axes;
  const double sa = arc.start[a] - arc.centre[a], sb = arc.start[b] - arc.centre[b];
  const double ea = arc.end[a] - arc.centre[a], eb = arc.end[b] - arc.centre[b];
  s.startRadius = std::hypot(sa, sb);
  s.endRadius = std::hypot(ea, eb);
  s.startAngle = std::atan2(sb, sa);
  const double endAngle = std::atan2(eb, ea);
  const bool full = std::hypot(arc.end[a] - arc.start[a], arc.end[b] - arc.start[b]) < kSamePoint;
  double ccw = full ? kTwoPi : endAngle - s.startAngle;
  while (ccw <= 0) ccw += kTwoPi;
  while (ccw > kTwoPi) ccw -= kTwoPi;
  if (arc.kind == MoveKind::ArcCw) {
    s.sweep = full ? -kTwoPi : ccw - kTwoPi;
    if (s.sweep == 0) s.sweep = -kTwoPi;
  } else {
    s.sweep = ccw;
  }
  (void)n;
  return s;
}

Point pointOnArc(const Move& arc, const ArcShape& s, double t) {
  if (t >= 1) return arc.end;
  const double angle = s.startAngle + s.sweep * t;
  const double radius = s.startRadius + (s.endRadius - s.startRadius) * t;
  Point p;
  p[s.axes.a] = arc.centre[s.axes.a] + radius * std::cos(angle);
  p[s.axes.b] = arc.centre[s.axes.b] + radius * std::sin(angle);
  p[s.axes.n] = arc.start[s.axes.n] + (arc.end[s.axes.n] - arc.start[s.axes.n]) * t;
  return p;
}

double arcLength(const Move& arc, const ArcShape& s) {
  const double around = std::abs(s.sweep) * (s.startRadius + s.endRadius) / 2;
  const double rise = arc.end[s.axes.n] - arc.start[s.axes.n];
  return std::hypot(around, rise);
}

}  // namespace lathwick::toolpath
