// Gestures of the left button whose release went elsewhere.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Whether a gesture is under way that the left button's release will end.
bool isLeftGestureActive(const CanvasState& state);

// The same, or a pan with a button. What hangs at the pointer without a button doesn't count.
bool isGestureActive(const CanvasState& state);

// Whether a gesture is under way that only draws over the plan and changes nothing in it.
bool isPlanAtRest(const CanvasState& state);

}  // namespace vantrel
