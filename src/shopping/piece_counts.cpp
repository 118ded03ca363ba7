#include "shopping/piece_counts.h"

#include <string_view>
#include <unordered_map>

#include "catalog/track_catalog.h"
#include "shopping/store_products.h"

namespace vantrel {
namespace {

constexpr std::int32_t kSpokesPerPack = 3;

// What one turnout asks for.
using Needs = std::unordered_map<std::string_view, Accessories>;

// A three-way turnout has two drives that one decoder switches.
const Needs& NeedsByTurnout() {
  static const Needs needs = {{"24611", {.motorsC = 1, .decoders = 1}},
                              {"24612", {.motorsC = 1, .decoders = 1}},
                              {"24624", {.decoders = 1}},
                              {"24630", {.motorsC = 2, .decoders = 1}},
                              {"24671", {.motorsC = 1, .decoders = 1}},
                              {"24672", {.motorsC = 1, .decoders = 1}},
                              {"24711", {.motorsC = 1, .decoders = 1}},
                              {"24712", {.motorsC = 1, .decoders = 1}},
                              {"24771", {.motorsC = 1, .decoders = 1}},
                              {"24772", {.motorsC = 1, .decoders = 1}},
                              {"24720", {.motorsC = 1, .bigDecoders = 1}},
                              {"62611", {.motorsC = 1, .decoders = 1}},
                              {"62612", {.motorsC = 1, .decoders = 1}},
                              {"62624", {.decoders = 1}},
                              {"62630", {.motorsC = 2, .decoders = 1}},
                              {"62671", {.motorsC = 1, .decoders = 1}},
                              {"62672", {.motorsC = 1, .decoders = 1}},
                              {"2261", {.motorsK = 1}},
                              {"2263", {.motorsK = 1}},
                              {"2264", {.motorsK = 1}},
                              {"2265", {.motorsK = 1}},
                              {"2266", {.motorsK = 1}},
                              {"2267", {.motorsK = 1}},
                              {"2268", {.motorsK = 1}},
                              {"2269", {.motorsK = 1}},
                              {"2271", {.motorsK = 1}},
                              {"2272", {.motorsK = 1}},
                              {"2276", {.motorsK = 1}},
                              {"2277", {.motorsK = 1}}};
  return needs;
}

}  // namespace

PieceCounts CountPieces(const Layout& layout) {
  // A plan has thousands of pieces of a few dozen parts: the ordered map sees only the latter.
  std::unordered_map<std::string_view, std::int32_t> placed;
  for (const Piece& piece : layout.pieces)
    if (!piece.free) ++placed[piece.cat];
  PieceCounts counts;
  for (const auto& [part, count] : placed) counts.emplace(part, count);
  return counts;
}

void AddSoldScenery(PieceCounts& counts, const Layout& layout) {
  for (const SceneryItem& item : layout.scenery)
    if (IsSold(item.item)) ++counts[item.item];
}

void PackSpokes(PieceCounts& counts) {
  for (auto& [part, count] : counts) {
    const PieceDef* const def = findPart(part);
    if (def == nullptr || def->role != PieceRole::spoke) continue;
    count = (count + kSpokesPerPack - 1) / kSpokesPerPack;
  }
}

Accessories AccessoriesFor(const PieceCounts& counts) {
  const Needs& needs = NeedsByTurnout();
  Accessories sum;
  for (const auto& [part, count] : counts) {
    const auto found = needs.find(part);
    if (found == needs.end()) continue;
    sum.motorsC += count * found->second.motorsC;
    sum.motorsK += count * found->second.motorsK;
    sum.decoders += count * found->second.decoders;
    sum.bigDecoders += count * found->second.bigDecoders;
  }
  return sum;
}

}  // namespace vantrel
