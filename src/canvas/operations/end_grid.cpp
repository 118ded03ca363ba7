#include "canvas/operations/end_grid.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "canvas/operations/connector_reach.h"

namespace vantrel {
namespace {

// The number of a cell as far as an integer can hold it; beyond that all cells hash alike.
std::uint64_t HashPart(double cell) {
  constexpr double kLargest = 4611686018427387904.0;  // 2 to the power of 62
  if (!(std::abs(cell) < kLargest)) return 0;
  return static_cast<std::uint64_t>(static_cast<std::int64_t>(cell));
}

}  // namespace

EndGrid::EndGrid(const std::vector<Vec2>& points, double limitMm) : limitMm_(limitMm) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  min_ = {kInfinity, kInfinity};
  max_ = {-kInfinity, -kInfinity};
  heads_.assign(std::bit_ceil(2 * points.size() + 1), kEnd);
  entries_.reserve(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Vec2 at = points[i];
    if (!std::isfinite(at.x) || !std::isfinite(at.y)) continue;
    min_ = {std::min(min_.x, at.x), std::min(min_.y, at.y)};
    max_ = {std::max(max_.x, at.x), std::max(max_.y, at.y)};
    const Vec2 cell = cellOf(at);
    std::uint32_t& head = heads_[bucketOf(cell)];
    entries_.push_back({.cell = cell, .point = i, .next = head});
    head = static_cast<std::uint32_t>(entries_.size() - 1);
  }
}

bool EndGrid::tooFar(const Piece& piece, double reachMm) const {
  if (entries_.empty()) return true;
  const double size = std::abs(piece.x) + std::abs(piece.y) + std::abs(min_.x) + std::abs(max_.x) +
                      std::abs(min_.y) + std::abs(max_.y);
  const double limit = limitMm_ + reachMm + ReachSlack(size);
  // A comparison with not-a-number keeps the piece.
  return min_.x - piece.x > limit || piece.x - max_.x > limit || min_.y - piece.y > limit ||
         piece.y - max_.y > limit;
}

Vec2 EndGrid::cellOf(Vec2 at) {
  return {std::floor(at.x / kCellMm), std::floor(at.y / kCellMm)};
}

std::size_t EndGrid::bucketOf(Vec2 cell) const {
  std::uint64_t hash = HashPart(cell.x) * 0x9e3779b97f4a7c15u + HashPart(cell.y);
  hash *= 0xbf58476d1ce4e5b9u;
  return static_cast<std::size_t>(hash >> 32) & (heads_.size() - 1);
}

}  // namespace vantrel
