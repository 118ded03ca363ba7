// What the topics of the scene build share: the layout with its look-ups, and the scene so far.
// BuildScene (scene.h) is the way in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "catalog/helix_kits.h"
#include "catalog/piece_def.h"
#include "catalog/scenery_def.h"
#include "doc/layout.h"
#include "doc/layout_ops.h"
#include "view3d/scene/scene.h"

namespace vantrel {

// A thousand kilometres: whatever a file places farther out, or at no number at all, has no place
// in the scene, so that no sum of coordinates leaves the range of a float.
inline constexpr double kFarthestMm = 1e9;
inline bool IsPlace(double coordinate) {
  return coordinate >= -kFarthestMm && coordinate <= kFarthestMm;
}
inline bool IsPlace(Vec2 point) {
  return IsPlace(point.x) && IsPlace(point.y);
}
inline bool IsPlace(const Piece& piece) {
  return IsPlace(piece.x) && IsPlace(piece.y) && IsPlace(piece.z);
}

// The angle itself; within one turn when it is huge, 0 when it is no angle.
double MeantAngle(double degrees);

// The points of an outline that are places.
std::vector<Vec2> PlacesOf(const std::vector<Vec2>& outline);

inline Vec3f ViewPoint(double worldX, double worldY, double z) {
  return {static_cast<float>(worldX), static_cast<float>(-worldY), static_cast<float>(z)};
}

// The first of equal level ids counts, but one hidden level hides all of its id.
class LevelTable {
 public:
  explicit LevelTable(const Layout& layout);
  bool isHidden(std::int32_t level) const { return hidden_.contains(level); }
  // mm; 0 for a level that can't be found or whose height is no place.
  double heightOf(std::int32_t level) const;

 private:
  std::unordered_set<std::int32_t> hidden_;
  std::unordered_map<std::int32_t, double> heights_;
};

// In the view's frame, mm.
struct SceneBox {
  double minX = 1e9;
  double minY = 1e9;
  double maxX = -1e9;
  double maxY = -1e9;
  bool seen = false;  // set by what the camera is to frame

  void takeIn(double x, double y);
};

// Who makes the shared models. Tests count with makers of their own.
struct ModelMakers {
  std::function<Model(const PieceDef&)> track;
  std::function<Model(const SceneryDef&)> scenery;
};

struct SceneBuild {
  SceneBuild(const Layout& from, ModelMakers modelMakers);

  // The piece with this id, the first of equals, or null.
  const Piece* findPiece(std::int32_t id) const;
  // Makes the model of a part that has none yet.
  void needTrackModel(const PieceDef& def);

  const Layout& layout;
  ModelMakers makers;
  PieceIndex pieceIndex;
  std::vector<const PieceDef*> defs;  // of each piece in order, null for unknown parts
  LevelTable levels;
  SceneBox box;
  Scene scene;
};

// Each adds one topic to the scene.
void AddTrack(SceneBuild& build);
void AddBridgePiers(SceneBuild& build);
void AddHelices(SceneBuild& build);
void AddShapes(SceneBuild& build);
void AddScenery(SceneBuild& build);
void AddBaseboard(SceneBuild& build);
void AddTunnels(SceneBuild& build);

// The rings and posts of one helix, with any kit.
void AddHelix(SceneBuild& build, const Helix& helix, const HelixKit& kit);

// BuildScene with other models.
Scene BuildSceneWith(const Layout& layout, ModelMakers makers);

}  // namespace vantrel
