// The preview of a helix kit that hangs at the pointer.
#pragma once

#include "canvas/gestures/canvas_context.h"

class wxDC;

namespace vantrel {

// The two rings of the kit and a cross at their middle. An unknown kit shows the default kit's.
void drawHelixPlacement(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
