// Selecting by a band that is drawn over the canvas with the left button.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

void beginRubberBand(CanvasContext& context, const PointerEvent& event);
bool rubberBandMotion(CanvasContext& context, const PointerEvent& event);
// Selects what the band touches; a band of a click's size selects nothing.
bool endRubberBand(CanvasContext& context, const PointerEvent& event);

// Ends the band without a selection.
void cancelRubberBand(CanvasContext& context);

void drawRubberBand(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
