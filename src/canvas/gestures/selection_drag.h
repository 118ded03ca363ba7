// Moving the selection with the left button: pending until the pointer has come 5 pixels from the
// press, then a drag that breaks the joints at the block's edge and may snap at the drop.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// After a press on a piece: nothing moves yet, and nothing is asked.
void beginSelectionPending(CanvasContext& context, const PointerEvent& event);

// After a press on scenery: PushUndo, and the drag is on at once. No lock is asked, and only the
// scenery's poses are taken.
void beginSceneryMove(CanvasContext& context, const PointerEvent& event);

// Turns a pending press into a drag, or into nothing when a lock or the user refuses. Takes the
// event only when refused: the drag goes on with the same motion.
bool selectionPendingMotion(CanvasContext& context, const PointerEvent& event);
bool selectionDragMotion(CanvasContext& context, const PointerEvent& event);

// Takes nothing: a pending press just ends with any release.
bool endSelectionPending(CanvasContext& context, const PointerEvent& event);
// The drop.
bool endSelectionDrag(CanvasContext& context, const PointerEvent& event);

// The marker on the connector that the drop would join.
void drawSelectionDrag(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
