// Which beds each kind of piece is made of, in which order and colour.
#include <wx/dc.h>

#include <array>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "render2d/track_drawing.h"
#include "render2d/track_paint.h"

namespace vantrel {
namespace {

constexpr int kOutlineWidth = 1;            // pixels at any scale
constexpr double kDivergingGhostMm = 5.0;   // a curved turnout's ends lie further aside than this
constexpr double kStraightThroughMm = 1.0;  // a slip's first route ends nearer the axis than this
constexpr PieceKind kUnnamedStraightKind{7};

// Drawing happens on the interface thread only; the buffers keep their memory from piece to piece.
BedPoints& ScratchBuffer(std::size_t which) {
  thread_local std::array<BedPoints, 2> buffers;
  return buffers[which];
}

void DrawStretch(const TrackPaint& paint, const Stretch& stretch, Rgb8 colour) {
  BedPoints& points = ScratchBuffer(0);
  makeStretchBed(points, paint.frame, stretch, bedHalfWidth(paint.def), paint.view);
  FillBedPolygon(paint.dc, points, ToColour(colour), ToColour(paint.colours.outline),
                 paint.view.pixels(kOutlineWidth));
}

void DrawWay(const TrackPaint& paint, std::size_t way, Rgb8 colour) {
  const Way drawn = WayOf(paint.def, way);
  for (const Stretch& stretch : drawn.stretches()) DrawStretch(paint, stretch, colour);
}

void DrawStraightBed(const TrackPaint& paint, Rgb8 colour) {
  DrawStretch(paint, StraightOf(paint.def), colour);
}

// The straight from connector 2 to connector 3; nothing without them.
void DrawCrossingStraight(const TrackPaint& paint, Rgb8 colour) {
  if (paint.def.connectors.size() >= 4) DrawWay(paint, 1, colour);
}

// What branches lies on the straight of a simple turnout, and under that of a three-way.
void DrawTurnout(const TrackPaint& paint) {
  const Rgb8 branch = branchColour(paint.colours.fill);
  if (WayCount(paint.def) < 3) {
    DrawWay(paint, 0, paint.colours.fill);
    DrawWay(paint, 1, branch);
    return;
  }
  DrawWay(paint, 1, branch);
  DrawWay(paint, 2, branch);
  DrawWay(paint, 0, paint.colours.fill);
}

// The curves of a ghost that diverge: without the straight lead before the outer one, and that
// where its connector lies, also behind the inner one's.
void DrawShiftedArcs(const TrackPaint& paint) {
  const std::vector<Connector>& ends = paint.def.connectors;
  const Pose shifted{ends[2].x - ends[1].x, 0.0, 0.0};
  DrawWay(paint, 0, paint.colours.fill);
  DrawStretch(paint, ArcOf(paint.def, shifted, paint.def.angle), branchColour(paint.colours.fill));
}

// A ghost whose curves hardly diverge shows its straight instead of the lead, and a second curve
// from the origin.
void DrawBundledArcs(const TrackPaint& paint) {
  DrawStraightBed(paint, paint.colours.fill);
  DrawWay(paint, 0, paint.colours.fill);
  DrawStretch(paint, ArcOf(paint.def, {}, RouteSweep(paint.def, 2)),
              branchColour(paint.colours.fill));
}

void DrawCurvedTurnout(const TrackPaint& paint) {
  const std::vector<Connector>& ends = paint.def.connectors;
  if (!paint.isGhost()) {
    DrawWay(paint, 0, paint.colours.fill);
    DrawWay(paint, 1, branchColour(paint.colours.fill));
  } else if (ends.size() >= 3 && std::abs(ends[1].y) > kDivergingGhostMm) {
    DrawShiftedArcs(paint);
  } else {
    DrawBundledArcs(paint);
  }
}

void DrawSegment(wxDC& dc, const wxPoint& from, const wxPoint& to) {
  dc.DrawLine(from.x, from.y, to.x, to.y);
}

// The outer edges and the ends of two arcs; their inner edges stay unseen under the fill.
void StrokeLens(wxDC& dc, const BedPoints& a, const BedPoints& b) {
  const std::size_t lastA = (a.size() - 2) / 2;
  const std::size_t lastB = (b.size() - 2) / 2;
  dc.DrawLines(static_cast<int>(lastA + 1), a.data());
  dc.DrawLines(static_cast<int>(lastB + 1), b.data());
  DrawSegment(dc, a.front(), b[lastB + 1]);
  DrawSegment(dc, a.back(), b[lastB]);
  DrawSegment(dc, b.back(), a[lastA]);
  DrawSegment(dc, b.front(), a[lastA + 1]);
}

void DrawSlipArcs(const TrackPaint& paint) {
  const wxColour slip = ToColour(slipColour(paint.colours.fill, paint.isGhost()));
  const double halfWidth = bedHalfWidth(paint.def);
  BedPoints& a = ScratchBuffer(0);
  BedPoints& b = ScratchBuffer(1);
  makeStretchBed(a, paint.frame, WayOf(paint.def, 2).parts[0], halfWidth, paint.view);
  FillBedPolygon(paint.dc, a, slip, slip, 0);
  if (paint.def.connectors.size() < 3) return;
  makeStretchBed(b, paint.frame, WayOf(paint.def, 3).parts[0], halfWidth, paint.view);
  FillBedPolygon(paint.dc, b, slip, slip, 0);
  setSolidPen(paint.dc, ToColour(paint.colours.outline), paint.view.pixels(kOutlineWidth));
  StrokeLens(paint.dc, a, b);
}

void DrawDoubleSlip(const TrackPaint& paint) {
  const std::vector<Connector>& ends = paint.def.connectors;
  if (ends.size() >= 2 && std::abs(ends[1].y) < kStraightThroughMm) {
    DrawStraightBed(paint, paint.colours.fill);
    DrawCrossingStraight(paint, loweredBy(paint.colours.fill, 8, 8, 4));
  }
  if (paint.def.radius > 0.0) DrawSlipArcs(paint);
}

}  // namespace

void drawTrackShape(const TrackPaint& paint) {
  const Rgb8 fill = paint.colours.fill;
  switch (paint.def.kind) {
    case PieceKind::Straight:
    case PieceKind::TrackEnd:
      DrawStraightBed(paint, fill);
      drawStraightExtras(paint);
      return;
    case PieceKind::Curve:
      DrawWay(paint, 0, fill);
      drawCurveExtras(paint);
      return;
    case PieceKind::LeftTurnout:
    case PieceKind::RightTurnout:
      DrawTurnout(paint);
      return;
    case PieceKind::CurvedTurnout:
      DrawCurvedTurnout(paint);
      return;
    case PieceKind::DoubleSlip:
      DrawDoubleSlip(paint);
      return;
    case PieceKind::Crossing:
      DrawStraightBed(paint, fill);
      DrawCrossingStraight(paint, loweredBy(fill, 10, 10, 5));
      return;
    case PieceKind::Turntable:
      drawTurntable(paint);
      return;
    case PieceKind::OuterCurveTurnout:
      DrawWay(paint, 0, fill);
      DrawWay(paint, 1, branchColour(fill));
      return;
  }
  DrawStraightBed(paint, fill);
  if (paint.def.kind == kUnnamedStraightKind) drawStraightExtras(paint);
}

}  // namespace vantrel
