// The double click on a shape or a scenery item, and what its dialog changes.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Opens "Shape Properties" or "Resize Scenery" for what lies under the pointer, a shape before
// scenery, and both before track. Not used with Alt.
bool openAnnotationDialog(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
