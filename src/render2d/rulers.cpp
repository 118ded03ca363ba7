#include "render2d/rulers.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <cmath>
#include <span>

#include "doc/format_length.h"
#include "doc/layout.h"
#include "render2d/contents_text.h"

namespace vantrel {
namespace {

constexpr double kShortestTick = 60.0;  // device units from one tick to the next
constexpr double kMillimetreSteps[] = {1, 2, 5, 10, 20, 50, 100, 200, 500};
constexpr double kCentimetreSteps[] = {0.5, 1, 2, 5, 10, 20, 50, 100, 200};
constexpr double kInchSteps[] = {0.25, 0.5, 1, 2, 3, 6, 12, 24, 48, 96, 192};

const wxColour kBandFill(240, 240, 240);
const wxColour kBandEdge(180, 180, 180);
const wxColour kTickColour(140, 140, 140);
const wxColour kLabelColour(80, 80, 80);
const wxColour kOriginColour(200, 80, 80);
constexpr int kLabelPoints = 7;
constexpr int kTickFrom = 14;  // device units; ticks end at the band's inner edge

std::span<const double> Steps(std::int32_t units) {
  if (units == kCentimetres) return kCentimetreSteps;
  if (units == kInches) return kInchSteps;
  return kMillimetreSteps;
}

double MillimetresPerUnit(std::int32_t units) {
  if (units == kCentimetres) return 10.0;
  if (units == kInches) return 25.4;
  return 1.0;
}

// One ruler's ticks: numbered by whole steps from the world's origin.
struct Ticks {
  double step = 0.0;    // in the units' own measure
  double stepMm = 0.0;  // the same in mm
  double first = 0.0;   // whole number of steps
  int count = 0;        // may be more than are needed
};

Ticks TicksAlong(double offset, double scale, std::int32_t units, int extent) {
  const double step = rulerStep(units, scale);
  const double stepMm = step * MillimetresPerUnit(units);
  const double pitch = stepMm * scale;
  // Ticks less than a device unit apart would only paint the band full.
  if (!(pitch >= 1.0)) return {};
  return {step, stepMm, std::floor(-offset / pitch), DeviceInt(extent / pitch) + 2};
}

void DrawBands(wxDC& dc, DeviceSize client) {
  dc.SetBrush(wxBrush(kBandFill));
  dc.SetPen(wxPen(kBandEdge, 1));
  dc.DrawRectangle(0, 0, client.width, kRulerWidth);
  dc.DrawRectangle(0, 0, kRulerWidth, client.height);
  dc.DrawRectangle(0, 0, kRulerWidth, kRulerWidth);
}

// Calls draw(position on the device, label) for each tick from the band's corner to the extent.
template <typename Draw>
void ForEachTick(double offset, double scale, std::int32_t units, int extent, Draw draw) {
  const Ticks ticks = TicksAlong(offset, scale, units, extent);
  for (int i = 0; i < ticks.count; ++i) {
    const double number = ticks.first + i;
    const int position = DeviceInt(scale * (number * ticks.stepMm) + offset);
    if (position >= extent) break;
    if (position < kRulerWidth) continue;
    draw(position, wxString::FromUTF8(rulerLabel(units, number * ticks.step)));
  }
}

void DrawOriginMarks(wxDC& dc, const ViewTransform& view, DeviceSize client) {
  dc.SetPen(wxPen(kOriginColour, 1));
  const DevicePoint origin = view.toDevice({0.0, 0.0});
  if (origin.x >= kRulerWidth && origin.x < client.width)
    dc.DrawLine(origin.x, 0, origin.x, kRulerWidth);
  if (origin.y >= kRulerWidth && origin.y < client.height)
    dc.DrawLine(0, origin.y, kRulerWidth, origin.y);
}

}  // namespace

double rulerStep(std::int32_t units, double scale) {
  const std::span<const double> steps = Steps(units);
  const double shortest = kShortestTick / (MillimetresPerUnit(units) * scale);
  for (const double step : steps)
    if (step >= shortest) return step;
  return steps.back();
}

std::string rulerLabel(std::int32_t units, double value) {
  if (units != kInches) return FormatFixed(value, 0);
  const bool whole = std::fmod(std::abs(value), 1.0) == 0.0;
  return FormatFixed(value, whole ? 0 : 1) + "\"";
}

void drawRulers(wxDC& dc, const ViewTransform& view, std::int32_t units, DeviceSize client) {
  DrawBands(dc, client);
  dc.SetFont(PlanFont(view, kLabelPoints, wxFONTWEIGHT_NORMAL));
  dc.SetTextForeground(kLabelColour);
  // Labels of the plan may have left a solid background behind.
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.SetPen(wxPen(kTickColour, 1));
  ForEachTick(view.offsetX, view.scale, units, client.width, [&dc](int x, const wxString& label) {
    dc.DrawLine(x, kTickFrom, x, kRulerWidth);
    dc.DrawText(label, x + 2, 2);
  });
  ForEachTick(view.offsetY, view.scale, units, client.height, [&dc](int y, const wxString& label) {
    dc.DrawLine(kTickFrom, y, kRulerWidth, y);
    dc.DrawText(label, 1, y + 1);
  });
  DrawOriginMarks(dc, view, client);
}

}  // namespace vantrel
