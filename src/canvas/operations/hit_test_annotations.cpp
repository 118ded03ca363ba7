// The hit tests of what isn't track or scenery: shapes, measurements, labels, decks and handles.
// Their tolerances are in pixels.
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "canvas/operations/hit_test.h"
#include "canvas/operations/point_tests.h"
#include "catalog/connector_geometry.h"
#include "catalog/scenery_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

constexpr double kEdgePixels = 8.0;
constexpr double kPlateHalfWidthPixels = 32.0;
constexpr double kPlateHalfHeightPixels = 9.0;
constexpr double kHandleSquaredPixels = 37.0;
constexpr std::size_t kLeastVertices = 3;

// In mm, whatever the view's scale.
double PixelsToWorld(const ViewTransform& view, double pixels) {
  return pixels / std::max(view.scale, 0.0001);
}

bool OnPlate(const Measurement& measurement, const ViewTransform& view, Vec2 world) {
  const double x = (measurement.startX + measurement.endX) / 2.0 + measurement.moveX;
  const double y = (measurement.startY + measurement.endY) / 2.0 + measurement.moveY;
  return std::abs(world.x - x) <= PixelsToWorld(view, kPlateHalfWidthPixels) &&
         std::abs(world.y - y) <= PixelsToWorld(view, kPlateHalfHeightPixels);
}

// A level whose height is not a number comes last; sorting needs an answer.
double SortHeight(const Level& level) {
  return std::isnan(level.height) ? -std::numeric_limits<double>::infinity() : level.height;
}

std::vector<const Level*> LevelsFromTheTop(const Layout& layout) {
  std::vector<const Level*> levels;
  levels.reserve(layout.levels.size());
  for (const Level& level : layout.levels) levels.push_back(&level);
  std::ranges::stable_sort(
      levels, [](const Level* a, const Level* b) { return SortHeight(*a) > SortHeight(*b); });
  return levels;
}

}  // namespace

std::int32_t hitTestShape(const Layout& layout, const ViewTransform& view, DevicePoint point) {
  const Vec2 world = view.toWorld(point);
  const double reach = PixelsToWorld(view, kEdgePixels);
  const std::unordered_set<std::int32_t> hidden = HiddenLevels(layout);
  for (auto shape = layout.shapes.rbegin(); shape != layout.shapes.rend(); ++shape) {
    if (shape->vertices.size() < kLeastVertices || hidden.contains(shape->level)) continue;
    if (IsInsidePolygon(world, shape->vertices) || OutlineDistance(world, shape->vertices) <= reach)
      return shape->id;
  }
  return kNone;
}

MeasurementHit hitTestMeasurement(const Layout& layout, const ViewTransform& view,
                                  DevicePoint point) {
  const Vec2 world = view.toWorld(point);
  const double reach = PixelsToWorld(view, kEdgePixels);
  for (auto tape = layout.measurements.rbegin(); tape != layout.measurements.rend(); ++tape) {
    if (OnPlate(*tape, view, world)) return {tape->id, MeasurementPart::label};
    const Vec2 start{tape->startX, tape->startY};
    if (SegmentDistance(world, start, {tape->endX, tape->endY}) <= reach)
      return {tape->id, MeasurementPart::line};
  }
  return {};
}

std::int32_t hitTestLabel(const Layout& layout, const ViewTransform& view, DevicePoint point) {
  for (const Label& label : layout.labels) {
    const DevicePoint at = view.toDevice({label.x, label.y});
    const std::int64_t dx = std::int64_t{point.x} - at.x;
    const std::int64_t dy = std::int64_t{point.y} - at.y;
    if (dx >= -4 && dx <= 120 && dy >= -4 && dy <= 24) return label.id;
  }
  return kNone;
}

std::int32_t hitTestDeckOutline(const Layout& layout, const ViewTransform& view,
                                DevicePoint point) {
  const Vec2 world = view.toWorld(point);
  const double reach = PixelsToWorld(view, kEdgePixels);
  for (const Level* const level : LevelsFromTheTop(layout)) {
    if (!level->visible || level->outline.size() < kLeastVertices) continue;
    if (OutlineDistance(world, level->outline) <= reach) return level->id;
  }
  return kNone;
}

std::array<Vec2, 8> scaleHandlePoints(const SceneryItem& item, const SceneryDef& def) {
  constexpr std::array<Vec2, 8> kSigns{
      {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}}};
  std::array<Vec2, 8> points;
  for (std::size_t n = 0; n < points.size(); ++n)
    points[n] = LocalToWorld(item.pose(), {kSigns[n].x * item.scalex * def.width / 2.0,
                                           kSigns[n].y * item.scaley * def.depth / 2.0});
  return points;
}

std::int32_t hitTestScaleHandle(const SceneryItem& item, const ViewTransform& view,
                                DevicePoint point) {
  const SceneryDef* const def = findScenery(item.item);
  if (def == nullptr) return kNone;
  const std::array<Vec2, 8> handles = scaleHandlePoints(item, *def);
  for (std::size_t n = 0; n < handles.size(); ++n) {
    const DevicePoint at = view.toDevice(handles[n]);
    const double dx = static_cast<double>(at.x) - point.x;
    const double dy = static_cast<double>(at.y) - point.y;
    if (dx * dx + dy * dy < kHandleSquaredPixels) return static_cast<std::int32_t>(n);
  }
  return kNone;
}

}  // namespace vantrel
