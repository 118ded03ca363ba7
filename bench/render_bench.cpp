// Painting a plan, beside its floor: the same drawing calls with every point, pen, brush, font and
// text position computed beforehand. Needs a display; see CONTRIBUTING.md.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/init.h>
#include <wx/pen.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "render2d/contents_drawing.h"
#include "render2d/text_extent.h"
#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr DeviceSize kSize{1160, 800};
constexpr double kPitchMm = 320.0;

// `count` pieces of every kind in rows, at all headings, every other one joined to its neighbour.
Layout MixedPlan(int count) {
  Layout layout;
  EnsureDefaultLevel(layout);
  layout.gridVisible = true;
  const int columns = static_cast<int>(std::ceil(std::sqrt(count * 1.45)));
  for (int i = 0; i < count; ++i) {
    const PieceDef& def = *catalog().pieceAt(i % catalog().pieceCount());
    Piece piece;
    piece.id = TakeId(layout);
    piece.cat = def.partNumber;
    piece.x = (i % columns) * kPitchMm;
    piece.y = (i / columns) * kPitchMm;
    piece.heading = (i * 37) % 360;
    piece.z = i % 5 == 0 ? 40.0 : 0.0;
    piece.joints.resize(def.connectors.size());
    if (i % 2 == 1) {
      piece.joints[0] = {piece.id - 1, 0};
      layout.pieces.back().joints[0] = {piece.id, 0};
    }
    layout.pieces.push_back(piece);
  }
  return layout;
}

// The view that fits the whole plan with its margins, or the one whose window covers `share` of the
// plan's area around its middle.
ViewTransform ViewOf(const Layout& layout, double share) {
  constexpr double kMargins = 160.0;
  double maxX = 0.0;
  double maxY = 0.0;
  for (const Piece& piece : layout.pieces) {
    maxX = std::max(maxX, piece.x);
    maxY = std::max(maxY, piece.y);
  }
  ViewTransform view;
  view.scale = share < 1.0
                   ? std::sqrt(kSize.width * kSize.height / (share * maxX * maxY))
                   : std::min((kSize.width - kMargins) / maxX, (kSize.height - kMargins) / maxY);
  view.offsetX = kSize.width / 2.0 - view.scale * maxX / 2.0;
  view.offsetY = kSize.height / 2.0 - view.scale * maxY / 2.0;
  return view;
}

wxColour ToColour(const auto& c) {
  return wxColour(static_cast<unsigned char>(c.r), static_cast<unsigned char>(c.g),
                  static_cast<unsigned char>(c.b), static_cast<unsigned char>(c.a));
}

// One recorded call with everything it needs made beforehand.
struct ReadyCall {
  DrawCall call;
  wxPen pen;
  wxBrush brush;
  wxFont font;
  wxColour textForeground;
  wxColour textBackground;
  wxString text;
  bool setPen = true;  // false where the call before had the same
  bool setBrush = true;
  bool setFont = true;
};

std::vector<ReadyCall> Prepare(const std::vector<DrawCall>& calls) {
  std::vector<ReadyCall> ready;
  ready.reserve(calls.size());
  for (const DrawCall& call : calls) {
    ReadyCall next;
    next.call = call;
    next.pen = call.pen.style == wxPENSTYLE_TRANSPARENT
                   ? *wxTRANSPARENT_PEN
                   : wxPen(ToColour(call.pen.colour), call.pen.width,
                           static_cast<wxPenStyle>(call.pen.style));
    next.brush =
        call.brush.style == wxBRUSHSTYLE_TRANSPARENT
            ? *wxTRANSPARENT_BRUSH
            : wxBrush(ToColour(call.brush.colour), static_cast<wxBrushStyle>(call.brush.style));
    if (call.op == DrawOp::text) {
      next.font = wxFont(wxFontInfo(call.font.pointSize)
                             .Weight(call.font.weight)
                             .Family(static_cast<wxFontFamily>(call.font.family)));
      next.text = wxString::FromUTF8(call.text);
    }
    next.textForeground = ToColour(call.textForeground);
    next.textBackground = ToColour(call.textBackground);
    if (!ready.empty()) {
      next.setPen = !(ready.back().call.pen == call.pen);
      next.setBrush = !(ready.back().call.brush == call.brush);
    }
    ready.push_back(next);
  }
  const RecordedFont* last = nullptr;
  for (ReadyCall& call : ready) {
    if (call.call.op != DrawOp::text) continue;
    call.setFont = last == nullptr || !(*last == call.call.font);
    last = &call.call.font;
  }
  return ready;
}

