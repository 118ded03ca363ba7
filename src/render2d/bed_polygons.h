// The outlines of track bed in device points, written into buffers that a paint reuses. What
// track_drawing.h offers as lists of points comes from here.
#pragma once

#include <wx/gdicmn.h>

#include <vector>

#include "catalog/piece_def.h"
#include "doc/vec2.h"
#include "doc/view_transform.h"

namespace vantrel {

using BedPoints = std::vector<wxPoint>;

inline wxPoint DevicePointOf(const ViewTransform& view, Vec2 world) {
  const DevicePoint point = view.toDevice(world);
  return {point.x, point.y};
}

// A pose with the cosine and sine of its heading, which every point of a piece needs.
struct BedFrame {
  Vec2 at;               // mm, world
  double heading = 0.0;  // degrees
  double c = 1.0;
  double s = 0.0;

  Vec2 toWorld(Vec2 local) const {
    return {at.x + local.x * c - local.y * s, at.y + local.x * s + local.y * c};
  }
  // The point `distance` mm along the heading.
  Vec2 ahead(double distance) const { return {at.x + distance * c, at.y + distance * s}; }
  // The point `distance` mm to the right of `from`, which is local +y.
  Vec2 beside(Vec2 from, double distance) const {
    return {from.x + distance * -s, from.y + distance * c};
  }
  BedFrame movedTo(Vec2 where) const { return {where, heading, c, s}; }
};
BedFrame MakeBedFrame(const Pose& pose);

// What a bed's outline depends on, so that a variation needs no copy of a definition.
struct BedMeasures {
  double length = 0.0;     // mm, of the straight bed
  double radius = 0.0;     // mm
  double sweep = 0.0;      // degrees, signed: positive bends to the right
  double halfWidth = 0.0;  // mm
};

// The measures of a definition's straight route and of its arc on `route` 1, 2 or 3. A turnout's
// branch is cut where it would run past the turnout's own length; a three-way's other branch isn't.
BedMeasures measuresOf(const PieceDef& def, int route);

// Both replace what `points` held. The arc falls back to the straight bed below a radius of 1 mm.
void makeStraightBed(BedPoints& points, const BedFrame& frame, const BedMeasures& measures,
                     const ViewTransform& view);
void makeArcBed(BedPoints& points, const BedFrame& frame, const BedMeasures& measures,
                const ViewTransform& view);

}  // namespace vantrel
