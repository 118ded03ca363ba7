// Starting, ending and laying anew a grade from one piece on.
#pragma once

#include <cstdint>

#include "doc/layout.h"

namespace vantrel {

// The walks of endGrade and recalcElevation end here, whatever the plan holds.
inline constexpr int kGradeWalkLimit = 200;
inline constexpr int kGradeRunSearchLimit = 100;

// All three do nothing for a piece that doesn't exist, and then return false.

// Puts a run of `deg` (signed degrees) in force on the piece and gives it that slope. Takes no undo
// step: the caller doesn't mark the plan changed either.
bool startGrade(Layout& layout, std::int32_t pieceId, double deg);

// PushUndo; the piece becomes level at its own base height, the flat pieces after it are laid anew,
// and the run found ahead ends.
bool endGrade(Layout& layout, std::int32_t pieceId);

// PushUndo; base height from the piece before, and the flat pieces after it laid anew.
bool recalcElevation(Layout& layout, std::int32_t pieceId);

}  // namespace vantrel
