#include "canvas/gestures/view_navigation.h"

#include <algorithm>
#include <cmath>

#include "catalog/connector_geometry.h"
#include "catalog/helix_kits.h"
#include "catalog/track_catalog.h"
#include "render2d/rulers.h"

namespace vantrel {
namespace {

constexpr int kFitMargin = 80;  // pixels on each side
constexpr double kUnitScale = 1.0;
// From an edge to a point that is seen: room for the dot at a track's end. Pixels.
constexpr int kSeenMargin = 16;
// Half the space that the bounding box looks at, in mm. What a broken file sets beyond it can't be
// shown together with anything else and isn't taken in.
constexpr double kWorldLimitMm = 1e9;
// The reach in mm of a helix whose kit isn't known.
constexpr double kUnknownHelixReachMm = 500.0;

bool IsOutline(const std::vector<Vec2>& vertices) {
  return vertices.size() >= 3;
}

class BoundingBox {
 public:
  void takeIn(Vec2 point) {
    // Not-a-number fails both comparisons.
    if (!(std::abs(point.x) <= kWorldLimitMm) || !(std::abs(point.y) <= kWorldLimitMm)) return;
    min_ = {std::min(min_.x, point.x), std::min(min_.y, point.y)};
    max_ = {std::max(max_.x, point.x), std::max(max_.y, point.y)};
    empty_ = false;
  }
  void takeIn(const std::vector<Vec2>& points) {
    for (const Vec2& point : points) takeIn(point);
  }

  bool empty() const { return empty_; }
  Vec2 min() const { return min_; }
  // At least 1 mm each way.
  double width() const { return std::max(max_.x - min_.x, 1.0); }
  double height() const { return std::max(max_.y - min_.y, 1.0); }

 private:
  Vec2 min_{kWorldLimitMm, kWorldLimitMm};
  Vec2 max_{-kWorldLimitMm, -kWorldLimitMm};
  bool empty_ = true;
};

bool HasContent(const Layout& layout, bool trackOnly) {
  if (!layout.pieces.empty() || !layout.scenery.empty() || !layout.shapes.empty() ||
      !layout.helices.empty())
    return true;
  if (trackOnly) return false;
  return IsOutline(layout.baseboard) ||
         std::any_of(layout.levels.begin(), layout.levels.end(),
                     [](const Level& level) { return IsOutline(level.outline); });
}

// The far ends of curves and branches aren't looked at: the straight line is near enough for a fit.
void TakeInPieces(BoundingBox& box, const Layout& layout) {
  for (const Piece& piece : layout.pieces) {
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    box.takeIn(Vec2{piece.x, piece.y});
    box.takeIn(LocalToWorld(piece.pose(), {def->length, 0.0}));
  }
}

void TakeInHelices(BoundingBox& box, const Layout& layout) {
  for (const Helix& helix : layout.helices) {
    const HelixKit* const kit = findKit(helix.variant);
    const double r =
        kit == nullptr ? kUnknownHelixReachMm : std::max(kit->innerRadius, kit->outerRadius);
    box.takeIn(Vec2{helix.cx - r, helix.cy - r});
    box.takeIn(Vec2{helix.cx + r, helix.cy + r});
  }
}

BoundingBox ContentBox(const Layout& layout, bool trackOnly) {
  BoundingBox box;
  TakeInPieces(box, layout);
  for (const SceneryItem& item : layout.scenery) box.takeIn(Vec2{item.x, item.y});
  if (!trackOnly) {
    for (const Level& level : layout.levels) box.takeIn(level.outline);
    box.takeIn(layout.baseboard);
  }
  for (const Shape& shape : layout.shapes) box.takeIn(shape.vertices);
  TakeInHelices(box, layout);
  return box;
}

ViewTransform FittingView(const BoundingBox& box, DeviceSize client) {
  const double aw = client.width - 2 * kFitMargin;
  const double ah = client.height - 2 * kFitMargin;
  ViewTransform view;
  // A window smaller than its margins gives a ratio of 0 or less; the lower limit catches it.
  view.scale = std::min(aw / box.width(), ah / box.height());
  view.scale = std::max(std::min(view.scale, kMaxZoomScale), kMinFitScale);
  view.offsetX = (aw - view.scale * box.width()) * 0.5 + kFitMargin - view.scale * box.min().x;
  view.offsetY = (ah - view.scale * box.height()) * 0.5 + kFitMargin - view.scale * box.min().y;
  return view;
}

// By how many whole pixels what is at `at` has to move to lie between the two, the first before
// all.
double MoveBetween(double at, double first, double last) {
  if (at < first) return std::ceil(first - at);
  if (at > last) return std::max(-std::ceil(at - last), std::ceil(first - at));
  return 0.0;
}

}  // namespace

void zoomAt(CanvasContext& context, DevicePoint point, double factor) {
  ViewTransform& view = context.state.view;
  const Vec2 world = view.toWorld(point);
  view.scale = std::clamp(view.scale * factor, kMinZoomScale, kMaxZoomScale);
  view.offsetX = point.x - world.x * view.scale;
  view.offsetY = point.y - world.y * view.scale;
  context.host.repaint();
}

void zoomCentred(CanvasContext& context, double factor) {
  const DeviceSize client = context.host.clientSize();
  zoomAt(context, {client.width / 2, client.height / 2}, factor);
}

void zoomToFit(CanvasContext& context, bool trackOnly) {
  if (!HasContent(context.layout, trackOnly)) {
    resetView(context);
    return;
  }
  const BoundingBox box = ContentBox(context.layout, trackOnly);
  // Unknown parts alone give nothing to look at either.
  if (box.empty()) {
    resetView(context);
    return;
  }
  context.state.view = FittingView(box, context.host.clientSize());
  context.host.repaint();
}

void bringIntoView(CanvasContext& context, Vec2 world) {
  ViewTransform& view = context.state.view;
  const double x = view.scale * world.x + view.offsetX;
  const double y = view.scale * world.y + view.offsetY;
  // Where no view leads; not-a-number fails both comparisons.
  if (!(std::abs(x) < kDeviceLimit) || !(std::abs(y) < kDeviceLimit)) return;
  const DeviceSize client = context.host.clientSize();
  const int first = kRulerWidth + kSeenMargin;
  const double moveX = MoveBetween(x, first, client.width - kSeenMargin);
  const double moveY = MoveBetween(y, first, client.height - kSeenMargin);
  if (moveX == 0.0 && moveY == 0.0) return;
  view.offsetX += moveX;
  view.offsetY += moveY;
  context.host.repaint();
}

void resetView(CanvasContext& context) {
  context.state.view = ViewTransform{};
  context.host.repaint();
}

void resetViewUnitScale(CanvasContext& context) {
  context.state.view = ViewTransform{};
  context.state.view.scale = kUnitScale;
  context.host.repaint();
}

void showGrid(CanvasContext& context, bool visible) {
  context.layout.gridVisible = visible;
  context.host.repaint();
}

}  // namespace vantrel
