// What the studio's exposures hold before they are put together.
#pragma once

#include <vector>

#include "tools/pictures/studio.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {

inline constexpr int kDetail = 3;  // pixels of an exposure along a pixel of the picture
inline constexpr float kNearMm = 20.0F;
inline constexpr float kFarMm = 90000.0F;
inline constexpr int kShadowPixels = 4096;

// A right-handed frame that looks along -back.
struct Axes {
  Vec3f right;
  Vec3f up;
  Vec3f back;
};

Axes LookingAlong(Vec3f back);

// Rows from below.
struct Plates {
  PaintSize size;                     // of the exposures
  std::vector<unsigned char> colour;  // three bytes a pixel, as if lit evenly from everywhere
  std::vector<unsigned char> sun;     // by the sun alone, without shadows
  std::vector<unsigned char> sky;     // by the sky alone
  std::vector<float> depth;           // 0 to 1 as OpenGL keeps it
  std::vector<float> fromSun;         // depth as the sun sees it, kShadowPixels square
  bool ok = false;
};

Plates Expose(const Scene& scene, const Shot& shot);

// Puts the exposures together and makes them as small as the picture.
wxImage Develop(const Plates& plates, const Shot& shot);

}  // namespace vantrel
