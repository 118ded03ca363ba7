// Which beds each kind of piece is made of, in which order and colour.
#include <wx/dc.h>

#include <array>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "render2d/track_drawing.h"
#include "render2d/track_paint.h"

namespace vantrel {
namespace {

constexpr int kOutlineWidth = 1;               // pixels at any scale
constexpr double kDefaultCurveShiftMm = 77.5;  // of a curved turnout without a third connector
constexpr double kDivergingGhostMm = 5.0;   // a curved turnout's ends lie further aside than this
constexpr double kStraightThroughMm = 1.0;  // a slip's first route ends nearer the axis than this
constexpr PieceKind kUnnamedStraightKind{7};

// Drawing happens on the interface thread only; the buffers keep their memory from piece to piece.
BedPoints& ScratchBuffer(std::size_t which) {
  thread_local std::array<BedPoints, 2> buffers;
  return buffers[which];
}

void FillStraight(const TrackPaint& paint, const BedFrame& frame, const BedMeasures& measures,
                  Rgb8 colour) {
  BedPoints& points = ScratchBuffer(0);
  makeStraightBed(points, frame, measures, paint.view);
  FillBedPolygon(paint.dc, points, ToColour(colour), ToColour(paint.colours.outline),
                 paint.view.pixels(kOutlineWidth));
}

void FillArc(const TrackPaint& paint, const BedFrame& frame, const BedMeasures& measures,
             Rgb8 colour) {
  BedPoints& points = ScratchBuffer(0);
  makeArcBed(points, frame, measures, paint.view);
  FillBedPolygon(paint.dc, points, ToColour(colour), ToColour(paint.colours.outline),
                 paint.view.pixels(kOutlineWidth));
}

void DrawStraightBed(const TrackPaint& paint, Rgb8 colour) {
  FillStraight(paint, paint.frame, measuresOf(paint.def, 1), colour);
}

void DrawRoute(const TrackPaint& paint, int route, Rgb8 colour) {
  FillArc(paint, paint.frame, measuresOf(paint.def, route), colour);
}

// At connector 2, heading along the route that crosses the piece's own at `def.angle`.
BedFrame CrossingFrame(const TrackPaint& paint) {
  const Connector& from = paint.def.connectors[2];
  const Vec2 at = paint.frame.toWorld({from.x, from.y});
  return MakeBedFrame({at.x, at.y, normalizeDegrees(paint.frame.heading + paint.def.angle)});
}

// The straight from connector 2 to connector 3; nothing without them.
void DrawCrossingStraight(const TrackPaint& paint, Rgb8 colour) {
  if (paint.def.connectors.size() < 4) return;
  const Connector& from = paint.def.connectors[2];
  const Connector& to = paint.def.connectors[3];
  BedMeasures measures = measuresOf(paint.def, 1);
  measures.length = std::hypot(to.x - from.x, to.y - from.y);
  FillStraight(paint, CrossingFrame(paint), measures, colour);
}

void DrawTurnout(const TrackPaint& paint) {
  const Rgb8 branch = branchColour(paint.colours.fill);
  if (paint.def.kind == PieceKind::LeftTurnout && paint.def.connectors.size() >= 4) {
    DrawRoute(paint, 2, branch);
    DrawRoute(paint, 3, branch);
    DrawStraightBed(paint, paint.colours.fill);
    return;
  }
  DrawStraightBed(paint, paint.colours.fill);
  DrawRoute(paint, 2, branch);
}

// The arc of the piece at its pose, and the same arc `shift` mm further on.
void DrawShiftedArcs(const TrackPaint& paint, double shift) {
  const BedMeasures arc = measuresOf(paint.def, 1);
  FillArc(paint, paint.frame, arc, paint.colours.fill);
  FillArc(paint, paint.frame.movedTo(paint.frame.ahead(shift)), arc,
          branchColour(paint.colours.fill));
}

// Two parallel arcs, a straight link before the outer one.
void DrawLinkedArcs(const TrackPaint& paint, double shift) {
  const Rgb8 branch = branchColour(paint.colours.fill);
  const BedMeasures arc = measuresOf(paint.def, 1);
  BedMeasures link = arc;
  link.length = shift;
  FillArc(paint, paint.frame, arc, paint.colours.fill);
  FillStraight(paint, paint.frame, link, branch);
  FillArc(paint, paint.frame.movedTo(paint.frame.ahead(shift)), arc, branch);
}

void DrawCurvedTurnout(const TrackPaint& paint) {
  const std::vector<Connector>& ends = paint.def.connectors;
  const bool hasBothEnds = ends.size() >= 3;
  if (!paint.isGhost()) {
    DrawLinkedArcs(paint, hasBothEnds ? std::abs(ends[2].x - ends[1].x) : kDefaultCurveShiftMm);
    return;
  }
  if (hasBothEnds && std::abs(ends[1].y) > kDivergingGhostMm) {
    DrawShiftedArcs(paint, ends[2].x - ends[1].x);
    return;
  }
  DrawStraightBed(paint, paint.colours.fill);
  DrawRoute(paint, 1, paint.colours.fill);
  DrawRoute(paint, 2, branchColour(paint.colours.fill));
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
  BedMeasures arc = measuresOf(paint.def, 1);
  BedPoints& a = ScratchBuffer(0);
  BedPoints& b = ScratchBuffer(1);
  makeArcBed(a, paint.frame, arc, paint.view);
  FillBedPolygon(paint.dc, a, slip, slip, 0);
  if (paint.def.connectors.size() < 3) return;
  arc.sweep = -arc.sweep;
  makeArcBed(b, CrossingFrame(paint), arc, paint.view);
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

void DrawOuterCurveTurnout(const TrackPaint& paint) {
  const Rgb8 branch = branchColour(paint.colours.fill);
  const BedMeasures measures = measuresOf(paint.def, 1);
  FillArc(paint, paint.frame, measures, paint.colours.fill);
  FillStraight(paint, paint.frame, measures, branch);
  FillArc(paint, paint.frame.movedTo(paint.frame.ahead(measures.length)), measures, branch);
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
      DrawRoute(paint, 1, fill);
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
      DrawOuterCurveTurnout(paint);
      return;
  }
  DrawStraightBed(paint, fill);
  if (paint.def.kind == kUnnamedStraightKind) drawStraightExtras(paint);
}

}  // namespace vantrel
