// Ends of pieces by where they lie, to find those near a point, or near a piece, without a walk
// over all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

class EndGrid {
 public:
  // Side of a cell, and the greatest distance that can be asked for. A power of two and above that
  // distance: the division is exact, and the subtraction that measures a distance can't round what
  // lies in reach across a whole cell, so it is in the same or a neighbouring cell at coordinates
  // of any size.
  static constexpr double kCellMm = 32.0;
  static constexpr double kLimitMm = 25.0;

  // Points with a coordinate that isn't finite are near nothing and left out.
  explicit EndGrid(const std::vector<Vec2>& points);

  bool empty() const { return entries_.empty(); }

  // True only when no connector of the piece can be within kLimitMm of a point. `reachMm` is at
  // least the distance of the piece's farthest connector from its origin.
  bool tooFar(const Piece& piece, double reachMm) const;

  // Calls visit(index of the point) once for every point within kLimitMm of `at`, and for some
  // beyond, in no particular order.
  template <typename Visit>
  void visitNear(Vec2 at, Visit visit) const {
    if (entries_.empty()) return;
    const Vec2 middle = cellOf(at);
    // Where one step no longer changes a coordinate a cell would be seen twice; not-a-number is
    // equal to no cell.
    double lastX = std::numeric_limits<double>::quiet_NaN();
    for (const double stepX : {-1.0, 0.0, 1.0}) {
      const double x = middle.x + stepX;
      if (x == lastX) continue;
      lastX = x;
      double lastY = std::numeric_limits<double>::quiet_NaN();
      for (const double stepY : {-1.0, 0.0, 1.0}) {
        const double y = middle.y + stepY;
        if (y == lastY) continue;
        lastY = y;
        for (std::uint32_t i = heads_[bucketOf({x, y})]; i != kEnd; i = entries_[i].next)
          if (entries_[i].cell == Vec2{x, y}) visit(entries_[i].point);
      }
    }
  }

 private:
  static constexpr std::uint32_t kEnd = 0xffffffff;

  struct Entry {
    Vec2 cell;
    std::size_t point = 0;
    std::uint32_t next = kEnd;  // in the same bucket
  };

  // Whole numbers, kept as doubles because a coordinate may be larger than any integer.
  static Vec2 cellOf(Vec2 at);
  std::size_t bucketOf(Vec2 cell) const;

  std::vector<Entry> entries_;
  std::vector<std::uint32_t> heads_;  // as many as a power of two
  Vec2 min_;
  Vec2 max_;
};

}  // namespace vantrel
