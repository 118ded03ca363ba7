// The dot that shows which connector a moving piece would join.
#pragma once

#include "canvas/gestures/canvas_context.h"

class wxDC;

namespace vantrel {

// Nothing is drawn when the snap has no target, or its target is gone.
void drawTargetMarker(const CanvasContext& context, wxDC& dc, const SnapResult& snap);

}  // namespace vantrel
