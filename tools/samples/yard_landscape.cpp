// What the tracks stand on, as blocks on a level of their own: hidden, they show what is below.
#include <initializer_list>
#include <utility>
#include <vector>

#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

struct Colour {
  std::uint8_t r, g, b;
};
constexpr Colour kMeadow{135, 165, 105};
constexpr Colour kHill{120, 150, 95};
// From the ground to `height` above it.
void Block(SampleBuilder& plan, std::vector<Vec2> outline, double height, Colour colour) {
  Shape& block = plan.shape(std::move(outline), colour.r, colour.g, colour.b, "");
  block.height = height;
  block.outline = false;
}

void Plant(SampleBuilder& plan, std::string_view item, std::initializer_list<Vec2> places) {
  for (const Vec2 place : places) plan.scenery(item, {place.x, place.y, 0.0});
}

void LayGround(SampleBuilder& plan) {
  plan.onLevel(kLandscape);
  // The terrace of the station leaves the corner free where the track to the helix comes out.
  Block(plan, {{200, 10}, {7900, 10}, {7900, 1000}, {6880, 1462}, {200, 1462}}, kDeckHeight,
        kMeadow);
  Block(plan, {{200, 1462}, {620, 1462}, {620, 2800}, {200, 2800}}, kDeckHeight, kMeadow);
  Block(plan, {{620, 2545}, {1075, 2545}, {1075, 2800}, {620, 2800}}, kDeckHeight, kMeadow);
  Block(plan, {{4780, 10}, {7861, 10}, {7861, 345}, {4780, 345}}, 260.0, kHill);
}

// A lid at the height of the station, with a wood on it.
void LayCover(SampleBuilder& plan) {
  plan.onLevel(kCover);
  Block(plan, {{620, 1462}, {7900, 1462}, {7900, 2577}, {1075, 2577}}, 0.0, kHill);
}

void LayTown(SampleBuilder& plan) {
  plan.onLevel(kCover);
  Plant(plan, "tree_group", {{1500, 1750}, {1800, 1850}, {1450, 2050}, {2150, 1780}, {1750, 2150}});
  Plant(plan, "tree_conifer", {{1350, 1900}, {1620, 1940}, {1950, 2000}, {2350, 1760}});
  Plant(plan, "tree_lg_dec", {{6700, 2300}, {6950, 2420}, {7300, 2180}, {7600, 2350}});
  plan.onLevel(kStation);
  // A road along the edge of the terrace, and what stands beside it.
  for (int i = 0; i < 16; ++i) plan.scenery("road_straight", {760.0 + 188.0 * i, 1405.0, 0.0});
  for (const double x : {900.0, 1400.0, 2330.0, 3100.0}) plan.scenery("car", {x, 1392.0, 180.0});
  for (const double x : {1180.0, 2650.0, 3350.0}) plan.scenery("car", {x, 1418.0, 0.0});
  plan.scenery("truck", {1950.0, 1418.0, 0.0});
  plan.scenery("parking_lot", {3300.0, 1295.0, 0.0});
  plan.scenery("signal_box", {3560.0, 700.0, 0.0});
  plan.scenery("water_tower", {1810.0, 250.0, 0.0});
  plan.scenery("coaling_tower", {2420.0, 300.0, 0.0});
  Plant(
      plan, "tree_group",
      {{2100, 150}, {2500, 120}, {3300, 200}, {3650, 330}, {4000, 180}, {4350, 120}, {3900, 440}});
  Plant(plan, "tree_conifer",
        {{1750, 130}, {2300, 190}, {2900, 140}, {3500, 120}, {4150, 260}, {4500, 180}, {4650, 90}});
  Plant(plan, "tree_lg_dec", {{320, 120}, {620, 1080}, {300, 760}, {3700, 1310}, {3900, 1400}});
  Plant(plan, "bush", {{700, 1340}, {1000, 1345}, {2800, 1340}, {3050, 1345}, {4100, 1410}});
}

void LabelAll(SampleBuilder& plan) {
  plan.label("Loco depot", {1450.0, 100.0});
  plan.label("Branch terminus, 260 mm up", {5700.0, 195.0});
  plan.label("Central station, 130 mm up", {5750.0, 650.0});
  plan.label("Carriage sidings", {1350.0, 1240.0});
  plan.label("Goods yard", {3950.0, 1330.0});
  plan.label("Hidden yard; its cover is a level of its own", {1080.0, 1700.0});
  plan.label("Two ramps, 1.5 degrees", {6500.0, 2430.0});
  plan.label("Factory", {5200.0, 2990.0});
  plan.label("Helix", {8250.0, 480.0});
}

}  // namespace

void LayLandscape(SampleBuilder& plan) {
  LayGround(plan);
  LayCover(plan);
  LayTown(plan);
  LabelAll(plan);
}

}  // namespace vantrel::samples::yard
