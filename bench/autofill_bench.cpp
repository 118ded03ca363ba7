// What runs at every idle moment, the plan of the tunnel tool, and the search that a user waits
// for, each beside what can't be done without.
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "canvas/operations/autofill.h"
#include "canvas/operations/fill_search.h"
#include "canvas/operations/tunnels.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"

namespace vantrel {
namespace {

constexpr int kPieces = 5'000;
constexpr int kSelected = 200;

// One long row of joined straights, of which the middle is selected, under 20 tunnels elsewhere.
Layout Plan() {
  Layout layout;
  const PieceDef& def = *findPart("24188");
  for (int i = 0; i < kPieces; ++i) {
    Piece piece;
    piece.id = i + 1;
    piece.cat = def.partNumber;
    piece.x = def.length * i;
    piece.sel = i >= kPieces / 2 && i < kPieces / 2 + kSelected;
    piece.joints = {{.target = i > 0 ? i : kNone, .tconn = 1}, {.target = i + 2, .tconn = 0}};
    layout.pieces.push_back(piece);
  }
  for (int i = 0; i < 20; ++i) {
    Tunnel tunnel;
    tunnel.id = kPieces + 1 + i;
    for (int covered = 1; covered <= 50; ++covered) tunnel.covers.push_back(50 * i + covered);
    layout.tunnels.push_back(tunnel);
  }
  return layout;
}

void LookAtEveryFlag(benchmark::State& state) {
  const Layout layout = Plan();
  for (auto _ : state) {
    int selected = 0;
    for (const Piece& piece : layout.pieces) selected += piece.sel ? 1 : 0;
    benchmark::DoNotOptimize(selected);
  }
}
BENCHMARK(LookAtEveryFlag)->Unit(benchmark::kMicrosecond);

void PlanTunnel(benchmark::State& state) {
  const Layout layout = Plan();
  for (auto _ : state) {
    const TunnelPlan plan = planTunnel(layout);
    if (!plan.valid) state.SkipWithError("no plan");
    benchmark::DoNotOptimize(plan);
  }
}
BENCHMARK(PlanTunnel)->Unit(benchmark::kMicrosecond);

// Nothing is selected for most of the time.
void PlanTunnelWithNothingSelected(benchmark::State& state) {
  Layout layout = Plan();
  for (Piece& piece : layout.pieces) piece.sel = false;
  for (auto _ : state) benchmark::DoNotOptimize(planTunnel(layout));
}
BENCHMARK(PlanTunnelWithNothingSelected)->Unit(benchmark::kMicrosecond);

constexpr double kShortestGapMm = 1.0;
constexpr double kLongestGapMm = 30'000.0;
constexpr double kGapStepMm = 7.3;

// Copying as many rows as are found: what any search has to do. The argument is the system.
void CopyTheRows(benchmark::State& state) {
  const auto candidates = fillCandidates(static_cast<TrackSystem>(state.range(0)));
  std::vector<std::vector<FillSolution>> answers;
  for (double gap = kShortestGapMm; gap < kLongestGapMm; gap += kGapStepMm)
    answers.push_back(searchFills(candidates, gap));
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::vector<FillSolution>(answers[next]));
    next = (next + 1) % answers.size();
  }
}
BENCHMARK(CopyTheRows)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

// The mean over gaps of all lengths.
void SearchFills(benchmark::State& state) {
  const auto candidates = fillCandidates(static_cast<TrackSystem>(state.range(0)));
  double gap = kShortestGapMm;
  for (auto _ : state) {
    benchmark::DoNotOptimize(searchFills(candidates, gap));
    gap += kGapStepMm;
    if (gap >= kLongestGapMm) gap = kShortestGapMm;
  }
}
BENCHMARK(SearchFills)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
