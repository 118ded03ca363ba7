// The arrows of the grades in force.
#pragma once

#include "render2d/contents_paint.h"

namespace vantrel {

// One arrow per grade run, at the end of its anchor piece from which the climb goes on, orange
// upward and blue downward, with the slope beside it. Levels don't hide them.
void DrawGradeArrows(ContentsPaint& paint);

}  // namespace vantrel
