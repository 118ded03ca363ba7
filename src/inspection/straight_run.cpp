#include "inspection/straight_run.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

using PieceList = std::vector<const Piece*>;
using Positions = std::unordered_map<std::int32_t, std::size_t>;

constexpr double kHalfTurnDeg = 180.0;
constexpr double kStraightToleranceDeg = 1.0;

Positions IndexOf(const PieceList& pieces) {
  Positions positions;
  for (std::size_t i = 0; i < pieces.size(); ++i) positions.emplace(pieces[i]->id, i);
  return positions;
}

// The positions of the other pieces that this one's joints lead to, in the joints' order.
std::vector<std::size_t> Neighbours(const PieceList& pieces, const Positions& positions,
                                    std::size_t at) {
  std::vector<std::size_t> neighbours;
  for (const Joint& joint : pieces[at]->joints) {
    if (joint.open()) continue;
    const auto found = positions.find(joint.target);
    if (found != positions.end() && found->second != at) neighbours.push_back(found->second);
  }
  return neighbours;
}

// Two joints to the same piece count once.
bool HasOneNeighbour(const PieceList& pieces, const Positions& positions, std::size_t at) {
  const std::vector<std::size_t> neighbours = Neighbours(pieces, positions, at);
  return !neighbours.empty() &&
         std::ranges::count(neighbours, neighbours.front()) == std::ssize(neighbours);
}

PieceList WalkFrom(const PieceList& pieces, const Positions& positions, std::size_t start) {
  PieceList walked;
  std::vector<bool> seen(pieces.size(), false);
  std::vector<std::size_t> ahead = {start};
  while (!ahead.empty()) {
    const std::size_t at = ahead.back();
    ahead.pop_back();
    if (seen[at]) continue;
    seen[at] = true;
    walked.push_back(pieces[at]);
    const std::vector<std::size_t> next = Neighbours(pieces, positions, at);
    ahead.insert(ahead.end(), next.rbegin(), next.rend());
  }
  return walked;
}

bool PointsAlong(const Piece& piece, double heading) {
  const double off = std::fmod(std::abs(piece.heading - heading), kHalfTurnDeg);
  return !(off > kStraightToleranceDeg && off < kHalfTurnDeg - kStraightToleranceDeg);
}

}  // namespace

bool isStraightRun(const PieceList& pieces) {
  if (pieces.size() < 2) return false;
  for (const Piece* piece : pieces) {
    const PieceDef* def = findPart(piece->cat);
    if (def == nullptr || def->kind != PieceKind::Straight || piece->helix != kNone) return false;
    if (!PointsAlong(*piece, pieces.front()->heading)) return false;
  }
  return WalkFrom(pieces, IndexOf(pieces), 0).size() == pieces.size();
}

PieceList walkRun(const PieceList& pieces) {
  if (pieces.empty()) return {};
  const Positions positions = IndexOf(pieces);
  std::size_t start = 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!HasOneNeighbour(pieces, positions, i)) continue;
    start = i;
    break;
  }
  return WalkFrom(pieces, positions, start);
}

}  // namespace vantrel
