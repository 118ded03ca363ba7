#include "canvas/operations/hit_test.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "canvas/operations/point_tests.h"
#include "catalog/helix_kits.h"
#include "catalog/piece_builders.h"
#include "catalog/routes.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

// All comparisons are put so that not-a-number is no hit.

namespace vantrel {
namespace {

constexpr double kHalfWidthMm = 20.0;
constexpr double kHalfWidthZMm = 7.0;
constexpr double kAllowanceMm = 5.0;
constexpr double kCurveEndDegrees = 3.0;
constexpr double kTurntableRimMm = 10.0;
constexpr double kHelixRingMm = kHalfWidthMm + kAllowanceMm;
constexpr double kSceneryRimMm = 3.0;

// Two decks no further apart than this are one to the pointer.
constexpr double kSameHeightMm = 0.001;
constexpr double kBelowAllDecksMm = -1e9;

bool Within(double value, double low, double high) {
  return value >= low && value <= high;
}

double HalfWidth(const PieceDef& def) {
  return def.system == TrackSystem::MarklinZ ? kHalfWidthZMm : kHalfWidthMm;
}

bool OnStraight(const PieceDef& def, Vec2 local, double halfWidth) {
  return Within(local.x, -kAllowanceMm, def.length + kAllowanceMm) &&
         Within(local.y, -halfWidth, halfWidth);
}

bool OnRing(const PieceDef& def, Vec2 local, double centreX) {
  const double distance = std::hypot(local.x - centreX, local.y - BendSide(def) * def.radius);
  const double reach = HalfWidth(def) + kAllowanceMm;
  return Within(distance, def.radius - reach, def.radius + reach);
}

bool OnCurve(const PieceDef& def, Vec2 local) {
  if (!OnRing(def, local, 0.0)) return false;
  const double side = BendSide(def);
  double direction = Degrees(std::atan2(local.y - side * def.radius, local.x));
  const double start = side > 0.0 ? -90.0 : 90.0;
  const double low = std::min(start, start + def.angle);
  const double high = std::max(start, start + def.angle);
  while (direction < low - 180.0) direction += 360.0;
  while (direction > high + 180.0) direction -= 360.0;
  return Within(direction, low - kCurveEndDegrees, high + kCurveEndDegrees);
}

// The rings have no ends: a press anywhere on the two full circles finds the piece.
bool OnOuterCurveTurnout(const PieceDef& def, Vec2 local) {
  return OnStraight(def, local, HalfWidth(def) + kAllowanceMm) || OnRing(def, local, 0.0) ||
         OnRing(def, local, def.length);
}

// What a walk over records asks of the levels, put in order once.
class Decks {
 public:
  explicit Decks(const Layout& layout) : hidden_(HiddenLevels(layout)) {
    for (const Level& level : layout.levels) heights_.emplace(level.id, level.height);
  }

  bool hidden(std::int32_t level) const { return !hidden_.empty() && hidden_.contains(level); }

  // In mm, 0 for a level that doesn't exist.
  double height(std::int32_t level) const {
    const auto found = heights_.find(level);
    return found == heights_.end() ? 0.0 : found->second;
  }

