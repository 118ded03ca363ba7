#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "view3d/scene/scene_build.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr double kFlatHeightMm = 0.5;  // up to here a shape has no walls
constexpr float kWallShade = 0.7F;

using Points = std::vector<Vec2>;

// A shape as it is drawn: its corners in the view's frame at z 0.
struct Solid {
  std::vector<Vec3f> corners;
  Vec3f middle;
  float bottom = 0.0F;
  float top = 0.0F;
  bool hasWalls = false;
  bool isCounterClockwise = false;
  Rgb colour;
};

// Where the pieces that any tunnel covers stand, by level, each list by y.
std::unordered_map<std::int32_t, Points> CoveredPoints(const Layout& layout) {
  std::unordered_set<std::int32_t> covered;
  for (const Tunnel& tunnel : layout.tunnels)
    covered.insert(tunnel.covers.begin(), tunnel.covers.end());
  std::unordered_map<std::int32_t, Points> byLevel;
  if (covered.empty()) return byLevel;
  for (const Piece& piece : layout.pieces) {
    const Vec2 at{piece.x, piece.y};
    if (IsPlace(at) && covered.contains(piece.id)) byLevel[piece.level].push_back(at);
  }
  for (auto& [level, points] : byLevel)
    std::ranges::sort(points, [](Vec2 a, Vec2 b) { return a.y < b.y; });
  return byLevel;
}

double YOf(Vec2 point) {
  return point.y;
}

// A covered piece's place near an outline, and whether the edges looked at so far hold it.
struct Candidate {
  Vec2 at;
  bool isInside = false;
};

double YOf(const Candidate& candidate) {
  return candidate.at.y;
}

// The first of a list by y that doesn't lie below `y`.
template <typename List>
auto FirstFrom(List& list, double y) {
  return std::ranges::lower_bound(list, y, {}, [](const auto& entry) { return YOf(entry); });
}

// Those of `points`, by y, that lie in the box around the outline, by y too.
std::vector<Candidate> PointsAround(const Points& points, const Points& outline) {
  const auto [left, right] = std::ranges::minmax(outline, {}, &Vec2::x);
  const auto [low, high] = std::ranges::minmax(outline, {}, &Vec2::y);
  std::vector<Candidate> around;
  const auto end = FirstFrom(points, high.y);
  for (auto point = FirstFrom(points, low.y); point != end; ++point)
    if (point->x >= left.x && point->x <= right.x) around.push_back({*point});
  return around;
}

// By the even-odd rule, all points at once: an edge only looks at the points on its height, so that
// many points in an outline of many short edges cost little.
bool HoldsAny(const Points& outline, const Points& points) {
  std::vector<Candidate> around = PointsAround(points, outline);
  for (std::size_t i = 0; i < outline.size() && !around.empty(); ++i) {
    const Vec2 a = outline[i];
    const Vec2 b = outline[(i + 1) % outline.size()];
    const auto end = FirstFrom(around, std::max(a.y, b.y));
    for (auto point = FirstFrom(around, std::min(a.y, b.y)); point != end; ++point) {
      if (point->at.x < a.x + (b.x - a.x) * (point->at.y - a.y) / (b.y - a.y))
        point->isInside = !point->isInside;
    }
  }
  return std::ranges::any_of(around, &Candidate::isInside);
}

// Twice the outline's area; positive when it runs counter-clockwise in a frame with y up.
double SignedArea(const Points& outline) {
  double area = 0.0;
  for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
    const Vec2 o = outline[0];
    const Vec2 a = outline[i];
    const Vec2 b = outline[i + 1];
    area += (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
  }
  return area;
}

Solid SolidOf(const Shape& shape, const Points& outline, double bottom) {
  // A height that is none leaves the shape flat.
  const double height = IsPlace(shape.height) ? shape.height : 0.0;
  Solid solid;
  solid.bottom = static_cast<float>(bottom);
  solid.top = static_cast<float>(bottom + height);
  solid.hasWalls = height > kFlatHeightMm;
  // The view's y runs against the world's.
  solid.isCounterClockwise = SignedArea(outline) < 0.0;
  const auto part = [](std::uint8_t value) { return static_cast<float>(value) / 255.0F; };
  solid.colour = {part(shape.r), part(shape.g), part(shape.b)};
  Vec2 sum;
  for (const Vec2 point : outline) {
    solid.corners.push_back(ViewPoint(point.x, point.y, 0.0));
    sum = {sum.x + point.x, sum.y + point.y};
  }
  const auto count = static_cast<double>(outline.size());
  solid.middle = ViewPoint(sum.x / count, sum.y / count, 0.0);
  return solid;
}

