// What lies behind a photograph: sky, clouds, two rows of hills; and the noise that they are made
// of.
#pragma once

#include "view3d/scene/mesh.h"

namespace vantrel {

// Smooth and between 0 and 1, the same on every machine; features of about 1 in x and y, down to an
// eighth of that.
float Noise(float x, float y);

// `direction` is of length 1, z up.
Rgb HorizonColour(Vec3f direction);

// Into what far things fade.
inline constexpr Rgb kHaze{0.83F, 0.88F, 0.90F};

Rgb Mixed(Rgb a, Rgb b, float share);
float SmoothStep(float from, float to, float value);

}  // namespace vantrel
