// What the user may say of a shape, as a dialog shows it.
#pragma once

#include <cstdint>
#include <string>

#include "doc/layout.h"

namespace vantrel {

struct ShapeProperties {
  std::string label;  // UTF-8
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  int opacityPercent = 0;  // 0 to 100
  double height = 0.0;     // mm
  bool outline = true;

  friend bool operator==(const ShapeProperties&, const ShapeProperties&) = default;
};

ShapeProperties ShapePropertiesOf(const Shape& shape);

// Line breaks in the label become blanks.
void SetShapeProperties(Shape& shape, const ShapeProperties& properties);

// The factors by which the user has resized a scenery item.
struct SceneryScale {
  double x = 1.0;
  double y = 1.0;

  friend bool operator==(const SceneryScale&, const SceneryScale&) = default;
};

// The size of a scenery item in the catalog, mm.
struct SceneryFootprint {
  double width = 0.0;
  double depth = 0.0;
};

}  // namespace vantrel
