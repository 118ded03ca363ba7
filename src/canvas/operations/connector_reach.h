// How far from its origin a piece has connectors: enough to sort it out before any trigonometry.
#pragma once

#include "catalog/piece_def.h"

namespace vantrel {

// At least the distance in mm from a piece's origin to its farthest connector, whatever its
// heading.
double ConnectorReach(const PieceDef& def);

// The largest ConnectorReach of all parts in the catalog.
double LongestConnectorReach();

// What a test by the origin alone has to allow beyond limit and reach, so that the rounding of the
// exact sums sorts out nothing: `size` is the sum of the coordinates' magnitudes, in mm.
inline double ReachSlack(double size) {
  constexpr double kSlackMm = 1.0;
  constexpr double kRelativeSlack = 1e-14;  // some 45 steps of a double
  return kSlackMm + kRelativeSlack * size;
}

}  // namespace vantrel
