#include "canvas/operations/point_tests.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "catalog/piece_builders.h"

namespace vantrel {
namespace {

// A segment whose squared length isn't above this is a point.
constexpr double kPointLengthSquared = 1e-9;

}  // namespace

Vec2 WorldToLocal(const Pose& pose, Vec2 world) {
  const double r = Radians(pose.heading);
  const double c = std::cos(r);
  const double s = std::sin(r);
  const double dx = world.x - pose.x;
  const double dy = world.y - pose.y;
  return {dx * c + dy * s, dy * c - dx * s};
}

double SegmentDistance(Vec2 point, Vec2 from, Vec2 to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double squared = dx * dx + dy * dy;
  double t = 0.0;
  if (squared > kPointLengthSquared)
    t = std::clamp(((point.x - from.x) * dx + (point.y - from.y) * dy) / squared, 0.0, 1.0);
  return std::hypot(point.x - (from.x + t * dx), point.y - (from.y + t * dy));
}

double OutlineDistance(Vec2 point, std::span<const Vec2> vertices) {
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const double distance =
        SegmentDistance(point, vertices[i], vertices[(i + 1) % vertices.size()]);
    // Not std::min: an edge without a place mustn't swallow the others.
    if (distance < nearest) nearest = distance;
  }
  return nearest;
}

bool IsInsidePolygon(Vec2 point, std::span<const Vec2> vertices) {
  bool inside = false;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const Vec2 a = vertices[i];
    const Vec2 b = vertices[(i + 1) % vertices.size()];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

}  // namespace vantrel
