// How far the drawing of a catalog row can reach from the place it stands at, so that what is out
// of view is skipped before anything is built. All figures are upper bounds.
#pragma once

#include "catalog/piece_def.h"
#include "catalog/scenery_def.h"

namespace vantrel {

// Of a track piece from its origin: its bed in every shape the kinds have, bridge arches, marks,
// turntable and joint dots. `kPieceReachExtra` device units come on top, for what has a smallest
// size on the device; the label is apart. Computed once per row and kept, so `def` must be a row of
// the catalog. In mm.
double PieceReach(const PieceDef& def);
inline constexpr double kPieceReachExtra = 16.0;

// Of a scenery item, drawn at scale factors of 1, from the middle of its footprint.
struct SceneryReach {
  double across = 0.0;       // mm, along the item's local x, to either side
  double along = 0.0;        // mm, along its local y
  double strokeWidth = 0.0;  // device units
  double textBytes = 0.0;    // the longest text's
  double textHeight = 0.0;   // mm, the highest text's
};
const SceneryReach& ReachOfScenery(const SceneryDef& def);

}  // namespace vantrel
