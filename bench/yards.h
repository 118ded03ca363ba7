// The large plan that several benchmarks share.
#pragma once

#include <cstdint>
#include <iterator>

#include "catalog/track_catalog.h"
#include "doc/layout.h"

namespace vantrel {

inline constexpr double kYardLineSpacingMm = 77.5;
inline constexpr const char* kYardParts[] = {"24188", "24172", "24612", "24094",
                                             "24188", "24360", "24640"};

// Parallel lines of straights, turnouts and crossings, joined end to end: what is open are the ends
// of the lines and the branches.
inline Layout JoinedYard(int lines, int piecesPerLine) {
  Layout layout;
  std::int32_t id = 1;
  for (int line = 0; line < lines; ++line) {
    double x = 0.0;
    for (int i = 0; i < piecesPerLine; ++i, ++id) {
      const auto part = static_cast<std::size_t>(id) % std::size(kYardParts);
      const PieceDef& def = *findPart(kYardParts[part]);
      Piece piece;
      piece.id = id;
      piece.cat = def.partNumber;
      piece.x = x;
      piece.y = line * kYardLineSpacingMm;
      piece.joints.resize(def.connectors.size());
      if (i > 0) piece.joints[0] = {.target = id - 1, .tconn = 1};
      if (i + 1 < piecesPerLine) piece.joints[1] = {.target = id + 1, .tconn = 0};
      layout.pieces.push_back(piece);
      x += def.connectors[1].x;
    }
  }
  layout.nextId = id;
  return layout;
}

// The same pieces, none of them joined.
inline Layout OpenYard(int lines, int piecesPerLine) {
  Layout layout = JoinedYard(lines, piecesPerLine);
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints) joint = Joint{};
  return layout;
}

}  // namespace vantrel
