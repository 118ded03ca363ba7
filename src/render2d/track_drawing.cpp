#include "render2d/track_drawing.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/font.h>
#include <wx/pen.h>

#include <algorithm>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "render2d/text_extent.h"
#include "render2d/track_paint.h"

namespace vantrel {
namespace {

constexpr double kLabelPoints = 9.0;  // at scale 1
// Or as many for a pixel of a mm, if those are fewer: what six are at a fifth of one. The same
// holds for the dots' three pixels.
constexpr double kSmallestLabelPoints = 6.0;
constexpr double kLeastPointsPerScale = kSmallestLabelPoints / kTrackDetailScale;
// Only keeps the toolkit alive at absurd scales: finer pages than 5,000 dots per inch don't exist.
constexpr double kLargestLabelPoints = 2000.0;
constexpr int kBold = 700;
constexpr double kDotRadiusMm = 2.5;
constexpr int kSmallestDotRadius = 3;  // pixels
constexpr double kLeastDotRadiusMm = kSmallestDotRadius / kTrackDetailScale;
constexpr int kDotRimLightness = 70;  // per cent of the dot's own colour

// The middle of the straight that every kind has; of a curve's arc.
Vec2 LabelAnchor(const PieceDef& def) {
  const bool onArc = def.kind == PieceKind::Curve && def.radius > 0.0;
  const Pose middle = (onArc ? ArcOf(def, {}, def.angle) : StraightOf(def)).at(0.5);
  return {middle.x, middle.y};
}

// Keeps the face and style of the device's font. Set once for all pieces of a paint, since the next
// piece finds it as it should be.
void UseLabelFont(wxDC& dc, int points) {
  const wxFont& current = dc.GetFont();
  if (current.IsOk() && current.GetFractionalPointSize() == points &&
      current.GetNumericWeight() == kBold)
    return;
  wxFont font = current.IsOk() ? current : *wxNORMAL_FONT;
  font.SetPointSize(points);
  font.SetNumericWeight(kBold);
  dc.SetFont(font);
}

void DrawPartNumber(const RenderContext& context, const TrackPaint& paint) {
  if (!(paint.view.scale >= kTrackDetailScale)) return;
  wxDC& dc = paint.dc;
  UseLabelFont(dc, PartNumberPoints(paint.view));
  dc.SetTextForeground(ToColour(paint.selected ? kSelectedOutline : kLabelText));
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  TextExtents own;
  TextExtents& extents = context.textExtents != nullptr ? *context.textExtents : own;
  const MeasuredText& number = MeasureText(extents, dc, paint.def.partNumber);
  const wxPoint anchor = DevicePointOf(paint.view, paint.frame.toWorld(LabelAnchor(paint.def)));
  dc.DrawText(number.text, anchor.x - number.size.x / 2, anchor.y - number.size.y / 2);
}

// Never fewer than three dots of the device.
int DotRadius(const ViewTransform& view) {
  const int least =
      std::min(view.pixels(kSmallestDotRadius), DeviceInt(view.scale * kLeastDotRadiusMm));
  return std::max({kSmallestDotRadius, least, DeviceInt(view.scale * kDotRadiusMm)});
}

bool GhostShowsDots(PieceKind kind) {
  switch (kind) {
    case PieceKind::LeftTurnout:
    case PieceKind::RightTurnout:
    case PieceKind::CurvedTurnout:
    case PieceKind::DoubleSlip:
    case PieceKind::Crossing:
    case PieceKind::OuterCurveTurnout:
      return true;
    default:
      return false;
  }
}

}  // namespace

int PartNumberPoints(const ViewTransform& view) {
  const double scale = view.pixelScale();
  const double least = std::min(kSmallestLabelPoints, kLeastPointsPerScale * scale);
  const double whole = DeviceInt(kLabelPoints * scale);
  return view.fontPoints(std::clamp(whole, least, kLargestLabelPoints));
}

void setSolidPen(wxDC& dc, const wxColour& colour, int width) {
  dc.SetPen(wxPen(colour, width));
}

void setSolidBrush(wxDC& dc, const wxColour& colour) {
  dc.SetBrush(wxBrush(colour));
}

int scaledLength(const ViewTransform& view, double mm) {
  return DeviceInt(mm * view.scale);
}

void drawDots(wxDC& dc, const BedFrame& frame, const Piece* piece, const PieceDef& def,
              const ViewTransform& view) {
  if (!(view.scale >= kTrackDetailScale)) return;
  const int radius = DotRadius(view);
  bool first = true;
  bool before = false;
  for (std::size_t i = 0; i < def.connectors.size(); ++i) {
    const bool joined = piece != nullptr && !IsConnectorOpen(*piece, i);
    if (first || joined != before) {
      const wxColour colour = ToColour(joined ? kJoinedDot : kFreeDot);
      setSolidBrush(dc, colour);
      setSolidPen(dc, colour.ChangeLightness(kDotRimLightness), view.pixels(1));
    }
    first = false;
    before = joined;
    const Connector& end = def.connectors[i];
    dc.DrawCircle(DevicePointOf(view, frame.toWorld({end.x, end.y})), radius);
  }
}

void FillBedPolygon(wxDC& dc, const std::vector<wxPoint>& points, const wxColour& fill,
                    const wxColour& outline, int penWidth) {
  if (points.size() < 3) return;
  setSolidBrush(dc, fill);
  setSolidPen(dc, outline, penWidth);
  dc.DrawPolygon(static_cast<int>(points.size()), points.data());
}

void DrawTrackPiece(const RenderContext& context, wxDC& dc, const Piece& piece, const PieceDef& def,
                    const ViewTransform& view, bool selected, bool showLabels, bool inTunnel) {
  const TrackPaint paint{.dc = dc,
                         .def = def,
                         .frame = MakeBedFrame(piece.pose()),
                         .view = view,
                         .colours = placedBedColours(context, piece, def, selected, inTunnel),
                         .piece = &piece,
                         .selected = selected};
  drawTrackShape(paint);
  if (!showLabels) return;
  DrawPartNumber(context, paint);
  drawDots(dc, paint.frame, &piece, def, view);
}

void DrawTrackGhost(wxDC& dc, const PieceDef& def, const Pose& pose, const ViewTransform& view) {
  const TrackPaint paint{.dc = dc,
                         .def = def,
                         .frame = MakeBedFrame(pose),
                         .view = view,
                         .colours = {kGhostFill, kGhostOutline}};
  drawTrackShape(paint);
  if (GhostShowsDots(def.kind)) drawDots(dc, paint.frame, nullptr, def, view);
}

void DrawJoinDots(wxDC& dc, const Piece& piece, const PieceDef& def, const ViewTransform& view) {
  drawDots(dc, MakeBedFrame(piece.pose()), &piece, def, view);
}

}  // namespace vantrel
