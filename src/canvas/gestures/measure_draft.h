// The measuring tape: two clicks lay a measurement.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// These take every event while the tape is armed. The second press ends the tool; a tape shorter
// than 1 mm is dropped without a word.
bool measurePress(CanvasContext& context, const PointerEvent& event);
bool measureMotion(CanvasContext& context, const PointerEvent& event);
// Escape: ends the draft and the tool.
bool measureKey(CanvasContext& context, const KeyEvent& event);

// Stays on show, where it is, when the tool is put away in between.
void drawMeasureDraft(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
