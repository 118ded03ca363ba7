// A helix kit that hangs at the pointer until the next left press places it. Neither Esc nor the
// right button ends it.
#pragma once

#include <string_view>

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Ends the other drags from the palette. Nothing happens for an empty kit; an unknown one stands
// for the default.
void beginHelixPlacement(CanvasContext& context, std::string_view kit);

// Places the kit at a world pose, as the palette's double click does, and tells the window.
void placeHelixAt(CanvasContext& context, std::string_view kit, const Pose& pose);

// The steps below take their event while a kit hangs at the pointer.
bool dropHelix(CanvasContext& context, const PointerEvent& event);
bool helixPlacementMotion(CanvasContext& context, const PointerEvent& event);

// The two rings of the kit and a cross at their middle. An unknown kit shows the default kit's.
void drawHelixPlacement(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
