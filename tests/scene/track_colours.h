// The colours by which the tests tell the parts of a track model apart.
#pragma once

#include "view3d/scene/mesh.h"

namespace vantrel {

inline constexpr Rgb kBallastTop{0.76F, 0.74F, 0.7F};
inline constexpr Rgb kBallastSide{0.58F, 0.56F, 0.52F};
inline constexpr Rgb kRailTop{0.74F, 0.74F, 0.78F};
inline constexpr Rgb kRailSide{0.52F, 0.52F, 0.56F};
inline constexpr Rgb kSleeperTop{0.38F, 0.27F, 0.16F};
inline constexpr Rgb kSleeperSide{0.28F, 0.18F, 0.1F};

}  // namespace vantrel
