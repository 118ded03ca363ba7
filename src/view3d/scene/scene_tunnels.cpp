#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <unordered_set>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "view3d/scene/scene_build.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr std::size_t kArchPoints = 15;
constexpr double kHalfWidthMm = 60.0;
constexpr double kHeightMm = 90.0;

using Ids = std::unordered_set<std::int32_t>;
using Route = std::vector<const Piece*>;

// One place of a tunnel's path, in the view's frame.
struct TubePoint {
  Vec3f at;
  Vec3f side;  // unit, level, across the path
};

bool LeadsInto(const Joint& joint, const Piece& from, const Ids& covered) {
  return !joint.open() && joint.target != from.id && covered.contains(joint.target);
}

bool HasTwoNeighbours(const Piece& piece, const Ids& covered) {
  std::optional<std::int32_t> first;
  for (const Joint& joint : piece.joints) {
    if (!LeadsInto(joint, piece, covered)) continue;
    if (first && *first != joint.target) return true;
    first = joint.target;
  }
  return false;
}

// The covered pieces that exist, without repeats, in the record's order.
Route CoveredPieces(const SceneBuild& build, const Tunnel& tunnel, Ids& covered) {
  Route pieces;
  for (const std::int32_t id : tunnel.covers) {
    const Piece* const piece = build.findPiece(id);
    if (piece != nullptr && covered.insert(id).second) pieces.push_back(piece);
  }
  return pieces;
}

// From an end of the chain (or anywhere in a ring) along the joints for as far as they lead.
Route WalkThrough(const SceneBuild& build, const Route& pieces, const Ids& covered) {
  const Piece* current = pieces.front();
  for (const Piece* const piece : pieces) {
    if (HasTwoNeighbours(*piece, covered)) continue;
    current = piece;
    break;
  }
  Route route;
  Ids visited;
  while (current != nullptr) {
    visited.insert(current->id);
    route.push_back(current);
    const Piece* next = nullptr;
    for (const Joint& joint : current->joints) {
      if (!LeadsInto(joint, *current, covered) || visited.contains(joint.target)) continue;
      next = build.findPiece(joint.target);
      break;
    }
    current = next;
  }
  return route;
}

// Where the first connector lies that doesn't lead into the tunnel; the piece's own place when all
// do or its part is unknown. In the world.
Vec2 WayOut(const Piece& piece, const Ids& covered) {
  const PieceDef* const def = findPart(piece.cat);
  const std::size_t count = def != nullptr ? def->connectors.size() : 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (i < piece.joints.size() && LeadsInto(piece.joints[i], piece, covered)) continue;
    return LocalToWorld({piece.x, piece.y, MeantAngle(piece.heading)},
                        {def->connectors[i].x, def->connectors[i].y});
  }
  return {piece.x, piece.y};
}

std::vector<TubePoint> PathThrough(const Route& route, const Ids& covered) {
  std::vector<TubePoint> path;
  path.reserve(route.size() + 2);
  const auto add = [&](const Piece& piece, Vec2 place) {
    if (!IsPlace(piece)) return;
    const double heading = Radians(MeantAngle(piece.heading));
    Vec3f side{static_cast<float>(std::sin(heading)), static_cast<float>(std::cos(heading)), 0.0F};
    // A piece that the route runs through from its far end looks back along it: the arch is the
    // same from either side, and so joined up with its neighbours it must not be crossed over.
    if (!path.empty() && Dot(side, path.back().side) < 0.0F) side = side * -1.0F;
    path.push_back({ViewPoint(place.x, place.y, piece.z), side});
  };
  add(*route.front(), WayOut(*route.front(), covered));
  for (const Piece* const piece : route) add(*piece, {piece->x, piece->y});
  add(*route.back(), WayOut(*route.back(), covered));
  return path;
}

struct ArchPoint {
  float across = 0.0F;
  float up = 0.0F;
  Vec2 normal;  // across, up
  Rgb colour;
};

std::array<ArchPoint, kArchPoints> Arch() {
  std::array<ArchPoint, kArchPoints> arch;
  for (std::size_t i = 0; i < kArchPoints; ++i) {
    const double angle = static_cast<double>(i) * kPi / (kArchPoints - 1);
    const double s = std::sin(angle);
    const Vec2 out{kHalfWidthMm * std::cos(angle), kHeightMm * s};
    const double length = std::hypot(out.x, out.y);
    arch[i] = {static_cast<float>(out.x),
               static_cast<float>(out.y),
               {out.x / length, out.y / length},
               {static_cast<float>(0.55 - 0.15 * s), static_cast<float>(0.46 + 0.09 * s),
                static_cast<float>(0.36 - 0.04 * s)}};
  }
  return arch;
}

// Between the ring that starts at vertex `ring` and the next one. Each quad fronts as its normals
// point, whichever way the path runs.
void JoinRings(Mesh& mesh, std::uint32_t ring) {
  constexpr auto kNext = static_cast<std::uint32_t>(kArchPoints);
  for (std::uint32_t a = ring; a + 1 < ring + kNext; ++a) {
    const std::uint32_t b = a + 1;
    const Vec3f turn = Cross(mesh.positions[b + kNext] - mesh.positions[a],
                             mesh.positions[a + kNext] - mesh.positions[b]);
    if (Dot(turn, mesh.normals[a] + mesh.normals[b]) >= 0.0F)
      mesh.indices.insert(mesh.indices.end(), {a, b, b + kNext, a, b + kNext, a + kNext});
    else
      mesh.indices.insert(mesh.indices.end(), {a, b + kNext, b, a, a + kNext, b + kNext});
  }
}

void AddTube(Mesh& mesh, const std::vector<TubePoint>& path) {
  const std::array<ArchPoint, kArchPoints> arch = Arch();
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (const TubePoint& point : path) {
    for (const ArchPoint& corner : arch) {
      const Vec3f across = point.side * corner.across;
      const Vec3f out = point.side * static_cast<float>(corner.normal.x);
      mesh.positions.push_back(point.at + across + Vec3f{0.0F, 0.0F, corner.up});
      mesh.normals.push_back(out + Vec3f{0.0F, 0.0F, static_cast<float>(corner.normal.y)});
      mesh.colors.push_back(corner.colour);
    }
  }
  for (std::size_t i = 0; i + 1 < path.size(); ++i)
    JoinRings(mesh, first + static_cast<std::uint32_t>(i * kArchPoints));
}

}  // namespace

// Hidden levels don't hide the tunnels on them. A covered piece whose x, y or z is no place has no
// point in the path.
void AddTunnels(SceneBuild& build) {
  for (const Tunnel& tunnel : build.layout.tunnels) {
    Ids covered;
    const Route pieces = CoveredPieces(build, tunnel, covered);
    if (pieces.empty()) continue;
    AddTube(build.scene.tunnelMesh, PathThrough(WalkThrough(build, pieces, covered), covered));
  }
}

}  // namespace vantrel
