// The eight handles of the single selected scenery item: shown, felt, and dragged to resize it.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Without Alt: starts to resize the item, as one undo step.
bool pressScaleHandle(CanvasContext& context, const PointerEvent& event);

// Shows over which handle the pointer is, while no gesture and no button is on. Takes nothing.
bool hoverScaleHandle(CanvasContext& context, const PointerEvent& event);

// The opposite handle stays where it is; no side becomes shorter than 5 mm. Ends by itself when the
// item is gone.
bool sceneryResizeMotion(CanvasContext& context, const PointerEvent& event);
bool endSceneryResize(CanvasContext& context, const PointerEvent& event);

void drawScaleHandles(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
