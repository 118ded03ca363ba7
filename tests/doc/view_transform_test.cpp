#include "doc/view_transform.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantrel {
namespace {

TEST(ViewTransform, StartsAtFourTenthsAndSixtyPixelsIn) {
  const ViewTransform view;
  EXPECT_EQ(view.scale, 0.4);
  EXPECT_EQ(view.offsetX, 60.0);
  EXPECT_EQ(view.offsetY, 60.0);
  EXPECT_EQ(view.toDevice({0.0, 0.0}), (DevicePoint{60, 60}));
  EXPECT_EQ(view.toDevice({100.0, -50.0}), (DevicePoint{100, 40}));
}

TEST(ViewTransform, TruncatesTowardZeroOnBothSidesOfTheOrigin) {
  const ViewTransform view{.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};
  EXPECT_EQ(view.toDevice({1.9, -1.9}), (DevicePoint{1, -1}));
  EXPECT_EQ(view.toDevice({0.9, -0.9}), (DevicePoint{0, 0}));
}

TEST(ViewTransform, FindsTheWorldPointUnderAPixel) {
  const ViewTransform view;
  const Vec2 world = view.toWorld({300, 200});  // (300 - 60) / 0.4 and (200 - 60) / 0.4
  EXPECT_NEAR(world.x, 600.0, 1e-9);
  EXPECT_NEAR(world.y, 350.0, 1e-9);
}

TEST(DeviceInt, IsDefinedForEveryDouble) {
  EXPECT_EQ(DeviceInt(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(DeviceInt(std::numeric_limits<double>::infinity()), 1'000'000'000);
  EXPECT_EQ(DeviceInt(-std::numeric_limits<double>::infinity()), -1'000'000'000);
  EXPECT_EQ(DeviceInt(1e308), 1'000'000'000);
  EXPECT_EQ(DeviceInt(-1e308), -1'000'000'000);
  EXPECT_EQ(DeviceInt(-7.99), -7);
}

}  // namespace
}  // namespace vantrel
