// Photographs of 3D scenes in daylight: sun with shadows, light from the sky, a horizon.
#pragma once

#include <wx/image.h>

#include "view3d/scene/scene.h"
#include "view3d/scene_painter.h"

namespace vantrel {

// The view's frame: x as the world's, y negated, z up, mm.
struct Shot {
  Vec3f eye;
  Vec3f target;
  float viewDegrees = 35.0F;  // from the lower to the upper edge
  PaintSize size;             // of the finished picture, pixels
  Vec3f toSun{-0.55F, -0.35F, 0.62F};
  float shadowReach = 1500.0F;  // mm around the target, in which things throw shadows
};

// Of all ground that is to grow grass.
inline constexpr Rgb kMeadow{0.42F, 0.58F, 0.29F};

// An invalid image when there is no OpenGL to draw with off screen.
wxImage Photograph(const Scene& scene, const Shot& shot);

}  // namespace vantrel
