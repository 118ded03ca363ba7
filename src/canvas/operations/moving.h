// Moving the selection as a block: joints broken at its edge, poses from where it stood, one end
// that snaps, and the joins that the drop makes.
#pragma once

#include <cstdint>
#include <vector>

#include "canvas/operations/snap.h"
#include "doc/layout.h"

namespace vantrel {

struct HelixStart {
  std::int32_t id = kNone;
  double cx = 0.0;  // mm
  double cy = 0.0;
};

// Where the block stood: the selected pieces in order, then the selected scenery items in order.
struct MoveStart {
  std::vector<Pose> poses;
  std::vector<HelixStart> helices;  // each helix named by a selected piece, once
};

MoveStart takeMoveStart(const Layout& layout);
// For a move that begins on scenery: the poses of the selected scenery items only.
MoveStart takeSceneryMoveStart(const Layout& layout);

// Opens every slot of a selected piece that names an unselected or missing one, and the slot over
// there that its `tconn` says.
void breakEdgeJoints(Layout& layout);

// Sets the i-th selected piece, then the selected scenery items with the entries after the pieces,
// and the helices of selected pieces to their start plus `by` (mm), as far as the start reaches.
// Headings stay.
void moveSelection(Layout& layout, const MoveStart& start, Vec2 by);

// The shortest snap of the whole block.
struct BlockSnap {
  SnapResult snap;
  std::int32_t piece = kNone;  // id of the selected piece that it belongs to
};

// What findSnap gives for each selected piece against the unselected, visible ones, but that only
// open ends of the block snap: of the results the shortest, the first of equals. Not found when
// snapEnabled is off.
BlockSnap findBlockSnap(const Layout& layout);

// Ends a move: breaks the joints again (every slot that names a moved piece) when a piece stands
// more than 1 mm from its start; with a snap held, turns the block to the target, joins it, takes
// over the height, and joins what else meets within 4 mm.
void dropSelection(Layout& layout, const MoveStart& start, const BlockSnap& held);

}  // namespace vantrel
