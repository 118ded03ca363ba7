// Turning the selection freely with Alt and the left button; it holds for a moment at right angles.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Starts with Alt and a selection of pieces or scenery, unless a lock refuses; takes the press
// either way.
bool pressAltRotate(CanvasContext& context, const PointerEvent& event);
bool altRotateMotion(CanvasContext& context, const PointerEvent& event);
bool endAltRotate(CanvasContext& context, const PointerEvent& event);

// The green flash has lasted long enough.
void endRotationFlash(CanvasContext& context);

// The pivot and the angle.
void drawAltRotate(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
