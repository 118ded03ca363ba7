// How a piece runs: its ways, from which connector to which, over which straights and arcs. Whoever
// draws, hits, selects, models or runs along a piece takes its shape from here; where one of them
// wants another shape, it says so and why.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "catalog/piece_def.h"
#include "doc/vec2.h"

namespace vantrel {

// Below this radius an arc is no arc: the piece runs straight.
inline constexpr double kSmallestArcRadiusMm = 1.0;

// A straight or an arc, in the piece's own frame.
struct Stretch {
  Pose start{};         // its heading is that of the track there
  double length = 0.0;  // mm along the track
  double radius = 0.0;  // mm, 0 for a straight
  double sweep = 0.0;   // degrees: positive bends to the right, which is local +y; 0 for a straight

  bool isArc() const { return radius >= kSmallestArcRadiusMm; }
  // `part` is a share of the stretch, 0 at its start and 1 at its end; beyond them it goes on.
  Pose at(double part) const;
};

// A way through a piece, in the direction from connector `from`.
struct Way {
  std::int32_t from = -1;
  std::int32_t to = -1;  // -1 where the track ends inside the piece, as before a buffer stop
  std::array<Stretch, 2> parts;
  std::size_t partCount = 1;

  std::span<const Stretch> stretches() const& { return {parts.data(), partCount}; }
  // Of a passing value they would be gone before they are seen.
  std::span<const Stretch> stretches() const&& = delete;
  double length() const;  // mm along the track
  // The point and heading `distance` mm along the track; before its start and beyond its end the
  // track is taken to go on as it begins and ends.
  Pose at(double distance) const;
};

// The number of ways, by kind and connectors.
std::size_t WayCount(const PieceDef& def);

// Way `i`, in an order that drawing relies on:
//   turnouts            0: straight on. 1: the branch to connector 2. 2: a three-way's other branch
//   curved turnouts     0: the inner curve. 1: the outer one, after a straight lead
//   crossing, slip      0: connector 0 to 1. 1: connector 2 to 3
//   slip                2: connector 0 to 3, an arc. 3: connector 2 to 1, an arc
//   turntable           i: over the bridge, from connector i to the one across
//   all others          0
// A way that the definition has no connectors for is given as far as it can be told.
Way WayOf(const PieceDef& def, std::size_t i);

// The straight from the origin over the definition's length, which every kind has.
Stretch StraightOf(const PieceDef& def);
// The arc from `start` with the definition's radius; the straight over its length when that is too
// small for an arc.
Stretch ArcOf(const PieceDef& def, const Pose& start, double sweep);

// The sweep of the arc on `route` 1, 2 or 3: the plain one, a turnout's branch, and the other
// branch of a three-way turnout. A branch is cut where it would run past the turnout's own length,
// but the other one of a three-way isn't.
double RouteSweep(const PieceDef& def, int route);

// To which side a piece bends, 1 to the right (local +y), -1 to the left: by its angle, and by
// where its connector `i` lies. They part only in a right turnout that is listed with a left one's
// angle.
double BendSide(const PieceDef& def);
double SideOfConnector(const PieceDef& def, std::size_t i);

// How far the outer curve of a C family curved turnout lies ahead of the inner one, mm.
double OuterCurveLead(const PieceDef& def);

}  // namespace vantrel
