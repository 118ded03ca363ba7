// What one click, band or lock check costs in a plan of 5,000 pieces, beside one plain pass over
// the same pieces' flags.
#include <benchmark/benchmark.h>

#include <cstddef>

#include "canvas/operations/hit_test.h"
#include "canvas/operations/locks.h"
#include "canvas/operations/selection.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

constexpr int kLines = 50;
constexpr int kPiecesPerLine = 100;
constexpr double kLineSpacingMm = 77.5;
constexpr const char* kParts[] = {"24188", "24130", "24612", "24094", "24640"};

// Lines of five parts, each piece joined to the next and each line to the one below it.
Layout Yard() {
  Layout layout;
  EnsureDefaultLevel(layout);
  constexpr int kLast = kLines * kPiecesPerLine;
  for (std::int32_t id = 1; id <= kLast; ++id) {
    const PieceDef& def = *findPart(kParts[static_cast<std::size_t>(id) % std::size(kParts)]);
    Piece piece;
    piece.id = id;
    piece.cat = def.partNumber;
    piece.x = 188.3 * ((id - 1) % kPiecesPerLine);
    piece.y = kLineSpacingMm * ((id - 1) / kPiecesPerLine);
    piece.heading = 15.0 * (id % 24);
    piece.joints.resize(def.connectors.size());
    if (id > 1) piece.joints[0] = {.target = id - 1, .tconn = 1};
    if (id < kLast) piece.joints[1] = {.target = id + 1, .tconn = 0};
    layout.pieces.push_back(piece);
  }
  return layout;
}

constexpr ViewTransform kView{.scale = 0.05, .offsetX = 0.0, .offsetY = 0.0};
constexpr DevicePoint kPointer{470, 97};

void OnePassOverTheFlags(benchmark::State& state) {
  const Layout layout = Yard();
  for (auto _ : state) {
    int selected = 0;
    for (const Piece& piece : layout.pieces) selected += piece.sel ? 1 : 0;
    benchmark::DoNotOptimize(selected);
  }
}
BENCHMARK(OnePassOverTheFlags)->Unit(benchmark::kMicrosecond);

void HitTestOfAPiece(benchmark::State& state) {
  const Layout layout = Yard();
  for (auto _ : state) benchmark::DoNotOptimize(hitTestPieceOrHelix(layout, kView, kPointer));
}
BENCHMARK(HitTestOfAPiece)->Unit(benchmark::kMicrosecond);

void PlainClick(benchmark::State& state) {
  Layout layout = Yard();
  for (auto _ : state) {
    ClearSelection(layout);
    clickPiece(layout, hitTestPieceOrHelix(layout, kView, kPointer));
  }
}
BENCHMARK(PlainClick)->Unit(benchmark::kMicrosecond);

// From the first piece to the last, over all the others.
void ChainOverAllPieces(benchmark::State& state) {
  Layout layout = Yard();
  for (auto _ : state) {
    ClearSelection(layout);
    layout.pieces.front().sel = true;
    clickPieceChain(layout, layout.pieces.back().id);
  }
}
BENCHMARK(ChainOverAllPieces)->Unit(benchmark::kMicrosecond);

void BandOverEverything(benchmark::State& state) {
  Layout layout = Yard();
  for (auto _ : state)
    benchmark::DoNotOptimize(selectInBand(layout, kView, {-100, -100}, {2000, 2000}));
}
BENCHMARK(BandOverEverything)->Unit(benchmark::kMicrosecond);

// Nothing is found, so that every segment of every outline is looked at.
void BandBesideEverything(benchmark::State& state) {
  Layout layout = Yard();
  for (auto _ : state)
    benchmark::DoNotOptimize(selectInBand(layout, kView, {-900, -900}, {-800, -800}));
}
BENCHMARK(BandBesideEverything)->Unit(benchmark::kMicrosecond);

void LocksOfEverything(benchmark::State& state) {
  Layout layout = Yard();
  for (Piece& piece : layout.pieces) piece.sel = true;
  Tunnel tunnel;
  for (std::int32_t id = 10'000; id < 11'000; ++id) tunnel.covers.push_back(id);
  layout.tunnels.push_back(tunnel);
  for (auto _ : state) {
    benchmark::DoNotOptimize(selectionLock(layout, "rotate"));
    benchmark::DoNotOptimize(moveLock(layout));
  }
}
BENCHMARK(LocksOfEverything)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
