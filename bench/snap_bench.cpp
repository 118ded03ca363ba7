// The two searches that run while a piece is dragged, against 10,000 pieces, beside one plain pass
// over the same pieces' positions.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "bench/yards.h"
#include "canvas/operations/snap.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"

namespace vantrel {
namespace {

constexpr int kLines = 100;
constexpr int kPiecesPerLine = 100;

Layout Joined() {
  return JoinedYard(kLines, kPiecesPerLine);
}

Layout Open() {
  return OpenYard(kLines, kPiecesPerLine);
}

// The worst that can be: every piece open and so near that none can be sorted out by its place.
Layout Heap() {
  Layout layout = Open();
  for (Piece& piece : layout.pieces) {
    piece.x = std::fmod(piece.x, 150.0) + 40.0;
    piece.y = std::fmod(piece.y, 150.0) + 40.0;
    piece.heading = 15.0 * (piece.id % 24);
  }
  return layout;
}

Pose PointerIn(const Layout& layout) {
  const Piece& middle = layout.pieces[layout.pieces.size() / 2];
  return {middle.x + 5.0, middle.y + 5.0, 30.0};
}

void OnePassOverThePositions(benchmark::State& state) {
  const Layout layout = Joined();
  const std::vector<const Piece*> others = AllPieces(layout);
  const Pose pointer = PointerIn(layout);
  for (auto _ : state) {
    int near = 0;
    for (const Piece* piece : others)
      near += std::abs(piece->x - pointer.x) < 25.0 && std::abs(piece->y - pointer.y) < 25.0;
    benchmark::DoNotOptimize(near);
  }
}
BENCHMARK(OnePassOverThePositions)->Unit(benchmark::kMicrosecond);

template <Layout (*MakePlan)()>
void FindSnap(benchmark::State& state) {
  const Layout layout = MakePlan();
  const std::vector<const Piece*> others = AllPieces(layout);
  const PieceDef& def = *findPart("24612");
  const Pose pointer = PointerIn(layout);
  for (auto _ : state) benchmark::DoNotOptimize(findSnap(def, pointer, others));
}
BENCHMARK(FindSnap<Joined>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindSnap<Open>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindSnap<Heap>)->Unit(benchmark::kMicrosecond);

template <Layout (*MakePlan)()>
void FindIncompatibleJoin(benchmark::State& state) {
  const Layout layout = MakePlan();
  const std::vector<const Piece*> others = AllPieces(layout);
  const PieceDef& def = *findPart("24612");  // nothing here is refused, so it walks to the end
  const Pose pointer = PointerIn(layout);
  for (auto _ : state) benchmark::DoNotOptimize(findIncompatibleJoin(def, pointer, others));
}
BENCHMARK(FindIncompatibleJoin<Joined>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindIncompatibleJoin<Open>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindIncompatibleJoin<Heap>)->Unit(benchmark::kMicrosecond);

// What one motion of the pointer costs: the list of visible pieces and the search.
void OneMotion(benchmark::State& state) {
  Layout layout = Joined();
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  for (Piece& piece : layout.pieces) piece.level = piece.id % 10 == 0 ? 2 : 1;
  const PieceDef& def = *findPart("24612");
  const Pose pointer = PointerIn(layout);
  for (auto _ : state) {
    const std::vector<const Piece*> others = VisiblePieces(layout);
    benchmark::DoNotOptimize(findSnap(def, pointer, others));
  }
}
BENCHMARK(OneMotion)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
