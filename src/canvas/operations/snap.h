// The search for the connector that a moving piece would join.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/piece_def.h"
#include "doc/layout.h"

namespace vantrel {

// The program's snap limits everywhere: two connectors meet at up to this distance...
inline constexpr double kSnapDistanceMm = 25.0;
// ...and at this heading difference or more, which excludes only ends that point the same way.
inline constexpr double kSnapHeadingDegrees = 20.0;

struct SnapResult {
  bool found = false;
  std::int32_t targetPiece = kNone;      // id of the piece that stays
  std::int32_t targetConnector = kNone;  // connector number on it
  std::int32_t ownConnector = kNone;     // connector number on the moving piece
  double x = 0.0;                        // pose that the moving piece takes when it joins
  double y = 0.0;
  double heading = 0.0;
  double distance = 0.0;  // mm between the two connectors before the join

  Pose pose() const { return {x, y, heading}; }
};

struct IncompatibleJoin {
  bool found = false;
  std::int32_t ownSystem = 0;    // system of the moving connector
  std::int32_t otherSystem = 0;  // system of the connector it can't join
};

// Whether two connectors `distance` mm apart are within both limits. Not for not-a-number.
bool WithinSnapLimits(const WorldConnector& a, const WorldConnector& b, double distance);

// All pieces that are not on a hidden level, in order. The pointers die with the next change of
// `pieces`.
std::vector<const Piece*> VisiblePieces(const Layout& layout);
std::vector<const Piece*> AllPieces(const Layout& layout);

// The nearest pair of an open connector of `others` and a connector of `def` at `pose` that may
// join: same connector system, within the snap limits. At equal distances the first pair wins: the
// earliest piece, then its lowest connector, then the lowest own connector.
SnapResult findSnap(const PieceDef& def, const Pose& pose, std::span<const Piece* const> others);

// The first pair within the same limits, in the same order, whose connector systems differ.
IncompatibleJoin findIncompatibleJoin(const PieceDef& def, const Pose& pose,
                                      std::span<const Piece* const> others);

}  // namespace vantrel
