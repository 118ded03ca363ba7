// Trees and bushes.
#include "view3d/scene/recipes.h"

namespace vantrel::recipes {
namespace {

constexpr Rgb kShadedLeaf{0.18F, 0.4F, 0.16F};
constexpr Rgb kFirGreen{0.12F, 0.36F, 0.18F};
constexpr int kConeSides = 12;

struct RoundTree {
  Vec3f foot;
  float trunkWidth = 0.0F;
  float trunkHeight = 0.0F;
  float crownZ = 0.0F;
  float crownRadius = 0.0F;
  int crownRings = 0;
  Rgb crown;
};

void AddRoundTree(Item& item, const RoundTree& tree) {
  item.column(tree.foot, tree.trunkWidth, tree.trunkHeight, kTrunk);
  item.sphere({tree.foot.x, tree.foot.y, tree.crownZ}, tree.crownRadius, tree.crown,
              tree.crownRings);
}

}  // namespace

void MakeSmallTree(Item& item) {
  AddRoundTree(item, {item.middle(), 3.0F, 14.0F, 18.0F, 13.0F, 8, kLeaf});
}

void MakeLargeTree(Item& item) {
  const Vec3f m = item.middle();
  AddRoundTree(item, {m, 4.0F, 20.0F, 26.0F, 22.0F, 10, kLeaf});
  item.sphere({m.x + 6.0F, m.y + 4.0F, 28.0F}, 14.0F, kShadedLeaf, 8);
}

void MakeConifer(Item& item) {
  const Vec3f m = item.middle();
  item.column(m, 3.0F, 10.0F, kTrunk);
  item.cone({m.x, m.y, 8.0F}, 10.0F, 16.0F, kShadedLeaf, kConeSides);
  item.cone({m.x, m.y, 18.0F}, 7.0F, 14.0F, kFirGreen, kConeSides);
  item.cone({m.x, m.y, 26.0F}, 4.0F, 12.0F, kLeaf, kConeSides);
}

// One to the left, one to the right behind it, a small one in front between them.
void MakeTreeGroup(Item& item) {
  const float w = item.width();
  const float d = item.depth();
  AddRoundTree(item, {{0.25F * w, 0.4F * d, 0}, 3.0F, 20.0F, 30.0F, 22.0F, 9, kLeaf});
  AddRoundTree(item, {{0.8F * w, 0.44F * d, 0}, 3.0F, 18.0F, 26.0F, 17.0F, 8, kFirGreen});
  AddRoundTree(item, {{0.54F * w, 0.74F * d, 0}, 3.0F, 12.0F, 20.0F, 14.0F, 8, kShadedLeaf});
}

void MakeBush(Item& item) {
  const Vec3f m = item.middle();
  item.sphere({m.x, m.y, 4.0F}, 9.0F, kLeaf, 7);
}

}  // namespace vantrel::recipes
