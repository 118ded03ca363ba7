// What the level manager does to the plan: decks added, changed, shown and removed with everything
// that stands on them. No edit here takes an undo step. Rows are positions in `levels`; a row that
// doesn't exist changes nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// One more than the highest id there is, 1 for a plan without levels. Past the largest id, the
// lowest free one from 1 on.
std::int32_t nextLevelId(const Layout& layout);

// Appends a visible level at height 0 with the next id and the next of six colours, which don't
// apply to its track yet. The name is kept as it is, but for line breaks, which become blanks.
// Nothing happens for an empty name.
void addLevel(Layout& layout, std::string_view name);

void showLevel(Layout& layout, std::size_t row, bool visible);

struct LevelProperties {
  std::string name;     // UTF-8
  double height = 0.0;  // mm
  bool trackcolor = false;
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
};

// Stores the properties, the name without white space at both ends; a blank name keeps the old one.
// Flat track of the level that belongs to no helix moves to the height.
void changeLevel(Layout& layout, std::size_t row, const LevelProperties& properties);

// What goes when a level is removed.
struct LevelContents {
  std::size_t pieces = 0;  // that belong to no helix
  std::size_t scenery = 0;
  std::size_t helices = 0;  // whose piece at the bottom of the inner ring stands on the level

  friend bool operator==(const LevelContents&, const LevelContents&) = default;
};
LevelContents levelContents(const Layout& layout, std::size_t row);

// Removes the level and its contents, the helices with their stubs on whatever level; joints to
// removed pieces, tunnels, and shapes on the level stay as they are. When it was the active level,
// the first that remains becomes it. The last level can't be removed.
void removeLevel(Layout& layout, std::size_t row);

}  // namespace vantrel
