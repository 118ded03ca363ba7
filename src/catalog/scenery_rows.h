// The rows of the scenery catalog by theme. Each function appends its rows, in catalog order.
#pragma once

#include <vector>

#include "catalog/scenery_def.h"

namespace vantrel::scenery {

void AddStations(std::vector<SceneryDef>& rows);
void AddRailwayBuildings(std::vector<SceneryDef>& rows);
void AddSignals(std::vector<SceneryDef>& rows);
void AddDecorativeBridges(std::vector<SceneryDef>& rows);
void AddRoads(std::vector<SceneryDef>& rows);
void AddEngineDepot(std::vector<SceneryDef>& rows);
void AddNature(std::vector<SceneryDef>& rows);
void AddVehicles(std::vector<SceneryDef>& rows);
void AddTownSquares(std::vector<SceneryDef>& rows);
void AddStructures(std::vector<SceneryDef>& rows);

}  // namespace vantrel::scenery
