// Bridges, and the masonry that a line needs: pier, tunnel portals, retaining wall.
#include <cmath>
#include <cstddef>

#include "catalog/piece_builders.h"
#include "view3d/scene/recipes.h"
#include "view3d/scene/track_models.h"
#include "view3d/scene/vec3f.h"

namespace vantrel::recipes {
namespace {

// By which the sides of a bridge reach over its deck.
constexpr float kSideProud = 0.5F;

constexpr Rgb kKeystone{0.62F, 0.57F, 0.5F};

// A bridge of the track's kind runs from x 0 along the track; an item stands around its middle.
void AddTrackBridge(Item& item, void (*add)(Mesh&, float), float lift) {
  Mesh& mesh = item.mesh();
  const std::size_t first = mesh.positions.size();
  add(mesh, item.width());
  const Vec3f shift{-item.width() / 2.0F, 0.0F, lift};
  for (std::size_t i = first; i < mesh.positions.size(); ++i)
    mesh.positions[i] = mesh.positions[i] + shift;
}

// The same box on both sides of the line, `y` from either edge.
void AddOnBothSides(Item& item, Vec3f corner, Vec3f size, Rgb colour) {
  item.box(corner, size, colour);
  item.box({corner.x, item.depth() - corner.y - size.y, corner.z}, size, colour);
}

struct Opening {
  float x = 0.0F;
  float width = 0.0F;
};

constexpr float kPortalHeight = 55.0F;
constexpr float kOpeningHeight = 45.0F;
constexpr SolidColours kFrame{.side = {0.45F, 0.43F, 0.4F}, .top = {0.5F, 0.48F, 0.44F}};

// The line passes through along y. What is dark stands back from both faces of the frame.
void AddOpening(Item& item, Opening opening) {
  constexpr Rgb kDark{0.12F, 0.11F, 0.1F};
  constexpr float kRecess = 8.0F;
  const float d = item.depth();
  item.box({opening.x, kRecess, 0}, {opening.width, d - 2.0F * kRecess, kOpeningHeight}, kDark);
  item.box({opening.x - 2.0F, 6, 44}, {opening.width + 4.0F, d - 12.0F, 8}, kStone);
  item.box({opening.x + opening.width / 2.0F - 4.0F, d - 5.0F, 50}, {8, 6, 8}, kKeystone);
}

void AddWingWall(Item& item) {
  constexpr float kProud = 4.0F;
  item.box({0, 0, 0}, {10, item.depth() + kProud, 42}, kFrame);
}

// Uprights from `from` to `to` across the frame's depth.
void AddUpright(Item& item, float from, float to) {
  item.box({from, 0, 0}, {to - from, item.depth(), kOpeningHeight}, kFrame);
}

}  // namespace

void MakeSceneryTruss(Item& item) {
  AddTrackBridge(item, AddTrussBridge, 0.0F);
}

void MakeSceneryArch(Item& item) {
  AddTrackBridge(item, AddArchBridge, 0.0F);
}

void MakeArchBridge(Item& item) {
  constexpr float kDeckZ = 18.0F;
  constexpr Rgb kDeck{0.38F, 0.4F, 0.44F};
  constexpr Rgb kGirder{0.55F, 0.58F, 0.62F};
  const float w = item.width();
  // The arch's own deck lies just below the box. The side girders stand proud of the arch's feet
  // and of the deck, as no two faces in one plane should differ in colour.
  AddTrackBridge(item, AddArchBridge, kDeckZ);
  item.box({0, 8, kDeckZ}, {w, item.depth() - 16.0F, 4}, kDeck);
  AddOnBothSides(item, {-kSideProud, -kSideProud, 10}, {w + 2.0F * kSideProud, 9, 10}, kGirder);
}

void MakeTrussBridge(Item& item) {
  constexpr Rgb kDeck{0.35F, 0.38F, 0.42F};
  constexpr Rgb kChord{0.3F, 0.33F, 0.37F};
  constexpr float kPost = 5.0F;
  const float w = item.width();
  item.box({0, 14, 0}, {w, item.depth() - 28.0F, 4}, kDeck);
  const float length = w + 2.0F * kSideProud;
  AddOnBothSides(item, {-kSideProud, 8, 0}, {length, 8, 5}, kChord);
  AddOnBothSides(item, {-kSideProud, 8, 32}, {length, 6, 5}, kChord);
  for (const float x : {-kSideProud, w + kSideProud - kPost})
    AddOnBothSides(item, {x, 8, 0}, {kPost, 6, 37}, kChord);
}

void MakeViaductPier(Item& item) {
  constexpr SolidColours kConcrete{.side = {0.72F, 0.69F, 0.64F}, .top = {0.68F, 0.65F, 0.6F}};
  const float w = item.width();
  const float d = item.depth();
  item.slab(0.0F, 8.0F, kConcrete);
  item.box({4, 8, 8}, {w - 8.0F, d - 16.0F, 50}, kConcrete);
  item.box({6, 10, 58}, {w - 12.0F, d - 20.0F, 8}, kConcrete);
}

// The line passes through along x.
void MakeArchedPortal(Item& item) {
  constexpr int kBlocks = 12;
  constexpr float kBlockHeight = 8.0F;
  constexpr float kJoint = 1.0F;  // of mortar to both sides of a block
  constexpr float kProud = 0.4F;  // so that no two stones share a face
  const float w = item.width();
  const float d = item.depth();
  const float pillar = 0.18F * d;
  const float radius = 0.32F * d;
  for (const float y : {0.0F, d - pillar}) item.box({0, y, 0}, {w, pillar, 0.75F * d}, kDarkStone);
  // With their mortar the two blocks at the crown just meet.
  const float block =
      2.0F * radius * static_cast<float>(std::sin(kPi / kBlocks / 2.0)) - 2.0F * kJoint;
  for (int i = 0; i < kBlocks; ++i) {
    const double angle = (i + 0.5) / kBlocks * kPi;
    const float y = 0.5F * d + radius * static_cast<float>(std::cos(angle));
    const float z = 0.55F * d + radius * static_cast<float>(std::sin(angle));
    const float proud = i % 2 == 0 ? 2.0F * kProud : kProud;
    item.box({-proud, y - block / 2.0F - kJoint, z},
             {w + 2.0F * proud, block + 2.0F * kJoint, kBlockHeight},
             i % 2 == 0 ? kStone : kDarkStone);
  }
  item.box({0, 0.5F * d - 5.0F, 0.75F * d - 4.0F}, {w, 10, 6}, kKeystone);
}

void MakePortal(Item& item) {
  constexpr float kJamb = 8.0F;
  const float w = item.width();
  item.slab(kOpeningHeight, kPortalHeight - kOpeningHeight, kFrame);
  AddUpright(item, 0.0F, kJamb);
  AddUpright(item, w - kJamb, w);
  AddOpening(item, {kJamb, w - 2.0F * kJamb});
  AddWingWall(item);
}

void MakeDoublePortal(Item& item) {
  constexpr float kWidth = 50.0F;
  const float w = item.width();
  // Three equal uprights, where there is room for them.
  const float upright = (w - 2.0F * kWidth) / 3.0F;
  item.slab(kOpeningHeight, kPortalHeight - kOpeningHeight, kFrame);
  for (int i = 0; i < 3; ++i) {
    const float from = static_cast<float>(i) * (upright + kWidth);
    AddUpright(item, from, from + upright);
    if (i < 2) AddOpening(item, {from + upright, kWidth});
  }
  AddWingWall(item);
}

void MakeRetainingWall(Item& item) {
  constexpr SolidColours kWall{.side = {0.5F, 0.47F, 0.43F}, .top = {0.56F, 0.53F, 0.48F}};
  constexpr SolidColours kCoping{.side = {0.62F, 0.59F, 0.54F}, .top = {0.5F, 0.47F, 0.43F}};
  constexpr int kButtresses = 5;
  constexpr float kButtress = 6.0F;
  constexpr float kEdge = 2.0F;
  constexpr float kProud = 4.0F;
  item.slab(0.0F, 50.0F, kWall);
  item.slab(50.0F, 6.0F, kCoping);
  const float step = (item.width() - kButtress - 2.0F * kEdge) / (kButtresses - 1);
  item.row({.corner = {kEdge, item.depth(), 0},
            .size = {kButtress, kProud, 48},
            .step = {step, 0, 0},
            .count = kButtresses},
           kStone);
}

}  // namespace vantrel::recipes
