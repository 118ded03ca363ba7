#include "tools/model_sheet/sheet.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "view3d/scene/scenery_models.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr float kBoardHeightMm = -0.5F;
constexpr Rgb kBoard{0.36F, 0.5F, 0.3F};

// Puts the middle of `model`, whose y is turned by `ySign` as it is drawn, where the camera looks.
void Frame(SheetModel& entry, const Model& model, float ySign) {
  if (model.positions.empty()) return;
  Vec3f low = model.positions.front();
  Vec3f high = low;
  for (const Vec3f& point : model.positions) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
  }
  entry.scene.centreX = (low.x + high.x) / 2.0F;
  entry.scene.centreY = ySign * (low.y + high.y) / 2.0F;
  entry.height = (low.z + high.z) / 2.0F;
  const float across = std::hypot(high.x - low.x, high.y - low.y);
  entry.radius = std::max(10.0F, std::hypot(across, high.z - low.z) / 2.0F);
}

void AddBoard(SheetModel& entry) {
  const float x = entry.scene.centreX;
  const float y = entry.scene.centreY;
  const float reach = entry.radius * 1.3F;
  AddQuad(
      entry.scene.baseMesh,
      {Vec3f{x - reach, y - reach, kBoardHeightMm}, Vec3f{x + reach, y - reach, kBoardHeightMm},
       Vec3f{x + reach, y + reach, kBoardHeightMm}, Vec3f{x - reach, y + reach, kBoardHeightMm}},
      {0.0F, 0.0F, 1.0F}, kBoard);
}

SheetModel TrackModel(const PieceDef& def) {
  SheetModel entry;
  entry.caption = def.partNumber + "  " + def.description;
  const Model& model =
      entry.scene.trackModels.emplace(def.partNumber, makeTrackModel(def)).first->second;
  TrackInstance instance;
  instance.key = def.partNumber;
  entry.scene.trackInstances.push_back(instance);
  Frame(entry, model, -1.0F);
  AddBoard(entry);
  return entry;
}

}  // namespace

std::vector<SheetModel> TrackSheet() {
  std::vector<SheetModel> sheet;
  std::set<std::pair<TrackSystem, PieceKind>> shown;
  std::vector<const PieceDef*> structures;
  for (int i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.isBridge)
      structures.push_back(&def);
    else if (shown.emplace(def.system, def.kind).second)
      sheet.push_back(TrackModel(def));
  }
  for (const PieceDef* def : structures) sheet.push_back(TrackModel(*def));
  return sheet;
}

std::vector<SheetModel> ScenerySheet() {
  std::vector<SheetModel> sheet;
  for (const SceneryDef& def : sceneryCatalog()) {
    SheetModel entry;
    entry.caption = def.id;
    const Footprint footprint{static_cast<float>(def.width), static_cast<float>(def.depth)};
    const Model& model =
        entry.scene.sceneryModels.emplace(def.id, makeSceneryModel(def.id, footprint))
            .first->second;
    SceneryInstance instance;
    instance.key = def.id;
    entry.scene.sceneryInstances.push_back(instance);
    Frame(entry, model, 1.0F);
    // The abutments of bridges reach below the table.
    if (def.category != kBridges) AddBoard(entry);
    sheet.push_back(std::move(entry));
  }
  return sheet;
}

std::size_t TrianglesOf(const Scene& scene) {
  std::size_t indices = scene.sceneMesh.indices.size() + scene.baseMesh.indices.size() +
                        scene.tunnelMesh.indices.size();
  for (const TrackInstance& piece : scene.trackInstances) {
    const auto found = scene.trackModels.find(piece.key);
    if (found != scene.trackModels.end()) indices += found->second.indices.size();
  }
  for (const SceneryInstance& item : scene.sceneryInstances) {
    const auto found = scene.sceneryModels.find(item.key);
    if (found != scene.sceneryModels.end()) indices += found->second.indices.size();
  }
  return indices / 3;
}

}  // namespace vantrel
