// The viewport of everything drawn in 2D, and the one conversion from world reals to device
// integers.
#pragma once

#include "doc/vec2.h"

namespace vantrel {

// A point in integer device units: screen pixels, or dots of a page.
struct DevicePoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const DevicePoint&, const DevicePoint&) = default;
};

struct DeviceSize {
  int width = 0;
  int height = 0;

  friend bool operator==(const DeviceSize&, const DeviceSize&) = default;
};

// Truncation toward zero that is defined for every double: not-a-number gives 0, and what lies
// beyond +-kDeviceLimit stops there. The limit leaves room for the sums that drawing makes.
inline constexpr int kDeviceLimit = 1'000'000'000;
constexpr int DeviceInt(double value) {
  if (!(value == value)) return 0;
  if (value >= kDeviceLimit) return kDeviceLimit;
  if (value <= -kDeviceLimit) return -kDeviceLimit;
  return static_cast<int>(value);
}

struct ViewTransform {
  double scale = 0.4;  // device units per mm
  double offsetX = 60.0;
  double offsetY = 60.0;

  // The device point of a world point, truncated toward zero at the last step.
  constexpr DevicePoint toDevice(Vec2 world) const {
    return {DeviceInt(scale * world.x + offsetX), DeviceInt(scale * world.y + offsetY)};
  }
  constexpr Vec2 toWorld(DevicePoint device) const {
    return {(device.x - offsetX) / scale, (device.y - offsetY) / scale};
  }

  friend bool operator==(const ViewTransform&, const ViewTransform&) = default;
};

}  // namespace vantrel
