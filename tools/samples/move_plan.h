// Moves a whole plan: tracks, helices, scenery, labels, shapes, the table and the decks.
#pragma once

#include "doc/layout.h"

namespace vantrel::samples {

void MovePlan(Layout& layout, Vec2 by);

}  // namespace vantrel::samples
