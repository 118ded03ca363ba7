#include "render2d/contents_reach.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "catalog/connector_geometry.h"
#include "catalog/piece_builders.h"
#include "catalog/routes.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

// The marks of contact and uncoupler tracks, the bar of a track end and the dots, beyond the bed;
// and what an arc swells between its samples.
constexpr double kMarkReachMm = 18.0;
// The arch of a curved bridge: half its width as a part of the radius, and a little for the pen.
constexpr double kCurvedArchPart = 0.25;
constexpr double kArcSampleDegrees = 5.0;
// What has a smallest size in pixels, such as a dot or the bar of a track end, and rounding.
constexpr int kPixelExtra = 7;

// Gathers the box of a piece's centre lines.
class CentreLines {
 public:
  void takeIn(Vec2 point) {
    low_ = {std::min(low_.x, point.x), std::min(low_.y, point.y)};
    high_ = {std::max(high_.x, point.x), std::max(high_.y, point.y)};
  }
  void takeIn(const Stretch& stretch) {
    const int samples =
        stretch.isArc() ? 1 + static_cast<int>(std::abs(stretch.sweep) / kArcSampleDegrees) : 1;
    for (int i = 0; i <= samples; ++i) {
      const Pose pose = stretch.at(static_cast<double>(i) / samples);
      takeIn(Vec2{pose.x, pose.y});
    }
  }
  void takeInSquare(double half) {
    takeIn(Vec2{-half, -half});
    takeIn(Vec2{half, half});
  }

  PieceReach reach(double clearance) const {
    PieceReach reach{.middle = {(low_.x + high_.x) / 2.0, (low_.y + high_.y) / 2.0},
                     .halfLength = (high_.x - low_.x) / 2.0,
                     .halfWidth = (high_.y - low_.y) / 2.0,
                     .clearance = clearance};
    reach.fromOrigin = std::hypot(reach.middle.x, reach.middle.y) +
                       std::hypot(reach.halfLength, reach.halfWidth) + clearance;
    return reach;
  }

 private:
  // The origin is part of every piece.
  Vec2 low_;
  Vec2 high_;
};

void TakeInWays(CentreLines& lines, const PieceDef& def) {
  if (def.kind == PieceKind::Turntable)
    lines.takeInSquare(std::max(std::abs(def.length) / 2.0, std::abs(def.radius)));
  // Where the part number stands on all kinds but curves, also where no track is.
  if (def.kind != PieceKind::Curve) lines.takeIn(StraightOf(def));
  for (std::size_t i = 0; i < WayCount(def); ++i) {
    const Way way = WayOf(def, i);
    for (const Stretch& stretch : way.stretches()) lines.takeIn(stretch);
  }
}

PieceReach ComputePieceReach(const PieceDef& def) {
  CentreLines lines;
  TakeInWays(lines, def);
  for (const Connector& end : def.connectors) lines.takeIn(Vec2{end.x, end.y});
  double clearance = bedHalfWidth(def) + kMarkReachMm;
  // Arches stay upright on the device whatever the piece's heading.
  if (def.isBridge)
    clearance += def.kind == PieceKind::Curve ? kCurvedArchPart * std::abs(def.radius)
                                              : std::abs(def.length) / 2.0;
  return lines.reach(clearance);
}

SceneryReach ComputeSceneryReach(const SceneryDef& def) {
  SceneryReach reach{.across = std::abs(def.width) / 2.0, .along = std::abs(def.depth) / 2.0};
  const auto takeIn = [&](double x, double y) {
    reach.across = std::max(reach.across, std::abs(x - def.width / 2.0));
    reach.along = std::max(reach.along, std::abs(y - def.depth / 2.0));
  };
  for (const ScenePrimitive& primitive : def.primitives) {
    reach.strokeWidth = std::max(reach.strokeWidth, std::abs(primitive.strokeWidth * 1.0));
    takeIn(primitive.x, primitive.y);
    if (primitive.kind == PrimitiveKind::text) {
      reach.textBytes = std::max(reach.textBytes, static_cast<double>(primitive.text.size()));
      reach.textHeight = std::max(reach.textHeight, primitive.h);
      continue;
    }
    if (primitive.kind == PrimitiveKind::line)
      takeIn(primitive.w, primitive.h);
    else
      takeIn(primitive.x + primitive.w, primitive.y + primitive.h);
    for (const Vec2& point : primitive.points) takeIn(point.x, point.y);
  }
  return reach;
}

// The value that `compute` has for `key`, computed at the first call. Drawing happens on one
// thread.
template <typename Key, typename Value, typename Compute>
const Value& Kept(std::unordered_map<const Key*, Value>& kept, const Key& key, Compute compute) {
  const auto found = kept.find(&key);
  if (found != kept.end()) return found->second;
  return kept.emplace(&key, compute(key)).first->second;
}

}  // namespace

const PieceReach& ReachOfPiece(const PieceDef& def) {
  static std::unordered_map<const PieceDef*, PieceReach> kept;
  return Kept(kept, def, ComputePieceReach);
}

bool PieceOutOfView(const ContentsPaint& paint, const Pose& pose, const PieceReach& reach,
                    wxSize number) {
  // Its points are no numbers, and such are drawn at 0.
  if (!std::isfinite(pose.heading)) return false;
  const double scale = std::abs(paint.view.scale);
  const int pixelExtra = paint.view.pixels(kPixelExtra);
  const Vec2 origin = paint.onDevice({pose.x, pose.y});
  const double around =
      scale * reach.fromOrigin + pixelExtra + std::max(number.GetWidth(), number.GetHeight());
  if (paint.area.missesCircle(origin.x, origin.y, around)) return true;
  if (paint.area.containsCircle(origin.x, origin.y, around)) return false;
  // Near the border the turned box decides.
  const double r = Radians(pose.heading);
  const double c = std::abs(std::cos(r));
  const double s = std::abs(std::sin(r));
  const double extra = scale * reach.clearance + pixelExtra;
  const double halfX =
      scale * (c * reach.halfLength + s * reach.halfWidth) + extra + number.GetWidth() / 2.0;
  const double halfY =
      scale * (s * reach.halfLength + c * reach.halfWidth) + extra + number.GetHeight() / 2.0;
  const Vec2 middle = paint.onDevice(LocalToWorld(pose, reach.middle));
  return paint.area.missesBox(middle.x - halfX, middle.y - halfY, middle.x + halfX,
                              middle.y + halfY);
}

const SceneryReach& ReachOfScenery(const SceneryDef& def) {
  static std::unordered_map<const SceneryDef*, SceneryReach> kept;
  return Kept(kept, def, ComputeSceneryReach);
}

}  // namespace vantrel
