#include "render2d/bed_polygons.h"

#include <algorithm>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

constexpr int kFewestSegments = 16;
constexpr double kDegreesPerSegment = 1.5;
// Seventeen full turns. No catalog row comes near; it keeps a broken sweep from filling the memory.
constexpr int kMostSegments = 4096;

void MakeStraightBed(BedPoints& points, const BedFrame& frame, double length, double halfWidth,
                     const ViewTransform& view) {
  const Vec2 end = frame.ahead(length);
  points.clear();
  points.push_back(DevicePointOf(view, frame.beside(frame.at, halfWidth)));
  points.push_back(DevicePointOf(view, frame.beside(frame.at, -halfWidth)));
  points.push_back(DevicePointOf(view, frame.beside(end, -halfWidth)));
  points.push_back(DevicePointOf(view, frame.beside(end, halfWidth)));
}

void MakeArcBed(BedPoints& points, const BedFrame& frame, const Stretch& stretch, double halfWidth,
                const ViewTransform& view) {
  const double sweep = stretch.sweep;
  const int n =
      std::clamp(DeviceInt(std::abs(sweep) / kDegreesPerSegment), kFewestSegments, kMostSegments);
  const double centreY = sweep < 0.0 ? -stretch.radius : stretch.radius;
  const double start = sweep < 0.0 ? 90.0 : -90.0;
  const double outer = stretch.radius + halfWidth;
  const double inner = stretch.radius - halfWidth;
  const std::size_t count = 2 * static_cast<std::size_t>(n) + 2;
  points.resize(count);
  // The two edges share the cosine and sine of each step; the inner one is filled from its end.
  for (int i = 0; i <= n; ++i) {
    const double t = Radians(start + sweep * i / n);
    const double cosine = std::cos(t);
    const double sine = std::sin(t);
    const std::size_t k = static_cast<std::size_t>(i);
    points[k] = DevicePointOf(view, frame.toWorld({cosine * outer, sine * outer + centreY}));
    points[count - 1 - k] =
        DevicePointOf(view, frame.toWorld({cosine * inner, sine * inner + centreY}));
  }
}

}  // namespace

double bedHalfWidth(const PieceDef& def) {
  return def.system == TrackSystem::MarklinZ ? kBedHalfWidthZ : kBedHalfWidth;
}

BedFrame MakeBedFrame(const Pose& pose) {
  const double r = Radians(pose.heading);
  return {{pose.x, pose.y}, pose.heading, std::cos(r), std::sin(r)};
}

BedFrame FrameOf(const Stretch& stretch, const BedFrame& piece) {
  const Vec2 at = piece.toWorld({stretch.start.x, stretch.start.y});
  if (stretch.start.heading == 0.0) return piece.movedTo(at);
  return MakeBedFrame({at.x, at.y, normalizeDegrees(piece.heading + stretch.start.heading)});
}

void makeStretchBed(BedPoints& points, const BedFrame& piece, const Stretch& stretch,
                    double halfWidth, const ViewTransform& view) {
  const BedFrame frame = FrameOf(stretch, piece);
  if (stretch.isArc())
    MakeArcBed(points, frame, stretch, halfWidth, view);
  else
    MakeStraightBed(points, frame, stretch.length, halfWidth, view);
}

std::vector<wxPoint> StraightBedPolygon(const Pose& pose, const PieceDef& def,
                                        const ViewTransform& view) {
  BedPoints points;
  makeStretchBed(points, MakeBedFrame(pose), StraightOf(def), bedHalfWidth(def), view);
  return points;
}

std::vector<wxPoint> ArcBedPolygon(const Pose& pose, const PieceDef& def, const ViewTransform& view,
                                   int route) {
  BedPoints points;
  const Stretch arc = ArcOf(def, {}, RouteSweep(def, route));
  makeStretchBed(points, MakeBedFrame(pose), arc, bedHalfWidth(def), view);
  return points;
}

}  // namespace vantrel
