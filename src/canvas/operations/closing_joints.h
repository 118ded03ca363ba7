// The joins that a dropped block makes by itself where its ends have come to lie on others.
#pragma once

#include "doc/layout.h"

namespace vantrel {

// Two open connectors join by themselves when they lie less than this apart.
inline constexpr double kClosingDistanceMm = 4.0;

// Joins each open connector of the selected pieces, in order, to each open connector of an
// unselected piece, hidden ones too, that lies within the distance: of several the last one stays
// joined. Headings, track systems and snapEnabled play no part.
void joinClosingEnds(Layout& layout);

}  // namespace vantrel
