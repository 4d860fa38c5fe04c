#pragma once
// Arc geometry in the plane of a move: the centre of an arc given by its radius, the angle it
// sweeps, its length and the points along it. In each plane the first two axes turn and the third
// is the normal: G17 X Y (Z), G18 Z X (Y), G19 Y Z (X); clockwise is seen from the normal's plus
// side, so it is the negative sense of the plane's two axes.
#include "extend/toolpath/move.h"

namespace lathwick::toolpath {

struct PlaneAxes {
  int a, b, n;  // indices 0 X, 1 Y, 2 Z
};
PlaneAxes axesOf(Plane plane);

enum class RadiusFit { Ok, FullCircle, TooSmall };

// The centre of the arc from start to end with radius r (negative r: the long way round, more
// than half a circle). A radius short of half the chord by no more than `tolerance` is taken as
// half the chord. The centre's normal coordinate is the start's.
RadiusFit centreFromRadius(const Point& start, const Point& end, double r, bool clockwise, Plane plane,
                           double tolerance, Point& centre);

// An arc move as angles: the start angle, the signed sweep (counter-clockwise positive, a full
// circle when start and end coincide in the plane), the radius at start and at end.
struct ArcShape {
  PlaneAxes axes{0, 1, 2};
  double startAngle = 0;
  double sweep = 0;
  double startRadius = 0;
  double endRadius = 0;
};
ArcShape arcShape(const Move& arc);

// The point at fraction t (0 to 1) along the arc; t = 1 gives the move's end exactly.
Point pointOnArc(const Move& arc, const ArcShape& shape, double t);

// The length along the arc, helical rise included.
double arcLength(const Move& arc, const ArcShape& shape);

// Calls visit(point) for each point where the arc reaches furthest along one of its plane's axes
// (the quarter points within its sweep), besides its ends.
template <class Visit>
void visitArcExtremes(const Move& arc, const ArcShape& shape, Visit&& visit);

}  // namespace lathwick::toolpath

#include "extend/toolpath/arcs_inl.h"
