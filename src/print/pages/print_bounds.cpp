#include "print/pages/print_bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "catalog/connector_geometry.h"
#include "catalog/routes.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

constexpr double kFarAway = 1e9;         // mm
constexpr double kSmallestExtent = 1.0;  // mm

void Extend(PrintBounds& bounds, double x, double y) {
  if (!std::isfinite(x) || !std::isfinite(y)) return;
  bounds.minX = std::min(bounds.minX, x);
  bounds.minY = std::min(bounds.minY, y);
  bounds.maxX = std::max(bounds.maxX, x);
  bounds.maxY = std::max(bounds.maxY, y);
}

// Two huge opposite ends may lie further apart than a number can say.
double Extent(double from, double to) {
  const double extent = std::max(to - from, kSmallestExtent);
  return std::min(extent, std::numeric_limits<double>::max());
}

}  // namespace

double PrintBounds::width() const {
  return Extent(minX, maxX);
}

double PrintBounds::height() const {
  return Extent(minY, maxY);
}

PrintBounds boundsOfPrint(const Layout& layout, const PrintOptions& options) {
  PrintBounds bounds{kFarAway, kFarAway, -kFarAway, -kFarAway};
  for (const Piece& piece : layout.pieces) {
    if (options.allLevels == 0 && piece.level != layout.activeLevel) continue;
    const PieceDef* def = findPart(piece.cat);
    if (def == nullptr) continue;
    // Of every kind the straight, also where the track bends or branches aside.
    const Pose end = StraightOf(*def).at(1.0);
    const Vec2 worldEnd = LocalToWorld(piece.pose(), {end.x, end.y});
    Extend(bounds, piece.x, piece.y);
    Extend(bounds, worldEnd.x, worldEnd.y);
  }
  for (const SceneryItem& item : layout.scenery) Extend(bounds, item.x, item.y);
  if (options.includeBaseboard)
    for (const Vec2& vertex : layout.baseboard) Extend(bounds, vertex.x, vertex.y);
  return bounds.minX > bounds.maxX ? PrintBounds{} : bounds;
}

}  // namespace vantrel
