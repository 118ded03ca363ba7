// What deleting, pasting and laying heights anew cost in a plan of 5,000 pieces, beside the one
// deep copy of that plan that every undo step takes anyhow.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <limits>

#include "canvas/operations/clipboard.h"
#include "canvas/operations/extending.h"
#include "canvas/operations/grades.h"
#include "canvas/operations/removal.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr std::int32_t kPieces = 5'000;
constexpr std::int32_t kCopied = 1'000;

// One chain of straights, joined on both sides, the first `selected` pieces selected.
Layout Chain(std::int32_t selected) {
  Layout layout;
  layout.levels.emplace_back();
  for (std::int32_t id = 1; id <= kPieces; ++id) {
    Piece piece;
    piece.id = id;
    piece.cat = "24188";
    piece.x = 188.3 * id;
    piece.sel = id <= selected;
    piece.joints.resize(2);
    if (id > 1) piece.joints[0] = {.target = id - 1, .tconn = 1};
    if (id < kPieces) piece.joints[1] = {.target = id + 1, .tconn = 0};
    layout.pieces.push_back(piece);
  }
  layout.gradeRuns.push_back({.deg = 2.0, .anchor = 1, .conn = 1});
  layout.nextId = kPieces + 1;
  return layout;
}

// Runs `edit` on a fresh copy of the plan each time; only the edit is measured.
template <typename Edit>
void Measure(benchmark::State& state, const Layout& plan, Edit edit) {
  for (auto _ : state) {
    state.PauseTiming();
    Layout layout = plan;
    state.ResumeTiming();
    edit(layout);
    benchmark::DoNotOptimize(layout.pieces.data());
    state.PauseTiming();
    layout = Layout{};
    state.ResumeTiming();
  }
}

void FloorUndoStep(benchmark::State& state) {
  Measure(state, Chain(0), [](Layout& layout) { PushUndo(layout); });
}
BENCHMARK(FloorUndoStep)->Unit(benchmark::kMicrosecond);

void DeleteEverything(benchmark::State& state) {
  Measure(state, Chain(kPieces), [](Layout& layout) { deleteSelection(layout); });
}
BENCHMARK(DeleteEverything)->Unit(benchmark::kMicrosecond);

void DeleteAThousand(benchmark::State& state) {
  Measure(state, Chain(kCopied), [](Layout& layout) { deleteSelection(layout); });
}
BENCHMARK(DeleteAThousand)->Unit(benchmark::kMicrosecond);

void CopyAThousand(benchmark::State& state) {
  Measure(state, Chain(kCopied), [](Layout& layout) {
    Clipboard clipboard;
    copySelection(layout, clipboard);
    benchmark::DoNotOptimize(clipboard.pieces.data());
  });
}
BENCHMARK(CopyAThousand)->Unit(benchmark::kMicrosecond);

void PasteAThousand(benchmark::State& state) {
  const Layout plan = Chain(kCopied);
  Clipboard clipboard;
  copySelection(plan, clipboard);
  Measure(state, plan, [&](Layout& layout) { pasteClipboard(layout, clipboard, {0.0, 500.0}); });
}
BENCHMARK(PasteAThousand)->Unit(benchmark::kMicrosecond);

void PasteAThousandWithTheIdCounterAtItsEnd(benchmark::State& state) {
  Layout plan = Chain(kCopied);
  plan.nextId = std::numeric_limits<std::int32_t>::max();
  Clipboard clipboard;
  copySelection(plan, clipboard);
  Measure(state, plan, [&](Layout& layout) { pasteClipboard(layout, clipboard, {0.0, 500.0}); });
}
BENCHMARK(PasteAThousandWithTheIdCounterAtItsEnd)->Unit(benchmark::kMicrosecond);

void CloneThePieceAtTheEnd(benchmark::State& state) {
  Measure(state, Chain(0), [](Layout& layout) { clonePiece(layout, kPieces); });
}
BENCHMARK(CloneThePieceAtTheEnd)->Unit(benchmark::kMicrosecond);

void RecalcTwoHundred(benchmark::State& state) {
  Measure(state, Chain(0), [](Layout& layout) { recalcElevation(layout, 1); });
}
BENCHMARK(RecalcTwoHundred)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
