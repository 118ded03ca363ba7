// The right press on the canvas, and copy and paste, which exist only in its menus.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"

namespace vantrel {

enum ContextCommand { kMenuCopy = 5032, kMenuPaste = 5033, kMenuAutofill = 6001 };

// A shape, even under a piece, then a piece or helix: selected, and its menu. Empty canvas: "Paste"
// while the clipboard holds something, otherwise the selection is cleared.
bool contextMenuPress(CanvasContext& context, const PointerEvent& event);

}  // namespace vantrel
