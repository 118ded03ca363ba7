// One motion of a gesture that draws over the plan, its paint included, in a plan of 5,000 pieces
// on a canvas of 1160 by 800: with the plan drawn each time, and with its picture kept. The floor
// is one copy of such a picture.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <memory>

#include "canvas/event_order.h"
#include "canvas/gestures/canvas_context.h"
#include "canvas/kept_picture.h"
#include "catalog/track_catalog.h"
#include "render2d/text_extent.h"
#include "tests/support/recording_host.h"

namespace vantrel {
namespace {

constexpr int kLines = 50;
constexpr int kPiecesPerLine = 100;

struct Drawing {
  Drawing() : bitmap(1160, 800, 24), dc(bitmap) {
    std::int32_t id = 1;
    const PieceDef& def = *findPart("24188");
    for (int line = 0; line < kLines; ++line) {
      for (int i = 0; i < kPiecesPerLine; ++i, ++id) {
        Piece piece;
        piece.id = id;
        piece.cat = def.partNumber;
        piece.x = 188.3 * i;
        piece.y = 250.0 * line;
        piece.joints.resize(2);
        layout.pieces.push_back(piece);
      }
    }
    layout.toolMode = kPolygonTool;
    state.view = {.scale = 0.06, .offsetX = 10.0, .offsetY = 10.0};
    state.render.textExtents = &extents;
    host.client = {1160, 800};
    onLeftPress(context, at(300, 300));
  }
  PointerEvent at(int x, int y) const {
    PointerEvent event;
    event.at = {x, y};
    event.world = state.view.toWorld(event.at);
    return event;
  }

  Layout layout;
  CanvasState state;
  RecordingHost host;
  TextExtents extents{.alikeDevices = true};
  CanvasContext context{layout, state, host};
  wxBitmap bitmap;
  wxMemoryDC dc;
};

void OnePictureCopied(benchmark::State& state) {
  Drawing drawing;
  wxBitmap picture(1160, 800, 24);
  for (auto _ : state) drawing.dc.DrawBitmap(picture, 0, 0);
}

void MotionWithThePlanDrawn(benchmark::State& state) {
  Drawing drawing;
  int step = 0;
  for (auto _ : state) {
    onMotion(drawing.context, drawing.at(400 + ++step % 300, 400));
    paintCanvas(drawing.context, drawing.dc);
  }
}

void MotionWithThePictureKept(benchmark::State& state) {
  Drawing drawing;
  KeptPicture kept;
  int step = 0;
  for (auto _ : state) {
    onMotion(drawing.context, drawing.at(400 + ++step % 300, 400));
    kept.draw(drawing.context, drawing.dc, 1.0);
    paintMoving(drawing.context, drawing.dc);
  }
  if (kept.timesMade() != 1) state.SkipWithError("made more than once");
}

BENCHMARK(OnePictureCopied)->Unit(benchmark::kMillisecond);
BENCHMARK(MotionWithThePlanDrawn)->Unit(benchmark::kMillisecond);
BENCHMARK(MotionWithThePictureKept)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel

int main(int argc, char** argv) {
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv)) return 1;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  wxEntryCleanup();
  return 0;
}
