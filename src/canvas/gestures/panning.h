// The two ways to move the view by hand: a pressed button that is dragged, and Space held with the
// left button. Neither changes the document.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// Starts a button pan at the pointer: hand cursor, capture. Always takes the press.
bool beginButtonPan(CanvasContext& context, const PointerEvent& event);

// Moves the view by whole pixels from where it was at the press, once the pointer has come 4 pixels
// away from the press point in either axis.
bool buttonPanMotion(CanvasContext& context, const PointerEvent& event);

// Starts at the first motion with Space and the left button unless a piece from the palette hangs
// at the pointer or the selection is being dragged; ends a rubber band; has no threshold; goes on
// until the button is up.
bool spacePanMotion(CanvasContext& context, const PointerEvent& event);

// A left release ends both, a middle release the button pan.
bool endSpacePan(CanvasContext& context, const PointerEvent& event);
bool endButtonPan(CanvasContext& context, const PointerEvent& event);

// The mouse was taken away: its release would go unseen.
void abandonButtonPan(CanvasContext& context);

}  // namespace vantrel
