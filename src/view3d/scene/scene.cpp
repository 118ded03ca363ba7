#include "view3d/scene/scene.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "view3d/scene/scene_build.h"
#include "view3d/scene/scenery_models.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

// Beyond this a float no longer holds an angle to a tenth of a degree.
constexpr double kLargestPlainAngle = 1e6;

// How far the camera stands off, by the larger side of what it frames.
constexpr double kDistancePerExtent = 1.8;
constexpr double kLeastDistanceMm = 400.0;

void Frame(const SceneBox& box, Scene& scene) {
  if (!box.seen) return;
  const double extent = std::max(box.maxX - box.minX, box.maxY - box.minY);
  scene.framed = true;
  scene.centreX = static_cast<float>((box.minX + box.maxX) / 2.0);
  scene.centreY = static_cast<float>((box.minY + box.maxY) / 2.0);
  scene.distance = static_cast<float>(std::max(kLeastDistanceMm, extent * kDistancePerExtent));
}

Model SceneryModel(const SceneryDef& def) {
  return makeSceneryModel(def.id, {static_cast<float>(def.width), static_cast<float>(def.depth)});
}

}  // namespace

double MeantAngle(double degrees) {
  return std::abs(degrees) <= kLargestPlainAngle ? degrees : normalizeDegrees(degrees);
}

std::vector<Vec2> PlacesOf(const std::vector<Vec2>& outline) {
  std::vector<Vec2> places;
  places.reserve(outline.size());
  for (const Vec2 point : outline)
    if (IsPlace(point)) places.push_back(point);
  return places;
}

LevelTable::LevelTable(const Layout& layout) : hidden_(HiddenLevels(layout)) {
  for (const Level& level : layout.levels) heights_.emplace(level.id, level.height);
}

double LevelTable::heightOf(std::int32_t level) const {
  const auto found = heights_.find(level);
  return found != heights_.end() && IsPlace(found->second) ? found->second : 0.0;
}

void SceneBox::takeIn(double x, double y) {
  minX = std::min(minX, x);
  minY = std::min(minY, y);
  maxX = std::max(maxX, x);
  maxY = std::max(maxY, y);
}

SceneBuild::SceneBuild(const Layout& from, ModelMakers modelMakers)
    : layout(from), makers(std::move(modelMakers)), pieceIndex(IndexPieces(from)), levels(from) {
  defs.reserve(layout.pieces.size());
  for (const Piece& piece : layout.pieces) defs.push_back(findPart(piece.cat));
}

const Piece* SceneBuild::findPiece(std::int32_t id) const {
  const auto found = pieceIndex.find(id);
  return found != pieceIndex.end() ? &layout.pieces[found->second] : nullptr;
}

void SceneBuild::needTrackModel(const PieceDef& def) {
  const auto [entry, isNew] = scene.trackModels.try_emplace(def.partNumber);
  if (!isNew) return;
  entry->second = makers.track(def);
  scene.farTracks.emplace(def.partNumber, MakeFarTrack(entry->second));
}

Scene BuildSceneWith(const Layout& layout, ModelMakers makers) {
  SceneBuild build(layout, std::move(makers));
  AddTrack(build);
  AddBridgePiers(build);
  AddHelices(build);
  AddShapes(build);
  AddScenery(build);
  Frame(build.box, build.scene);
  AddBaseboard(build);
  AddTunnels(build);
  return std::move(build.scene);
}

Scene BuildScene(const Layout& layout) {
  return BuildSceneWith(layout, {.track = makeTrackModel, .scenery = SceneryModel});
}

}  // namespace vantrel
