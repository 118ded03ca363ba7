#include "canvas/operations/level_edits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_set>
#include <vector>

#include "doc/layout_ops.h"
#include "doc/trimmed.h"

namespace vantrel {
namespace {

using IdSet = std::unordered_set<std::int32_t>;
using Rgb = std::array<std::uint8_t, 3>;

constexpr std::array<Rgb, 6> kNewLevelColours = {{{180, 200, 220},
                                                  {220, 180, 180},
                                                  {180, 220, 180},
                                                  {220, 210, 160},
                                                  {200, 180, 220},
                                                  {160, 220, 220}}};
constexpr double kFlatBelowDeg = 0.001;

std::int32_t LowestFreeLevelId(const Layout& layout) {
  IdSet used;
  for (const Level& level : layout.levels) used.insert(level.id);
  std::int32_t id = 1;
  while (used.contains(id)) ++id;
  return id;
}

// In turn by id; a file may hold ids below 1.
const Rgb& NewLevelColour(std::int32_t id) {
  constexpr auto kCount = static_cast<std::int64_t>(kNewLevelColours.size());
  const std::int64_t turn = ((std::int64_t{id} - 1) % kCount + kCount) % kCount;
  return kNewLevelColours[static_cast<std::size_t>(turn)];
}

// A file can hold pieces and helices whose id is the number for "none": nothing belongs to them.
IdSet HelicesOnLevel(const Layout& layout, std::int32_t levelId) {
  const PieceIndex index = IndexPieces(layout);
  IdSet ids;
  for (const Helix& helix : layout.helices) {
    const auto bottom = index.find(helix.bottomR1);
    if (helix.id == kNone || helix.bottomR1 == kNone || bottom == index.end()) continue;
    if (layout.pieces[bottom->second].level == levelId) ids.insert(helix.id);
  }
  return ids;
}

bool IsPlainTrackOf(const Piece& piece, std::int32_t levelId) {
  return piece.helix == kNone && piece.level == levelId;
}

}  // namespace

std::int32_t nextLevelId(const Layout& layout) {
  if (layout.levels.empty()) return 1;
  const std::int32_t highest = std::ranges::max_element(layout.levels, {}, &Level::id)->id;
  if (highest == std::numeric_limits<std::int32_t>::max()) return LowestFreeLevelId(layout);
  return highest + 1;
}

void addLevel(Layout& layout, std::string_view name) {
  if (name.empty()) return;
  const std::int32_t id = nextLevelId(layout);
  const auto [r, g, b] = NewLevelColour(id);
  layout.levels.push_back({.id = id, .name = OneLine(name), .r = r, .g = g, .b = b});
}

void showLevel(Layout& layout, std::size_t row, bool visible) {
  if (row < layout.levels.size()) layout.levels[row].visible = visible;
}

void changeLevel(Layout& layout, std::size_t row, const LevelProperties& properties) {
  if (row >= layout.levels.size()) return;
  Level& level = layout.levels[row];
  const std::string_view name = Trimmed(properties.name);
  if (!name.empty()) level.name = OneLine(name);
  level.height = properties.height;
  level.trackcolor = properties.trackcolor;
  level.r = properties.r;
  level.g = properties.g;
  level.b = properties.b;
  for (Piece& piece : layout.pieces)
    if (IsPlainTrackOf(piece, level.id) && std::abs(piece.grade) < kFlatBelowDeg)
      piece.z = level.height;
}

LevelContents levelContents(const Layout& layout, std::size_t row) {
  if (row >= layout.levels.size()) return {};
  const std::int32_t id = layout.levels[row].id;
  const auto count = [](auto n) { return static_cast<std::size_t>(n); };
  const IdSet helices = HelicesOnLevel(layout, id);
  return {.pieces = count(std::ranges::count_if(
              layout.pieces, [id](const Piece& piece) { return IsPlainTrackOf(piece, id); })),
          .scenery = count(std::ranges::count(layout.scenery, id, &SceneryItem::level)),
          .helices = count(std::ranges::count_if(
              layout.helices, [&](const Helix& helix) { return helices.contains(helix.id); }))};
}

void removeLevel(Layout& layout, std::size_t row) {
  if (row >= layout.levels.size() || layout.levels.size() < 2) return;
  const std::int32_t id = layout.levels[row].id;
  const IdSet helices = HelicesOnLevel(layout, id);
  std::erase_if(layout.pieces, [&](const Piece& piece) {
    return helices.contains(piece.helix) || IsPlainTrackOf(piece, id);
  });
  std::erase_if(layout.helices, [&](const Helix& helix) { return helices.contains(helix.id); });
  std::erase_if(layout.scenery, [id](const SceneryItem& item) { return item.level == id; });
  layout.levels.erase(layout.levels.begin() + static_cast<std::ptrdiff_t>(row));
  if (layout.activeLevel == id) layout.activeLevel = layout.levels.front().id;
}

}  // namespace vantrel
