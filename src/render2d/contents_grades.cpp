#include "render2d/contents_grades.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <cmath>
#include <string>

#include "app/services/wx_text.h"
#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "doc/format_length.h"
#include "render2d/contents_text.h"

namespace vantrel {
namespace {

constexpr double kArrowLengthMm = 20.0;
constexpr double kHeadLengthMm = 8.0;
constexpr double kHeadHalfWidthMm = 6.0;
constexpr int kShaftPenWidth = 3;
const wxColour kDownColour(30, 100, 200);
const wxColour kUpColour(220, 100, 20);

constexpr double kSlopeTextScale = 0.25;  // dots of the device per mm
constexpr double kSlopePointsPerScale = 8.0;
constexpr int kSmallestSlopePoints = 7;
constexpr int kSlopeTextRight = 4;  // pixels, from the tip
constexpr int kSlopeTextUp = 10;

// Where an arrow stands on its piece and where it points.
struct Arrow {
  Vec2 base;
  Vec2 ahead;  // unit vector

  Vec2 at(double along, double aside) const {
    return {base.x + along * ahead.x - aside * ahead.y, base.y + along * ahead.y + aside * ahead.x};
  }
};

Arrow ArrowOf(const Piece& piece, const PieceDef& def) {
  const double heading = Radians(piece.heading);
  Vec2 ahead{std::cos(heading), std::sin(heading)};
  if (IsConnectorOpen(piece, 0) && !IsConnectorOpen(piece, 1)) ahead = {-ahead.x, -ahead.y};
  const double half = def.length / 2.0;
  return {{piece.x + half * ahead.x, piece.y + half * ahead.y}, ahead};
}

std::string SlopeText(double degrees) {
  std::string text(1, std::signbit(degrees) ? '-' : '+');
  text += FormatFixed(std::abs(degrees), 1);
  text += " deg";
  return text;
}

void DrawArrow(ContentsPaint& paint, const Arrow& arrow, const wxColour& colour) {
  const auto device = [&](double along, double aside) {
    return ToPoint(paint.view.toDevice(arrow.at(along, aside)));
  };
  const wxPoint tip = device(kArrowLengthMm, 0.0);
  const double neck = kArrowLengthMm - kHeadLengthMm;
  paint.dc.SetPen(wxPen(colour, paint.view.pixels(kShaftPenWidth)));
  paint.dc.DrawLine(device(0.0, 0.0), tip);
  paint.dc.SetBrush(wxBrush(colour));
  DrawClosedPolygon(paint.dc,
                    {tip, device(neck, kHeadHalfWidthMm), device(neck, -kHeadHalfWidthMm)});
}

void DrawSlope(ContentsPaint& paint, const Arrow& arrow, const wxColour& colour,
               const std::string& text) {
  const wxPoint tip = ToPoint(paint.view.toDevice(arrow.at(kArrowLengthMm, 0.0)));
  paint.dc.SetTextForeground(colour);
  paint.dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  paint.dc.DrawText(ToWx(text), tip.x + paint.view.pixels(kSlopeTextRight),
                    tip.y - paint.view.pixels(kSlopeTextUp));
}

}  // namespace

void DrawGradeArrows(ContentsPaint& paint) {
  if (paint.layout.gradeRuns.empty()) return;
  const bool withText = paint.view.scale >= kSlopeTextScale;
  const wxFont font =
      PlanFont(paint.view,
               PlanFontSize(paint.view.pixelScale() * kSlopePointsPerScale, kSmallestSlopePoints),
               wxFONTWEIGHT_BOLD);
  const TextBounds bounds(paint.dc, font);
  paint.dc.SetFont(font);
  for (const GradeRun& run : paint.layout.gradeRuns) {
    if (run.anchor < 0) continue;
    const Piece* piece = paint.piece(run.anchor);
    const PieceDef* def = piece == nullptr ? nullptr : findPart(piece->cat);
    if (def == nullptr) continue;
    const Arrow arrow = ArrowOf(*piece, *def);
    const std::string text = SlopeText(run.deg);
    const double textReach =
        bounds.of(text).GetWidth() + bounds.perCharacter() + paint.view.pixels(kSlopeTextUp);
    if (paint.outOfView(arrow.base, kArrowLengthMm,
                        paint.view.pixels(kShaftPenWidth) + (withText ? textReach : 0.0)))
      continue;
    const wxColour& colour = run.deg < 0.0 ? kDownColour : kUpColour;
    DrawArrow(paint, arrow, colour);
    if (withText) DrawSlope(paint, arrow, colour, text);
  }
}

}  // namespace vantrel
