#include "view3d/scene/camera.h"

#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"

namespace vantrel {
namespace {

constexpr float kDegreesPerPixel = 0.5F;
constexpr float kLargestPitch = 89.0F;
constexpr float kPanDistanceMm = 900.0F;  // at which a pixel moves the plan by 1 mm
constexpr float kZoomIn = 0.88F;
constexpr float kZoomOut = 1.1363636F;
constexpr float kNearestMm = 50.0F;
constexpr float kFarthestMm = 15000.0F;

}  // namespace

void rotateByDrag(Camera& camera, int dx, int dy) {
  camera.yaw += static_cast<float>(dx) * kDegreesPerPixel;
  camera.pitch += static_cast<float>(dy) * kDegreesPerPixel;
  camera.pitch = std::clamp(camera.pitch, -kLargestPitch, kLargestPitch);
}

void panByDrag(Camera& camera, int dx, int dy) {
  const float y = camera.yaw * static_cast<float>(kPi / 180.0);
  const float sine = std::sin(y);
  const float cosine = std::cos(y);
  const auto right = static_cast<float>(dx);
  const auto down = static_cast<float>(dy);
  camera.panX += (sine * down + cosine * right) * camera.distance / kPanDistanceMm;
  camera.panY += (cosine * down - sine * right) * camera.distance / kPanDistanceMm;
}

void zoomByWheel(Camera& camera, int rotation) {
  camera.distance *= rotation > 0 ? kZoomIn : kZoomOut;
  camera.distance = std::clamp(camera.distance, kNearestMm, kFarthestMm);
}

void resetDirection(Camera& camera) {
  const Camera first;
  camera.pitch = first.pitch;
  camera.yaw = first.yaw;
  camera.panX = first.panX;
  camera.panY = first.panY;
}

void frameScene(Camera& camera, const Scene& scene) {
  if (!scene.framed) return;
  camera.centreX = scene.centreX;
  camera.centreY = scene.centreY;
  camera.distance = scene.distance;
}

}  // namespace vantrel
