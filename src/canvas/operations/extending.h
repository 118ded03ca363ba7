// Extending track by one more piece of the same part.
#pragma once

#include <cstdint>
#include <optional>

#include "doc/layout.h"

namespace vantrel {

enum class CloneOutcome {
  notApplicable,  // no such piece, a helix stub, an unknown part or one without connectors
  noFreeEnd,      // nothing changed, but that the piece has all its slots now
  cloned
};

struct CloneResult {
  CloneOutcome outcome = CloneOutcome::notApplicable;
  std::int32_t clone = kNone;  // id of the new piece
};

// Joins a copy of the piece to its free end, connector 1 before 0 and never a branch, as one undo
// step, and selects only the copy. An end that any piece has a joint to counts as taken, even when
// the piece's own slot is open.
CloneResult clonePiece(Layout& layout, std::int32_t id);

// Where track would go on from a piece that was just joined by one of its ends: at the end that the
// next double click takes, and where there is none at the far end of its centre line. Nothing for
// an unknown piece or part.
std::optional<Vec2> farEnd(const Layout& layout, std::int32_t id);

}  // namespace vantrel
