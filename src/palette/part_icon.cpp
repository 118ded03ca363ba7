#include "palette/part_icon.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"
#include "doc/layout.h"
#include "palette/grid_layout.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

constexpr double kSmallestBendMm = 40.0;
constexpr double kBranchingBendMm = 60.0;
constexpr double kBendFactor = 2.5;

constexpr double kIconExtentMm = 218.75;
constexpr double kTurntableIconExtentMm = 600.0;
constexpr double kIconRoom = 64.0;  // pixels
constexpr double kIconFill = 0.82;
constexpr double kIconScaleMin = 0.03;
constexpr double kIconScaleMax = 4.0;

constexpr double kPreviewRoomHigh = 33.0;  // pixels
constexpr double kPreviewRoomWide = 68.0;
constexpr double kPreviewFill = 0.8;
constexpr double kPreviewScaleMin = 0.05;
constexpr double kPreviewScaleMax = 3.0;
constexpr double kPreviewMiddleX = 40.0;
constexpr double kPreviewMiddleY = 30.5;

double DrawnLength(const PieceDef& def) {
  return std::max(1.0, def.length);
}

// The room across the track that a part of this sideways reach asks for, mm.
double BendRoom(const PieceDef& def, double reach) {
  const double bend = std::max(kSmallestBendMm, reach * kBendFactor);
  return def.connectors.size() > 2 ? std::max(kBranchingBendMm, bend) : bend;
}

// The view in which the middle of the drawn length lies at `middleX`.
ViewTransform CentredView(const PieceDef& def, double scale, double middleX, double middleY) {
  return {.scale = scale, .offsetX = middleX - DrawnLength(def) * scale * 0.5, .offsetY = middleY};
}

}  // namespace

ViewTransform iconView(const PieceDef& def) {
  const double extent = def.kind == PieceKind::Turntable ? kTurntableIconExtentMm : kIconExtentMm;
  const double reach = def.radius > 0.0 && def.angle != 0.0
                           ? (1.0 - std::cos(Radians(std::abs(def.angle)))) * def.radius
                           : 0.0;
  const double scale = std::min(kIconRoom / BendRoom(def, reach), kIconRoom / extent * kIconFill);
  return CentredView(def, std::clamp(scale, kIconScaleMin, kIconScaleMax), kIconSize / 2.0,
                     kIconSize / 2.0);
}

ViewTransform previewView(const PieceDef& def) {
  const double reach =
      def.radius > 0.0 ? std::abs((1.0 - std::cos(Radians(def.angle))) * def.radius) : 0.0;
  const double scale = kPreviewFill * std::min(kPreviewRoomHigh / BendRoom(def, reach),
                                               kPreviewRoomWide / DrawnLength(def));
  return CentredView(def, std::clamp(scale, kPreviewScaleMin, kPreviewScaleMax), kPreviewMiddleX,
                     kPreviewMiddleY);
}

void drawLoosePart(const RenderContext& context, wxDC& dc, const PieceDef& def,
                   const ViewTransform& view) {
  Piece piece;
  piece.cat = def.partNumber;
  piece.joints.resize(def.connectors.size());
  DrawTrackPiece(context, dc, piece, def, view, false, false, false);
}

wxBitmap renderPartIcon(const RenderContext& context, const PieceDef* def) {
  wxBitmap icon(kIconSize, kIconSize);
  wxMemoryDC dc(icon);
  dc.SetBackground(*wxWHITE_BRUSH);
  dc.Clear();
  if (def != nullptr) drawLoosePart(context, dc, *def, iconView(*def));
  dc.SelectObject(wxNullBitmap);
  return icon;
}

}  // namespace vantrel
