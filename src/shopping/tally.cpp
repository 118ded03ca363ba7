#include "shopping/tally.h"

#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

constexpr double kCurvesPerTurn = 12.0;

// What a bridge or a ramp carries; empty for a second part that there isn't.
struct DeckPieces {
  std::string_view first;
  int firstCount = 0;
  std::string_view second{};
};

const std::unordered_map<std::string_view, DeckPieces>& DecksByBridge() {
  static const std::unordered_map<std::string_view, DeckPieces> decks = {
      {"74636", {"24360", 1}},
      {"74620", {"24188", 1}},
      {"74623", {"24230", 1}},
      {"74613", {"24130", 1}},
      {"74618", {"24188", 1, "24172"}},
      {"7263", {"2200", 2}},
      {"7262", {"2200", 1}},
      {"7569", {"2221", 1}},
      {"7267", {"2221", 1}},
      {"62636", {"62188", 1, "62172"}},
      {"62620", {"62188", 1}},
      {"62623", {"62230", 1}},
      {"62613", {"62130", 1}},
      {"8975", {"8505", 1}},
      {"89759", {"8500", 1}},
      {"8976", {"8500", 1}},
      {"8977", {"8510", 1}}};
  return decks;
}

void Add(PieceCounts& counts, std::string_view part, std::int32_t count) {
  counts.try_emplace(std::string(part), 0).first->second += count;
}

// Deck track is no bridge: what is added here adds nothing in its turn.
void AddDeckPieces(PieceCounts& counts) {
  const PieceCounts placed = counts;
  for (const auto& [part, count] : placed) {
    const auto found = DecksByBridge().find(part);
    if (found == DecksByBridge().end()) continue;
    const DeckPieces& deck = found->second;
    Add(counts, deck.first, count * deck.firstCount);
    if (!deck.second.empty()) Add(counts, deck.second, count);
  }
}

// The stubs of a helix are pieces of the plan; the rings between them are not.
void AddHelixCurves(PieceCounts& counts, const Layout& layout) {
  for (const Helix& helix : layout.helices) {
    const HelixKit& kit = kitOrDefault(helix.variant);
    const auto curves = static_cast<std::int32_t>(std::trunc(kit.turns * kCurvesPerTurn));
    Add(counts, kit.innerCurvePart, curves);
    Add(counts, kit.outerCurvePart, curves);
  }
}

std::string TextFor(const std::string& part) {
  if (const PieceDef* def = findPart(part)) return def->description;
  if (const SceneryDef* def = findScenery(part)) return def->name;
  return part;
}

void AddRecommendation(std::vector<TallyRow>& rows, const char* text, std::int32_t count) {
  if (count > 0) rows.push_back({.text = text, .count = std::to_string(count)});
}

}  // namespace

PieceCounts CountForTally(const Layout& layout) {
  PieceCounts counts = CountPieces(layout);
  AddDeckPieces(counts);
  PackSpokes(counts);  // those of the track alone; the cart packs all of them
  AddSoldScenery(counts, layout);
  AddHelixCurves(counts, layout);
  return counts;
}

std::vector<TallyRow> TallyRows(const PieceCounts& counts) {
  std::vector<TallyRow> rows;
  for (const auto& [part, count] : counts)
    rows.push_back({.text = TextFor(part), .count = std::to_string(count)});
  const Accessories wanted = AccessoriesFor(counts);
  if (!wanted.any()) return rows;
  rows.push_back({.text = "We Recommend", .count = {}, .heading = true});
  // The store sells this motor as 74492: the cart orders that one.
  AddRecommendation(rows, "74491 Turnout Motor", wanted.motorsC);
  AddRecommendation(rows, "75491 K-Track Motor", wanted.motorsK);
  AddRecommendation(rows, "74462 Decoder", wanted.decoders);
  AddRecommendation(rows, "74467 Decoder (24720)", wanted.bigDecoders);
  return rows;
}

}  // namespace vantrel
