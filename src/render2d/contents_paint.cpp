#include "render2d/contents_paint.h"

#include <wx/dc.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrel {

DrawArea DrawArea::Of(DeviceSize size) {
  return {0.0, 0.0, static_cast<double>(size.width), static_cast<double>(size.height)};
}

DrawArea DrawArea::Everything() {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  return {-kFar, -kFar, kFar, kFar};
}

bool DrawArea::missesPoints(std::span<const wxPoint> points, int penWidth) const {
  if (points.empty()) return true;
  wxPoint low = points.front();
  wxPoint high = low;
  for (const wxPoint& point : points) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  return missesBox(low.x - penWidth, low.y - penWidth, high.x + penWidth, high.y + penWidth);
}

ContentsPaint::ContentsPaint(RenderContext& contextIn, wxDC& dcIn, const Layout& layoutIn,
                             const ViewTransform& viewIn, DeviceSize sizeIn, const DrawArea& areaIn)
    : context(contextIn),
      dc(dcIn),
      layout(layoutIn),
      view(viewIn),
      size(sizeIn),
      area(areaIn),
      hiddenLevels(HiddenLevels(layoutIn)) {}

const Piece* ContentsPaint::piece(std::int32_t id) {
  if (!index_) index_ = IndexPieces(layout);
  const auto found = index_->find(id);
  return found == index_->end() ? nullptr : &layout.pieces[found->second];
}

std::vector<wxPoint> DevicePolygon(std::span<const Vec2> vertices, const ViewTransform& view) {
  std::vector<wxPoint> points;
  points.reserve(vertices.size());
  for (const Vec2& vertex : vertices) points.push_back(ToPoint(view.toDevice(vertex)));
  return points;
}

void DrawClosedPolygon(wxDC& dc, const std::vector<wxPoint>& points) {
  dc.DrawPolygon(static_cast<int>(points.size()), points.data());
}

double StackingHeight(double height) {
  return std::isnan(height) ? 0.0 : height;
}

Vec2 MeanVertex(std::span<const Vec2> vertices) {
  Vec2 sum;
  for (const Vec2& vertex : vertices) sum = {sum.x + vertex.x, sum.y + vertex.y};
  const double count = std::max<double>(1.0, static_cast<double>(vertices.size()));
  return {sum.x / count, sum.y / count};
}

std::optional<Edge> PolygonEdge(std::span<const Vec2> vertices, std::size_t i, Vec2 mean,
                                double minLength) {
  const Vec2 from = vertices[i];
  const Vec2 to = vertices[(i + 1) % vertices.size()];
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = std::hypot(dx, dy);
  if (!(length >= minLength) || !std::isfinite(length)) return std::nullopt;
  const Vec2 middle{(from.x + to.x) / 2.0, (from.y + to.y) / 2.0};
  const Vec2 normal{-dy / length, dx / length};
  const Vec2 opposite{-normal.x, -normal.y};
  const double towardMean = normal.x * (mean.x - middle.x) + normal.y * (mean.y - middle.y);
  return Edge{.middle = middle,
              .length = length,
              .inward = towardMean < 0.0 ? opposite : normal,
              .outward = towardMean > 0.0 ? opposite : normal};
}

}  // namespace vantrel
