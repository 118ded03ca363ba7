// What the drags from the palette share: where they start and how the wheel and the R key turn
// them.
#pragma once

#include "canvas/gestures/pointer_event.h"
#include "doc/view_transform.h"

namespace vantrel {

// Where a thing hangs until the first motion event tells where the pointer is, in client pixels.
inline constexpr DevicePoint kDragStartPoint{300, 200};

// 30 degrees, 15 with Shift, in the direction of the wheel; 0 for a wheel that did not turn.
double wheelTurnDegrees(const PointerEvent& event);

// R, in either case; no chord with Ctrl or Alt.
bool isTurnKey(const KeyEvent& event);

}  // namespace vantrel
