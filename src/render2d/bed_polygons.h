// The outlines of track bed in device points, written into buffers that a paint reuses. What
// track_drawing.h offers as lists of points comes from here.
#pragma once

#include <wx/gdicmn.h>

#include <vector>

#include "catalog/routes.h"
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

// The frame of a stretch of the piece at `piece`.
BedFrame FrameOf(const Stretch& stretch, const BedFrame& piece);

// Replaces what `points` held by the bed of a stretch of the piece at `piece`, a straight one of
// four points, an arc's as ArcBedPolygon tells.
void makeStretchBed(BedPoints& points, const BedFrame& piece, const Stretch& stretch,
                    double halfWidth, const ViewTransform& view);

}  // namespace vantrel
