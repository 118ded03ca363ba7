// Counting parts: what the tally on the panel and the shopping cart have in common. The two counts
// differ on purpose: the tally shows what lies on the table, the cart holds what must be bought.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "doc/layout.h"

namespace vantrel {

// By part number, in byte order.
using PieceCounts = std::map<std::string, std::int32_t, std::less<>>;

// How many of each part were placed. Pieces that came with another one aren't counted.
PieceCounts CountPieces(const Layout& layout);

// Adds the scenery that the store sells.
void AddSoldScenery(PieceCounts& counts, const Layout& layout);

// Turns the count of turntable spokes into a count of packs.
void PackSpokes(PieceCounts& counts);

// What drives and switches the turnouts of a plan.
struct Accessories {
  std::int32_t motorsC = 0;
  std::int32_t motorsK = 0;
  std::int32_t decoders = 0;
  std::int32_t bigDecoders = 0;  // for the turnout that the small one doesn't fit

  bool any() const { return motorsC + motorsK + decoders + bigDecoders >= 1; }
  friend bool operator==(const Accessories&, const Accessories&) = default;
};

Accessories AccessoriesFor(const PieceCounts& counts);

}  // namespace vantrel
