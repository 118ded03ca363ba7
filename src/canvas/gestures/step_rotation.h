// Turning the selection in steps: Ctrl with the wheel, Alt with the right button.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// 15 degrees a step, 5 with Shift, about the middle of the selection's box. Without a selection the
// wheel is left to zooming.
bool selectionWheel(CanvasContext& context, const PointerEvent& event);

// 30 degrees about the first thing selected, unless a lock refuses.
bool altRightPress(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
