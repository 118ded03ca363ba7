// The program-wide, read-only list of scenery items.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "catalog/scenery_def.h"

namespace vantrel {

// All items in their fixed order, built on first use and kept to the end of the program.
const std::vector<SceneryDef>& sceneryCatalog();

// The item with this id, or null.
const SceneryDef* findScenery(std::string_view id);

// The first item with this role, or null.
const SceneryDef* findScenery(SceneryRole role);

// "Platforms" for 0 and so on; "Other" for 10 and any value without a name.
std::string_view SceneryCategoryName(std::int32_t category);

}  // namespace vantrel
