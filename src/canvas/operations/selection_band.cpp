// The rubber band: what of the plan it touches.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <unordered_set>

#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "catalog/routes.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// A band smaller than this both ways, in pixels, is a click.
constexpr int kLeastBandPixels = 5;

struct Band {
  DevicePoint low;
  DevicePoint high;

  bool isClick() const {
    return std::int64_t{high.x} - low.x < kLeastBandPixels &&
           std::int64_t{high.y} - low.y < kLeastBandPixels;
  }
  bool contains(DevicePoint point) const { return outside(point) == 0; }

  // One bit for each border that the point lies beyond.
  unsigned outside(DevicePoint point) const {
    return (point.x < low.x ? 1u : 0u) | (point.x > high.x ? 2u : 0u) |
           (point.y < low.y ? 4u : 0u) | (point.y > high.y ? 8u : 0u);
  }
};

Band MakeBand(DevicePoint a, DevicePoint b) {
  return {{std::min(a.x, b.x), std::min(a.y, b.y)}, {std::max(a.x, b.x), std::max(a.y, b.y)}};
}

// On which side of the line through both ends a corner lies, by the sign. In doubles the products
// can't overflow.
double SideOfLine(DevicePoint from, DevicePoint to, int x, int y) {
  const double dx = static_cast<double>(to.x) - from.x;
  const double dy = static_cast<double>(to.y) - from.y;
  return dx * (static_cast<double>(y) - from.y) - dy * (static_cast<double>(x) - from.x);
}

// Clips by the codes of the ends; where those leave it open, the line cuts the band unless all four
// corners lie strictly on one side.
bool Meets(const Band& band, DevicePoint from, DevicePoint to) {
  const unsigned a = band.outside(from);
  const unsigned b = band.outside(to);
  if (a == 0 || b == 0) return true;
  if ((a & b) != 0) return false;
  const auto [low, high] = std::minmax({SideOfLine(from, to, band.low.x, band.low.y),
                                        SideOfLine(from, to, band.high.x, band.low.y),
                                        SideOfLine(from, to, band.low.x, band.high.y),
                                        SideOfLine(from, to, band.high.x, band.high.y)});
  return low <= 0.0 && high >= 0.0;
}

bool Meets(const Band& band, const ViewTransform& view, const std::vector<Vec2>& line) {
  DevicePoint from = view.toDevice(line.front());
  for (std::size_t i = 1; i < line.size(); ++i) {
    const DevicePoint to = view.toDevice(line[i]);
    if (Meets(band, from, to)) return true;
    from = to;
  }
  return false;
}

bool Meets(const Band& band, const ViewTransform& view, const Piece& piece) {
  const PieceDef* const def = findPart(piece.cat);
  if (def == nullptr) return false;
  return std::ranges::any_of(pieceOutlineSegments(piece, *def), [&](const std::vector<Vec2>& line) {
    return Meets(band, view, line);
  });
}

std::vector<Vec2> CentreArc(const Piece& piece, const Stretch& arc) {
  const int steps = std::max(6, DeviceInt(std::abs(arc.sweep) / 5.0));
  std::vector<Vec2> points;
  points.reserve(static_cast<std::size_t>(steps) + 1);
  for (int i = 0; i <= steps; ++i) {
    const Pose pose = arc.at(static_cast<double>(i) / steps);
    points.push_back(LocalToWorld(piece.pose(), {pose.x, pose.y}));
  }
  return points;
}

}  // namespace

std::vector<std::vector<Vec2>> pieceOutlineSegments(const Piece& piece, const PieceDef& def) {
  const Vec2 origin{piece.x, piece.y};
  std::vector<std::vector<Vec2>> lines;
  // Not the ways of the piece: a band catches a turnout by its arc and by the straight line to its
  // branch's end.
  if (def.radius > 0.0 && def.angle != 0.0)
    lines.push_back(CentreArc(piece, ArcOf(def, {}, def.angle)));
  else
    lines.push_back({origin, LocalToWorld(piece.pose(), {def.length, 0.0})});
  if (def.connectors.size() >= 3) {
    const WorldConnector branch = worldConnector(piece, def, 2);
    lines.push_back({origin, {branch.x, branch.y}});
  }
  return lines;
}

bool selectInBand(Layout& layout, const ViewTransform& view, DevicePoint from, DevicePoint to) {
  const Band band = MakeBand(from, to);
  if (band.isClick()) return false;
  const std::unordered_set<std::int32_t> hidden = HiddenLevels(layout);
  for (Piece& piece : layout.pieces)
    if (!hidden.contains(piece.level) && Meets(band, view, piece)) piece.sel = true;
  for (SceneryItem& item : layout.scenery)
    if (!hidden.contains(item.level) && band.contains(view.toDevice({item.x, item.y})))
      item.sel = true;
  expandHelixSelection(layout);
  return true;
}

}  // namespace vantrel
