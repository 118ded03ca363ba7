// The snap search for a block of pieces: the answer of one search per piece, found in one walk over
// the pieces that stay.
#include <cmath>
#include <tuple>

#include "canvas/operations/connector_reach.h"
#include "canvas/operations/end_grid.h"
#include "canvas/operations/moving.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// One open end of the block.
struct BlockEnd {
  std::size_t order = 0;  // of its piece among the selected ones
  const Piece* piece = nullptr;
  const PieceDef* def = nullptr;
  WorldConnector at;
  std::int32_t system = 0;
};

// A connector that stays, and its piece's place in the walk.
struct StayingEnd {
  std::size_t order = 0;
  const Piece* piece = nullptr;
  WorldConnector at;
  std::int32_t system = 0;
};

// The best pair so far. What one search per selected piece would find first wins at equal
// distances: the earliest selected piece, then the earliest other one, then its lowest connector,
// then the lowest own connector.
struct BestPair {
  bool found = false;
  double distance = 0.0;
  BlockEnd own;
  StayingEnd other;

  void offer(const BlockEnd& ownEnd, const StayingEnd& otherEnd, double mm) {
    if (found && !(rank(ownEnd, otherEnd, mm) < rank(own, other, distance))) return;
    found = true;
    distance = mm;
    own = ownEnd;
    other = otherEnd;
  }

  static std::tuple<double, std::size_t, std::size_t, std::int32_t, std::int32_t> rank(
      const BlockEnd& ownEnd, const StayingEnd& otherEnd, double mm) {
    return {mm, ownEnd.order, otherEnd.order, otherEnd.at.connectorIndex, ownEnd.at.connectorIndex};
  }
};

std::vector<BlockEnd> OpenEndsOfBlock(const Layout& layout) {
  std::vector<BlockEnd> ends;
  std::size_t order = 0;
  for (const Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    ++order;
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    for (std::size_t i = 0; i < def->connectors.size(); ++i)
      if (IsConnectorOpen(piece, i))
        ends.push_back({.order = order,
                        .piece = &piece,
                        .def = def,
                        .at = worldConnector(piece, *def, i),
                        .system = connectorSystem(*def, i)});
  }
  return ends;
}

std::vector<Vec2> PointsOf(const std::vector<BlockEnd>& ends) {
  std::vector<Vec2> points;
  points.reserve(ends.size());
  for (const BlockEnd& end : ends) points.push_back({end.at.x, end.at.y});
  return points;
}

BestPair FindBestPair(const Layout& layout, const std::vector<BlockEnd>& ends) {
  const EndGrid grid(PointsOf(ends), kSnapDistanceMm);
  const std::unordered_set<std::int32_t> hidden = HiddenLevels(layout);
  const double longestReach = LongestConnectorReach();
  BestPair best;
  StayingEnd other;
  for (const Piece& piece : layout.pieces) {
    if (piece.sel || grid.tooFar(piece, longestReach)) continue;
    if (!hidden.empty() && hidden.contains(piece.level)) continue;
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    ++other.order;
    other.piece = &piece;
    for (std::size_t i = 0; i < def->connectors.size(); ++i) {
      if (!IsConnectorOpen(piece, i)) continue;
      other.at = worldConnector(piece, *def, i);
      other.system = connectorSystem(*def, i);
      grid.visitNear({other.at.x, other.at.y}, [&](std::size_t index) {
        const BlockEnd& own = ends[index];
        if (own.system != other.system) return;
        const double dx = other.at.x - own.at.x;
        const double dy = other.at.y - own.at.y;
        const double distance = std::sqrt(dx * dx + dy * dy);
        if (WithinSnapLimits(own.at, other.at, distance)) best.offer(own, other, distance);
      });
    }
  }
  return best;
}

}  // namespace

BlockSnap findBlockSnap(const Layout& layout) {
  if (!layout.snapEnabled) return {};
  const std::vector<BlockEnd> ends = OpenEndsOfBlock(layout);
  if (ends.empty()) return {};
  const BestPair best = FindBestPair(layout, ends);
  if (!best.found) return {};
  const Pose pose =
      poseForConnector(*best.own.def, best.own.at.connectorIndex, best.other.at.pose());
  return {.snap = {.found = true,
                   .targetPiece = best.other.piece->id,
                   .targetConnector = best.other.at.connectorIndex,
                   .ownConnector = best.own.at.connectorIndex,
                   .x = pose.x,
                   .y = pose.y,
                   .heading = pose.heading,
                   .distance = best.distance},
          .piece = best.own.piece->id};
}

}  // namespace vantrel
