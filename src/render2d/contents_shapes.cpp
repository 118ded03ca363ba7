#include "render2d/contents_shapes.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <algorithm>
#include <unordered_map>

#include "doc/format_length.h"
#include "render2d/contents_text.h"

namespace vantrel {
namespace {

const wxColour kSelectedEdge(40, 80, 200);
constexpr int kEdgePenWidth = 2;
constexpr int kSelectedEdgePenWidth = 3;

constexpr int kNamePoints = 11;
const wxColour kNameText(20, 20, 20);

constexpr double kLengthPointsPerScale = 10.0;
constexpr int kSmallestLengthPoints = 8;
constexpr int kLargestLengthPoints = 12;
const wxColour kLengthText(30, 30, 30);
constexpr double kShortestMeasuredEdgeMm = 1.0;
constexpr double kLengthDistance = 12.0;  // pixels

// The shapes to draw, those of the lowest level first, and in the plan's order on equal heights.
std::vector<const Shape*> ShapesBottomUp(const ContentsPaint& paint) {
  std::unordered_map<std::int32_t, double> heights;
  for (const Level& level : paint.layout.levels)
    heights.emplace(level.id, StackingHeight(level.height));
  std::vector<std::pair<double, const Shape*>> stack;
  for (const Shape& shape : paint.layout.shapes) {
    if (shape.vertices.size() < 3 || paint.levelHidden(shape.level)) continue;
    const auto height = heights.find(shape.level);
    stack.emplace_back(height == heights.end() ? 0.0 : height->second, &shape);
  }
  std::stable_sort(stack.begin(), stack.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<const Shape*> shapes;
  shapes.reserve(stack.size());
  for (const auto& [height, shape] : stack) shapes.push_back(shape);
  return shapes;
}

// The two fonts of a shape and the bounds of their texts, made once for all shapes.
struct ShapeFonts {
  explicit ShapeFonts(ContentsPaint& paint)
      : name(PlanFont(paint.view, kNamePoints, wxFONTWEIGHT_BOLD)),
        length(PlanFont(paint.view,
                        PlanFontSize(paint.view.pixelScale() * kLengthPointsPerScale,
                                     kSmallestLengthPoints, kLargestLengthPoints),
                        wxFONTWEIGHT_NORMAL)),
        nameBounds(paint.dc, name),
        lengthBounds(paint.dc, length) {}

  wxFont name;
  wxFont length;
  TextBounds nameBounds;
  TextBounds lengthBounds;
};

void DrawBody(ContentsPaint& paint, const Shape& shape) {
  const std::vector<wxPoint> points = DevicePolygon(shape.vertices, paint.view);
  if (paint.area.missesPoints(points, paint.view.pixels(kSelectedEdgePenWidth))) return;
  paint.dc.SetBrush(wxBrush(wxColour(shape.r, shape.g, shape.b, shape.a)));
  if (shape.outline) {
    const wxColour edge = shape.sel ? kSelectedEdge
                                    : wxColour(static_cast<unsigned char>(shape.r / 2),
                                               static_cast<unsigned char>(shape.g / 2),
                                               static_cast<unsigned char>(shape.b / 2));
    paint.dc.SetPen(
        wxPen(edge, paint.view.pixels(shape.sel ? kSelectedEdgePenWidth : kEdgePenWidth)));
  } else {
    paint.dc.SetPen(*wxTRANSPARENT_PEN);
  }
  DrawClosedPolygon(paint.dc, points);
}

void DrawName(ContentsPaint& paint, const Shape& shape, Vec2 mean, const ShapeFonts& fonts) {
  if (shape.label.empty()) return;
  const wxPoint centre = ToPoint(paint.view.toDevice(mean));
  if (paint.area.missesCentredBox(centre, fonts.nameBounds.of(shape.label), 0)) return;
  paint.dc.SetFont(fonts.name);
  paint.dc.SetTextForeground(kNameText);
  paint.dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  DrawCentredText(paint, shape.label, centre);
}

void DrawEdgeLengths(ContentsPaint& paint, const Shape& shape, Vec2 mean, const ShapeFonts& fonts) {
  bool ready = false;
  for (std::size_t i = 0; i < shape.vertices.size(); ++i) {
    const std::optional<Edge> edge = PolygonEdge(shape.vertices, i, mean, kShortestMeasuredEdgeMm);
    if (!edge) continue;
    wxPoint centre = ToPoint(paint.view.toDevice(edge->middle));
    // Across and down have opposite senses: a level edge has its length outside the polygon, an
    // upright one inside. That is how plans have always looked.
    centre.x += DeviceInt(kLengthDistance * paint.view.pixel * edge->inward.x);
    centre.y -= DeviceInt(kLengthDistance * paint.view.pixel * edge->inward.y);
    if (paint.area.missesCentredBox(centre, fonts.lengthBounds.ofLength(edge->length), 0)) continue;
    if (!ready) {
      paint.dc.SetFont(fonts.length);
      paint.dc.SetTextForeground(kLengthText);
      paint.dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
      paint.dc.SetTextBackground(*wxWHITE);
      ready = true;
    }
    DrawCentredText(paint, FormatLength(edge->length, paint.layout.units), centre);
  }
}

}  // namespace

void DrawShapes(ContentsPaint& paint) {
  const std::vector<const Shape*> shapes = ShapesBottomUp(paint);
  if (shapes.empty()) return;
  const ShapeFonts fonts(paint);
  for (const Shape* shape : shapes) {
    const Vec2 mean = MeanVertex(shape->vertices);
    DrawBody(paint, *shape);
    DrawName(paint, *shape, mean, fonts);
    DrawEdgeLengths(paint, *shape, mean, fonts);
  }
}

}  // namespace vantrel
