#include "canvas/operations/block_placing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <set>
#include <unordered_map>
#include <utility>

#include "canvas/operations/joining.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

// The search for the smallest coordinates starts here; a block whose smallest x lies beyond the
// second limit stays where it was. Both in mm.
constexpr double kFarthest = 1e9;
constexpr double kNowhere = 1e8;

void TakeSmaller(double& smallest, double value) {
  // What a damaged file put at no place at all must not take the rest along.
  if (std::isfinite(value)) smallest = std::min(smallest, value);
}

Vec2 TopLeft(const Block& block) {
  Vec2 least{kFarthest, kFarthest};
  const auto take = [&least](const auto& record) {
    TakeSmaller(least.x, record.x);
    TakeSmaller(least.y, record.y);
  };
  std::ranges::for_each(block.pieces, take);
  std::ranges::for_each(block.scenery, take);
  return least.x > kNowhere ? Vec2{} : least;
}

void AddMissingLevels(Layout& layout, const Block& block) {
  std::set<std::int32_t> missing;
  for (const Piece& piece : block.pieces) missing.insert(piece.level);
  for (const SceneryItem& item : block.scenery) missing.insert(item.level);
  for (const Level& level : layout.levels) missing.erase(level.id);
  for (const std::int32_t id : missing)
    layout.levels.push_back({.id = id, .name = "Level " + std::to_string(id)});
}

void RenameJoints(Piece& piece, const std::unordered_map<std::int32_t, std::int32_t>& newIds) {
  for (Joint& joint : piece.joints) {
    const auto found = newIds.find(joint.target);
    if (joint.open() || found == newIds.end())
      joint = {};
    else
      joint.target = found->second;
  }
}

void AppendPieces(Layout& layout, std::vector<Piece> pieces, Vec2 topLeft) {
  const std::vector<std::int32_t> ids = TakeIds(layout, pieces.size());
  std::unordered_map<std::int32_t, std::int32_t> newIds;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    newIds.try_emplace(pieces[i].id, ids[i]);
    pieces[i].id = ids[i];
    pieces[i].x -= topLeft.x;
    pieces[i].y -= topLeft.y;
    pieces[i].sel = false;
  }
  for (Piece& piece : pieces) {
    RenameJoints(piece, newIds);
    GrowJoints(piece);
    layout.pieces.push_back(std::move(piece));
  }
}

void AppendScenery(Layout& layout, std::vector<SceneryItem> scenery, Vec2 topLeft) {
  const std::vector<std::int32_t> ids = TakeIds(layout, scenery.size());
  auto id = ids.begin();
  for (SceneryItem& item : scenery) {
    item.id = *id++;
    item.x -= topLeft.x;
    item.y -= topLeft.y;
    item.sel = false;
    layout.scenery.push_back(std::move(item));
  }
}

}  // namespace

bool placeBlock(Layout& layout, Block block) {
  if (block.empty()) return false;
  const Vec2 topLeft = TopLeft(block);
  AddMissingLevels(layout, block);
  PushUndo(layout);
  AppendPieces(layout, std::move(block.pieces), topLeft);
  AppendScenery(layout, std::move(block.scenery), topLeft);
  return true;
}

}  // namespace vantrel
