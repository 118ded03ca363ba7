// Joins between pieces. A join is the pair of slots that name each other; there is no other record.
#pragma once

#include <cstdint>

#include "doc/layout.h"

namespace vantrel {

// Grows `joints` with open slots to the definition's number of connectors. Nothing happens for an
// unknown part or when the slots are there.
void GrowJoints(Piece& piece);

// GrowJoints for every piece, so that a plan behaves the same before saving and after loading.
void GrowAllJoints(Layout& layout);

// Joins connector `a` of the piece with id `pieceA` to connector `b` of `pieceB`. Slots that either
// end was joined to before are opened, so that every slot's far side names it back. Does nothing
// when a piece is missing, an index is out of range or both ends are the same connector.
void joinPieces(Layout& layout, std::int32_t pieceA, std::int32_t a, std::int32_t pieceB,
                std::int32_t b);

}  // namespace vantrel