void Replay(wxDC& dc, const std::vector<ReadyCall>& calls) {
  for (const ReadyCall& ready : calls) {
    const DrawCall& call = ready.call;
    if (ready.setPen) dc.SetPen(ready.pen);
    if (ready.setBrush) dc.SetBrush(ready.brush);
    switch (call.op) {
      case DrawOp::clear:
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        break;
      case DrawOp::line:
        dc.DrawLine(call.points[0], call.points[1]);
        break;
      case DrawOp::lines:
        dc.DrawLines(static_cast<int>(call.points.size()), call.points.data());
        break;
      case DrawOp::polygon:
        dc.DrawPolygon(static_cast<int>(call.points.size()), call.points.data());
        break;
      case DrawOp::ellipse:
        dc.DrawEllipse(call.box);
        break;
      case DrawOp::ellipticArc:
        dc.DrawEllipticArc(call.box.GetPosition(), call.box.GetSize(), call.startAngle,
                           call.endAngle);
        break;
      case DrawOp::rectangle:
        dc.DrawRectangle(call.box);
        break;
      case DrawOp::roundedRectangle:
        dc.DrawRoundedRectangle(call.box, call.radius);
        break;
      case DrawOp::text:
        if (ready.setFont) dc.SetFont(ready.font);
        dc.SetTextForeground(ready.textForeground);
        dc.DrawText(ready.text, call.points[0]);
        break;
      default:
        break;
    }
  }
}

void PaintPlan(benchmark::State& state, double share) {
  const Layout layout = MixedPlan(static_cast<int>(state.range(0)));
  const ViewTransform view = ViewOf(layout, share);
  wxBitmap bitmap(kSize.width, kSize.height, 24);
  wxMemoryDC dc(bitmap);
  TextExtents extents{.alikeDevices = true};  // kept from paint to paint, as the canvas does
  RenderContext context;
  context.textExtents = &extents;
  for (auto _ : state) DrawLayoutContents(context, dc, layout, view, kSize);
}

void PaintFloor(benchmark::State& state, double share) {
  const Layout layout = MixedPlan(static_cast<int>(state.range(0)));
  const ViewTransform view = ViewOf(layout, share);
  RecordingDC recorder({kSize.width, kSize.height});
  RenderContext context;
  DrawLayoutContents(context, recorder, layout, view, kSize);
  const std::vector<ReadyCall> calls = Prepare(recorder.calls());
  wxBitmap bitmap(kSize.width, kSize.height, 24);
  wxMemoryDC dc(bitmap);
  for (auto _ : state) Replay(dc, calls);
  state.counters["calls"] = static_cast<double>(calls.size());
}

void Register() {
  for (const int count : {100, 1000, 10000}) {
    for (const auto& [suffix, share] :
         {std::pair{"whole", 1.0}, std::pair{"a_tenth_in_view", 0.1}}) {
      const std::string name = suffix;
      benchmark::RegisterBenchmark(("paint/" + name).c_str(), PaintPlan, share)
          ->Arg(count)
          ->Unit(benchmark::kMillisecond);
      benchmark::RegisterBenchmark(("floor/" + name).c_str(), PaintFloor, share)
          ->Arg(count)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace
}  // namespace vantrel

int main(int argc, char** argv) {
  wxApp::SetInstance(new wxApp);
  if (!wxEntryStart(argc, argv)) return 2;
  wxTheApp->CallOnInit();
  benchmark::Initialize(&argc, argv);
  vantrel::Register();
  benchmark::RunSpecifiedBenchmarks();
  wxTheApp->OnExit();
  wxEntryCleanup();
  return 0;
}
