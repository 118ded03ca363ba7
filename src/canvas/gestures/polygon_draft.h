// Drawing a polygon by its vertices: a free shape, or the outline of the baseboard.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// These take every event while the tool is armed. A press near the first vertex closes a polygon of
// three or more.
bool polygonPress(CanvasContext& context, const PointerEvent& event);
bool polygonMotion(CanvasContext& context, const PointerEvent& event);
// Escape ends draft and tool, Enter closes, Backspace takes the last vertex back.
bool polygonKey(CanvasContext& context, const KeyEvent& event);

void drawPolygonDraft(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
