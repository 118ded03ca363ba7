#include "canvas/gestures/polygon_draft.h"

#include <wx/dc.h>
#include <wx/defs.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "canvas/gestures/draft_text.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr std::size_t kFewestVertices = 3;
constexpr double kCloseReach = 10.0;  // pixels
constexpr double kSmallestScale = 0.0001;
constexpr std::int32_t kFreeFormShape = 5;  // the baseboard dialog's number for it

bool IsArmed(const Layout& layout) {
  return layout.toolMode == kPolygonTool || layout.toolMode == kBaseboardTool;
}

double Distance(Vec2 a, Vec2 b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

bool CanClose(const PolygonDraft& draft) {
  return draft.active && draft.vertices.size() >= kFewestVertices;
}

bool IsNearFirstVertex(const CanvasContext& context, Vec2 world) {
  const PolygonDraft& draft = context.state.polygonDraft;
  if (!CanClose(draft)) return false;
  const double reach = kCloseReach / std::max(context.state.view.scale, kSmallestScale);
  return Distance(world, draft.vertices.front()) <= reach;
}

// The baseboard tool tells in the status bar how to go on.
void EndTool(CanvasContext& context) {
  const bool baseboard = context.layout.toolMode == kBaseboardTool;
  context.state.polygonDraft = {};
  endClickTool(context);
  if (baseboard) context.host.setStatus(kStatusMessage, "");
  context.host.repaint();
}

void Close(CanvasContext& context) {
  Layout& layout = context.layout;
  std::vector<Vec2> vertices = std::move(context.state.polygonDraft.vertices);
  PushUndo(layout);
  if (layout.toolMode == kBaseboardTool) {
    layout.baseboard = std::move(vertices);
    layout.lastShape.id = kFreeFormShape;
  } else {
    Shape shape;
    shape.id = TakeId(layout);
    shape.vertices = std::move(vertices);
    shape.level = HighestVisibleLevel(layout);
    layout.shapes.push_back(std::move(shape));
  }
  EndTool(context);
  context.host.markDirty();
}

void TakeBackVertex(CanvasContext& context) {
  PolygonDraft& draft = context.state.polygonDraft;
  draft.vertices.pop_back();
  if (draft.vertices.empty()) draft = {};
  draft.closeHover = draft.closeHover && CanClose(draft);
  context.host.repaint();
}

constexpr int kSegmentWidth = 2;

void DrawSegments(const CanvasContext& context, wxDC& dc, const wxColour& blue) {
  const PolygonDraft& draft = context.state.polygonDraft;
  dc.SetPen(wxPen(blue, kSegmentWidth));
  for (std::size_t i = 1; i < draft.vertices.size(); ++i) {
    const DevicePoint from = context.state.view.toDevice(draft.vertices[i - 1]);
    const DevicePoint to = context.state.view.toDevice(draft.vertices[i]);
    dc.DrawLine(from.x, from.y, to.x, to.y);
  }
}

// From the last vertex to the pointer, or to the first vertex when a click would close; with its
// length at the pointer.
void DrawRubberSegment(const CanvasContext& context, wxDC& dc, const wxColour& blue,
                       const wxColour& green) {
  const PolygonDraft& draft = context.state.polygonDraft;
  const Vec2 target = draft.closeHover ? draft.vertices.front() : draft.pointer;
  const DevicePoint from = context.state.view.toDevice(draft.vertices.back());
  const DevicePoint to = context.state.view.toDevice(target);
  dc.SetPen(draft.closeHover ? wxPen(green, 2, wxPENSTYLE_LONG_DASH)
                             : wxPen(blue, 1, wxPENSTYLE_LONG_DASH));
  dc.DrawLine(from.x, from.y, to.x, to.y);

  const std::string text =
      draftLengthText(Distance(draft.vertices.back(), target), context.layout.units);
  const DeviceSize size = measureDraftTag(dc, text);
  const DevicePoint at = context.state.view.toDevice(draft.pointer);
  drawDraftTag(dc, text, size,
               {.box = {at.x + 10, at.y - size.height - 8},
                .text = {at.x + 14, at.y - size.height - 6},
                .extraWidth = 8,
                .fill = wxColour(255, 255, 255, 200),
                .line = wxColour(200, 200, 200),
                .ink = wxColour(20, 20, 60)});
}

void DrawVertices(const CanvasContext& context, wxDC& dc, const wxColour& blue,
                  const wxColour& green) {
  const PolygonDraft& draft = context.state.polygonDraft;
  dc.SetPen(wxPen(wxColour(20, 20, 20)));
  for (std::size_t i = 0; i < draft.vertices.size(); ++i) {
    const DevicePoint at = context.state.view.toDevice(draft.vertices[i]);
    dc.SetBrush(wxBrush(i == 0 ? green : blue));
    dc.DrawCircle(at.x, at.y, i == 0 ? 6 : 4);
  }
}

void DrawCloseRing(const CanvasContext& context, wxDC& dc, const wxColour& green) {
  const DevicePoint at = context.state.view.toDevice(context.state.polygonDraft.vertices.front());
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.SetPen(wxPen(green, 3));
  dc.DrawCircle(at.x, at.y, 12);
  measureDraftTag(dc, "Close");
  dc.SetTextForeground(green);
  dc.DrawText("Close", at.x + 16, at.y - 8);
}

}  // namespace

bool polygonPress(CanvasContext& context, const PointerEvent& event) {
  if (!IsArmed(context.layout)) return false;
  PolygonDraft& draft = context.state.polygonDraft;
  if (IsNearFirstVertex(context, event.world)) {
    Close(context);
    return true;
  }
  draft.active = true;
  draft.vertices.push_back(event.world);
  draft.pointer = event.world;
  context.host.repaint();
  return true;
}

bool polygonMotion(CanvasContext& context, const PointerEvent& event) {
  if (!IsArmed(context.layout)) return false;
  context.host.setCursor(CanvasCursor::cross);
  PolygonDraft& draft = context.state.polygonDraft;
  if (!draft.active) return true;
  draft.pointer = event.world;
  draft.closeHover = IsNearFirstVertex(context, event.world);
  context.host.repaint();
  return true;
}

bool polygonKey(CanvasContext& context, const KeyEvent& event) {
  if (!IsArmed(context.layout)) return false;
  const PolygonDraft& draft = context.state.polygonDraft;
  switch (event.code) {
    case WXK_ESCAPE:
      EndTool(context);
      return true;
    case WXK_BACK:
      if (!draft.active) return false;
      TakeBackVertex(context);
      return true;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
      if (!CanClose(draft)) return false;
      Close(context);
      return true;
    default:
      return false;
  }
}

void drawPolygonDraft(const CanvasContext& context, wxDC& dc) {
  const PolygonDraft& draft = context.state.polygonDraft;
  if (!draft.active || draft.vertices.empty() || !IsArmed(context.layout)) return;
  const wxColour blue(40, 80, 200);
  const wxColour green(40, 150, 60);
  DrawSegments(context, dc, blue);
  DrawRubberSegment(context, dc, blue, green);
  DrawVertices(context, dc, blue, green);
  if (draft.closeHover) DrawCloseRing(context, dc, green);
}

}  // namespace vantrel
