// What stands on the beds: bridge arches, contact and uncoupler bars, bumper bars; and the
// turntable, which has no bed of its own.
#include <wx/dc.h>

#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"
#include "catalog/routes.h"
#include "render2d/track_drawing.h"
#include "render2d/track_paint.h"

namespace vantrel {
namespace {

constexpr double kArchPenMm = 1.5;
constexpr double kCurvedArchShare = 0.22;  // of the curve's radius
constexpr double kBarHalfWidthMm = 4.0;
constexpr double kCircuitBarHalfLengthMm = 8.0;
constexpr double kUncouplerBarHalfLengthMm = 16.0;
constexpr double kBumperHalfMm = 8.0;
constexpr double kBumperPenMm = 4.0;

// The box stays upright whatever the piece's heading; only the angles turn with it.
void DrawArch(const TrackPaint& paint, int alpha, const wxRect& box, double startAngle,
              double endAngle) {
  // A box without area would leave cairo in an error state, and nothing after it would be drawn.
  if (box.width <= 0 || box.height <= 0) return;
  const int width = std::max(paint.view.pixels(1), scaledLength(paint.view, kArchPenMm));
  setSolidPen(paint.dc, ToColour(kBridgeArch, alpha), width);
  paint.dc.SetBrush(*wxTRANSPARENT_BRUSH);
  paint.dc.DrawEllipticArc(box.x, box.y, box.width, box.height, DeviceInt(startAngle),
                           DeviceInt(endAngle));
}

void DrawStraightArch(const TrackPaint& paint) {
  const double heading = paint.frame.heading;
  const int r = scaledLength(paint.view, paint.def.length / 2.0);
  const wxPoint middle = DevicePointOf(paint.view, paint.frame.ahead(paint.def.length / 2.0));
  DrawArch(paint, kStraightArchAlpha, {middle.x - r, middle.y - r / 4, 2 * r, r / 2},
           heading + 180.0, heading + 360.0);
}

// The middle of a curve's centre line. What stands on a curve goes to the side of its far end.
wxPoint ArcMiddle(const TrackPaint& paint) {
  const double sweep = SideOfConnector(paint.def, 1) * std::abs(paint.def.angle);
  const Pose middle = ArcOf(paint.def, {}, sweep).at(0.5);
  return DevicePointOf(paint.view, paint.frame.toWorld({middle.x, middle.y}));
}

void DrawCurvedArch(const TrackPaint& paint) {
  const int r = scaledLength(paint.view, paint.def.radius * kCurvedArchShare);
  const wxPoint middle = ArcMiddle(paint);
  const double start = SideOfConnector(paint.def, 1) * 90.0 + paint.frame.heading;
  DrawArch(paint, kCurvedArchAlpha, {middle.x - r, middle.y - r / 3, 2 * r, 2 * r / 3}, start,
           start + 180.0);
}

// Upright on the device, not turned with the piece.
void DrawContactMark(const TrackPaint& paint) {
  const wxPoint middle = ArcMiddle(paint);
  const int halfWidth = std::max(paint.view.pixels(3), scaledLength(paint.view, 8.0));
  const int halfHeight = std::max(paint.view.pixels(2), scaledLength(paint.view, 4.0));
  setSolidPen(paint.dc, ToColour(kMarkerPen), paint.view.pixels(1));
  setSolidBrush(paint.dc, ToColour(kMarkerBrush));
  paint.dc.DrawRectangle(middle.x - halfWidth, middle.y - halfHeight, 2 * halfWidth,
                         2 * halfHeight);
}

void DrawBar(const TrackPaint& paint, double halfLength) {
  DrawTrackMarker(paint.dc, paint.view, paint.frame.at, paint.frame.heading, paint.def.length / 2.0,
                  halfLength, kBarHalfWidthMm, 1);
}

void DrawBumper(const TrackPaint& paint) {
  const Vec2 end = paint.frame.ahead(paint.def.length);
  const wxPoint right = DevicePointOf(paint.view, paint.frame.beside(end, kBumperHalfMm));
  const wxPoint left = DevicePointOf(paint.view, paint.frame.beside(end, -kBumperHalfMm));
  setSolidPen(paint.dc, ToColour(kBumperBar),
              std::max(paint.view.pixels(4), scaledLength(paint.view, kBumperPenMm)));
  paint.dc.DrawLine(right.x, right.y, left.x, left.y);
}

}  // namespace

void drawStraightExtras(const TrackPaint& paint) {
  if (paint.def.isBridge && !paint.isGhost()) DrawStraightArch(paint);
  if (paint.def.mark == TrackMark::circuitBar) DrawBar(paint, kCircuitBarHalfLengthMm);
  if (paint.def.mark == TrackMark::uncouplerBar) DrawBar(paint, kUncouplerBarHalfLengthMm);
  if (paint.def.kind == PieceKind::TrackEnd) DrawBumper(paint);
}

void drawCurveExtras(const TrackPaint& paint) {
  if (paint.def.isBridge && !paint.isGhost()) DrawCurvedArch(paint);
  if (paint.def.mark == TrackMark::contactPlate) DrawContactMark(paint);
}

void drawTurntable(const TrackPaint& paint) {
  wxDC& dc = paint.dc;
  const wxPoint centre = DevicePointOf(paint.view, paint.frame.at);
  const double deckRadius = paint.def.length / 2.0;
  setSolidBrush(dc, ToColour(kTurntableDeck, paint.isGhost() ? kGhostDeckAlpha : kOpaque));
  setSolidPen(dc, ToColour(paint.colours.outline), paint.view.pixels(1));
  dc.DrawCircle(centre, scaledLength(paint.view, deckRadius));
  setSolidBrush(dc, ToColour(paint.colours.fill));
  dc.DrawCircle(centre, scaledLength(paint.view, paint.def.radius));
  setSolidPen(dc, ToColour(paint.selected ? kSelectedOutline : kTurntableBridge),
              paint.view.pixels(3));
  dc.DrawLine(DevicePointOf(paint.view, paint.frame.ahead(paint.def.radius)),
              DevicePointOf(paint.view, paint.frame.ahead(-paint.def.radius)));
  if (paint.isGhost()) return;

  setSolidPen(dc, ToColour(kTurntableSpoke), paint.view.pixels(2));
  const std::vector<Connector>& ends = paint.def.connectors;
  for (std::size_t i = 0; i < ends.size() && i < paint.piece->joints.size(); ++i) {
    if (paint.piece->joints[i].target < 0) continue;
    const double direction = Radians(paint.frame.heading + ends[i].heading);
    const Vec2 rim{paint.frame.at.x + deckRadius * std::cos(direction),
                   paint.frame.at.y + deckRadius * std::sin(direction)};
    dc.DrawLine(DevicePointOf(paint.view, rim),
                DevicePointOf(paint.view, paint.frame.toWorld({ends[i].x, ends[i].y})));
  }
  const int stubRadius = std::max(paint.view.pixels(2), scaledLength(paint.view, 3.0));
  setSolidBrush(dc, ToColour(kTurntableStub));
  dc.SetPen(*wxTRANSPARENT_PEN);
  for (const Connector& end : ends)
    dc.DrawCircle(DevicePointOf(paint.view, paint.frame.toWorld({end.x, end.y})), stubRadius);
}

void DrawTrackMarker(wxDC& dc, const ViewTransform& view, Vec2 position, double heading,
                     double offset, double halfLength, double halfWidth, int penWidth) {
  const BedFrame frame = MakeBedFrame({position.x, position.y, heading});
  const Vec2 back = frame.ahead(offset - halfLength);
  const Vec2 front = frame.ahead(offset + halfLength);
  const wxPoint corners[] = {DevicePointOf(view, frame.beside(back, halfWidth)),
                             DevicePointOf(view, frame.beside(back, -halfWidth)),
                             DevicePointOf(view, frame.beside(front, -halfWidth)),
                             DevicePointOf(view, frame.beside(front, halfWidth))};
  setSolidPen(dc, ToColour(kMarkerPen), view.pixels(std::max(1, penWidth)));
  setSolidBrush(dc, ToColour(kMarkerBrush));
  dc.DrawPolygon(4, corners);
}

}  // namespace vantrel
