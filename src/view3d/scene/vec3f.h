// Arithmetic on the 3D view's vectors.
#pragma once

#include <cmath>

#include "view3d/scene/mesh.h"

namespace vantrel {

inline Vec3f operator+(Vec3f a, Vec3f b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3f operator-(Vec3f a, Vec3f b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3f operator*(Vec3f a, float factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}

inline float Dot(Vec3f a, Vec3f b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Vec3f Cross(Vec3f a, Vec3f b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline float Length(Vec3f a) {
  return std::sqrt(Dot(a, a));
}

// `a` at length 1, or `fallback` when it is too short to have a direction.
inline Vec3f Unit(Vec3f a, Vec3f fallback) {
  const float length = Length(a);
  return length > 1e-6F ? a * (1.0F / length) : fallback;
}

}  // namespace vantrel
