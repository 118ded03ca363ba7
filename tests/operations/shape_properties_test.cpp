#include "canvas/operations/shape_properties.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(ShapeProperties, ALabelStandsOnOneLine) {
  Shape shape;
  SetShapeProperties(shape, {.label = "Mill\npond\r", .opacityPercent = 40});
  EXPECT_EQ(shape.label, "Mill pond ");
}

TEST(ShapeProperties, OpacityGoesFromPercentToABytesShareAndBack) {
  Shape shape;
  SetShapeProperties(shape, {.label = "", .opacityPercent = 37});
  EXPECT_EQ(shape.a, 94) << "0.37 * 255 = 94.35";
  EXPECT_EQ(ShapePropertiesOf(shape).opacityPercent, 37);
  SetShapeProperties(shape, {.label = "", .opacityPercent = 130});
  EXPECT_EQ(shape.a, 255);
  SetShapeProperties(shape, {.label = "", .opacityPercent = -3});
  EXPECT_EQ(shape.a, 0);
}

}  // namespace
}  // namespace vantrel
