#include "render2d/contents_ground.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <algorithm>
#include <cmath>

#include "doc/format_length.h"
#include "render2d/contents_text.h"

namespace vantrel {
namespace {

const wxColour kBoardFill(245, 235, 210);
const wxColour kBoardEdge(120, 90, 50);
constexpr int kBoardPenWidth = 2;
const wxColour kDeckFill(235, 220, 190);

const wxColour kGridColour(220, 220, 215);
const wxColour kOriginColour(180, 180, 220);
constexpr int kOriginPenWidth = 2;
constexpr int kOriginArm = 10;        // pixels
constexpr double kFinestPitch = 6.0;  // dots of the device, which a page has more of
constexpr double kCoarsestPitch = 400.0;

constexpr double kShortestLabelledEdgeMm = 10.0;
constexpr double kEdgeLabelDistanceMm = 12.0;
constexpr int kEdgeLabelPoints = 11;
const wxColour kEdgeLabelText(80, 50, 20);
const wxColour kPlateFill(255, 248, 220, 200);
const wxColour kPlateEdge(180, 140, 80);
constexpr int kPlatePadX = 4;  // pixels
constexpr int kPlatePadY = 2;

bool HasBaseboard(const ContentsPaint& paint) {
  return paint.layout.baseboardVisible && paint.layout.baseboard.size() >= 3;
}

void DrawBoardPolygon(ContentsPaint& paint, const std::vector<Vec2>& outline,
                      const wxBrush& brush) {
  const std::vector<wxPoint> points = DevicePolygon(outline, paint.view);
  if (paint.area.missesPoints(points, paint.view.pixels(kBoardPenWidth))) return;
  paint.dc.SetPen(wxPen(kBoardEdge, paint.view.pixels(kBoardPenWidth)));
  paint.dc.SetBrush(brush);
  DrawClosedPolygon(paint.dc, points);
}

wxColour DeckFill(const Level& level) {
  if (!level.trackcolor) return kDeckFill;
  const auto mixed = [](int own, int board) {
    return static_cast<unsigned char>((own + 2 * board) / 3);
  };
  return wxColour(mixed(level.r, kBoardFill.Red()), mixed(level.g, kBoardFill.Green()),
                  mixed(level.b, kBoardFill.Blue()));
}

// Where grid lines cross one axis of the device: at `first` and every `pitch` further on.
struct GridLines {
  double first = 0.0;
  double pitch = 0.0;
  int count = 0;

  int at(int i) const { return DeviceInt(first + i * pitch); }
};

GridLines LinesAcross(double offset, double pitch, int extent) {
  const double first = std::floor(-offset / pitch) * pitch + offset;
  // So far from the origin that neighbouring lines can't be told apart.
  if (!(std::abs(first) <= 2.0 * pitch) || first >= extent) return {};
  // A line is drawn while it lies before the extent.
  return {first, pitch, DeviceInt(std::ceil((extent - first) / pitch))};
}

void DrawOriginCross(ContentsPaint& paint) {
  const wxPoint origin = ToPoint(paint.view.toDevice({0.0, 0.0}));
  const int arm = paint.view.pixels(kOriginArm);
  const int penWidth = paint.view.pixels(kOriginPenWidth);
  if (paint.area.missesCircle(origin.x, origin.y, arm + penWidth)) return;
  paint.dc.SetPen(wxPen(kOriginColour, penWidth));
  paint.dc.DrawLine(origin.x - arm, origin.y, origin.x + arm, origin.y);
  paint.dc.DrawLine(origin.x, origin.y - arm, origin.x, origin.y + arm);
}

void DrawBaseboardEdgeLabels(ContentsPaint& paint) {
  const std::vector<Vec2>& board = paint.layout.baseboard;
  wxDC& dc = paint.dc;
  const wxFont font = PlanFont(paint.view, kEdgeLabelPoints, wxFONTWEIGHT_BOLD);
  const TextBounds bounds(dc, font);
  dc.SetFont(font);
  dc.SetTextForeground(kEdgeLabelText);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.SetBrush(wxBrush(kPlateFill));
  dc.SetPen(wxPen(kPlateEdge, paint.view.pixels(1)));
  const Vec2 mean = MeanVertex(board);
  for (std::size_t i = 0; i < board.size(); ++i) {
    const std::optional<Edge> edge = PolygonEdge(board, i, mean, kShortestLabelledEdgeMm);
    if (!edge) continue;
    const wxPoint anchor =
        ToPoint(paint.view.toDevice({edge->middle.x + kEdgeLabelDistanceMm * edge->outward.x,
                                     edge->middle.y + kEdgeLabelDistanceMm * edge->outward.y}));
    if (paint.area.missesCentredBox(anchor, bounds.ofLength(edge->length),
                                    paint.view.pixels(kPlatePadX)))
      continue;
    DrawTextOnPlate(paint, FormatLength(edge->length, paint.layout.units), anchor, kPlatePadX,
                    kPlatePadY);
  }
}

}  // namespace

void DrawBackground(ContentsPaint& paint) {
  paint.dc.SetBackground(*wxWHITE_BRUSH);
  paint.dc.Clear();
}

void DrawBaseboardFill(ContentsPaint& paint) {
  if (!HasBaseboard(paint)) return;
  DrawBoardPolygon(paint, paint.layout.baseboard, wxBrush(kBoardFill));
}

void DrawDecks(ContentsPaint& paint) {
  std::vector<const Level*> decks;
  for (const Level& level : paint.layout.levels)
    if (level.visible && level.outline.size() >= 3) decks.push_back(&level);
  std::stable_sort(decks.begin(), decks.end(), [](const Level* a, const Level* b) {
    return StackingHeight(a->height) < StackingHeight(b->height);
  });
  for (const Level* deck : decks) DrawBoardPolygon(paint, deck->outline, wxBrush(DeckFill(*deck)));
}

void DrawGrid(ContentsPaint& paint) {
  const double pitch = paint.layout.gridSize * paint.view.scale;
  if (!paint.layout.gridVisible) return;
  if (!(pitch >= kFinestPitch && pitch <= kCoarsestPitch)) return;
  const auto [width, height] = paint.size;
  paint.dc.SetPen(wxPen(kGridColour, paint.view.pixels(1)));
  const GridLines columns = LinesAcross(paint.view.offsetX, pitch, width);
  for (int i = 0; i < columns.count; ++i)
    paint.dc.DrawLine(columns.at(i), 0, columns.at(i), height);
  const GridLines rows = LinesAcross(paint.view.offsetY, pitch, height);
  for (int i = 0; i < rows.count; ++i) paint.dc.DrawLine(0, rows.at(i), width, rows.at(i));
  DrawOriginCross(paint);
}

void DrawBaseboardOutline(ContentsPaint& paint) {
  if (!HasBaseboard(paint)) return;
  DrawBoardPolygon(paint, paint.layout.baseboard, *wxTRANSPARENT_BRUSH);
  DrawBaseboardEdgeLabels(paint);
}

}  // namespace vantrel
