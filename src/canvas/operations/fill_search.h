// The search for rows of straight pieces whose lengths add up to a gap.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "catalog/piece_def.h"

namespace vantrel {

// How far the sum of a row may be from the gap, either way.
inline constexpr double kFillToleranceMm = 1.5;
inline constexpr std::size_t kFillsShown = 12;

// A row of pieces that fills a gap.
struct FillSolution {
  std::vector<std::string> parts;  // part numbers in laying order, longest first
  double total = 0.0;              // mm, the sum of their lengths

  friend bool operator==(const FillSolution&, const FillSolution&) = default;
};

// The straights of a system that a gap may be filled with, the longest first; of equal lengths the
// catalog's first. No bridges and no pieces with a function of their own.
std::vector<const PieceDef*> fillCandidates(TrackSystem system);

// The rows of `candidates` (as fillCandidates orders them) that are as long as the gap, in the
// order in which they are found: fewest pieces first, then those with the longest pieces. Each
// choice of pieces comes once. At most 64, and none of more than 32 pieces.
std::vector<FillSolution> searchFills(std::span<const PieceDef* const> candidates, double gap);

// Fewest pieces first, then the closest fit; of equals the one found first. Keeps the best 12.
void rankFills(std::vector<FillSolution>& fills, double gap);

}  // namespace vantrel
