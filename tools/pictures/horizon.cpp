#include "tools/pictures/horizon.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace vantrel {
namespace {

constexpr Rgb kZenith{0.25F, 0.49F, 0.80F};
constexpr Rgb kLowSky{0.80F, 0.89F, 0.95F};
constexpr Rgb kCloud{0.99F, 0.985F, 0.97F};
constexpr Rgb kFarHill{0.56F, 0.68F, 0.76F};
constexpr Rgb kNearHill{0.40F, 0.56F, 0.50F};

float Grain(std::int32_t x, std::int32_t y) {
  auto bits =
      static_cast<std::uint32_t>(x) * 374761393U + static_cast<std::uint32_t>(y) * 668265263U;
  bits = (bits ^ (bits >> 13)) * 1274126177U;
  return static_cast<float>((bits ^ (bits >> 16)) & 0xFFFFU) / 65535.0F;
}

float OneOctave(float x, float y) {
  const float fx = std::floor(x);
  const float fy = std::floor(y);
  const auto ix = static_cast<std::int32_t>(fx);
  const auto iy = static_cast<std::int32_t>(fy);
  const float tx = SmoothStep(0.0F, 1.0F, x - fx);
  const float ty = SmoothStep(0.0F, 1.0F, y - fy);
  const float lower = std::lerp(Grain(ix, iy), Grain(ix + 1, iy), tx);
  const float upper = std::lerp(Grain(ix, iy + 1), Grain(ix + 1, iy + 1), tx);
  return std::lerp(lower, upper, ty);
}

Rgb Clouded(Rgb sky, Vec3f direction) {
  if (direction.z < 0.02F) return sky;
  // A flat layer of clouds, so that they lie closer together toward the horizon.
  const float x = direction.x / (direction.z + 0.12F);
  const float y = direction.y / (direction.z + 0.12F);
  const float dense = Noise(x * 0.9F + 7.0F, y * 1.5F);
  const float share = SmoothStep(0.50F, 0.78F, dense) * SmoothStep(0.03F, 0.16F, direction.z);
  return Mixed(sky, kCloud, 0.85F * share);
}

}  // namespace

float Noise(float x, float y) {
  return (OneOctave(x, y) * 8.0F + OneOctave(x * 2.0F + 31.0F, y * 2.0F) * 4.0F +
          OneOctave(x * 4.0F, y * 4.0F + 17.0F) * 2.0F + OneOctave(x * 8.0F + 5.0F, y * 8.0F)) /
         15.0F;
}

Rgb Mixed(Rgb a, Rgb b, float share) {
  return {std::lerp(a.r, b.r, share), std::lerp(a.g, b.g, share), std::lerp(a.b, b.b, share)};
}

float SmoothStep(float from, float to, float value) {
  const float t = std::clamp((value - from) / (to - from), 0.0F, 1.0F);
  return t * t * (3.0F - 2.0F * t);
}

Rgb HorizonColour(Vec3f direction) {
  if (direction.z > 0.999F) return kZenith;
  // Around a circle, so that the hills close where they began.
  const float level = std::hypot(direction.x, direction.y);
  const float east = direction.x / level;
  const float north = direction.y / level;
  const float height = direction.z;
  const float nearHill = 0.010F + 0.035F * Noise(east * 5.0F + 3.0F, north * 5.0F);
  const float farHill = 0.020F + 0.085F * Noise(east * 3.0F + 11.0F, north * 3.0F);
  if (height < nearHill) return Mixed(kHaze, kNearHill, SmoothStep(-0.02F, 0.05F, height));
  if (height < farHill) return Mixed(kHaze, kFarHill, SmoothStep(-0.03F, 0.11F, height));
  return Clouded(Mixed(kLowSky, kZenith, SmoothStep(0.0F, 0.62F, height)), direction);
}

}  // namespace vantrel
