// Where points of the scene come to lie on the screen.
#pragma once

#include <array>

#include "view3d/scene/mesh.h"

namespace vantrel {

// Column by column, as OpenGL keeps it.
using Matrix = std::array<float, 16>;

// What `first` does and then `second`.
Matrix Product(const Matrix& second, const Matrix& first);

struct Projection {
  Matrix matrix{};  // from the scene to the cube from -1 to 1, before the division by w
  float width = 0.0F;
  float height = 0.0F;  // of the picture, pixels
};

// On the screen; infinite when one of the points lies beside or behind the eye.
double PixelsBetween(const Projection& projection, Vec3f a, Vec3f b);

}  // namespace vantrel
