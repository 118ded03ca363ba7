// The tools that click points (measuring tape, polygon, baseboard): while one is armed, presses and
// motions are its own and nothing behind it in the lists sees them.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

bool clickToolPress(CanvasContext& context, const PointerEvent& event);

// Keeps the cross cursor, which a pan may have taken away.
bool clickToolMotion(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
