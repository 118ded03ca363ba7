// Counting a plan of 5,000 pieces anew, as it is done after each change, beside one look at each
// piece's part number.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <string_view>

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"
#include "shopping/cart.h"
#include "shopping/tally.h"

namespace vantrel {
namespace {

constexpr int kPieces = 5'000;
constexpr int kSceneryItems = 500;
constexpr int kHelices = 10;

// Every part of the catalog in turn: more rows than any plan of a user's has.
Layout Plan() {
  Layout layout;
  for (int i = 0; i < kPieces; ++i) {
    const PieceDef& def = *catalog().pieceAt(i % catalog().pieceCount());
    Piece piece;
    piece.id = layout.nextId++;
    piece.cat = def.partNumber;
    piece.joints.resize(def.connectors.size());
    layout.pieces.push_back(piece);
  }
  const std::vector<SceneryDef>& items = sceneryCatalog();
  for (int i = 0; i < kSceneryItems; ++i) {
    SceneryItem item;
    item.id = layout.nextId++;
    item.item = items[static_cast<std::size_t>(i) % items.size()].id;
    layout.scenery.push_back(item);
  }
  for (int i = 0; i < kHelices; ++i) {
    Helix helix;
    helix.variant = kits()[static_cast<std::size_t>(i)].id;
    layout.helices.push_back(helix);
  }
  return layout;
}

void LookAtEachPartNumber(benchmark::State& state) {
  const Layout layout = Plan();
  for (auto _ : state) {
    std::size_t sum = 0;
    for (const Piece& piece : layout.pieces) sum += std::hash<std::string_view>{}(piece.cat);
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(LookAtEachPartNumber)->Unit(benchmark::kMicrosecond);

void CountAndListTheRows(benchmark::State& state) {
  const Layout layout = Plan();
  std::size_t rows = 0;
  for (auto _ : state) rows = TallyRows(CountForTally(layout)).size();
  state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(CountAndListTheRows)->Unit(benchmark::kMicrosecond);

void FillTheCart(benchmark::State& state) {
  const Layout layout = Plan();
  for (auto _ : state) benchmark::DoNotOptimize(FillCart(layout));
}
BENCHMARK(FillTheCart)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
