// Centre lines of track in a piece's frame, and what runs along them.
#pragma once

#include <vector>

#include "view3d/scene/mesh.h"

namespace vantrel {

struct PathPoint {
  Vec3f position;
  Vec3f tangent;  // unit, along the path
  Vec3f side;     // unit, level, toward +y where the path runs along +x
};

using Path = std::vector<PathPoint>;

// How finely a route of this length in mm, or over this angle in degrees, is cut.
int StraightSegments(double length);
int ArcSegments(double angle);

// Points at equal steps, at least 1 segment. A path shorter than a millionth of a mm runs along +x.
Path StraightPath(double x0, double y0, double x1, double y1, int segments);

// Points on the circle, `startAngle` and `sweep` in degrees, at least 2 segments.
Path ArcPath(double cx, double cy, double radius, double startAngle, double sweep, int segments);

// A profile swept along a path: a rectangle of this half width, `offset` mm to the path's side,
// from z `low` to z `high`. Its top and its two sides are always there.
struct SweptBox {
  float offset = 0.0F;
  float halfWidth = 0.0F;
  float low = 0.0F;
  float high = 0.0F;
  SolidColours colours;
  bool hasEnds = false;
  bool hasBottom = false;
};

// Nothing for a path of fewer than 2 points.
void AddSweptBox(Mesh& mesh, const Path& path, const SweptBox& box);

// The point at `distance` mm along the path, between its two neighbours; the path's ends beyond
// them. The path must have at least 2 points.
PathPoint PointAlong(const Path& path, double distance);

// The sum of the path's segments, mm.
double PathLength(const Path& path);

// Ballast, sleepers and two rails along the path, with the same measures in every track system.
// Nothing for a path of fewer than 2 points.
void AddTrackStrip(Mesh& mesh, const Path& path);

}  // namespace vantrel
