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
  // What has a size of its own, such as a line's width or a text's padding, is told in pixels of a
  // screen. On a page of 1,200 dots an inch a pixel must be many dots, or nobody could see it.
  double pixel = 1.0;      // device units in a pixel; 1 on a screen
  double fontScale = 1.0;  // from the points that a screen has to those of the device's fonts

  // The device point of a world point, truncated toward zero at the last step.
  constexpr DevicePoint toDevice(Vec2 world) const {
    return {DeviceInt(scale * world.x + offsetX), DeviceInt(scale * world.y + offsetY)};
  }
  constexpr Vec2 toWorld(DevicePoint device) const {
    return {(device.x - offsetX) / scale, (device.y - offsetY) / scale};
  }

  // Pixels per mm: what decides how big texts are.
  constexpr double pixelScale() const { return scale / pixel; }
  // `count` pixels in device units, truncated; never nothing for one or more.
  constexpr int pixels(int count) const {
    const int units = DeviceInt(count * pixel);
    return count > 0 && units < 1 ? 1 : units;
  }
  // A screen's point size on this device. The limit only keeps the text engine from overflowing.
  constexpr int fontPoints(double points) const {
    constexpr int kMostPoints = 4000;
    const int scaled = DeviceInt(points * fontScale + 0.5);
    return scaled < 1 ? 1 : scaled > kMostPoints ? kMostPoints : scaled;
  }

  friend bool operator==(const ViewTransform&, const ViewTransform&) = default;
};

}  // namespace vantrel
