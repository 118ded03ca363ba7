#include <array>
#include <cmath>
#include <cstddef>

#include "catalog/piece_builders.h"
#include "view3d/scene/track_models.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr float kLowestSupportMm = 2.0F;
constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};

constexpr int kLobePoints = 9;
constexpr std::size_t kPierPoints = 2 * kLobePoints;
constexpr float kLobeRadiusMm = 11.0F;
constexpr float kLobeOffsetMm = 7.0F;
constexpr Rgb kStoneLight{0.62F, 0.58F, 0.54F};
constexpr Rgb kStoneDark{0.5F, 0.46F, 0.42F};
constexpr Rgb kPierCap{0.68F, 0.65F, 0.62F};

constexpr float kPostHalfMm = 3.5F;
constexpr std::array<Rgb, 2> kPostSides{Rgb{0.55F, 0.42F, 0.3F}, Rgb{0.45F, 0.34F, 0.24F}};

bool IsTallEnough(float x, float y, float base, float top, float angle) {
  return top - base >= kLowestSupportMm && std::isfinite(top - base) && std::isfinite(x) &&
         std::isfinite(y) && std::isfinite(angle);
}

Vec3f Turned(Vec3f v, double degrees) {
  const auto c = static_cast<float>(std::cos(Radians(degrees)));
  const auto s = static_cast<float>(std::sin(Radians(degrees)));
  return {v.x * c - v.y * s, v.x * s + v.y * c, v.z};
}

struct SectionPoint {
  Vec3f position;
  Vec3f normal;
};

// A stadium around the origin, along x, counter-clockwise.
std::array<SectionPoint, kPierPoints> PierSection() {
  std::array<SectionPoint, kPierPoints> section;
  for (int k = 0; k < kLobePoints; ++k) {
    const double angle = k * kPi / 8.0 - kPi / 2.0;
    const Vec3f out{static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle)), 0.0F};
    const Vec3f lobe{kLobeOffsetMm, 0.0F, 0.0F};
    const auto i = static_cast<std::size_t>(k);
    section[i] = {lobe + out * kLobeRadiusMm, out};
    // The other lobe is this one turned by half a circle.
    section[i + kLobePoints] = {section[i].position * -1.0F, out * -1.0F};
  }
  return section;
}

}  // namespace

void AddPier(Mesh& mesh, float x, float y, float base, float top, float angle) {
  if (!IsTallEnough(x, y, base, top, angle)) return;
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  const auto section = PierSection();
  const auto add = [&](Vec3f position, Vec3f normal, Rgb colour) {
    mesh.positions.push_back(position);
    mesh.normals.push_back(normal);
    mesh.colors.push_back(colour);
  };
  // Each point three times: at the foot, at the head, and in the cap. The stone darkens downward.
  for (const SectionPoint& point : section) {
    const Vec3f at = Turned(point.position, angle) + Vec3f{x, y, 0.0F};
    const Vec3f out = Turned(point.normal, angle);
    add({at.x, at.y, base}, out, kStoneDark);
    add({at.x, at.y, top}, out, kStoneLight);
    add({at.x, at.y, top}, kUp, kPierCap);
  }
  constexpr auto kCount = static_cast<std::uint32_t>(kPierPoints);
  for (std::uint32_t i = 0; i < kCount; ++i) {
    const std::uint32_t a = first + 3 * i;
    const std::uint32_t b = first + 3 * ((i + 1) % kCount);
    mesh.indices.insert(mesh.indices.end(), {a, b, b + 1, a, b + 1, a + 1});
    if (i > 0 && i + 1 < kCount) mesh.indices.insert(mesh.indices.end(), {first + 2, a + 2, b + 2});
  }
}

void AddPost(Mesh& mesh, float x, float y, float base, float top, float angle) {
  if (!IsTallEnough(x, y, base, top, angle)) return;
  const std::array<Vec3f, 4> square{Vec3f{kPostHalfMm, -kPostHalfMm, 0},
                                    {kPostHalfMm, kPostHalfMm, 0},
                                    {-kPostHalfMm, kPostHalfMm, 0},
                                    {-kPostHalfMm, -kPostHalfMm, 0}};
  constexpr std::array<Vec3f, 4> kOutward{Vec3f{1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, -1, 0}};
  std::array<Vec3f, 4> head;
  for (std::size_t i = 0; i < 4; ++i) head[i] = Turned(square[i], angle) + Vec3f{x, y, top};
  const Vec3f down{0.0F, 0.0F, base - top};
  for (std::size_t i = 0; i < 4; ++i) {
    const Vec3f a = head[i];
    const Vec3f b = head[(i + 1) % 4];
    AddQuad(mesh, {a + down, b + down, b, a}, Turned(kOutward[i], angle), kPostSides[i % 2]);
  }
  AddQuad(mesh, head, kUp, kPostSides[0]);
}

}  // namespace vantrel
