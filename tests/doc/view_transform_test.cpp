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

TEST(ViewTransform, GoesThereAndBackWithAnOffsetOfItsOwnInEachDirection) {
  const ViewTransform view{.scale = 0.25, .offsetX = 30.0, .offsetY = -70.0};
  // 0.25 * 424 + 30 = 136; 0.25 * -92 - 70 = -93.
  EXPECT_EQ(view.toDevice({424.0, -92.0}), (DevicePoint{136, -93}));
  const Vec2 world = view.toWorld({136, -93});
  EXPECT_NEAR(world.x, 424.0, 1e-9);
  EXPECT_NEAR(world.y, -92.0, 1e-9);
}

TEST(ViewTransform, TellsThePixelsOfAScreenInThePagesDots) {
  // 600 dots an inch are 6.25 to a pixel.
  const ViewTransform page{.scale = 3.0, .pixel = 6.25};
  EXPECT_EQ(page.pixelScale(), 0.48);
  EXPECT_EQ(page.pixels(3), 18);  // 18.75
  EXPECT_EQ(page.pixels(0), 0);
  EXPECT_EQ(page.pixels(-3), -18);
  const ViewTransform coarse{.pixel = 0.3};
  EXPECT_EQ(coarse.pixels(2), 1) << "0.6, but never nothing";
  EXPECT_EQ(ViewTransform{}.pixels(7), 7);
}

TEST(ViewTransform, RoundsTheSizeOfTextsAndKeepsItWithinWhatTheEngineTakes) {
  const ViewTransform page{.fontScale = 1.3};
  EXPECT_EQ(page.fontPoints(8), 10);  // 10.4
  EXPECT_EQ(page.fontPoints(9), 12);  // 11.7
  EXPECT_EQ(ViewTransform{.fontScale = 0.01}.fontPoints(9), 1);
  EXPECT_EQ(ViewTransform{.fontScale = 900.0}.fontPoints(9), 4000);
  EXPECT_EQ(ViewTransform{.fontScale = 400.0}.fontPoints(9), 3600);
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
