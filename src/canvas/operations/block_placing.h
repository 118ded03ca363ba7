// Placing a library block: its records come into the plan with new ids, at the world's origin.
#pragma once

#include <string>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

// What a block file holds.
struct Block {
  std::vector<Piece> pieces;
  std::vector<SceneryItem> scenery;

  bool empty() const { return pieces.empty() && scenery.empty(); }
};

// One undo step. The block is shifted so that its smallest x and its smallest y come to 0 mm,
// joints to what isn't in the block are opened, and nothing that is placed is selected; the
// selection of the rest stays. Levels that the block uses and the plan lacks are added in ascending
// order of id before the snapshot: undo keeps them. False, with nothing changed, for an empty
// block.
bool placeBlock(Layout& layout, Block block);

}  // namespace vantrel
