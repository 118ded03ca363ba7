// Delete and Backspace on the canvas.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Deletes the selection: pieces, scenery, labels, measurements, shapes. A helix that is selected
// alone may go; other locked track refuses; graded track is asked about.
void deleteFromCanvas(CanvasContext& context);

// The same for a key that the window's own table did not take; shapes alone don't start it.
bool deleteKey(CanvasContext& context, const KeyEvent& event);

}  // namespace vantrel
