#include "view3d/scene/scenery_models.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "catalog/scenery_catalog.h"
#include "view3d/scene/recipes.h"

namespace vantrel {
namespace {

struct Recipe {
  std::string_view id;
  void (*make)(recipes::Item& item);
};

// The first row with the id decides. "bridge_arch" and the two square portals are in no catalog;
// their recipes are kept for files that name them.
constexpr Recipe kRecipes[] = {{"tunnel_portal_single", recipes::MakeArchedPortal},
                               {"platform", recipes::MakePlatform},
                               {"platform_island", recipes::MakeIslandPlatform},
                               {"station_small", recipes::MakeSmallStation},
                               {"station_large", recipes::MakeLargeStation},
                               {"signal_box", recipes::MakeSignalBox},
                               {"shed_1road", recipes::MakeOneRoadShed},
                               {"shed_2road", recipes::MakeTwoRoadShed},
                               {"goods_shed", recipes::MakeGoodsShed},
                               {"warehouse", recipes::MakeWarehouse},
                               {"crossing_1track", recipes::MakeOneTrackCrossing},
                               {"crossing_2track", recipes::MakeTwoTrackCrossing},
                               {"road_straight", recipes::MakeRoad},
                               {"water_tower", recipes::MakeWaterTower},
                               {"coaling_tower", recipes::MakeCoalingTower},
                               {"signal_semaphore_stop", recipes::MakeSemaphore},
                               {"signal_semaphore_clear", recipes::MakeSemaphore},
                               {"signal_z_semaphore_stop", recipes::MakeSemaphore},
                               {"signal_z_semaphore_clear", recipes::MakeSemaphore},
                               {"signal_color_stop", recipes::MakeColourLight},
                               {"signal_color_clear", recipes::MakeColourLight},
                               {"signal_z_color_stop", recipes::MakeColourLight},
                               {"signal_z_color_clear", recipes::MakeColourLight},
                               {"bridge_truss_scenery", recipes::MakeSceneryTruss},
                               {"bridge_arch_scenery", recipes::MakeSceneryArch},
                               {"tree_sm_dec", recipes::MakeSmallTree},
                               {"tree_lg_dec", recipes::MakeLargeTree},
                               {"tree_conifer", recipes::MakeConifer},
                               {"tree_group", recipes::MakeTreeGroup},
                               {"bush", recipes::MakeBush},
                               {"car", recipes::MakeCar},
                               {"truck", recipes::MakeTruck},
                               {"parking_lot", recipes::MakeParkingLot},
                               {"ped_zone", recipes::MakePedestrianZone},
                               {"bridge_arch", recipes::MakeArchBridge},
                               {"bridge_truss", recipes::MakeTrussBridge},
                               {"viaduct_pier", recipes::MakeViaductPier},
                               {"tunnel_portal", recipes::MakePortal},
                               {"tunnel_portal_2", recipes::MakeDoublePortal},
                               {"retaining_wall", recipes::MakeRetainingWall}};

// Items that are parts as well have a role instead of an id of their own.
using Maker = void (*)(recipes::Item& item);
Maker RecipeForRole(std::string_view id) {
  const SceneryDef* const def = findScenery(id);
  if (def == nullptr) return nullptr;
  if (def->role == SceneryRole::roundhouse) return recipes::MakeRoundhouse;
  if (def->role == SceneryRole::turntablePit) return recipes::MakeTurntablePit;
  return nullptr;
}

void MakePlainSlab(recipes::Item& item) {
  constexpr float kHeightMm = 6.0F;
  constexpr Rgb kEarth{0.52F, 0.48F, 0.42F};
  item.slab(0.0F, kHeightMm, {kEarth, kEarth});
}

}  // namespace

Model makeSceneryModel(std::string_view id, Footprint footprint) {
  recipes::Item item(id, footprint);
  const auto* const found = std::find_if(std::begin(kRecipes), std::end(kRecipes),
                                         [&](const Recipe& recipe) { return recipe.id == id; });
  Maker make = found == std::end(kRecipes) ? RecipeForRole(id) : found->make;
  if (make == nullptr) make = MakePlainSlab;
  make(item);
  return std::move(item.mesh());
}

}  // namespace vantrel
