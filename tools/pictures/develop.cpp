#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "tools/pictures/horizon.h"
#include "tools/pictures/plates.h"

namespace vantrel {
namespace {

constexpr Rgb kSunlight{0.98F, 0.90F, 0.76F};
constexpr Rgb kSkylight{0.52F, 0.58F, 0.70F};
constexpr int kShadowTaps = 6;
constexpr float kShadowEdgeMm = 2.2F;
constexpr float kShadowBiasMm = 2.0F;
constexpr int kCornerTaps = 12;  // for the darkness in corners
constexpr float kCornerReachMm = 38.0F;
constexpr float kHazeMm = 14000.0F;

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed * 2654435761U + 1U) {}
  // Between -1 and 1.
  float roll() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return static_cast<float>(state_ >> 8) / 8388608.0F - 1.0F;
  }

 private:
  std::uint32_t state_;
};

class Darkroom {
 public:
  Darkroom(const Plates& plates, const Shot& shot)
      : plates_(plates),
        shot_(shot),
        lens_(LookingAlong(shot.eye - shot.target)),
        sun_(LookingAlong(shot.toSun)),
        upper_(std::tan(shot.viewDegrees * std::numbers::pi_v<float> / 360.0F)) {}

  Rgb at(int x, int y) const {
    const std::size_t i = index(x, y);
    const Vec3f ray = rayOf(x, y);
    if (plates_.depth[i] >= 1.0F) return HorizonColour(Unit(ray, lens_.back));
    const float far = distanceOf(plates_.depth[i]);
    const Vec3f point = shot_.eye + ray * far;
    Dice dice(static_cast<std::uint32_t>(i));
    const float lit = sunAt(point, dice);
    const float open = opennessAt(point, dice);
    const Rgb sun = pixel(plates_.sun, i);
    const Rgb sky = pixel(plates_.sky, i);
    Rgb colour{sun.r * kSunlight.r * lit + sky.r * kSkylight.r * open,
               sun.g * kSunlight.g * lit + sky.g * kSkylight.g * open,
               sun.b * kSunlight.b * lit + sky.b * kSkylight.b * open};
    if (isMeadow(i)) colour = grown(colour, point, far);
    return Mixed(colour, kHaze, 1.0F - std::exp(-std::max(0.0F, far - 900.0F) / kHazeMm));
  }

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(plates_.size.width) +
           static_cast<std::size_t>(x);
  }

  static Rgb pixel(const std::vector<unsigned char>& plate, std::size_t i) {
    const auto part = [&](std::size_t channel) {
      return static_cast<float>(plate[i * 3 + channel]) / 255.0F;
    };
    return {part(0), part(1), part(2)};
  }

  // From the eye, one mm deep along the line of sight.
  Vec3f rayOf(int x, int y) const {
    const auto width = static_cast<float>(plates_.size.width);
    const auto height = static_cast<float>(plates_.size.height);
    const float across = (2.0F * (static_cast<float>(x) + 0.5F) / width - 1.0F) * width / height;
    const float along = 2.0F * (static_cast<float>(y) + 0.5F) / height - 1.0F;
    return lens_.right * (across * upper_) + lens_.up * (along * upper_) - lens_.back;
  }

  static float distanceOf(float depth) {
    const float ndc = 2.0F * depth - 1.0F;
    return 2.0F * kFarMm * kNearMm / (kFarMm + kNearMm - ndc * (kFarMm - kNearMm));
  }

  // The share of the sun that reaches a point.
  float sunAt(Vec3f point, Dice& dice) const {
    const Vec3f from = point - shot_.target;
    const float reach = shot_.shadowReach;
    const float depth = 0.5F - 0.5F * (Dot(from, sun_.back) + kShadowBiasMm) / reach;
    int lit = 0;
    for (int tap = 0; tap < kShadowTaps; ++tap) {
      const float u = (Dot(from, sun_.right) + dice.roll() * kShadowEdgeMm) / reach;
      const float v = (Dot(from, sun_.up) + dice.roll() * kShadowEdgeMm) / reach;
      if (std::abs(u) >= 1.0F || std::abs(v) >= 1.0F) {
        ++lit;
        continue;
      }
      const auto column = static_cast<std::size_t>((u + 1.0F) / 2.0F * kShadowPixels);
      const auto row = static_cast<std::size_t>((v + 1.0F) / 2.0F * kShadowPixels);
      if (plates_.fromSun[row * kShadowPixels + column] >= depth) ++lit;
    }
    return static_cast<float>(lit) / kShadowTaps;
  }

  // How much of the sky a point sees: of places around it, half are behind the surface where the
  // surface is flat, more in a corner.
  float opennessAt(Vec3f point, Dice& dice) const {
    int hidden = 0;
    for (int tap = 0; tap < kCornerTaps; ++tap) {
      const Vec3f near{dice.roll(), dice.roll(), dice.roll()};
      const Vec3f from = point + near * kCornerReachMm - shot_.eye;
      const float deep = -Dot(from, lens_.back);
      if (deep < kNearMm) continue;
      const float height = static_cast<float>(plates_.size.height);
      const float scale = height / (2.0F * upper_ * deep);
      const int x = static_cast<int>(static_cast<float>(plates_.size.width) / 2.0F +
                                     Dot(from, lens_.right) * scale);
      const int y = static_cast<int>(height / 2.0F + Dot(from, lens_.up) * scale);
      if (x < 0 || y < 0 || x >= plates_.size.width || y >= plates_.size.height) continue;
      const float seen = distanceOf(plates_.depth[index(x, y)]);
      if (seen < deep - 0.5F && seen > deep - 3.0F * kCornerReachMm) ++hidden;
    }
    const float share = static_cast<float>(hidden) / kCornerTaps;
    return 1.0F - 1.5F * std::max(0.0F, share - 0.45F);
  }

  bool isMeadow(std::size_t i) const {
    const auto matches = [&](std::size_t channel, float wanted) {
      return std::abs(static_cast<float>(plates_.colour[i * 3 + channel]) - wanted * 255.0F) < 2.0F;
    };
    return matches(0, kMeadow.r) && matches(1, kMeadow.g) && matches(2, kMeadow.b);
  }

  // Patches of richer and drier grass, and blades near the eye.
  static Rgb grown(Rgb colour, Vec3f point, float far) {
    const float patch = Noise(point.x / 420.0F, point.y / 420.0F) - 0.5F;
    const float tuft = Noise(point.x / 26.0F, point.y / 26.0F) - 0.5F;
    const float blades = tuft * SmoothStep(5000.0F, 700.0F, far);
    const float light = 1.0F + 0.35F * patch + 0.45F * blades;
    return {colour.r * (light + 0.35F * patch), colour.g * light,
            colour.b * (light - 0.2F * patch)};
  }

  const Plates& plates_;
  const Shot& shot_;
  Axes lens_;
  Axes sun_;
  float upper_;
};

// Bright tones are pressed together instead of being cut off.
unsigned char Byte(float value) {
  constexpr float kKnee = 0.8F;
  if (value > kKnee) value = kKnee + (1.0F - kKnee) * std::tanh((value - kKnee) / (1.0F - kKnee));
  return static_cast<unsigned char>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255.0F));
}

}  // namespace

wxImage Develop(const Plates& plates, const Shot& shot) {
  const Darkroom darkroom(plates, shot);
  wxImage image(shot.size.width, shot.size.height, false);
  for (int row = 0; row < shot.size.height; ++row) {
    for (int column = 0; column < shot.size.width; ++column) {
      Rgb sum;
      for (int dy = 0; dy < kDetail; ++dy) {
        for (int dx = 0; dx < kDetail; ++dx) {
          const Rgb part =
              darkroom.at(column * kDetail + dx, plates.size.height - 1 - (row * kDetail + dy));
          sum = {sum.r + part.r, sum.g + part.g, sum.b + part.b};
        }
      }
      constexpr float kParts = kDetail * kDetail;
      image.SetRGB(column, row, Byte(sum.r / kParts), Byte(sum.g / kParts), Byte(sum.b / kParts));
    }
  }
  return image;
}

}  // namespace vantrel
