// What a dragged block costs: 1,000 selected pieces among 5,000, at each motion and at the drop,
// beside a plain copy of the poses and the search for a single piece.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <vector>

#include "canvas/operations/joining.h"
#include "canvas/operations/moving.h"
#include "canvas/operations/rotating.h"
#include "canvas/operations/snap.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"

namespace vantrel {
namespace {

constexpr int kLines = 50;
constexpr int kPiecesPerLine = 100;
constexpr int kSelectedFrom = 40;  // in each line
constexpr int kSelectedTo = 60;
constexpr double kLineSpacingMm = 77.5;

constexpr const char* kParts[] = {"24188", "24172", "24612", "24094", "24188", "24360", "24640"};

bool InBlock(int i) {
  return i >= kSelectedFrom && i < kSelectedTo;
}

// Parallel lines of straights, turnouts and crossings, joined end to end; a band across all of them
// is selected.
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
      piece.sel = InBlock(i);
      piece.joints.resize(def.connectors.size());
      if (i > 0) piece.joints[0] = {.target = id - 1, .tconn = 1};
      if (i + 1 < kPiecesPerLine) piece.joints[1] = {.target = id + 1, .tconn = 0};
      layout.pieces.push_back(piece);
      x += def.connectors[1].x;
    }
  }
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  return layout;
}

// The same pieces, none of them joined.
Layout OpenYard() {
  Layout layout = JoinedYard();
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints) joint = Joint{};
  return layout;
}

// The worst that can be: every piece open, and all of them in a heap of 150 mm.
Layout Heap() {
  Layout layout = OpenYard();
  for (Piece& piece : layout.pieces) {
    piece.x = std::fmod(piece.x, 150.0);
    piece.y = std::fmod(piece.y, 150.0);
    piece.heading = 15.0 * (piece.id % 24);
  }
  return layout;
}

// 1,000 single pieces of the block, each with both ends on open ends outside: 2,000 ends close.
Layout Comb() {
  Layout layout;
  std::int32_t id = 1;
  const auto lay = [&](double x, double y, bool sel) {
    Piece piece;
    piece.id = id++;
    piece.cat = "24188";
    piece.x = x;
    piece.y = y;
    piece.sel = sel;
    piece.joints.resize(2);
    layout.pieces.push_back(piece);
  };
  for (int i = 0; i < 1000; ++i) {
    const double x = 1200.0 * (i % 25);
    const double y = kLineSpacingMm * (i / 25);
    lay(x - 188.3, y, false);
    lay(x, y, true);
    lay(x + 188.3, y, false);
    lay(x + 500.0, y, false);
    lay(x + 688.3, y, false);
  }
  return layout;
}

// The block a little aside, as in the middle of a drag.
struct Dragged {
  Layout layout;
  MoveStart start;
};

template <Layout (*MakePlan)()>
Dragged MakeDragged() {
  Dragged dragged{.layout = MakePlan(), .start = {}};
  dragged.start = takeMoveStart(dragged.layout);
  breakEdgeJoints(dragged.layout);
  moveSelection(dragged.layout, dragged.start, {5.0, 3.0});
  return dragged;
}

void OnlyCopyThePoses(benchmark::State& state) {
  Dragged dragged = MakeDragged<JoinedYard>();
  for (auto _ : state) {
    moveSelection(dragged.layout, dragged.start, {5.0, 3.0});
    benchmark::ClobberMemory();
  }
}
BENCHMARK(OnlyCopyThePoses)->Unit(benchmark::kMicrosecond);

void SearchForASinglePiece(benchmark::State& state) {
  const Dragged dragged = MakeDragged<JoinedYard>();
  const Piece& moving = dragged.layout.pieces[kSelectedFrom];
  const PieceDef& def = *findPart(moving.cat);
  for (auto _ : state) {
    std::vector<const Piece*> others = VisiblePieces(dragged.layout);
    std::erase_if(others, [](const Piece* piece) { return piece->sel; });
    benchmark::DoNotOptimize(findSnap(def, moving.pose(), others));
  }
}
BENCHMARK(SearchForASinglePiece)->Unit(benchmark::kMicrosecond);

template <Layout (*MakePlan)()>
void OneMotion(benchmark::State& state) {
  Dragged dragged = MakeDragged<MakePlan>();
  for (auto _ : state) {
    moveSelection(dragged.layout, dragged.start, {5.0, 3.0});
    benchmark::DoNotOptimize(findBlockSnap(dragged.layout));
  }
}
BENCHMARK(OneMotion<JoinedYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<OpenYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<Comb>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<Heap>)->Unit(benchmark::kMicrosecond);

void CopyThePieces(benchmark::State& state) {
  const Layout layout = JoinedYard();
  for (auto _ : state) {
    std::vector<Piece> copy = layout.pieces;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CopyThePieces)->Unit(benchmark::kMicrosecond);

void BreakTheEdge(benchmark::State& state) {
  const Layout plan = JoinedYard();
  for (auto _ : state) {
    state.PauseTiming();
    Layout layout = plan;
    state.ResumeTiming();
    breakEdgeJoints(layout);
    benchmark::DoNotOptimize(layout);
    state.PauseTiming();
    layout = {};
    state.ResumeTiming();
  }
}
BENCHMARK(BreakTheEdge)->Unit(benchmark::kMicrosecond);

template <Layout (*MakePlan)()>
void Drop(benchmark::State& state) {
  const Dragged dragged = MakeDragged<MakePlan>();
  const BlockSnap held = findBlockSnap(dragged.layout);
  for (auto _ : state) {
    state.PauseTiming();
    Layout layout = dragged.layout;
    state.ResumeTiming();
    dropSelection(layout, dragged.start, held);
    benchmark::DoNotOptimize(layout);
    state.PauseTiming();
    layout = {};
    state.ResumeTiming();
  }
  state.counters["snapped"] = held.snap.found ? 1 : 0;
}
BENCHMARK(Drop<JoinedYard>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Drop<Comb>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Drop<Heap>)->Unit(benchmark::kMicrosecond);

void TurnOneStep(benchmark::State& state) {
  Layout layout = JoinedYard();
  const std::vector<Pose> start = selectionPoses(layout);
  const Vec2 pivot = selectionMean(layout);
  for (auto _ : state) {
    turnSelectionFrom(layout, start, pivot, 33.0);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(TurnOneStep)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
