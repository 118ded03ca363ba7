// Which scenery of a plan is drawn, and in which order. What an item looks like is told in
// scenery_drawing.
#pragma once

#include "catalog/scenery_def.h"
#include "render2d/contents_paint.h"

namespace vantrel {

struct SceneryJob {
  const SceneryItem* item = nullptr;
  const SceneryDef* def = nullptr;
};

// The items of visible levels that the catalog knows and that can be seen, in the plan's order.
struct SceneryPlan {
  std::vector<SceneryJob> ordinary;
  std::vector<SceneryJob> portals;  // of any tunnel
};

SceneryPlan PrepareScenery(ContentsPaint& paint);

// The unselected items first, then the selected ones.
void DrawScenery(ContentsPaint& paint, const std::vector<SceneryJob>& jobs);

}  // namespace vantrel
