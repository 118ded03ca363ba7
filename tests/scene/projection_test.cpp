#include "view3d/scene/projection.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantrel {
namespace {

// An eye at the origin looks along -z: w is the distance ahead, x and y keep their size.
constexpr Matrix kEye{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, -1, 0, 0, 0, 0};

TEST(Projection, MeasuresInPixels) {
  const Projection projection{kEye, 200.0F, 100.0F};
  // 4 ahead, 2 to the right: half of the half width of 100 pixels.
  EXPECT_NEAR(PixelsBetween(projection, {0, 0, -4}, {2, 0, -4}), 50.0, 1e-6);
  // Up 3 quarters of the half height of 50.
  EXPECT_NEAR(PixelsBetween(projection, {0, 0, -4}, {0, 3, -4}), 37.5, 1e-6);
  // From 100 at the distance 1 to 50 at the distance 2.
  EXPECT_NEAR(PixelsBetween(projection, {1, 0, -1}, {1, 0, -2}), 50.0, 1e-6);
  EXPECT_NEAR(PixelsBetween(projection, {0, 0, -4}, {1.2F, 3.2F, -4}), 50.0, 1e-4);  // 30 and 40
}

TEST(Projection, WhatLiesBehindTheEyeIsNear) {
  const Projection projection{kEye, 200.0F, 100.0F};
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(PixelsBetween(projection, {0, 0, -4}, {2, 0, 4}), infinite);
  EXPECT_EQ(PixelsBetween(projection, {0, 0, 0}, {2, 0, -4}), infinite);
}

TEST(Projection, AProductDoesItsFirstMatrixFirst) {
  // Doubling x, then moving it by 5: column by column.
  const Matrix doubled{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  const Matrix moved{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1};
  EXPECT_EQ(Product(moved, doubled), (Matrix{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 0, 0, 1}));
  EXPECT_EQ(Product(doubled, moved), (Matrix{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1}));
}

}  // namespace
}  // namespace vantrel
