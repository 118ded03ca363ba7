// Ends of pieces by where they lie, to find those near a point, or near a piece, without a walk
// over all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

class EndGrid {
 public:
  // For questions about points up to `limitMm` apart. Points with a coordinate that isn't finite
  // are near nothing and left out.
  EndGrid(const std::vector<Vec2>& points, double limitMm);

  bool empty() const { return entries_.empty(); }

  // True only when no connector of the piece can be within the limit of a point. `reachMm` is at
  // least the distance of the piece's farthest connector from its origin.
  bool tooFar(const Piece& piece, double reachMm) const;

  // Calls visit(index of the point) once for every point within the limit of `at`, and for some
  // beyond, in no particular order.
  template <typename Visit>
  void visitNear(Vec2 at, Visit visit) const {
    if (entries_.empty()) return;
    // Rounding keeps order: what lies in reach lies between these corners, and its cell between
    // theirs, at coordinates of any size.
    const Vec2 low = cellOf({at.x - limitMm_ - kSpareMm, at.y - limitMm_ - kSpareMm});
    const Vec2 high = cellOf({at.x + limitMm_ + kSpareMm, at.y + limitMm_ + kSpareMm});
    // Counted in steps, since a cell's number may be too large for the next one to differ. For a
    // place that isn't finite there is no step.
    for (double i = 0.0; i <= high.x - low.x; ++i)
      for (double j = 0.0; j <= high.y - low.y; ++j) visitCell({low.x + i, low.y + j}, visit);
  }

 private:
  static constexpr double kCellMm = 128.0;  // above twice the usual limit: few cells to look into
  static constexpr double kSpareMm = 1.0;  // for the rounding of the distance itself
  static constexpr std::uint32_t kEnd = 0xffffffff;

  struct Entry {
    Vec2 cell;
    std::size_t point = 0;
    std::uint32_t next = kEnd;  // in the same bucket
  };

  template <typename Visit>
  void visitCell(Vec2 cell, Visit visit) const {
    for (std::uint32_t i = heads_[bucketOf(cell)]; i != kEnd; i = entries_[i].next)
      if (entries_[i].cell == cell) visit(entries_[i].point);
  }

  // Whole numbers, kept as doubles because a coordinate may be larger than any integer.
  static Vec2 cellOf(Vec2 at);
  std::size_t bucketOf(Vec2 cell) const;

  double limitMm_;
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> heads_;  // as many as a power of two
  Vec2 min_;
  Vec2 max_;
};

}  // namespace vantrel
