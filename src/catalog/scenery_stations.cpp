// Platforms and station buildings.
#include <utility>

#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

constexpr Rgba kSlabJoint{150, 140, 140, 80};

SceneryDef Platform() {
  Art art = {FilledRect({0, 0, 230, 60}, kConcrete, kConcreteEdge),
             FilledRect({0, 52, 230, 8}, kPlatformEdgeLine)};
  for (const double x : {40.0, 80.0, 120.0, 160.0, 190.0})
    art.push_back(Line({x, 0}, {x, 60}, kSlabJoint));
  return MakeItem("platform", "Platform", kPlatforms, 230, 60, std::move(art));
}

SceneryDef PlatformIsland() {
  Art art = {FilledRect({0, 0, 460, 120}, kConcrete, kConcreteEdge),
             FilledRect({0, 0, 460, 8}, kPlatformEdgeLine),
             FilledRect({0, 112, 460, 8}, kPlatformEdgeLine),
             FilledRect({0, 54, 460, 12}, kConcreteEdge)};
  for (int x = 40; x < 460; x += 40)
    art.push_back(Line({double(x), 0}, {double(x), 120}, kSlabJoint));
  art.push_back(OutlinedRect({115, 20, 230, 80}, kOutline, 2));
  return MakeItem("platform_island", "Island platform 460mm", kPlatforms, 460, 120, std::move(art));
}

// A gable that looks out of the lower plane of a roof, from its point down to the eaves.
Art FrontGable(double left, double right, double top, double eaves) {
  const double middle = (left + right) / 2.0;
  return {Polygon({{left, eaves}, {middle, top}, {middle, eaves}}, kRoofRed, kOutline),
          Polygon({{middle, eaves}, {middle, top}, {right, eaves}}, kRoofBrown, kOutline)};
}

// A country station: a two-storey house with a clock gable between an open waiting hall and a low
// goods wing.
SceneryDef StationSmall() {
  Art art = {FilledRect({119, 12, 28, 10}, kConcrete, kOutline),
             FilledRect({238, 52, 26, 10}, kConcrete, kOutline)};
  Append(art, GableRoofAlongX({0, 70, 74, 70}, kTimber, kWood));
  Append(art, GableRoofAlongX({191, 60, 117, 77}));
  art.push_back(FilledRect({195, 137, 113, 3}, kConcrete, kConcreteEdge));
  Append(art, GableRoofAlongX({70, 20, 125, 120}));
  Append(art, FrontGable(103, 162, 86, 140));
  for (const double x : {84.0, 155.0}) Append(art, GableRoofAlongY({x, 26, 26, 34}));
  for (const double x : {84.0, 171.0})
    art.push_back(FilledRect({x, 102, 10, 12}, kWindowBlue, kOutline));
  art.push_back(FilledRect({246, 76, 10, 11}, kWindowBlue, kOutline));
  art.push_back(FilledRect({106, 74, 9, 10}, kConcrete, kOutline));
  art.push_back(FilledRect({151, 74, 9, 10}, kConcrete, kOutline));
  art.push_back(FilledRect({282, 94, 8, 9}, kConcrete, kOutline));
  art.push_back(FilledEllipse({124, 117, 17, 17}, kPaintWhite, kOutline));
  art.push_back(Line({132.5, 120}, {132.5, 126}, kBlack));
  return MakeItem("station_small", "Station Gueglingen", kStations, 308, 140, std::move(art));
}

// A town station: hipped wings, a tower, and a great hall with dormers toward the square and a
// clock gable toward the tracks.
SceneryDef StationLarge() {
  Art art = {FilledRect({251, 6, 68, 16}, kConcrete, kOutline)};
  Append(art, GableRoofAlongX({396, 70, 98, 115}));
  Append(art, HipRoof({0, 70, 130, 115}));
  Append(art, HipRoof({490, 60, 60, 125}));
  Append(art, GableRoofAlongX({170, 20, 230, 165}));
  Append(art, FrontGable(242, 328, 108, 185));
  for (const double x : {206.0, 334.0}) Append(art, GableRoofAlongY({x, 16, 30, 42}));
  art.push_back(FilledRect({110, 40, 60, 120}, kPlaster, kOutline));
  Append(art, PyramidRoof({113, 43, 54, 114}));
  art.push_back(FilledEllipse({136, 96, 8, 8}, kWarningYellow, kOutline));
  for (const double x : {186.0, 372.0})
    art.push_back(FilledRect({x, 96, 12, 13}, kConcrete, kOutline));
  art.push_back(FilledRect({515, 88, 10, 12}, kConcrete, kOutline));
  for (const double x : {206.0, 348.0})
    art.push_back(FilledRect({x, 132, 16, 18}, kWindowBlue, kOutline));
  art.push_back(FilledEllipse({273, 152, 24, 24}, kPaintWhite, kOutline));
  art.push_back(Line({285, 156}, {285, 164}, kBlack));
  return MakeItem("station_large", "Station Schwarzburg", kStations, 550, 185, std::move(art));
}

}  // namespace

void AddStations(std::vector<SceneryDef>& rows) {
  rows.push_back(Platform());
  rows.push_back(PlatformIsland());
  rows.push_back(StationSmall());
  rows.push_back(StationLarge());
}

}  // namespace vantrel::scenery
