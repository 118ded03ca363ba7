// A selection of straights that are joined into one line.
#pragma once

#include <vector>

#include "doc/records.h"

namespace vantrel {

// Whether there are at least two pieces, all of them known straights outside of helices, within one
// degree of one direction or its reverse, and all reached from the first through joints among them.
bool isStraightRun(const std::vector<const Piece*>& pieces);

// The pieces in the order in which joints among them lead on from an end: the first piece with
// exactly one neighbour, or the first piece of all. Pieces that no joint leads to are left out.
std::vector<const Piece*> walkRun(const std::vector<const Piece*>& pieces);

}  // namespace vantrel
