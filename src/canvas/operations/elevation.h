// How z, grade and rev of a piece follow from what it is joined to, and the grade runs in force.
#pragma once

#include <cstdint>

#include "catalog/piece_def.h"
#include "doc/layout.h"

namespace vantrel {

// Length in mm along which a slope acts: `length`, but for a piece with a radius and connector 1
// more than 1 mm ahead, that connector's x: a curve climbs by its chord along local x.
double pieceRise(const PieceDef& def);

// Height in mm of the piece at a connector: z at connector 0, the far end's height at any other.
double exitElevation(const Piece& piece, const PieceDef& def, std::int32_t connector);

// Sets z, grade and rev of the piece with id `pieceId`, just joined with its `ownConnector` to
// `targetConnector` of the piece `targetId`, and moves a run anchored there onward. A flat bridge
// ends the run. Does nothing when either piece or the target's definition is missing or the target
// has no length. The caller tells the panels.
void applyJoinElevation(Layout& layout, std::int32_t pieceId, std::int32_t targetId,
                        std::int32_t targetConnector, std::int32_t ownConnector);

// Sets `deg` and `conn` of the first run with this anchor, or appends one; then SyncCurrentGrade.
void addGradeRun(Layout& layout, double deg, std::int32_t anchor, std::int32_t conn);

// Removes every run with this anchor, then SyncCurrentGrade.
void removeGradeRun(Layout& layout, std::int32_t anchor);

}  // namespace vantrel
