// The notes on a plan: text labels and measuring tapes. They lie on top of everything and no level
// hides them.
#pragma once

#include "render2d/contents_paint.h"

namespace vantrel {

void DrawLabels(ContentsPaint& paint);
void DrawMeasurements(ContentsPaint& paint);

}  // namespace vantrel
