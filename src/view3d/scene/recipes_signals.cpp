// Semaphores and colour light signals. All sizes are multiples of a tenth of the footprint's width:
// 2 mm for an ordinary signal, 1.2 mm for a small one.
#include <algorithm>

#include "view3d/scene/recipes.h"

namespace vantrel::recipes {
namespace {

constexpr Rgb kFoot{0.3F, 0.3F, 0.32F};
constexpr Rgb kBandRed{0.85F, 0.18F, 0.18F};
constexpr Rgb kBandWhite{0.92F, 0.92F, 0.92F};
constexpr Rgb kArm{0.18F, 0.18F, 0.18F};
constexpr Rgb kGreenMast{0.18F, 0.36F, 0.24F};
constexpr Rgb kHead{0.12F, 0.12F, 0.13F};
constexpr Rgb kPanel{0.2F, 0.2F, 0.22F};
constexpr Rgb kLitGreen{0.3F, 0.78F, 0.32F};
constexpr Rgb kLitRed{0.85F, 0.15F, 0.15F};
constexpr Rgb kUnlit{0.08F, 0.08F, 0.08F};

constexpr float kMastWidth = 1.6F;

bool IsClear(const Item& item) {
  return item.id().find("_clear") != std::string_view::npos;
}

float Unit(const Item& item) {
  return item.width() / 10.0F;
}

// Seen from the front of the signal, the side toward +y, the arm reaches to the right.
void AddArm(Item& item, float mastHead) {
  constexpr float kLength = 16.0F;
  constexpr float kThickness = 3.0F;
  constexpr float kBoard = 0.6F;
  constexpr float kBehindMast = 2.0F;
  constexpr float kBelowHead = 3.5F;
  constexpr int kBlocks = 6;
  constexpr float kRaise = 0.7F;  // of a block's width
  const float s = Unit(item);
  const Vec3f m = item.middle();
  const Vec3f corner{m.x - kBehindMast * s, m.y + kMastWidth / 2.0F * s, mastHead - kBelowHead * s};
  if (!IsClear(item)) {
    item.box(corner, {kLength * s, kBoard * s, kThickness * s}, kArm);
    return;
  }
  const float block = kLength * s / kBlocks;
  item.row({.corner = corner,
            .size = {block, kBoard * s, kThickness * s},
            .step = {block, 0.0F, kRaise * block},
            .count = kBlocks},
           kArm);
}

}  // namespace

void MakeSemaphore(Item& item) {
  constexpr float kMast = 75.0F;
  constexpr float kBand = 8.0F;
  constexpr float kFinial = 4.0F;
  const float s = Unit(item);
  const Vec3f m = item.middle();
  item.box({m.x - 3.0F * s, m.y - 3.0F * s, 0.0F}, {6.0F * s, 6.0F * s, s}, kFoot);
  bool red = true;
  for (float z = 0.0F; z < kMast; z += kBand) {
    const float height = std::min(kBand, kMast - z);
    item.column({m.x, m.y, (1.0F + z) * s}, kMastWidth * s, height * s,
                red ? kBandRed : kBandWhite);
    red = !red;
  }
  const float head = (1.0F + kMast) * s;
  item.cone({m.x, m.y, head}, 1.3F * s, kFinial * s, kFoot, 8);
  AddArm(item, head);
}

void MakeColourLight(Item& item) {
  constexpr float kHeadZ = 28.0F;
  constexpr float kHeadHeight = 12.0F;
  constexpr float kPanelWidth = 4.0F;
  constexpr float kLamp = 1.2F;  // radius
  const float s = Unit(item);
  const Vec3f m = item.middle();
  item.box({m.x - 3.0F * s, m.y - 3.0F * s, 0.0F}, {6.0F * s, 6.0F * s, 1.5F * s}, kFoot);
  item.column({m.x, m.y, 1.5F * s}, kMastWidth * s, (kHeadZ - 1.5F) * s, kGreenMast);
  const float front = m.y + 1.5F * s;
  item.box({m.x - 3.0F * s, m.y - 1.5F * s, kHeadZ * s}, {6.0F * s, 3.0F * s, kHeadHeight * s},
           kHead);
  item.box({m.x - kPanelWidth / 2.0F * s, front, (kHeadZ + 1.0F) * s},
           {kPanelWidth * s, 0.4F * s, (kHeadHeight - 2.0F) * s}, kPanel);
  // Each lamp is a ball sunk to its middle in the panel.
  const bool clear = IsClear(item);
  const float lampY = front + 0.4F * s;
  item.sphere({m.x, lampY, (kHeadZ + 8.5F) * s}, kLamp * s, clear ? kLitGreen : kUnlit, 6);
  item.sphere({m.x, lampY, (kHeadZ + 3.5F) * s}, kLamp * s, clear ? kUnlit : kLitRed, 6);
}

}  // namespace vantrel::recipes
