// The double click on the canvas.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// A piece is extended by one more of its kind; the next press is swallowed. Not used with Alt, or
// where there is nothing to extend.
bool cloneFromPiece(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
