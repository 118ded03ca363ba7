// From a piece's pose to its connectors in the world, and back. These are the only two ways.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "doc/vec2.h"

namespace vantrel {

struct WorldConnector {
  double x = 0.0;        // mm
  double y = 0.0;        // mm
  double heading = 0.0;  // degrees in [0, 360), outward
  bool open = true;
  std::int32_t connectorIndex = 0;

  Pose pose() const { return {x, y, heading}; }
};

// Brings an angle into [0, 360) with the result of repeated addition or subtraction of 360.
// Terminates for every double: 0 for infinity, not-a-number and angles too large to have an answer.
double normalizeDegrees(double degrees);

// A local point of a piece at `pose`, in the world.
Vec2 LocalToWorld(const Pose& pose, Vec2 local);

// One connector of `def` in the world. `i` must be below the number of connectors.
WorldConnector worldConnector(const Piece& piece, const PieceDef& def, std::size_t i);

// One entry per connector of `def`, in id order. A connector is open when the piece has no slot for
// it or its slot holds no link.
std::vector<WorldConnector> worldConnectors(const Piece& piece, const PieceDef& def);

// The pose that a piece takes so that its connector `i` mates with the outward pose `target`. The
// zero pose for a connector that doesn't exist.
Pose poseForConnector(const PieceDef& def, std::int32_t i, const Pose& target);

// True when the slot is missing or holds no link (target exactly -1).
bool IsConnectorOpen(const Piece& piece, std::size_t i);

}  // namespace vantrel
