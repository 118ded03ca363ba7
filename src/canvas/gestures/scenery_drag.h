// A scenery item from the palette: it hangs at the pointer, turns, and is placed by the next left
// press.
#pragma once

#include <string_view>

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Ends the other drags from the palette. Nothing happens for an unknown item.
void beginSceneryDrag(CanvasContext& context, std::string_view item);

// The steps below take their event while an item hangs at the pointer.
bool dropDraggedScenery(CanvasContext& context, const PointerEvent& event);
bool sceneryDragMotion(CanvasContext& context, const PointerEvent& event);
bool sceneryDragWheel(CanvasContext& context, const PointerEvent& event);
bool sceneryDragRightPress(CanvasContext& context, const PointerEvent& event);
bool sceneryDragKey(CanvasContext& context, const KeyEvent& event);

void drawSceneryDrag(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
