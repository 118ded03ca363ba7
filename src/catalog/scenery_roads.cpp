// Roads, level crossings, squares, and what drives and parks there.
#include <utility>

#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

// The road runs along y; the planking is wider than a track bed, so that it shows beside it.
SceneryDef CrossingOneTrack() {
  Art art = {FilledRect({20, 0, 80, 80}, kRoad, kOutline),
             FilledRect({20, 18, 80, 44}, kTimber, kWood),
             FilledRect({6, 7, 56, 5}, kPaintWhite, kCarRed, 2),
             FilledRect({58, 68, 56, 5}, kPaintWhite, kCarRed, 2)};
  return MakeItem("crossing_1track", "Level crossing (1 track)", kRoads, 120, 80, std::move(art));
}

SceneryDef CrossingTwoTracks() {
  Art art = {FilledRect({20, 0, 80, 160}, kRoad, kOutline),
             FilledRect({20, 18, 80, 44}, kTimber, kWood),
             FilledRect({20, 98, 80, 44}, kTimber, kWood),
             FilledRect({59, 64, 2, 32}, kPaintWhite),
             FilledRect({6, 7, 56, 5}, kPaintWhite, kCarRed, 2),
             FilledRect({58, 148, 56, 5}, kPaintWhite, kCarRed, 2)};
  return MakeItem("crossing_2track", "Level crossing (2 tracks)", kRoads, 120, 160, std::move(art));
}

SceneryDef RoadStraight() {
  constexpr double kLength = 188.0;
  constexpr int kDashes = 6;
  Art art = {FilledRect({0, 0, kLength, 60}, kConcrete, kConcreteEdge),
             FilledRect({0, 7, kLength, 46}, kRoad, kConcreteEdge)};
  for (const double y : {10.0, 50.0}) art.push_back(Line({0, y}, {kLength, y}, kPaintWhite));
  const double pitch = kLength / kDashes;  // so that two roads in a row continue the pattern
  for (int i = 0; i < kDashes; ++i)
    art.push_back(FilledRect({(i + 0.25) * pitch, 29.5, pitch / 2, 1}, kPaintWhite, kPaintWhite));
  return MakeItem("road_straight", "Road straight 188mm", kRoads, kLength, 60, std::move(art));
}

// Both vehicles face -x.
SceneryDef Car() {
  Art art = {
      FilledRect({14, 0, 3, 20}, kOutline),
      Polygon({{0, 5},
               {2, 2.5},
               {8, 1.5},
               {42, 1.5},
               {48, 2.5},
               {50, 5},
               {50, 15},
               {48, 17.5},
               {42, 18.5},
               {8, 18.5},
               {2, 17.5},
               {0, 15}},
              kCarRed, kOutline),
      Polygon({{13, 4}, {20, 2.5}, {38, 2.5}, {44, 4}, {44, 16}, {38, 17.5}, {20, 17.5}, {13, 16}},
              kCarGlass, kOutline),
      FilledRect({21, 4.5, 17, 11}, kCarRed),
      FilledRect({0.5, 4, 2, 3}, kPaintWhite),
      FilledRect({0.5, 13, 2, 3}, kPaintWhite),
      FilledRect({47.5, 4, 2, 3}, kWarningYellow),
      FilledRect({47.5, 13, 2, 3}, kWarningYellow),
      Line({9, 4}, {9, 16}, kRoofRed)};
  return MakeItem("car", "Car", kVehicles, 50, 20, std::move(art));
}

SceneryDef Truck() {
  Art art = {
      FilledRect({16, 5, 8, 15}, kOutline), FilledRect({7, 0, 3, 25}, kOutline),
      Polygon({{0, 5}, {3, 2.5}, {19, 2.5}, {19, 22.5}, {3, 22.5}, {0, 20}}, kTruckBlue, kOutline),
      Polygon({{2, 5.5}, {6.5, 4.5}, {6.5, 20.5}, {2, 19.5}}, kCarGlass, kOutline),
      FilledRect({23, 0.5, 57, 24}, kCarGrey, kOutline)};
  for (const double x : {34.5, 45.5, 57.0, 68.5}) art.push_back(Line({x, 0.5}, {x, 24.5}, kMetal));
  return MakeItem("truck", "Truck", kVehicles, 80, 25, std::move(art));
}

// Ten bays of a car's size along the upper edge, the lane with its sign and arrows below, bushes
// beside it.
SceneryDef ParkingLot() {
  constexpr int kBays = 10;
  constexpr double kBay = 25.0;
  constexpr double kBayDepth = 58.0;
  Art art = {FilledRect({0, 0, 250, 120}, kRoad, kConcreteEdge)};
  for (int i = 0; i <= kBays; ++i) {
    const double x = i == kBays ? 249 : i * kBay;
    art.push_back(FilledRect({x, 2, 1, kBayDepth}, kPaintWhite, kPaintWhite));
  }
  art.push_back(FilledRect({0, 0, 250, 2}, kPaintWhite, kPaintWhite));
  for (const double x : {24.0, 174.0}) {
    art.push_back(FilledRect({x, 79, 36, 2}, kPaintWhite, kPaintWhite));
    art.push_back(Polygon({{x + 34, 74}, {x + 52, 80}, {x + 34, 86}}, kPaintWhite));
  }
  art.push_back(FilledEllipse({112, 67, 26, 26}, kTruckBlue, kPaintWhite));
  art.push_back(Text({125, 80}, 14, kPaintWhite, "P"));
  art.push_back(FilledRect({0, 102, 250, 18}, kLightLeaf, kConcreteEdge));
  for (int i = 0; i < 9; ++i)
    art.push_back(Crown({8 + i * 27.0, 103.5, 18, 15}, 7, i % 2 == 0 ? kLeaf : kDarkLeaf));
  return MakeItem("parking_lot", "Parking lot (10 spaces)", kSpecial, 250, 120, std::move(art));
}

SceneryDef PedestrianZone() {
  Art art = {FilledRect({0, 0, 115, 57}, kPlaster, kConcreteEdge),
             OutlinedRect({5, 5, 105, 47}, kConcreteEdge),
             FilledRect({10, 20, 20, 8}, kTimber, kWood),
             FilledRect({85, 20, 20, 8}, kTimber, kWood),
             FilledEllipse({39, 10, 37, 37}, kConcrete, kOutline),
             FilledEllipse({43, 14, 29, 29}, kWindowBlue, kConcreteEdge),
             FilledEllipse({53, 24, 9, 9}, kPaintWhite, kTruckBlue)};
  return MakeItem("ped_zone", "Pedestrian zone", kSpecial, 115, 57, std::move(art));
}

}  // namespace

void AddRoads(std::vector<SceneryDef>& rows) {
  rows.push_back(CrossingOneTrack());
  rows.push_back(CrossingTwoTracks());
  rows.push_back(RoadStraight());
}

void AddVehicles(std::vector<SceneryDef>& rows) {
  rows.push_back(Car());
  rows.push_back(Truck());
}

void AddTownSquares(std::vector<SceneryDef>& rows) {
  rows.push_back(ParkingLot());
  rows.push_back(PedestrianZone());
}

}  // namespace vantrel::scenery
