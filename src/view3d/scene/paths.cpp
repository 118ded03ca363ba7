#include "view3d/scene/paths.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "catalog/piece_builders.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr double kStraightStepMm = 20.0;
constexpr double kArcStepDegrees = 2.5;
constexpr double kFewestStraightSegments = 2.0;
constexpr double kFewestArcSegments = 8.0;
constexpr double kMostSegments = 10000.0;  // 200 m of straight track

constexpr Vec3f kAlongX{1.0F, 0.0F, 0.0F};
constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};

Vec3f At(double x, double y) {
  return {static_cast<float>(x), static_cast<float>(y), 0.0F};
}

PathPoint PointWith(Vec3f position, Vec3f tangent) {
  return {position, tangent, {-tangent.y, tangent.x, 0.0F}};
}

Vec3f AtHeight(const PathPoint& point, float offset, float z) {
  return point.position + point.side * offset + kUp * z;
}

void AddEnd(Mesh& mesh, const PathPoint& point, const SweptBox& box, Vec3f normal) {
  const float left = box.offset - box.halfWidth;
  const float right = box.offset + box.halfWidth;
  AddQuad(mesh,
          {AtHeight(point, left, box.low), AtHeight(point, right, box.low),
           AtHeight(point, right, box.high), AtHeight(point, left, box.high)},
          normal, box.colours.side);
}

}  // namespace

int StraightSegments(double length) {
  return static_cast<int>(
      std::clamp(std::trunc(length / kStraightStepMm), kFewestStraightSegments, kMostSegments));
}

int ArcSegments(double angle) {
  return static_cast<int>(
      std::clamp(std::trunc(std::abs(angle) / kArcStepDegrees), kFewestArcSegments, kMostSegments));
}

Path StraightPath(double x0, double y0, double x1, double y1, int segments) {
  const int count = std::max(1, segments);
  const double length = std::hypot(x1 - x0, y1 - y0);
  const Vec3f tangent = length < 1e-6 ? kAlongX : At((x1 - x0) / length, (y1 - y0) / length);
  Path path;
  for (int i = 0; i <= count; ++i) {
    const double t = static_cast<double>(i) / count;
    path.push_back(PointWith(At(x0 + (x1 - x0) * t, y0 + (y1 - y0) * t), tangent));
  }
  return path;
}

Path ArcPath(double cx, double cy, double radius, double startAngle, double sweep, int segments) {
  const int count = std::max(2, segments);
  const auto pointAt = [&](int i) {
    const double angle = Radians(startAngle + sweep * i / count);
    return At(cx + radius * std::cos(angle), cy + radius * std::sin(angle));
  };
  Path path;
  for (int i = 0; i <= count; ++i) {
    // The tangent of a Catmull-Rom spline; one more point before and after the arc gives its ends
    // neighbours too.
    path.push_back(PointWith(pointAt(i), Unit(pointAt(i + 1) - pointAt(i - 1), kAlongX)));
  }
  return path;
}

void AddSweptBox(Mesh& mesh, const Path& path, const SweptBox& box) {
  if (path.size() < 2) return;
  const float left = box.offset - box.halfWidth;
  const float right = box.offset + box.halfWidth;
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    const PathPoint& a = path[i];
    const PathPoint& b = path[i + 1];
    const auto wall = [&](float offset, float facing) {
      AddQuad(mesh,
              {AtHeight(a, offset, box.low), AtHeight(b, offset, box.low),
               AtHeight(b, offset, box.high), AtHeight(a, offset, box.high)},
              Unit((a.side + b.side) * facing, a.side * facing), box.colours.side);
    };
    const auto plate = [&](float z, Vec3f normal, Rgb colour) {
      AddQuad(mesh,
              {AtHeight(a, left, z), AtHeight(b, left, z), AtHeight(b, right, z),
               AtHeight(a, right, z)},
              normal, colour);
    };
    plate(box.high, kUp, box.colours.top);
    wall(left, -1.0F);
    wall(right, 1.0F);
    if (box.hasBottom) plate(box.low, kUp * -1.0F, box.colours.side);
  }
  if (!box.hasEnds) return;
  AddEnd(mesh, path.front(), box, path.front().tangent * -1.0F);
  AddEnd(mesh, path.back(), box, path.back().tangent);
}

PathPoint PointAlong(const Path& path, double distance) {
  double left = distance;
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    const PathPoint& a = path[i];
    const PathPoint& b = path[i + 1];
    const double step = Length(b.position - a.position);
    const bool isLast = i + 2 == path.size();
    if (left > step && !isLast) {
      left -= step;
      continue;
    }
    const auto t = static_cast<float>(step > 0.0 ? std::clamp(left / step, 0.0, 1.0) : 0.0);
    return PointWith(a.position + (b.position - a.position) * t,
                     Unit(a.tangent + (b.tangent - a.tangent) * t, a.tangent));
  }
  return path.back();
}

double PathLength(const Path& path) {
  double length = 0.0;
  for (std::size_t i = 0; i + 1 < path.size(); ++i)
    length += Length(path[i + 1].position - path[i].position);
  return length;
}

}  // namespace vantrel
