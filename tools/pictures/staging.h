// What is put into a plan for its photograph: a train, trees, and ground instead of a table.
#pragma once

#include <string_view>
#include <vector>

#include "doc/layout.h"
#include "view3d/scene/scene.h"

namespace vantrel {

// Adds an item, in the plan's own coordinates.
void Put(Layout& layout, std::string_view item, Pose at, double scale = 1.0);

// `count` trees of several kinds in woods over the rectangle, away from the track and from each
// other; the same ones each time.
struct Wood {
  Vec2 topLeft;
  Vec2 bottomRight;
  int count = 0;
  unsigned seed = 1;
};
void Plant(Layout& layout, const Wood& wood);

// A railcar that stands on the rails at `at` (the plan's coordinates) and `z` mm high.
void AddRailcar(Scene& scene, Pose at, float z);

}  // namespace vantrel
