// A quick way through the lines that make up nearly all of a plan: pieces and joints exactly as the
// writer prints them, but for their indent, which has been cut off. Each function either gives what
// the search for tags and attributes would give, or refuses the line, which then goes the long way.
#pragma once

#include <optional>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// Fills a new piece from its line. On refusal `piece` holds anything.
bool ReadWrittenPiece(std::string_view line, Piece& piece);

struct WrittenJoint {
  std::int32_t conn;  // not checked against any limit but 0
  Joint joint;
};

std::optional<WrittenJoint> ReadWrittenJoint(std::string_view line);

}  // namespace vantrel
