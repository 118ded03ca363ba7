// Gestures of the left button whose release went elsewhere.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Whether a gesture is under way that the left button's release will end.
bool isLeftGestureActive(const CanvasState& state);

}  // namespace vantrel
