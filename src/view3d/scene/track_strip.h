// What the strip of track along a path is made of; the same in every track system.
#pragma once

#include "view3d/scene/mesh.h"

namespace vantrel {

inline constexpr SolidColours kBallastColours{.side = {0.58F, 0.56F, 0.52F},
                                              .top = {0.76F, 0.74F, 0.7F}};
inline constexpr SolidColours kRailColours{.side = {0.52F, 0.52F, 0.56F},
                                           .top = {0.74F, 0.74F, 0.78F}};
inline constexpr SolidColours kSleeperColours{.side = {0.28F, 0.18F, 0.1F},
                                              .top = {0.38F, 0.27F, 0.16F}};

// mm
inline constexpr float kBallastHalfWidthMm = 18.7F;
inline constexpr float kSleeperHalfLengthMm = 13.0F;
inline constexpr float kSleeperHalfWidthMm = 1.75F;
inline constexpr double kSleeperStepMm = 13.0;  // from one to the next

}  // namespace vantrel
