// Zooming with the wheel and with the plus and minus keys.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// One step in or out about the pointer.
bool wheelZoom(CanvasContext& context, const PointerEvent& event);

// '+' and '-', typed: the steps of the zoom commands about the middle. The window's input method
// takes these characters before the menu sees them as accelerators.
bool zoomByCharacter(CanvasContext& context, const KeyEvent& event);

}  // namespace vantrel
