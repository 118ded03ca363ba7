#include "catalog/scenery_catalog.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "catalog/scenery_rows.h"

namespace vantrel {
namespace {

struct SceneryCatalog {
  std::vector<SceneryDef> rows;
  std::unordered_map<std::string_view, std::size_t> indexById;  // views into `rows`

  SceneryCatalog() {
    scenery::AddStations(rows);
    scenery::AddRailwayBuildings(rows);
    scenery::AddSignals(rows);
    scenery::AddDecorativeBridges(rows);
    scenery::AddRoads(rows);
    scenery::AddEngineDepot(rows);
    scenery::AddNature(rows);
    scenery::AddVehicles(rows);
    scenery::AddTownSquares(rows);
    scenery::AddStructures(rows);
    for (std::size_t i = 0; i < rows.size(); ++i) indexById[rows[i].id] = i;
  }
  SceneryCatalog(const SceneryCatalog&) = delete;
  SceneryCatalog& operator=(const SceneryCatalog&) = delete;
};

const SceneryCatalog& Instance() {
  static const SceneryCatalog instance;
  return instance;
}

constexpr std::string_view kCategoryNames[] = {"Platforms", "Buildings", "Stations", "Signals",
                                               "Bridges",   "Tunnels",   "Roads",    "Nature",
                                               "Vehicles",  "Special"};

}  // namespace

const std::vector<SceneryDef>& sceneryCatalog() {
  return Instance().rows;
}

const SceneryDef* findScenery(std::string_view id) {
  const auto found = Instance().indexById.find(id);
  return found == Instance().indexById.end() ? nullptr : &Instance().rows[found->second];
}

const SceneryDef* findScenery(SceneryRole role) {
  const std::vector<SceneryDef>& rows = sceneryCatalog();
  const auto found = std::ranges::find(rows, role, &SceneryDef::role);
  return found == rows.end() ? nullptr : &*found;
}

std::string_view SceneryCategoryName(std::int32_t category) {
  if (category < 0 || category >= static_cast<std::int32_t>(std::size(kCategoryNames)))
    return "Other";
  return kCategoryNames[category];
}

}  // namespace vantrel
