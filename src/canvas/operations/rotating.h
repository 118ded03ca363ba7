// Turning the selection about a point. Joints stay as they are.
#pragma once

#include <cstdint>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

// The poses of the selected pieces, then of the selected scenery items, each in order.
std::vector<Pose> selectionPoses(const Layout& layout);

// The mean of the positions of all selected pieces and scenery items.
Vec2 selectionMean(const Layout& layout);

// The middle of the box around the selected pieces' positions, connectors and bulges and the
// unturned footprints of the selected scenery items.
Vec2 selectionBoxMiddle(const Layout& layout);

// Sets each selected piece and item to its start pose turned by `degrees` about `pivot` (mm),
// heading normalised, as far as `start` reaches.
void turnSelectionFrom(Layout& layout, const std::vector<Pose>& start, Vec2 pivot, double degrees);

// One step of the wheel with Ctrl: PushUndo, then everything selected turns by `degrees` about
// selectionBoxMiddle. No locks, and helix records stay behind.
void turnSelectionByWheel(Layout& layout, double degrees);

// A step of 30 degrees about the first selected piece or item, or about the centre of the helix
// that is selected alone; PushUndo first. Scenery turns by what its category says. The caller asks
// the locks before.
void rotateSelectionStep(Layout& layout);

}  // namespace vantrel
