// What the drags from the palette share: where they start, how the wheel and the R key turn them,
// and when they give the mouse back.
#pragma once

#include "canvas/gestures/canvas_context.h"
#include "canvas/gestures/pointer_event.h"
#include "doc/view_transform.h"

namespace vantrel {

// Where a thing hangs until the first motion event tells where the pointer is, in client pixels.
inline constexpr DevicePoint kDragStartPoint{300, 200};

// 30 degrees, 15 with Shift, in the direction of the wheel; 0 for a wheel that did not turn.
double wheelTurnDegrees(const PointerEvent& event);

// R, in either case; no chord with Ctrl or Alt.
bool isTurnKey(const KeyEvent& event);

// For a motion: the release that ends the capture may have gone to the list that the drag came
// from, as it does after a short flick. Whoever kept the mouse would take the next click for a
// drop, wherever in the program it is.
void releaseMouseOnceButtonIsUp(CanvasContext& context, const PointerEvent& motion);

}  // namespace vantrel
