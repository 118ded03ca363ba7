#include "render2d/contents_annotations.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <cmath>

#include "app/services/wx_text.h"
#include "doc/format_length.h"
#include "render2d/contents_text.h"
#include "render2d/text_extent.h"

namespace vantrel {
namespace {

const wxColour kSelected(40, 80, 200);
const wxColour kText(20, 20, 20);

constexpr double kLabelPointsPerScale = 11.0;
constexpr int kSmallestLabelPoints = 8;
const wxColour kLabelBackground(255, 255, 220, 200);
constexpr int kLabelFramePad = 2;  // pixels

const wxColour kTape(60, 60, 60);
constexpr int kTapePenWidth = 2;
constexpr int kSelectedTapePenWidth = 3;
constexpr double kLongestBareTape = 6.0;  // pixels; a longer one has arrow heads
constexpr double kHeadLength = 10.0;      // pixels
constexpr double kHeadHalfWidth = 5.0;
constexpr int kTapeTextPoints = 10;
const wxColour kTapePlate(255, 248, 220, 235);
const wxColour kSelectedTapePlate(220, 232, 255, 235);
constexpr int kTapePlatePadX = 5;  // pixels
constexpr int kTapePlatePadY = 2;

bool LabelOutOfView(const ContentsPaint& paint, const Label& label, wxPoint at,
                    const TextBounds& bounds) {
  const int slack = paint.view.pixels(kLabelFramePad) + bounds.perCharacter();
  // Most labels out of view lie below or to the right, where their size doesn't matter.
  if (at.x - slack > paint.area.right || at.y - slack > paint.area.bottom) return true;
  const wxSize size = bounds.of(label.text);
  return paint.area.missesBox(at.x - slack, at.y - slack, at.x + size.GetWidth() + slack,
                              at.y + size.GetHeight() + slack);
}

void DrawLabelFrame(ContentsPaint& paint, const Label& label, wxPoint at) {
  const wxSize size = MeasureText(*paint.context.textExtents, paint.dc, label.text).size;
  const int pad = paint.view.pixels(kLabelFramePad);
  paint.dc.SetPen(wxPen(kSelected, paint.view.pixels(1), wxPENSTYLE_DOT));
  paint.dc.SetBrush(*wxTRANSPARENT_BRUSH);
  paint.dc.DrawRectangle(at.x - pad, at.y - pad, size.GetWidth() + 2 * pad,
                         size.GetHeight() + 2 * pad);
}

// The tape's direction is the unit vector `ahead`; the head's base lies `back` device units along
// it from the tip, and its corners `halfWidth` to the sides. The base is truncated before its two
// corners are.
void DrawTapeHead(wxDC& dc, wxPoint tip, Vec2 ahead, double back, double halfWidth) {
  const wxPoint base(DeviceInt(tip.x + back * ahead.x), DeviceInt(tip.y + back * ahead.y));
  const Vec2 aside{halfWidth * -ahead.y, halfWidth * ahead.x};
  DrawClosedPolygon(dc, {tip,
                         {DeviceInt(base.x + aside.x), DeviceInt(base.y + aside.y)},
                         {DeviceInt(base.x - aside.x), DeviceInt(base.y - aside.y)}});
}

void DrawTape(ContentsPaint& paint, wxPoint from, wxPoint to, bool selected) {
  const wxPoint ends[] = {from, to};
  const int reach = static_cast<int>(kHeadLength) + kSelectedTapePenWidth;
  if (paint.area.missesPoints(ends, paint.view.pixels(reach))) return;
  wxDC& dc = paint.dc;
  const wxColour& colour = selected ? kSelected : kTape;
  dc.SetPen(wxPen(colour, paint.view.pixels(selected ? kSelectedTapePenWidth : kTapePenWidth)));
  dc.DrawLine(from, to);
  const Vec2 span{static_cast<double>(to.x) - from.x, static_cast<double>(to.y) - from.y};
  const double length = std::hypot(span.x, span.y);
  const double pixel = paint.view.pixel;
  if (length <= kLongestBareTape * pixel) return;
  const Vec2 ahead{span.x / length, span.y / length};
  dc.SetBrush(wxBrush(colour));
  DrawTapeHead(dc, from, ahead, kHeadLength * pixel, kHeadHalfWidth * pixel);
  DrawTapeHead(dc, to, ahead, -kHeadLength * pixel, kHeadHalfWidth * pixel);
}

void DrawTapeText(ContentsPaint& paint, const Measurement& tape, const wxFont& font,
                  const TextBounds& bounds) {
  const double length = std::hypot(tape.endX - tape.startX, tape.endY - tape.startY);
  if (!std::isfinite(length)) return;
  const wxPoint anchor =
      ToPoint(paint.view.toDevice({(tape.startX + tape.endX) / 2.0 + tape.moveX,
                                   (tape.startY + tape.endY) / 2.0 + tape.moveY}));
  if (paint.area.missesCentredBox(anchor, bounds.ofLength(length),
                                  paint.view.pixels(kTapePlatePadX)))
    return;
  paint.dc.SetFont(font);
  paint.dc.SetTextForeground(kText);
  paint.dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  paint.dc.SetBrush(wxBrush(tape.sel ? kSelectedTapePlate : kTapePlate));
  paint.dc.SetPen(wxPen(tape.sel ? kSelected : kTape, paint.view.pixels(1)));
  DrawTextOnPlate(paint, FormatLength(length, paint.layout.units), anchor, kTapePlatePadX,
                  kTapePlatePadY);
}

}  // namespace

void DrawLabels(ContentsPaint& paint) {
  if (paint.layout.labels.empty()) return;
  wxDC& dc = paint.dc;
  const wxFont font =
      PlanFont(paint.view,
               PlanFontSize(paint.view.pixelScale() * kLabelPointsPerScale, kSmallestLabelPoints),
               wxFONTWEIGHT_BOLD);
  const TextBounds bounds(dc, font);
  dc.SetFont(font);
  dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
  dc.SetTextBackground(kLabelBackground);
  for (const Label& label : paint.layout.labels) {
    const wxPoint at = ToPoint(paint.view.toDevice({label.x, label.y}));
    if (LabelOutOfView(paint, label, at, bounds)) continue;
    dc.SetTextForeground(label.sel ? kSelected : kText);
    dc.DrawText(ToWx(label.text), at);
    if (label.sel) DrawLabelFrame(paint, label, at);
  }
}

void DrawMeasurements(ContentsPaint& paint) {
  if (paint.layout.measurements.empty()) return;
  const wxFont font = PlanFont(paint.view, kTapeTextPoints, wxFONTWEIGHT_BOLD);
  const TextBounds bounds(paint.dc, font);
  for (const Measurement& tape : paint.layout.measurements) {
    DrawTape(paint, ToPoint(paint.view.toDevice({tape.startX, tape.startY})),
             ToPoint(paint.view.toDevice({tape.endX, tape.endY})), tape.sel);
    DrawTapeText(paint, tape, font, bounds);
  }
}

}  // namespace vantrel
