#include "canvas/gestures/alt_rotation.h"
#include "app/services/wx_text.h"

#include <wx/dc.h>
#include <wx/font.h>

#include <cmath>
#include <numbers>
#include <optional>

#include "canvas/gestures/lock_boxes.h"
#include "canvas/operations/rotating.h"
#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "doc/find_record.h"
#include "doc/format_length.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kHoldDegrees = 2.0;
constexpr int kFlashMs = 400;
constexpr int kTagFontSize = 11;

// Into -180 to 180.
double ToHalfTurns(double degrees) {
  const double turned = std::remainder(degrees, 360.0);
  return std::isfinite(turned) ? turned : 0.0;
}

// 360 stands for 0, so that angles on both sides of it are held.
std::optional<double> RightAngleNear(double degrees) {
  for (const double target : {0.0, 90.0, 180.0, 270.0, 360.0})
    if (std::abs(degrees - target) < kHoldDegrees) return target == 360.0 ? 0.0 : target;
  return std::nullopt;
}

// Degrees of a client point about the pivot on the screen.
double AngleAbout(const CanvasContext& context, Vec2 pivot, DevicePoint at) {
  const DevicePoint centre = context.state.view.toDevice(pivot);
  return std::atan2(at.y - centre.y, at.x - centre.x) * 180.0 / std::numbers::pi;
}

void Finish(CanvasContext& context) {
  context.state.altRotate = {};
  context.host.stopFlashTimer();
}

void Flash(CanvasContext& context, bool held) {
  bool& flash = context.state.altRotate.flash;
  if (held && !flash) context.host.startFlashTimer(kFlashMs);
  if (!held) context.host.stopFlashTimer();
  flash = held;
}

// The turn so far, in degrees; holds at right angles of the first thing's heading.
double TurnTo(CanvasContext& context, DevicePoint at) {
  AltRotate& gesture = context.state.altRotate;
  const double first = gesture.start.front().heading;
  const double turn = ToHalfTurns(AngleAbout(context, gesture.pivot, at) - gesture.startAngle);
  gesture.shownAngle = normalizeDegrees(first + turn);
  const std::optional<double> held = RightAngleNear(gesture.shownAngle);
  Flash(context, held.has_value());
  if (!held) return turn;
  gesture.shownAngle = *held;
  return ToHalfTurns(*held - first);
}

}  // namespace

bool pressAltRotate(CanvasContext& context, const PointerEvent& event) {
  Layout& layout = context.layout;
  if (!event.mods.alt || !hasSelectedObject(layout)) return false;
  const std::int32_t helixId = commonHelixOfSelection(layout);
  if (helixId == kNone && !checkSelectionLocks(context, "rotate")) return true;

  PushUndo(layout);
  AltRotate& gesture = context.state.altRotate;
  gesture = {};
  gesture.active = true;
  gesture.start = selectionPoses(layout);
  gesture.pivot = selectionMean(layout);
  if (const Helix* const helix = FindRecord(layout.helices, helixId)) {
    gesture.helix = helixId;
    gesture.helixHeading = helix->heading;
    gesture.pivot = {helix->cx, helix->cy};
  }
  gesture.startAngle = AngleAbout(context, gesture.pivot, event.at);
  gesture.shownAngle = normalizeDegrees(gesture.start.front().heading);
  context.host.captureMouse();
  context.host.repaint();
  return true;
}

bool altRotateMotion(CanvasContext& context, const PointerEvent& event) {
  AltRotate& gesture = context.state.altRotate;
  if (!gesture.active || !event.leftDown) return false;
  if (!hasSelectedObject(context.layout)) {
    Finish(context);
    context.host.releaseMouse();
    context.host.repaint();
    return true;
  }
  const double turn = TurnTo(context, event.at);
  turnSelectionFrom(context.layout, gesture.start, gesture.pivot, turn);
  if (Helix* const helix = FindRecord(context.layout.helices, gesture.helix))
    helix->heading = normalizeDegrees(gesture.helixHeading + turn);
  context.host.markDirty();
  context.host.repaint();
  return true;
}

bool endAltRotate(CanvasContext& context, const PointerEvent&) {
  if (!context.state.altRotate.active) return false;
  Finish(context);
  context.host.markDirty();
  context.host.repaint();
  return true;
}

void endRotationFlash(CanvasContext& context) {
  context.state.altRotate.flash = false;
  context.host.repaint();
}

void drawAltRotate(const CanvasContext& context, wxDC& dc) {
  const AltRotate& gesture = context.state.altRotate;
  if (!gesture.active) return;
  const DevicePoint at = context.state.view.toDevice(gesture.pivot);
  dc.SetBrush(wxBrush(gesture.flash ? wxColour(0, 220, 80, 180) : wxColour(255, 180, 0, 160)));
  dc.SetPen(wxPen(gesture.flash ? wxColour(0, 160, 60) : wxColour(180, 120, 0), 2));
  dc.DrawCircle(at.x, at.y, gesture.flash ? 16 : 8);

  const wxString text = ToWx(FormatFixed(gesture.shownAngle, 1) + " deg");
  dc.SetFont(wxFont(wxFontInfo(kTagFontSize).Bold()));
  const wxSize size = dc.GetTextExtent(text);
  const int half = size.GetHeight() / 2;
  dc.SetBrush(wxBrush(wxColour(30, 30, 30, 200)));
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.DrawRoundedRectangle(at.x + 10, at.y - half - 3, size.GetWidth() + 8, size.GetHeight() + 6,
                          3.0);
  dc.SetTextForeground(gesture.flash ? wxColour(0, 255, 100) : *wxWHITE);
  dc.DrawText(text, at.x + 14, at.y - half);
}

}  // namespace vantrel