 private:
  std::unordered_set<std::int32_t> hidden_;
  std::unordered_map<std::int32_t, double> heights_;
};

double SquaredPixels(const ViewTransform& view, Vec2 world, DevicePoint point) {
  const DevicePoint at = view.toDevice(world);
  const double dx = static_cast<double>(at.x) - point.x;
  const double dy = static_cast<double>(at.y) - point.y;
  return dx * dx + dy * dy;
}

bool OnHelix(const Helix& helix, Vec2 world) {
  const HelixKit& kit = kitOrDefault(helix.variant);
  const double distance = std::hypot(world.x - helix.cx, world.y - helix.cy);
  return std::abs(distance - kit.innerRadius) <= kHelixRingMm ||
         std::abs(distance - kit.outerRadius) <= kHelixRingMm;
}

// The level of each helix that has pieces: that of the first of them.
std::unordered_map<std::int32_t, std::int32_t> HelixLevels(const Layout& layout) {
  std::unordered_map<std::int32_t, std::int32_t> levels;
  for (const Piece& piece : layout.pieces)
    if (piece.helix != kNone) levels.emplace(piece.helix, piece.level);
  return levels;
}

const Helix* FindHelixAt(const Layout& layout, Vec2 world) {
  if (layout.helices.empty()) return nullptr;
  const Decks decks(layout);
  const std::unordered_map<std::int32_t, std::int32_t> levels = HelixLevels(layout);
  const Helix* hit = nullptr;
  double bestHeight = kBelowAllDecksMm;
  for (const Helix& helix : layout.helices) {
    const auto found = levels.find(helix.id);
    const std::int32_t level = found == levels.end() ? 1 : found->second;
    if (decks.hidden(level) || !OnHelix(helix, world)) continue;
    const double height = decks.height(level);
    if (!(height > bestHeight + kSameHeightMm)) continue;
    bestHeight = height;
    hit = &helix;
  }
  return hit;
}

bool OnScenery(const SceneryItem& item, Vec2 world) {
  const SceneryDef* const def = findScenery(item.item);
  if (def == nullptr) return false;
  const Vec2 local = WorldToLocal(item.pose(), world);
  return std::abs(local.x) <= item.scalex * def->width / 2.0 + kSceneryRimMm &&
         std::abs(local.y) <= item.scaley * def->depth / 2.0 + kSceneryRimMm;
}

}  // namespace

// Not the ways of the piece: a turnout is hit on its straight alone, a curved one of the C family
// too, and a press beside their branches takes nothing.
bool hitTestPieceShape(const Piece& piece, const PieceDef& def, Vec2 world) {
  if (def.kind == PieceKind::Turntable)
    return std::hypot(world.x - piece.x, world.y - piece.y) <= def.length / 2.0 + kTurntableRimMm;
  const Vec2 local = WorldToLocal(piece.pose(), world);
  if (def.kind == PieceKind::OuterCurveTurnout) return OnOuterCurveTurnout(def, local);
  if (def.kind == PieceKind::Curve && def.radius > 0.0) return OnCurve(def, local);
  return OnStraight(def, local, HalfWidth(def));
}

std::int32_t hitTestPiece(const Layout& layout, const ViewTransform& view, DevicePoint point) {
  const Vec2 world = view.toWorld(point);
  const Decks decks(layout);
  std::int32_t hit = kNone;
  double bestHeight = kBelowAllDecksMm;
  double bestDistance = 1e9;
  for (auto piece = layout.pieces.rbegin(); piece != layout.pieces.rend(); ++piece) {
    if (decks.hidden(piece->level)) continue;
    const PieceDef* const def = findPart(piece->cat);
    if (def == nullptr || !hitTestPieceShape(*piece, *def, world)) continue;
    const double height = decks.height(piece->level);
    const double distance = SquaredPixels(view, {piece->x, piece->y}, point);
    const bool higher = height > bestHeight + kSameHeightMm;
    const bool nearer = std::abs(height - bestHeight) <= kSameHeightMm && distance < bestDistance;
    if (!higher && !nearer) continue;
    bestHeight = height;
    bestDistance = distance;
    hit = piece->id;
  }
  return hit;
}

std::int32_t hitTestHelix(const Layout& layout, const ViewTransform& view, DevicePoint point) {
  const Helix* const helix = FindHelixAt(layout, view.toWorld(point));
  return helix != nullptr ? helix->id : kNone;
}

std::int32_t hitTestPieceOrHelix(const Layout& layout, const ViewTransform& view,
                                 DevicePoint point) {
  const std::int32_t piece = hitTestPiece(layout, view, point);
  if (piece != kNone) return piece;
  const Helix* const helix = FindHelixAt(layout, view.toWorld(point));
  return helix != nullptr ? helix->bottomR1 : kNone;
}

std::int32_t hitTestScenery(const Layout& layout, const ViewTransform& view, DevicePoint point) {
  const Vec2 world = view.toWorld(point);
  const Decks decks(layout);
  std::int32_t hit = kNone;
  double bestHeight = kBelowAllDecksMm;
  for (auto item = layout.scenery.rbegin(); item != layout.scenery.rend(); ++item) {
    if (decks.hidden(item->level) || !OnScenery(*item, world)) continue;
    const double height = decks.height(item->level);
    if (!(height > bestHeight + kSameHeightMm)) continue;
    bestHeight = height;
    hit = item->id;
  }
  return hit;
}

std::int32_t singleSelectedScenery(const Layout& layout) {
  const auto selected = [](const auto& record) { return record.sel; };
  if (std::ranges::count_if(layout.scenery, selected) != 1 ||
      std::ranges::any_of(layout.pieces, selected) || std::ranges::any_of(layout.labels, selected))
    return kNone;
  const SceneryItem& item = *std::ranges::find_if(layout.scenery, selected);
  const SceneryDef* const def = findScenery(item.item);
  return def != nullptr && def->category == kPlatforms ? item.id : kNone;
}

}  // namespace vantrel