Vec3f AtHeight(Vec3f point, float z) {
  return {point.x, point.y, z};
}

void AddLid(Mesh& mesh, const Solid& solid) {
  constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};
  const auto add = [&](Vec3f point) {
    mesh.positions.push_back(AtHeight(point, solid.top));
    mesh.normals.push_back(kUp);
    mesh.colors.push_back(solid.colour);
  };
  const auto centre = static_cast<std::uint32_t>(mesh.positions.size());
  add(solid.middle);
  for (const Vec3f corner : solid.corners) add(corner);
  const auto count = static_cast<std::uint32_t>(solid.corners.size());
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t next = (i + 1) % count;
    // Seen from its middle an outline may run backward in places; all of the fan fronts upward.
    const Vec3f turn = Cross(solid.corners[i] - solid.middle, solid.corners[next] - solid.middle);
    const bool fronts = turn.z >= 0.0F;
    mesh.indices.insert(mesh.indices.end(), {centre, centre + 1 + (fronts ? i : next),
                                             centre + 1 + (fronts ? next : i)});
  }
}

void AddWalls(Mesh& mesh, const Solid& solid) {
  constexpr float kShortestEdgeMm = 1e-6F;
  const Rgb shaded{solid.colour.r * kWallShade, solid.colour.g * kWallShade,
                   solid.colour.b * kWallShade};
  for (std::size_t i = 0; i < solid.corners.size(); ++i) {
    const Vec3f a = solid.corners[i];
    const Vec3f b = solid.corners[(i + 1) % solid.corners.size()];
    const Vec3f edge = b - a;
    const float length = Length(edge) < kShortestEdgeMm ? 1.0F : Length(edge);
    const float outward = (solid.isCounterClockwise ? 1.0F : -1.0F) / length;
    AddQuad(mesh,
            {AtHeight(a, solid.bottom), AtHeight(b, solid.bottom), AtHeight(b, solid.top),
             AtHeight(a, solid.top)},
            {edge.y * outward, -edge.x * outward, 0.0F}, shaded);
  }
}

void AddWires(std::vector<WireLine>& lines, const Solid& solid) {
  for (std::size_t i = 0; i < solid.corners.size(); ++i) {
    const Vec3f a = solid.corners[i];
    const Vec3f b = solid.corners[(i + 1) % solid.corners.size()];
    lines.push_back({AtHeight(a, solid.top), AtHeight(b, solid.top), solid.colour});
    if (!solid.hasWalls) continue;
    lines.push_back({AtHeight(a, solid.bottom), AtHeight(b, solid.bottom), solid.colour});
    lines.push_back({AtHeight(a, solid.bottom), AtHeight(a, solid.top), solid.colour});
  }
}

}  // namespace

// Corners that are no places are left out, and a shape of which fewer than three remain.
void AddShapes(SceneBuild& build) {
  const std::unordered_map<std::int32_t, Points> covered = CoveredPoints(build.layout);
  for (const Shape& shape : build.layout.shapes) {
    if (shape.vertices.size() < 3 || build.levels.isHidden(shape.level)) continue;
    const Points outline = PlacesOf(shape.vertices);
    if (outline.size() < 3) continue;
    const Solid solid = SolidOf(shape, outline, build.levels.heightOf(shape.level));
    const auto below = covered.find(shape.level);
    if (below != covered.end() && HoldsAny(outline, below->second)) {
      AddWires(build.scene.wireLines, solid);
      continue;
    }
    AddLid(build.scene.sceneMesh, solid);
    if (solid.hasWalls) AddWalls(build.scene.sceneMesh, solid);
  }
}

}  // namespace vantrel
