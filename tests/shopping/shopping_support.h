// Plans for the shopping tests: a few parts lying about.
#pragma once

#include <ostream>
#include <string>

#include "doc/layout.h"
#include "shopping/tally.h"

namespace vantrel {

inline void PrintTo(const TallyRow& row, std::ostream* out) {
  *out << (row.heading ? "# " : "") << row.text << " x " << row.count;
}

inline void Place(Layout& layout, const std::string& part, int count = 1) {
  for (int i = 0; i < count; ++i) {
    Piece piece;
    piece.id = layout.nextId++;
    piece.cat = part;
    layout.pieces.push_back(piece);
  }
}

// Pieces that came with another one.
inline void PlaceFree(Layout& layout, const std::string& part, int count) {
  Place(layout, part, count);
  for (int i = 0; i < count; ++i) layout.pieces.end()[-1 - i].free = true;
}

inline void PlaceScenery(Layout& layout, const std::string& item, int count = 1) {
  for (int i = 0; i < count; ++i) {
    SceneryItem scenery;
    scenery.id = layout.nextId++;
    scenery.item = item;
    layout.scenery.push_back(scenery);
  }
}

// As the palette leaves it: the record and its four stubs.
inline void PlaceHelix(Layout& layout, const std::string& variant) {
  Helix helix;
  helix.id = layout.nextId++;
  helix.variant = variant;
  layout.helices.push_back(helix);
  Place(layout, "24188", 4);
  for (int i = 0; i < 4; ++i) layout.pieces.end()[-1 - i].helix = helix.id;
}

}  // namespace vantrel
