#include "canvas/gestures/measure_draft.h"

#include <wx/dc.h>
#include <wx/defs.h>

#include <cmath>
#include <string>

#include "canvas/gestures/draft_text.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kShortestTapeMm = 1.0;
constexpr int kEndRadius = 4;  // pixels

double Length(const MeasureDraft& draft) {
  return std::hypot(draft.end.x - draft.start.x, draft.end.y - draft.start.y);
}

void LayTape(Layout& layout, const MeasureDraft& draft) {
  PushUndo(layout);
  if (!(Length(draft) >= kShortestTapeMm)) return;
  Measurement tape;
  tape.id = TakeId(layout);
  tape.startX = draft.start.x;
  tape.startY = draft.start.y;
  tape.endX = draft.end.x;
  tape.endY = draft.end.y;
  layout.measurements.push_back(tape);
}

}  // namespace

bool measurePress(CanvasContext& context, const PointerEvent& event) {
  if (context.layout.toolMode != kMeasureTool) return false;
  MeasureDraft& draft = context.state.measureDraft;
  if (draft.active) {
    draft.end = event.world;
    LayTape(context.layout, draft);
    draft = {};
    endClickTool(context);
    context.host.markDirty();
  } else {
    draft = {.active = true, .start = event.world, .end = event.world};
  }
  context.host.repaint();
  return true;
}

bool measureMotion(CanvasContext& context, const PointerEvent& event) {
  if (context.layout.toolMode != kMeasureTool) return false;
  context.host.setCursor(CanvasCursor::cross);
  MeasureDraft& draft = context.state.measureDraft;
  if (!draft.active) return true;
  draft.end = event.world;
  context.host.repaint();
  return true;
}

bool measureKey(CanvasContext& context, const KeyEvent& event) {
  if (context.layout.toolMode != kMeasureTool || event.code != WXK_ESCAPE) return false;
  context.state.measureDraft = {};
  endClickTool(context);
  context.host.repaint();
  return true;
}

void drawMeasureDraft(const CanvasContext& context, wxDC& dc) {
  const MeasureDraft& draft = context.state.measureDraft;
  if (!draft.active) return;
  const wxColour blue(40, 80, 200);
  const DevicePoint start = context.state.view.toDevice(draft.start);
  const DevicePoint end = context.state.view.toDevice(draft.end);
  dc.SetPen(wxPen(blue, 2, wxPENSTYLE_LONG_DASH));
  dc.DrawLine(start.x, start.y, end.x, end.y);
  dc.SetBrush(wxBrush(blue));
  dc.SetPen(wxPen(blue));
  dc.DrawCircle(start.x, start.y, kEndRadius);
  dc.DrawCircle(end.x, end.y, kEndRadius);

  const std::string text = draftLengthText(Length(draft), context.layout.units);
  const DeviceSize size = measureDraftTag(dc, text);
  const int half = size.height / 2;
  drawDraftTag(dc, text, size,
               {.box = {end.x + 8, end.y - half - 2},
                .text = {end.x + 13, end.y - half},
                .extraWidth = 10,
                .fill = wxColour(255, 248, 220, 235),
                .line = blue,
                .ink = wxColour(20, 20, 20)});
}

}  // namespace vantrel
