// Signal box, engine sheds, goods shed and warehouse.
#include <utility>

#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

constexpr double kRoadWidth = 80.0;  // mm of an engine shed across one track

SceneryDef SignalBox() {
  Art art = {FilledRect({0, 4, 9, 30}, kTimber, kOutline),
             FilledRect({8, 0, 52, 50}, kPlaster, kOutline),
             FilledRect({10, 40, 48, 9}, kWindowBlue, kOutline),
             FilledRect({6, 2, 54, 36}, kRoofRed, kOutline),
             Polygon({{6, 38}, {24, 20}, {42, 20}, {60, 38}}, kRoofBrown, kOutline),
             Polygon({{60, 2}, {42, 20}, {60, 38}}, kRoofBrown, kOutline),
             FilledRect({20, 8, 7, 7}, kConcrete, kOutline)};
  return MakeItem("signal_box", "Signal box", kBuildings, 60, 50, std::move(art));
}

// The doors of one shed road stand open, one leaf to each side of the track.
Art OpenDoors(double top) {
  return {
      Polygon({{16, top + 14}, {16, top + 19}, {1, top + 9}, {3, top + 5}}, kTimber, kOutline),
      Polygon({{16, top + 66}, {16, top + 61}, {1, top + 71}, {3, top + 75}}, kTimber, kOutline)};
}

Box SmokeVent(double top) {
  return {56, top + 35, 204, 10};
}

SceneryDef ShedOneRoad() {
  Art art = OpenDoors(0);
  Append(art, GableRoofAlongX({14, 0, 286, kRoadWidth}));
  art.push_back(FilledRect(SmokeVent(0), kSteel, kOutline));
  return MakeItem("shed_1road", "Engine shed (1 road)", kBuildings, 300, kRoadWidth,
                  std::move(art));
}

SceneryDef ShedTwoRoads() {
  constexpr int kStacks = 4;
  Art art;
  for (const double top : {0.0, kRoadWidth}) {
    for (const double rail : {top + 31.75, top + 48.25})
      art.push_back(Line({0, rail}, {14, rail}, kOutline, 2));
    Append(art, OpenDoors(top));
    Append(art, GableRoofAlongX({14, top, 286, kRoadWidth}));
    for (const double y : {top + 17.0, top + 55.0}) {
      art.push_back(FilledRect({34, y, 246, 8}, kWindowBlue, kOutline));
      for (int x = 55; x < 280; x += 20)
        art.push_back(Line({double(x), y}, {double(x), y + 8}, kOutline));
    }
    for (int stack = 0; stack < kStacks; ++stack) {
      const double x = 48 + stack * 66.0;
      art.push_back(FilledRect({x, top + 34, 20, 12}, kSteel, kOutline));
      art.push_back(FilledRect({x + 5, top + 37, 10, 6}, kBlack));
    }
  }
  return MakeItem("shed_2road", "Engine shed (2 roads)", kBuildings, 300, 2 * kRoadWidth,
                  std::move(art));
}

SceneryDef GoodsShed() {
  Art art = {FilledRect({0, 58, 200, 22}, kConcrete, kConcreteEdge)};
  Append(art, GableRoofAlongX({6, 0, 176, 62}, kTimber, kWood));
  for (const double x : {32.0, 112.0})
    art.push_back(FilledRect({x, 56, 44, 14}, kRoofBrown, kOutline));
  art.push_back(FilledRect({186, 62, 10, 10}, kTimber, kWood));
  return MakeItem("goods_shed", "Goods shed", kBuildings, 200, 80, std::move(art));
}

// A works hall under a saw-tooth roof: each bay a pane of glass toward -x and a sheet behind it.
SceneryDef Warehouse() {
  constexpr int kBays = 8;
  constexpr double kBay = 48.0;
  constexpr double kGlass = 14.0;
  constexpr double kHall = 176.0;  // depth of the roof; the rest is the loading ramp
  Art art = {FilledRect({0, 170, 400, 30}, kConcrete, kConcreteEdge),
             FilledRect({4, 0, 392, kHall + 4}, kPlaster, kOutline)};
  for (int bay = 0; bay < kBays; ++bay) {
    const double x = 8 + bay * kBay;
    art.push_back(FilledRect({x, 4, kGlass, kHall - 4}, kWindowBlue, kOutline));
    art.push_back(FilledRect({x + kGlass, 4, kBay - kGlass, kHall - 4}, kSteel, kOutline));
    for (int pane = 1; pane < 6; ++pane) {
      const double y = 4 + pane * (kHall - 4) / 6;
      art.push_back(Line({x, y}, {x + kGlass, y}, kOutline));
    }
  }
  for (int door = 0; door < 4; ++door)
    art.push_back(FilledRect({38 + door * 96.0, kHall, 36, 12}, kRoofBrown, kOutline));
  return MakeItem("warehouse", "Warehouse", kBuildings, 400, 200, std::move(art));
}

}  // namespace

void AddRailwayBuildings(std::vector<SceneryDef>& rows) {
  rows.push_back(SignalBox());
  rows.push_back(ShedOneRoad());
  rows.push_back(ShedTwoRoads());
  rows.push_back(GoodsShed());
  rows.push_back(Warehouse());
}

}  // namespace vantrel::scenery
