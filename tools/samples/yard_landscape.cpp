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
  Block(plan, {{200, 1462}, {620, 1462}, {1075, 2560}, {1075, 2800}, {200, 2800}}, kDeckHeight,
        kMeadow);
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
  // Post and parcels, beside the carriages.
  for (const double x : {2700.0, 3150.0}) plan.scenery("warehouse", {x, 1310.0, 0.0}, {1.0, 0.8});
  plan.scenery("goods_shed", {3500.0, 1300.0, 0.0});
  plan.scenery("signal_box", {3560.0, 700.0, 0.0});
  plan.scenery("water_tower", {1810.0, 250.0, 0.0});
  plan.scenery("coaling_tower", {2420.0, 300.0, 0.0});
  Plant(
      plan, "tree_group",
      {{2100, 150}, {2500, 120}, {3300, 200}, {3650, 330}, {4000, 180}, {4350, 120}, {3900, 440}});
  Plant(plan, "tree_conifer",
        {{1750, 130}, {2300, 190}, {2900, 140}, {3500, 120}, {4150, 260}, {4500, 180}, {4650, 90}});
  Plant(plan, "tree_lg_dec", {{320, 120}, {620, 1080}, {300, 760}, {3750, 1250}, {4350, 1400}});
  Plant(plan, "tree_group", {{900, 1380}, {1700, 1390}, {2250, 1370}, {4550, 1390}});
  Plant(plan, "tree_conifer",
        {{1150, 1400}, {1400, 1380}, {2000, 1400}, {3800, 1400}, {4200, 1410}});
}

void LabelAll(SampleBuilder& plan) {
  plan.label("Depot", {1500.0, 100.0});
  plan.label("Branch", {4300.0, 60.0});
  plan.label("Central station", {5500.0, 640.0});
  plan.label("Carriages", {1350.0, 1235.0});
  plan.label("Goods yard", {3950.0, 1330.0});
  plan.label("Hidden yard", {1500.0, 1750.0});
  plan.label("Two ramps, 1.5 degrees", {6000.0, 2400.0});
  plan.label("Factory", {3000.0, 2990.0});
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
