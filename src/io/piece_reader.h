// The lines between "<pieces>" and its end, and what the readers of layouts and of library blocks
// share.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "doc/layout.h"
#include "io/text_file.h"
#include "io/xml_line.h"

namespace vantrel {

// The highest id seen so far. Ids start above 0.
struct HighestId {
  std::int32_t id = 0;

  void see(std::int32_t other) { id = std::max(id, other); }
  // One more; the largest id of all is followed by itself (TakeId then searches for a free one).
  std::int32_t next() const;
};

// Appends the pieces on the lines that follow, up to and including the first line with "</pieces>",
// "</block>" or "</layout>". Throws BadNumber, with the cursor on the line at fault.
void ReadPieces(LineCursor& lines, std::vector<Piece>& pieces, HighestId& highest);

// What a "<piece " line tells in layouts and blocks alike: the id, the part, where it lies. Throws
// BadNumber.
Piece ReadPlacedPiece(AttributeLine& line);

// Sets the slot that a "<joint " line names, growing `joints` as needed. Throws BadNumber, also for
// a connector that no piece can have.
void ReadJoint(AttributeLine& line, Piece& piece);

// A "<sceneryitem " line. Throws BadNumber.
SceneryItem ReadSceneryItem(AttributeLine& line);

}  // namespace vantrel
