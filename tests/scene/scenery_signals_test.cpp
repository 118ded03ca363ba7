// Signals are built in tenths of their footprint: 2 mm for an ordinary one, 1.2 mm for a small one.
#include <gtest/gtest.h>

#include "tests/scene/scenery_support.h"

namespace vantrel {
namespace {

constexpr Rgb kRed{0.85F, 0.18F, 0.18F};
constexpr Rgb kWhite{0.92F, 0.92F, 0.92F};
constexpr Rgb kArm{0.18F, 0.18F, 0.18F};
constexpr Rgb kFoot{0.3F, 0.3F, 0.32F};
constexpr Rgb kLitGreen{0.3F, 0.78F, 0.32F};
constexpr Rgb kLitRed{0.85F, 0.15F, 0.15F};

constexpr Footprint kOrdinary{20, 20};
constexpr Footprint kSmall{12, 12};

Mesh MastOf(const Model& model) {
  return PartOf(model, [](const Triangle& triangle) {
    return triangle.colour == kRed || triangle.colour == kWhite;
  });
}

TEST(SemaphoreModel, HasAMast150HighAnd90ForASmallOne) {
  // On a base as high as one unit; 1.6 units square.
  for (const std::string_view id : {"signal_semaphore_stop", "signal_semaphore_clear"})
    ExpectBounds(MastOf(ModelOf(id)), {-1.6F, -1.6F, 2}, {1.6F, 1.6F, 152});
  for (const std::string_view id : {"signal_z_semaphore_stop", "signal_z_semaphore_clear"})
    ExpectBounds(MastOf(ModelOf(id)), {-0.96F, -0.96F, 1.2F}, {0.96F, 0.96F, 91.2F});
}

TEST(SemaphoreModel, BandsTheMastInRedAndWhite) {
  const Model model = ModelOf("signal_semaphore_stop");
  // Bands of 16 mm from z 2; 150 / 16 leaves 6 for the tenth, which is white.
  ExpectBox(model, kOrdinary, {8.4F, 8.4F, 2}, {3.2F, 3.2F, 16}, kRed);
  ExpectBox(model, kOrdinary, {8.4F, 8.4F, 18}, {3.2F, 3.2F, 16}, kWhite);
  ExpectBox(model, kOrdinary, {8.4F, 8.4F, 130}, {3.2F, 3.2F, 16}, kRed);
  ExpectBox(model, kOrdinary, {8.4F, 8.4F, 146}, {3.2F, 3.2F, 6}, kWhite);
  EXPECT_EQ(TriangleCount(MastOf(model)), 10U * 12);
}

TEST(SemaphoreModel, StandsOnABaseAndEndsInAFinial) {
  const Model model = ModelOf("signal_semaphore_stop");
  ExpectBox(model, kOrdinary, {4, 4, 0}, {12, 12, 2}, kFoot);
  EXPECT_NEAR(BoundsOf(model).high.z, 160.0F, 1e-3F);  // 152 + 4 * 2
  const Model small = ModelOf("signal_z_semaphore_stop");
  ExpectBox(small, kSmall, {2.4F, 2.4F, 0}, {7.2F, 7.2F, 1.2F}, kFoot);
  EXPECT_NEAR(BoundsOf(small).high.z, 96.0F, 1e-3F);  // 91.2 + 4 * 1.2
}

TEST(SemaphoreModel, HoldsItsArmLevelAtStop) {
  const Mesh arm = PartIn(ModelOf("signal_semaphore_stop"), kArm);
  EXPECT_EQ(TriangleCount(arm), 12U);
  const Bounds bounds = BoundsOf(arm);
  EXPECT_NEAR(bounds.high.x - bounds.low.x, 32.0F, 1e-3F);
  EXPECT_NEAR(bounds.high.z - bounds.low.z, 6.0F, 1e-3F);
  EXPECT_LT(bounds.high.z, 152.0F);
  EXPECT_GT(bounds.low.z, 140.0F);
  // In front of the mast, and over it.
  EXPECT_NEAR(bounds.high.y, -1.6F, 1e-3F);
  EXPECT_LT(bounds.low.x, 0.0F);
}

TEST(SemaphoreModel, RaisesItsArmInSixBlocksAtClear) {
  const Mesh stop = PartIn(ModelOf("signal_semaphore_stop"), kArm);
  const Mesh clear = PartIn(ModelOf("signal_semaphore_clear"), kArm);
  EXPECT_EQ(TriangleCount(clear), 72U);
  const Bounds bounds = BoundsOf(clear);
  const Bounds level = BoundsOf(stop);
  EXPECT_NEAR(bounds.low.z, level.low.z, 1e-3F);
  EXPECT_NEAR(bounds.high.x - bounds.low.x, 32.0F, 1e-3F);
  // Blocks of 32 / 6 = 5.333, each 3.7333 above the one before: 5 * 3.7333 + 6.
  EXPECT_NEAR(bounds.high.z - bounds.low.z, 24.667F, 1e-2F);
  const Footprint size = kOrdinary;
  const float x = bounds.low.x + 10.0F;
  const float y = 10.0F - bounds.high.y;
  ExpectBox(clear, size, {x, y, bounds.low.z}, {5.3333F, 1.2F, 6}, kArm);
  ExpectBox(clear, size, {x + 5.3333F, y, bounds.low.z + 3.7333F}, {5.3333F, 1.2F, 6}, kArm);
}

TEST(ColourLightModel, CarriesItsHeadAt28UnitsOnAGreenMast) {
  const Model model = ModelOf("signal_color_stop");
  ExpectBox(model, kOrdinary, {4, 4, 0}, {12, 12, 3}, kFoot);
  ExpectBounds(PartIn(model, {0.18F, 0.36F, 0.24F}), {-1.6F, -1.6F, 3}, {1.6F, 1.6F, 56});
  ExpectBounds(PartIn(model, {0.12F, 0.12F, 0.13F}), {-6, -3, 56}, {6, 3, 80});
  const Bounds panel = BoundsOf(PartIn(model, {0.2F, 0.2F, 0.22F}));
  EXPECT_NEAR(panel.high.x - panel.low.x, 8.0F, 1e-3F);
  const Model small = ModelOf("signal_z_color_stop");
  // 28 * 1.2 = 33.6, and 40 * 1.2 = 48.
  ExpectBounds(PartIn(small, {0.12F, 0.12F, 0.13F}), {-3.6F, -1.8F, 33.6F}, {3.6F, 1.8F, 48});
}

TEST(ColourLightModel, LightsGreenAtClearAndRedOtherwise) {
  for (const std::string_view id : {"signal_color_clear", "signal_z_color_clear"}) {
    const Model model = ModelOf(id);
    EXPECT_FALSE(PartIn(model, kLitGreen).empty()) << id;
    EXPECT_TRUE(PartIn(model, kLitRed).empty()) << id;
  }
  for (const std::string_view id : {"signal_color_stop", "signal_z_color_stop"}) {
    const Model model = ModelOf(id);
    EXPECT_TRUE(PartIn(model, kLitGreen).empty()) << id;
    EXPECT_FALSE(PartIn(model, kLitRed).empty()) << id;
  }
}

TEST(SignalModel, TakesItsSizeFromTheFootprint) {
  // A unit of 3: the mast's 75 on a base of 1.
  const Model model = makeSceneryModel("signal_semaphore_stop", {30, 30});
  ExpectBounds(MastOf(model), {-2.4F, -2.4F, 3}, {2.4F, 2.4F, 228});
}

TEST(SignalModel, IsNoSignalUnderAnyOtherIdThatContainsClear) {
  EXPECT_EQ(TriangleCount(makeSceneryModel("signal_other_clear", {20, 20})), 12U);
}

}  // namespace
}  // namespace vantrel
