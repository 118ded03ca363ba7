// How far the drawing of a catalog row can reach from the place it stands at, so that what is out
// of view is skipped before anything is built. All figures are upper bounds.
#pragma once

#include "catalog/piece_def.h"
#include "catalog/scenery_def.h"
#include "doc/vec2.h"
#include "render2d/contents_paint.h"

namespace vantrel {

// Of a track piece, in its own frame: a box around all its centre lines, and how far bed, bridge
// arch and marks reach beyond that on every side. In mm.
struct PieceReach {
  Vec2 middle;
  double halfLength = 0.0;  // of the box, along local x
  double halfWidth = 0.0;   // along local y
  double clearance = 0.0;
  double fromOrigin = 0.0;  // all of it, in any direction
};

// Computed once per row and kept, so `def` must be a row of the catalog.
const PieceReach& ReachOfPiece(const PieceDef& def);

// True when nothing of a piece at `pose` can be seen, be it drawn with a number of the size
// `number` (device units) or with none.
bool PieceOutOfView(const ContentsPaint& paint, const Pose& pose, const PieceReach& reach,
                    wxSize number);

// Of a scenery item, drawn at scale factors of 1, from the middle of its footprint.
struct SceneryReach {
  double across = 0.0;       // mm, along the item's local x, to either side
  double along = 0.0;        // mm, along its local y
  double strokeWidth = 0.0;  // pixels
  double textBytes = 0.0;    // the longest text's
  double textHeight = 0.0;   // mm, the highest text's
};
const SceneryReach& ReachOfScenery(const SceneryDef& def);

}  // namespace vantrel
