// A piece from the palette: it hangs at the pointer, turns, snaps to open connectors, and is placed
// by the next left press.
#pragma once

#include <string_view>

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

class wxDC;

namespace vantrel {

// Nothing happens for an unknown part.
void beginPieceDrag(CanvasContext& context, std::string_view part);

// Ends piece drag, scenery drag and helix placement alike.
void cancelPaletteDrag(CanvasContext& context);

// The palette's double click: adds the part to the last selected piece, or hangs it at the pointer
// when no piece is selected. Nothing happens for an unknown part or when there is no free end.
void placeByDoubleClick(CanvasContext& context, std::string_view part);

// The steps below take their event while a piece hangs at the pointer.
bool dropDraggedPiece(CanvasContext& context, const PointerEvent& event);
bool paletteDragMotion(CanvasContext& context, const PointerEvent& event);
bool paletteDragWheel(CanvasContext& context, const PointerEvent& event);
bool paletteDragRightPress(CanvasContext& context, const PointerEvent& event);
bool paletteDragKey(CanvasContext& context, const KeyEvent& event);

// The target marker, when snapped, and the ghost.
void drawPaletteDrag(const CanvasContext& context, wxDC& dc);

}  // namespace vantrel
