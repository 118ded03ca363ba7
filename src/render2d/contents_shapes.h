// The free polygons of a plan.
#pragma once

#include "render2d/contents_paint.h"

namespace vantrel {

// All shapes of visible levels, those of the lowest level first, each with its name and the lengths
// of its edges.
void DrawShapes(ContentsPaint& paint);

}  // namespace vantrel
