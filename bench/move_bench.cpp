// What a dragged block costs: 1,000 selected pieces among 5,000, at each motion and at the drop,
// beside a plain copy of the poses and the search for a single piece.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <vector>

#include "bench/yards.h"
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

bool InBlock(int i) {
  return i >= kSelectedFrom && i < kSelectedTo;
}

// A band across all lines is selected; two levels, one of them hidden.
Layout WithBlock(Layout layout) {
  for (Piece& piece : layout.pieces) piece.sel = InBlock((piece.id - 1) % kPiecesPerLine);
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].visible = false;
  return layout;
}

Layout JoinedBlock() {
  return WithBlock(JoinedYard(kLines, kPiecesPerLine));
}

Layout OpenBlock() {
  return WithBlock(OpenYard(kLines, kPiecesPerLine));
}

// The worst that can be: every piece open, and all of them in a heap of 150 mm.
Layout Heap() {
  Layout layout = OpenBlock();
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
    const double y = kYardLineSpacingMm * (i / 25);
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
  Dragged dragged = MakeDragged<JoinedBlock>();
  for (auto _ : state) {
    moveSelection(dragged.layout, dragged.start, {5.0, 3.0});
    benchmark::ClobberMemory();
  }
}
BENCHMARK(OnlyCopyThePoses)->Unit(benchmark::kMicrosecond);

void SearchForASinglePiece(benchmark::State& state) {
  const Dragged dragged = MakeDragged<JoinedBlock>();
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
BENCHMARK(OneMotion<JoinedBlock>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<OpenBlock>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<Comb>)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneMotion<Heap>)->Unit(benchmark::kMicrosecond);

void CopyThePieces(benchmark::State& state) {
  const Layout layout = JoinedBlock();
  for (auto _ : state) {
    std::vector<Piece> copy = layout.pieces;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CopyThePieces)->Unit(benchmark::kMicrosecond);

void BreakTheEdge(benchmark::State& state) {
  const Layout plan = JoinedBlock();
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
BENCHMARK(Drop<JoinedBlock>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Drop<Comb>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Drop<Heap>)->Unit(benchmark::kMicrosecond);

void TurnOneStep(benchmark::State& state) {
  Layout layout = JoinedBlock();
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
