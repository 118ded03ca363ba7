#include "canvas/operations/closing_joints.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "canvas/operations/connector_reach.h"
#include "canvas/operations/end_grid.h"
#include "canvas/operations/joining.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

// Connectors in the order of the walk: by piece, then by number. Joined ones stand here too, since
// a join can open others.
struct EndList {
  struct Place {
    std::size_t piece = 0;  // in `pieces`
    std::size_t connector = 0;
  };
  std::vector<Place> places;
  std::vector<Vec2> points;  // mm, one per place

  void add(std::size_t piece, std::size_t connector, Vec2 at) {
    places.push_back({.piece = piece, .connector = connector});
    points.push_back(at);
  }
};

bool Meet(Vec2 a, Vec2 b) {
  const double dx = a.x - b.x;
  const double dy = a.y - b.y;
  // Not-a-number fails too.
  return dx * dx + dy * dy < kClosingDistanceMm * kClosingDistanceMm;
}

Vec2 PointOf(const Piece& piece, const PieceDef& def, std::size_t connector) {
  const WorldConnector at = worldConnector(piece, def, connector);
  return {at.x, at.y};
}

EndList EndsOfBlock(const Layout& layout) {
  EndList list;
  for (std::size_t p = 0; p < layout.pieces.size(); ++p) {
    const Piece& piece = layout.pieces[p];
    if (!piece.sel) continue;
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    for (std::size_t i = 0; i < def->connectors.size(); ++i)
      list.add(p, i, PointOf(piece, *def, i));
  }
  return list;
}

// The connectors outside the block that meet an end of it.
EndList EndsAround(const Layout& layout, const EndList& block) {
  EndList list;
  const EndGrid grid(block.points, kClosingDistanceMm);
  const double longestReach = LongestConnectorReach();
  for (std::size_t p = 0; p < layout.pieces.size(); ++p) {
    const Piece& piece = layout.pieces[p];
    if (piece.sel || grid.tooFar(piece, longestReach)) continue;
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    for (std::size_t i = 0; i < def->connectors.size(); ++i) {
      const Vec2 at = PointOf(piece, *def, i);
      bool meets = false;
      grid.visitNear(at,
                     [&](std::size_t index) { meets = meets || Meet(block.points[index], at); });
      if (meets) list.add(p, i, at);
    }
  }
  return list;
}

}  // namespace

void joinClosingEnds(Layout& layout) {
  const EndList block = EndsOfBlock(layout);
  const EndList around = EndsAround(layout, block);
  if (around.places.empty()) return;
  const EndGrid grid(around.points, kClosingDistanceMm);
  EndJoiner joiner(layout);
  std::vector<std::size_t> met;  // of `around`
  for (std::size_t i = 0; i < block.places.size(); ++i) {
    const EndList::Place own = block.places[i];
    if (!IsConnectorOpen(layout.pieces[own.piece], own.connector)) continue;
    met.clear();
    grid.visitNear(block.points[i], [&](std::size_t index) {
      if (Meet(block.points[i], around.points[index])) met.push_back(index);
    });
    std::sort(met.begin(), met.end());
    const EndList::Place* last = nullptr;
    for (const std::size_t index : met) {
      const EndList::Place& other = around.places[index];
      if (!IsConnectorOpen(layout.pieces[other.piece], other.connector)) continue;
      // Every match counts for what it opens, but only the last one stays.
      if (joiner.openForJoin(own.piece, own.connector, other.piece, other.connector)) last = &other;
    }
    if (last != nullptr) joiner.join(own.piece, own.connector, last->piece, last->connector);
  }
}

}  // namespace vantrel
