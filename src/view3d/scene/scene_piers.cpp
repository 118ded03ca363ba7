#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

#include "catalog/connector_geometry.h"
#include "view3d/scene/scene_build.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr double kSameSpotMm = 2.0;

// Where piers stand, in squares as wide as two spots that are one lie apart at most: no square ever
// holds two, and a look at nine squares finds every spot near by.
class PierSpots {
 public:
  bool isNear(Vec2 point) const {
    const Square centre = squareOf(point);
    for (std::int64_t dx = -1; dx <= 1; ++dx) {
      for (std::int64_t dy = -1; dy <= 1; ++dy) {
        const auto found = spots_.find({centre.x + dx, centre.y + dy});
        if (found != spots_.end() && isSame(found->second, point)) return true;
      }
    }
    return false;
  }
  void note(Vec2 point) { spots_.emplace(squareOf(point), point); }

 private:
  struct Square {
    std::int64_t x = 0;
    std::int64_t y = 0;
    friend bool operator==(const Square&, const Square&) = default;
  };
  struct SquareHash {
    std::size_t operator()(const Square& square) const {
      return std::hash<std::int64_t>{}(square.x * 1'000'003 + square.y);
    }
  };

  static Square squareOf(Vec2 point) {
    return {static_cast<std::int64_t>(std::floor(point.x / kSameSpotMm)),
            static_cast<std::int64_t>(std::floor(point.y / kSameSpotMm))};
  }
  static bool isSame(Vec2 a, Vec2 b) {
    return std::abs(a.x - b.x) <= kSameSpotMm && std::abs(a.y - b.y) <= kSameSpotMm;
  }

  std::unordered_map<Square, Vec2, SquareHash> spots_;
};

std::unordered_set<std::int32_t> BridgeIds(const SceneBuild& build) {
  std::unordered_set<std::int32_t> ids;
  for (std::size_t i = 0; i < build.defs.size(); ++i)
    if (build.defs[i] != nullptr && build.defs[i]->isBridge) ids.insert(build.layout.pieces[i].id);
  return ids;
}

// In the world.
Vec2 FarEnd(const Piece& piece, const PieceDef& def) {
  Vec2 local{def.length, 0.0};
  if (def.radius > 0.0 && def.connectors.size() >= 2)
    local = {def.connectors[1].x, def.connectors[1].y};
  return LocalToWorld({piece.x, piece.y, MeantAngle(piece.heading)}, local);
}

// Whether another bridge's far end lies at the piece's near end and has its pier there. Bridges
// that meet with their near ends have no far end there: then both ask for the pier.
bool StartsAtABridge(const Piece& piece, const std::unordered_set<std::int32_t>& bridges) {
  if (piece.joints.empty()) return false;
  const Joint& joint = piece.joints.front();
  return !joint.open() && joint.target != piece.id && joint.tconn != 0 &&
         bridges.contains(joint.target);
}

}  // namespace

// A bridge whose x, y or z is no place has no piers. Hidden bridges have none, but a visible one
// still ends at them.
void AddBridgePiers(SceneBuild& build) {
  const std::unordered_set<std::int32_t> bridges = BridgeIds(build);
  PierSpots spots;
  const auto addPier = [&](const Piece& piece, Vec2 at) {
    if (spots.isNear(at)) return;
    const Vec3f foot = ViewPoint(at.x, at.y, build.levels.heightOf(piece.level));
    AddPier(build.scene.sceneMesh, foot.x, foot.y, foot.z, static_cast<float>(piece.z),
            static_cast<float>(90.0 - MeantAngle(piece.heading)));
    spots.note(at);
  };
  for (std::size_t i = 0; i < build.layout.pieces.size(); ++i) {
    const Piece& piece = build.layout.pieces[i];
    const PieceDef* const def = build.defs[i];
    if (def == nullptr || !def->isBridge || build.levels.isHidden(piece.level) || !IsPlace(piece))
      continue;
    if (!StartsAtABridge(piece, bridges)) addPier(piece, {piece.x, piece.y});
    addPier(piece, FarEnd(piece, *def));
  }
}

}  // namespace vantrel
