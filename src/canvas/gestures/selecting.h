// What a left press selects, and what the selection's keys do.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

// A piece, or a helix by its rings: plain, Ctrl or Shift click; the press may become a drag.
bool pressPiece(CanvasContext& context, const PointerEvent& event);

// A scenery item: selected, and dragged at once.
bool pressScenery(CanvasContext& context, const PointerEvent& event);

// Empty canvas: clears the selection and the clipboard, then pans with Ctrl or starts a rubber
// band.
bool pressEmptyCanvas(CanvasContext& context, const PointerEvent& event);

// The press that follows a clone by double click does nothing.
bool swallowPress(CanvasContext& context, const PointerEvent& event);

// Escape clears the selection.
bool escapeKey(CanvasContext& context, const KeyEvent& event);

}  // namespace vantrel
