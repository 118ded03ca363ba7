// The 3D models of scenery items.
#pragma once

#include <string_view>

#include "view3d/scene/mesh.h"

namespace vantrel {

// The model of an item with this footprint in mm, around its middle, z up. An id without a recipe
// gets a plain slab.
Model makeSceneryModel(std::string_view id, Footprint footprint);

}  // namespace vantrel
