// The recipes of the scenery models by family, and the item that each of them builds on.
//
// Recipes count in mm from the corner of the footprint, as the catalog's drawings do, so that a
// model and its drawing can be held against each other.
#pragma once

#include <array>
#include <string_view>

#include "view3d/scene/mesh.h"

namespace vantrel::recipes {

inline constexpr SolidColours kRoofTile{.side = {0.59F, 0.27F, 0.22F}, .top = {0.43F, 0.2F, 0.16F}};
inline constexpr Rgb kWindow{0.5F, 0.65F, 0.78F};
inline constexpr Rgb kDoorWood{0.37F, 0.25F, 0.16F};
inline constexpr Rgb kWallCream{0.86F, 0.76F, 0.6F};
inline constexpr Rgb kChimney{0.42F, 0.32F, 0.28F};
inline constexpr Rgb kDarkStone{0.4F, 0.37F, 0.33F};
inline constexpr Rgb kStone{0.55F, 0.51F, 0.46F};
inline constexpr Rgb kSteel{0.56F, 0.58F, 0.62F};
inline constexpr Rgb kTrunk{0.4F, 0.28F, 0.16F};
inline constexpr Rgb kLeaf{0.24F, 0.52F, 0.2F};
inline constexpr Rgb kRedBrick{0.55F, 0.32F, 0.24F};
inline constexpr Rgb kDarkWood{0.4F, 0.22F, 0.14F};
inline constexpr Rgb kPlaster{0.86F, 0.78F, 0.66F};
inline constexpr Rgb kPaintWhite{0.94F, 0.94F, 0.94F};
inline constexpr Rgb kAsphalt{0.38F, 0.38F, 0.38F};

// Like boxes at even steps from the first.
struct Row {
  Vec3f corner;
  Vec3f size;
  Vec3f step;
  int count = 1;
};

// An item while its model is being built.
class Item {
 public:
  Item(std::string_view id, Footprint footprint) : id_(id), footprint_(footprint) {}

  std::string_view id() const { return id_; }
  float width() const { return footprint_.width; }
  float depth() const { return footprint_.depth; }
  Vec3f middle() const { return {width() / 2.0F, depth() / 2.0F, 0.0F}; }
  Model& mesh() { return mesh_; }

  void box(Vec3f corner, Vec3f size, SolidColours colours);
  void box(Vec3f corner, Vec3f size, Rgb colour) { box(corner, size, {colour, colour}); }
  // A square block that stands on this point.
  void column(Vec3f foot, float width, float height, Rgb colour);
  void row(const Row& row, Rgb colour);
  // Over the whole footprint.
  void slab(float z, float height, SolidColours colours);

  void hipRoof(const RoofPlan& plan, SolidColours colours);
  void gableRoof(const RoofPlan& plan, SolidColours colours);
  // The ridge runs along y: two slopes in `top`, two end triangles in `side`.
  void crossGableRoof(const RoofPlan& plan, SolidColours colours);
  void pyramid(const RoofPlan& plan, Rgb colour);
  // The underside of a roof that no wall closes.
  void soffit(const RoofPlan& plan, Rgb colour);

  void cone(Vec3f base, float radius, float height, Rgb colour, int sides);
  void sphere(Vec3f centre, float radius, Rgb colour, int rings);
  // A flat face, corners in order around it, that fronts away from `inside`.
  void face(const std::array<Vec3f, 4>& corners, Vec3f inside, Rgb colour);
  void triangle(const std::array<Vec3f, 3>& corners, Vec3f inside, Rgb colour);

 private:
  Vec3f placed(Vec3f point) const { return PlaceInFootprint(point, footprint_); }

  std::string_view id_;
  Footprint footprint_;
  Model mesh_;
};

void MakePlatform(Item& item);
void MakeIslandPlatform(Item& item);
void MakeSmallStation(Item& item);
void MakeLargeStation(Item& item);

void MakeSignalBox(Item& item);
void MakeOneRoadShed(Item& item);
void MakeTwoRoadShed(Item& item);
void MakeGoodsShed(Item& item);
void MakeWarehouse(Item& item);

void MakeRoundhouse(Item& item);
void MakeTurntablePit(Item& item);
void MakeWaterTower(Item& item);
void MakeCoalingTower(Item& item);

// Clear when "_clear" stands in the id; the size follows the footprint.
void MakeSemaphore(Item& item);
void MakeColourLight(Item& item);

void MakeSmallTree(Item& item);
void MakeLargeTree(Item& item);
void MakeConifer(Item& item);
void MakeTreeGroup(Item& item);
void MakeBush(Item& item);

void MakeOneTrackCrossing(Item& item);
void MakeTwoTrackCrossing(Item& item);
void MakeRoad(Item& item);
void MakeCar(Item& item);
void MakeTruck(Item& item);
void MakeParkingLot(Item& item);
void MakePedestrianZone(Item& item);

void MakeSceneryTruss(Item& item);
void MakeSceneryArch(Item& item);
void MakeArchBridge(Item& item);
void MakeTrussBridge(Item& item);
void MakeViaductPier(Item& item);
void MakeArchedPortal(Item& item);
void MakePortal(Item& item);
void MakeDoublePortal(Item& item);
void MakeRetainingWall(Item& item);

}  // namespace vantrel::recipes
