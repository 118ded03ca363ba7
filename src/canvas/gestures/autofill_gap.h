// Autofill Gap: the command behind the context menu of two selected pieces.
#pragma once

#include "canvas/gestures/canvas_context.h"

namespace vantrel {

// Offers the rows of straights that fill the gap between the two selected pieces and lays the one
// that the user chooses; or tells why there is none. Nothing happens with another selection.
void autofillGap(CanvasContext& context);

}  // namespace vantrel
