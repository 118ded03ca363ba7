#include "canvas/operations/shape_properties.h"

#include <algorithm>
#include <cmath>

#include "doc/trimmed.h"

namespace vantrel {
namespace {

constexpr double kFullOpacity = 255.0;
constexpr double kPercent = 100.0;

int Percent(std::uint8_t opacity) {
  return static_cast<int>(std::lround(opacity * kPercent / kFullOpacity));
}

std::uint8_t Opacity(int percent) {
  const double opacity = std::clamp(percent, 0, 100) * kFullOpacity / kPercent;
  return static_cast<std::uint8_t>(std::lround(opacity));
}

}  // namespace

ShapeProperties ShapePropertiesOf(const Shape& shape) {
  return {.label = shape.label,
          .r = shape.r,
          .g = shape.g,
          .b = shape.b,
          .opacityPercent = Percent(shape.a),
          .height = shape.height,
          .outline = shape.outline};
}

void SetShapeProperties(Shape& shape, const ShapeProperties& properties) {
  shape.label = OneLine(properties.label);
  shape.r = properties.r;
  shape.g = properties.g;
  shape.b = properties.b;
  shape.a = Opacity(properties.opacityPercent);
  shape.height = properties.height;
  shape.outline = properties.outline;
}

}  // namespace vantrel
