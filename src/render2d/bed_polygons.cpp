#include "render2d/bed_polygons.h"

#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

constexpr double kSmallestArcRadiusMm = 1.0;
constexpr int kFewestSegments = 16;
constexpr double kDegreesPerSegment = 1.5;
// Seventeen full turns. No catalog row comes near; it keeps a broken sweep from filling the memory.
constexpr int kMostSegments = 4096;
constexpr std::size_t kThreeWayConnectors = 4;

bool IsTurnout(const PieceDef& def) {
  return def.kind == PieceKind::LeftTurnout || def.kind == PieceKind::RightTurnout;
}

double CutAtLength(double sweep, double length, double radius) {
  const double limit = Degrees(std::asin(std::min(1.0, length / radius)));
  return sweep > 0.0 ? std::min(limit, sweep) : std::max(-limit, sweep);
}

double SweepOf(const PieceDef& def, int route) {
  double sweep = def.angle;
  if (route == 3 && def.connectors.size() >= kThreeWayConnectors) sweep = -std::abs(sweep);
  if (route != 2) return sweep;
  if (def.kind == PieceKind::RightTurnout) sweep = std::abs(sweep);
  if (IsTurnout(def) && def.radius > kSmallestArcRadiusMm && def.length > 0.0)
    sweep = CutAtLength(sweep, def.length, def.radius);
  return sweep;
}

}  // namespace

double bedHalfWidth(const PieceDef& def) {
  return def.system == TrackSystem::MarklinZ ? kBedHalfWidthZ : kBedHalfWidth;
}

BedFrame MakeBedFrame(const Pose& pose) {
  const double r = Radians(pose.heading);
  return {{pose.x, pose.y}, pose.heading, std::cos(r), std::sin(r)};
}

BedMeasures measuresOf(const PieceDef& def, int route) {
  return {.length = def.length,
          .radius = def.radius,
          .sweep = SweepOf(def, route),
          .halfWidth = bedHalfWidth(def)};
}

void makeStraightBed(BedPoints& points, const BedFrame& frame, const BedMeasures& measures,
                     const ViewTransform& view) {
  const double hw = measures.halfWidth;
  const Vec2 end = frame.ahead(measures.length);
  points.clear();
  points.push_back(DevicePointOf(view, frame.beside(frame.at, hw)));
  points.push_back(DevicePointOf(view, frame.beside(frame.at, -hw)));
  points.push_back(DevicePointOf(view, frame.beside(end, -hw)));
  points.push_back(DevicePointOf(view, frame.beside(end, hw)));
}

void makeArcBed(BedPoints& points, const BedFrame& frame, const BedMeasures& measures,
                const ViewTransform& view) {
  const double radius = measures.radius;
  const double sweep = measures.sweep;
  if (radius < kSmallestArcRadiusMm) {
    makeStraightBed(points, frame, measures, view);
    return;
  }
  const int n =
      std::clamp(DeviceInt(std::abs(sweep) / kDegreesPerSegment), kFewestSegments, kMostSegments);
  const double centreY = sweep < 0.0 ? -radius : radius;
  const double start = sweep < 0.0 ? 90.0 : -90.0;
  const double outer = radius + measures.halfWidth;
  const double inner = radius - measures.halfWidth;
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

std::vector<wxPoint> StraightBedPolygon(const Pose& pose, const PieceDef& def,
                                        const ViewTransform& view) {
  BedPoints points;
  makeStraightBed(points, MakeBedFrame(pose), measuresOf(def, 1), view);
  return points;
}

std::vector<wxPoint> ArcBedPolygon(const Pose& pose, const PieceDef& def, const ViewTransform& view,
                                   int route) {
  BedPoints points;
  makeArcBed(points, MakeBedFrame(pose), measuresOf(def, route), view);
  return points;
}

}  // namespace vantrel
