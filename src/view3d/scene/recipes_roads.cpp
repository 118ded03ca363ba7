// Roads, squares, and what drives and parks there. Both vehicles face -x.
#include "view3d/scene/recipes.h"

namespace vantrel::recipes {
namespace {

constexpr float kRoadHeight = 2.0F;
constexpr SolidColours kWheel{.side = {0.2F, 0.2F, 0.2F}, .top = {0.15F, 0.15F, 0.15F}};
constexpr float kWheelLength = 7.0F;

void AddPlanking(Item& item, float y) {
  constexpr Rgb kPlanks{0.18F, 0.18F, 0.18F};
  item.box({0, y, kRoadHeight}, {item.width(), 14, 1}, kPlanks);
}

// A pair of wheels on one axle, `inset` from both sides of the footprint.
void AddWheels(Item& item, float x, float inset, float height) {
  item.box({x, inset, 0}, {kWheelLength, item.depth() - 2.0F * inset, height}, kWheel);
}

}  // namespace

void MakeRoad(Item& item) {
  item.slab(0.0F, kRoadHeight, {kAsphalt, kAsphalt});
}

void MakeOneTrackCrossing(Item& item) {
  MakeRoad(item);
  AddPlanking(item, 24.0F);
}

void MakeTwoTrackCrossing(Item& item) {
  MakeOneTrackCrossing(item);
  AddPlanking(item, 104.0F);
}

void MakeCar(Item& item) {
  constexpr Rgb kBody{0.78F, 0.2F, 0.16F};
  constexpr Rgb kCabin{0.65F, 0.16F, 0.12F};
  constexpr float kWheelHeight = 4.0F;
  constexpr float kWheelInset = 3.0F;  // so that they show beside the body
  const float w = item.width();
  const float d = item.depth();
  item.box({0, 4, 0}, {w, d - 8.0F, 5}, kBody);
  item.box({10, 5, 5}, {0.64F * w, d - 10.0F, 7}, kCabin);
  AddWheels(item, 4.0F, kWheelInset, kWheelHeight);
  AddWheels(item, w - 4.0F - kWheelLength, kWheelInset, kWheelHeight);
}

void MakeTruck(Item& item) {
  constexpr Rgb kCab{0.32F, 0.4F, 0.55F};
  constexpr Rgb kLoad{0.62F, 0.62F, 0.62F};
  constexpr float kCabLength = 22.0F;
  const float d = item.depth();
  item.box({0, 3, 0}, {kCabLength, d - 6.0F, 14}, kCab);
  item.box({kCabLength, 3, 0}, {item.width() - kCabLength, d - 6.0F, 13}, kLoad);
  for (const float x : {3.0F, 32.0F, 52.0F}) AddWheels(item, x, 2.0F, 5.0F);
}

void MakeParkingLot(Item& item) {
  constexpr int kBays = 10;
  constexpr float kLineWidth = 1.0F;
  constexpr float kLineHeight = 0.5F;
  constexpr float kEdge = 2.0F;  // the line along the heads of the bays
  MakeRoad(item);
  item.box({0, 0, kRoadHeight}, {item.width(), kEdge, kLineHeight}, kPaintWhite);
  item.row({.corner = {0, kEdge, kRoadHeight},
            .size = {kLineWidth, 0.48F * item.depth(), kLineHeight},
            .step = {(item.width() - kLineWidth) / kBays, 0, 0},
            .count = kBays + 1},
           kPaintWhite);
}

void MakePedestrianZone(Item& item) {
  constexpr Rgb kPaving{0.76F, 0.72F, 0.66F};
  constexpr Rgb kBench{0.58F, 0.42F, 0.24F};
  constexpr float kPavingHeight = 3.0F;
  item.slab(0.0F, kPavingHeight, {kPaving, kPaving});
  for (const float x : {10.0F, 85.0F}) item.box({x, 20, kPavingHeight}, {20, 5, 4}, kBench);
}

}  // namespace vantrel::recipes
