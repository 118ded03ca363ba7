// The two searches that run while a piece is dragged, against 10,000 pieces, beside one plain pass
// over the same pieces' positions.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "canvas/operations/snap.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"

namespace vantrel {
namespace {

constexpr int kLines = 100;
constexpr int kPiecesPerLine = 100;
constexpr double kLineSpacingMm = 77.5;

constexpr const char* kParts[] = {"24188", "24172", "24612", "24094", "24188", "24360", "24640"};

// Parallel lines of straights, turnouts and crossings, joined end to end: what is open are the ends
// of the lines and the branches.
Layout JoinedYard() {
  Layout layout;
  std::int32_t id = 1;
  for (int line = 0; line < kLines; ++line) {
    double x = 0.0;
    for (int i = 0; i < kPiecesPerLine; ++i, ++id) {
      const PieceDef& def = *findPart(kParts[static_cast<std::size_t>(id) % std::size(kParts)]);
      Piece piece;
      piece.id = id;
      piece.cat = def.partNumber;
      piece.x = x;
      piece.y = line * kLineSpacingMm;
      piece.joints.resize(def.connectors.size());
      if (i > 0) piece.joints[0] = {.target = id - 1, .tconn = 1};
      if (i + 1 < kPiecesPerLine) piece.joints[1] = {.target = id + 1, .tconn = 0};
      layout.pieces.push_back(piece);
      x += def.connectors[1].x;
    }
  }
  return layout;
}

// The same pieces, none of them joined.
Layout OpenYard() {
  Layout layout = JoinedYard();
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints) joint = Joint{};
  return layout;
}

// The worst that can be: every piece open and so near that none can be sorted out by its place.
Layout Heap() {
  Layout layout = OpenYard();
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
  const Layout layout = JoinedYard();
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
BENCHMARK(FindSnap<JoinedYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindSnap<OpenYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindSnap<Heap>)->Unit(benchmark::kMicrosecond);

template <Layout (*MakePlan)()>
void FindIncompatibleJoin(benchmark::State& state) {
  const Layout layout = MakePlan();
  const std::vector<const Piece*> others = AllPieces(layout);
  const PieceDef& def = *findPart("24612");  // nothing here is refused, so it walks to the end
  const Pose pointer = PointerIn(layout);
  for (auto _ : state) benchmark::DoNotOptimize(findIncompatibleJoin(def, pointer, others));
}
BENCHMARK(FindIncompatibleJoin<JoinedYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindIncompatibleJoin<OpenYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindIncompatibleJoin<Heap>)->Unit(benchmark::kMicrosecond);

// What one motion of the pointer costs: the list of visible pieces and the search.
void OneMotion(benchmark::State& state) {
  Layout layout = JoinedYard();
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
