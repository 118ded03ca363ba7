// Placing a helix: its record and the four stubs that track is joined to.
#pragma once

#include <cstdint>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// One undo step; the selection stays. An empty or unknown kit means the default one. Returns the
// helix's id, or kNone, with nothing changed, when the catalog lacks the kit's stub part.
std::int32_t placeHelix(Layout& layout, Vec2 centre, double heading, std::string_view kitId);

}  // namespace vantrel
