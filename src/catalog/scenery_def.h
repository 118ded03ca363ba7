// The catalog's record of one scenery item and of its 2D drawing.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "doc/vec2.h"

namespace vantrel {

enum class PrimitiveKind : std::uint8_t {
  filledRectangle = 0,
  filledEllipse = 1,
  polygon = 2,
  outlinedRectangle = 3,
  outlinedEllipse = 4,
  line = 5,
  text = 6
};

struct Rgba {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  std::uint8_t a = 255;

  friend bool operator==(const Rgba&, const Rgba&) = default;
};

// One drawing step, in the item's definition frame: mm, origin at the corner of the footprint, +y
// downward. For a line (x, y) and (w, h) are its two ends; for a text (x, y) is the centre of the
// text and h its size.
struct ScenePrimitive {
  PrimitiveKind kind = PrimitiveKind::filledRectangle;
  Rgba fill;
  Rgba stroke;
  std::int32_t strokeWidth = 0;  // device units
  double x = 0.0;
  double y = 0.0;
  double w = 0.0;
  double h = 0.0;
  std::vector<Vec2> points;  // polygon only
  std::string text;          // text only, UTF-8
};

// The categories of SceneryDef::category.
enum SceneryCategory : std::int32_t {
  kPlatforms = 0,
  kBuildings = 1,
  kStations = 2,
  kSignals = 3,
  kBridges = 4,
  kTunnels = 5,
  kRoads = 6,
  kNature = 7,
  kVehicles = 8,
  kSpecial = 9,
  kOther = 10
};

// What an item does beside standing there.
enum class SceneryRole : std::uint8_t {
  plain,
  turntablePit,  // a roundhouse turns to the nearest one
  roundhouse,
  tunnelPortal  // set at both ends of a tunnel
};

struct SceneryDef {
  std::string id;    // the key
  std::string name;  // palette text
  std::int32_t category = kOther;
  double width = 0.0;  // mm along the item's local x
  double depth = 0.0;  // mm along its local y
  bool standsOnGround = true;
  bool forZ = false;                       // a signal for Z-Track
  std::vector<ScenePrimitive> primitives;  // in drawing order
  SceneryRole role = SceneryRole::plain;
};

}  // namespace vantrel
