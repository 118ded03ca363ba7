// The program-wide, read-only list of track definitions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalog/piece_def.h"

namespace vantrel {

class TrackCatalog {
 public:
  TrackCatalog();

  // The definition whose part number equals `part` byte for byte, or null. A plan may name parts
  // that the catalog doesn't know: every caller copes with null.
  const PieceDef* findPart(std::string_view part) const;
  std::int32_t pieceCount() const { return static_cast<std::int32_t>(rows_.size()); }
  // The row at `index` in build order (C, TRIX, Z, K), or null when there is none.
  const PieceDef* pieceAt(std::int32_t index) const;

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };

  void add(PieceDef def);

  std::vector<PieceDef> rows_;
  std::unordered_map<std::string, std::size_t, TextHash, std::equal_to<>> indexByPart_;
};

// The one catalog, built on first use. Pointers to its rows stay valid to the end of the program.
const TrackCatalog& catalog();

// Short for catalog().findPart(part).
const PieceDef* findPart(std::string_view part);

// The first row of the system with this role, or null.
const PieceDef* findPart(TrackSystem system, PieceRole role);

// The system that connector `i` joins: the override of that connector, or the piece's own system.
std::int32_t connectorSystem(const PieceDef& def, std::size_t i);

// "Marklin C-Track" and the like; "Unknown" for any other value.
std::string_view SystemName(std::int32_t system);

// The same but for MarklinZ, which is "Unknown" here: the text of the refused join was fixed before
// Z-Track came, and stays.
std::string_view JoinRefusalSystemName(std::int32_t system);

}  // namespace vantrel
