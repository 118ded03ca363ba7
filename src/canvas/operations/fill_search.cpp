#include "canvas/operations/fill_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

constexpr std::size_t kMostFills = 64;
// From here on longer rows are no longer looked for.
constexpr std::size_t kEnoughFills = 16;
constexpr std::size_t kMostPieces = 32;

// All rows of one number of pieces after the other, each row as rising numbers of candidates: so
// none comes twice, and those with long pieces come first.
class FillSearch {
 public:
  FillSearch(std::span<const PieceDef* const> candidates, double gap)
      : candidates_(candidates), gap_(gap) {}

  std::vector<FillSolution> run() {
    const double needed = std::ceil(gap_ / candidates_.back()->length) + 2.0;
    const std::size_t deepest =
        needed < kMostPieces ? static_cast<std::size_t>(std::max(needed, 0.0)) : kMostPieces;
    for (depth_ = 1; depth_ <= deepest && found_.size() < kEnoughFills; ++depth_) fill(0, 0.0);
    return std::move(found_);
  }

 private:
  void fill(std::size_t start, double sum) {
    if (found_.size() >= kMostFills) return;
    if (current_.size() == depth_) {
      if (std::abs(sum - gap_) <= kFillToleranceMm) note(sum);
      return;
    }
    if (sum > gap_ + kFillToleranceMm) return;
    // Not even the longest pieces that may still come would reach.
    const auto left = static_cast<double>(depth_ - current_.size());
    if (gap_ - kFillToleranceMm > left * candidates_[start]->length + sum) return;
    for (std::size_t i = start; i < candidates_.size(); ++i) {
      const double next = sum + candidates_[i]->length;
      if (!(next > gap_ + kFillToleranceMm)) {
        current_.push_back(i);
        fill(i, next);
        current_.pop_back();
      }
      if (found_.size() >= kMostFills) return;
    }
  }

  void note(double sum) {
    FillSolution solution;
    solution.parts.reserve(current_.size());
    for (const std::size_t i : current_) solution.parts.push_back(candidates_[i]->partNumber);
    solution.total = sum;
    found_.push_back(std::move(solution));
  }

  std::span<const PieceDef* const> candidates_;
  double gap_;
  std::size_t depth_ = 0;             // pieces in the rows that are being looked for
  std::vector<std::size_t> current_;  // the row so far
  std::vector<FillSolution> found_;
};

}  // namespace

std::vector<const PieceDef*> fillCandidates(TrackSystem system) {
  std::vector<const PieceDef*> candidates;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    if (def.system == system && def.fillsGaps()) candidates.push_back(&def);
  }
  std::ranges::stable_sort(candidates, std::ranges::greater{}, &PieceDef::length);
  return candidates;
}

std::vector<FillSolution> searchFills(std::span<const PieceDef* const> candidates, double gap) {
  // Nothing is ever too long or too short for a gap that is no number.
  if (candidates.empty() || std::isnan(gap)) return {};
  return FillSearch(candidates, gap).run();
}

void rankFills(std::vector<FillSolution>& fills, double gap) {
  const auto key = [gap](const FillSolution& fill) {
    return std::pair(fill.parts.size(), std::abs(fill.total - gap));
  };
  std::ranges::stable_sort(fills, std::ranges::less{}, key);
  if (fills.size() > kFillsShown) fills.resize(kFillsShown);
}

}  // namespace vantrel
