// What the editor computes for one event in a plan of 5,000 pieces, painting left out, beside one
// copy of the pieces.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "bench/yards.h"
#include "canvas/event_order.h"
#include "canvas/gestures/deleting.h"
#include "doc/layout.h"
#include "tests/support/recording_host.h"

namespace vantrel {
namespace {

constexpr int kLines = 50;
constexpr int kPiecesPerLine = 100;

// The first `selected` pieces of the yard are selected.
Layout YardWith(int selected) {
  Layout layout = JoinedYard(kLines, kPiecesPerLine);
  for (Piece& piece : layout.pieces) piece.sel = piece.id <= selected;
  return layout;
}

struct Editor {
  explicit Editor(int selected) : layout(YardWith(selected)) {
    state.view = {.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};
  }

  PointerEvent at(int x, int y, bool leftDown) const {
    PointerEvent event;
    event.at = {x, y};
    event.world = state.view.toWorld(event.at);
    event.leftDown = leftDown;
    return event;
  }

  Layout layout;
  CanvasState state;
  RecordingHost host;
  CanvasContext context{layout, state, host};
};

// A point on the middle of a straight of the first line.
constexpr int kOnTrackX = 90;
constexpr int kOnTrackY = 2;

void OneCopyOfThePieces(benchmark::State& state) {
  const Layout layout = YardWith(0);
  for (auto _ : state) {
    std::vector<Piece> copy = layout.pieces;
    benchmark::DoNotOptimize(copy.data());
  }
}

// One motion that drags `range(0)` pieces, the search for a snap included.
void DragMotion(benchmark::State& state) {
  Editor editor(static_cast<int>(state.range(0)));
  onLeftPress(editor.context, editor.at(kOnTrackX, kOnTrackY, true));
  onMotion(editor.context, editor.at(kOnTrackX + 10, kOnTrackY, true));
  int step = 0;
  for (auto _ : state) {
    ++step;
    onMotion(editor.context, editor.at(kOnTrackX + step % 200, kOnTrackY + step % 90, true));
  }
  if (!editor.state.selectionDrag.active) state.SkipWithError("no drag");
}

// The drag's first motion takes the undo step and breaks the joints; the release is the drop.
void DragStartAndDrop(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Editor editor(1000);
    state.ResumeTiming();
    onLeftPress(editor.context, editor.at(kOnTrackX, kOnTrackY, true));
    onMotion(editor.context, editor.at(kOnTrackX + 10, kOnTrackY + 9, true));
    onLeftRelease(editor.context, editor.at(kOnTrackX + 10, kOnTrackY + 9, false));
    state.PauseTiming();
    if (editor.host.dirtyMarks == 0) state.SkipWithError("no drop");
    editor.layout = {};
    state.ResumeTiming();
  }
}

void Click(benchmark::State& state) {
  Editor editor(0);
  for (auto _ : state) {
    onLeftPress(editor.context, editor.at(kOnTrackX, kOnTrackY, true));
    onLeftRelease(editor.context, editor.at(kOnTrackX, kOnTrackY, false));
  }
  if (!editor.layout.pieces[0].sel) state.SkipWithError("no hit");
}

void ShiftClickAlongALine(benchmark::State& state) {
  Editor editor(1);
  for (auto _ : state) {
    PointerEvent event = editor.at(15500, kOnTrackY, true);
    event.mods.shift = true;
    onLeftPress(editor.context, event);
    onLeftRelease(editor.context, editor.at(15500, kOnTrackY, false));
    state.PauseTiming();
    if (!editor.layout.pieces[50].sel) state.SkipWithError("no chain");
    for (std::size_t i = 1; i < editor.layout.pieces.size(); ++i)
      editor.layout.pieces[i].sel = false;
    state.ResumeTiming();
  }
}

void BandOverEverything(benchmark::State& state) {
  Editor editor(0);
  for (auto _ : state) {
    onLeftPress(editor.context, editor.at(-5000, -5000, true));
    onMotion(editor.context, editor.at(60000, 60000, true));
    onLeftRelease(editor.context, editor.at(60000, 60000, false));
  }
  if (!editor.layout.pieces.back().sel) state.SkipWithError("nothing selected");
}

void DeleteEverything(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Editor editor(kLines * kPiecesPerLine);
    state.ResumeTiming();
    deleteFromCanvas(editor.context);
    state.PauseTiming();
    if (!editor.layout.pieces.empty()) state.SkipWithError("not deleted");
    editor.layout = {};
    state.ResumeTiming();
  }
}

BENCHMARK(OneCopyOfThePieces)->Unit(benchmark::kMillisecond);
BENCHMARK(DragMotion)->Arg(1)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(DragStartAndDrop)->Unit(benchmark::kMillisecond);
BENCHMARK(Click)->Unit(benchmark::kMillisecond);
BENCHMARK(ShiftClickAlongALine)->Unit(benchmark::kMillisecond);
BENCHMARK(BandOverEverything)->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteEverything)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
