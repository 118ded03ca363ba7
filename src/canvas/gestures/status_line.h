// What the canvas writes into the status bar.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// The world position of the pointer, in the layout's units. Takes no event.
bool showPointerPosition(CanvasContext& context, const PointerEvent& event);

// The number of pieces; to be called after pieces were added.
void showPieceCount(CanvasContext& context);

// The grade runs in force. Part of each paint, so that they are shown whoever changed them; draws
// nothing. Restores "Ready" after the last run has ended, but touches no other text.
void showGradeRuns(const CanvasContext& context, wxDC& dc);

// How to go on with an armed tool or with what hangs at the pointer, where there is no grade to
// tell; and when that ends, the text from before, unless another has come since. Part of each paint
// for the same reason, and behind showGradeRuns. The baseboard's tool has a text of its own.
void showPrompt(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
