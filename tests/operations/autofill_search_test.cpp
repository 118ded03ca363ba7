#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "canvas/operations/fill_search.h"

namespace vantrel {

static const char* NameOf(TrackSystem system) {
  switch (system) {
    case TrackSystem::MarklinC:
      return "MarklinC";
    case TrackSystem::MarklinK:
      return "MarklinK";
    case TrackSystem::MarklinZ:
      return "MarklinZ";
    case TrackSystem::TrixC:
      return "TrixC";
  }
  return "Unknown";
}
// In the namespace of the type: the printer of parameters looks for it there only.
static void PrintTo(TrackSystem system, std::ostream* out) {
  *out << NameOf(system);
}

namespace {

using Parts = std::vector<std::string>;

constexpr TrackSystem kSystems[] = {TrackSystem::MarklinC, TrackSystem::MarklinK,
                                    TrackSystem::MarklinZ, TrackSystem::TrixC};

Parts PartsOf(const std::vector<const PieceDef*>& defs) {
  Parts parts;
  for (const PieceDef* def : defs) parts.push_back(def->partNumber);
  return parts;
}

std::vector<Parts> RowsFor(TrackSystem system, double gap) {
  std::vector<FillSolution> fills = searchFills(fillCandidates(system), gap);
  rankFills(fills, gap);
  std::vector<Parts> rows;
  for (const FillSolution& fill : fills) rows.push_back(fill.parts);
  return rows;
}

TEST(FillCandidates, AreThePlainStraightsOfTheSystemTheLongestFirst) {
  EXPECT_EQ(
      PartsOf(fillCandidates(TrackSystem::MarklinC)),
      (Parts{"24360", "24236", "24229", "24188", "24172", "24094", "24077", "24071", "24064"}));
  EXPECT_EQ(
      PartsOf(fillCandidates(TrackSystem::TrixC)),
      (Parts{"62360", "62236", "62229", "62188", "62172", "62094", "62077", "62071", "62064"}));
  EXPECT_EQ(PartsOf(fillCandidates(TrackSystem::MarklinK)),
            (Parts{"2205", "2209", "2200", "2206", "2207", "2201", "2202", "2293", "2208", "2203",
                   "2204"}));
}

TEST(FillCandidates, OfEqualLengthKeepTheOrderOfTheCatalog) {
  // 8506 and 8507 have 112.8 mm, 8501 and 8503 have 55 mm.
  EXPECT_EQ(PartsOf(fillCandidates(TrackSystem::MarklinZ)),
            (Parts{"8505", "8506", "8507", "8500", "8501", "8503", "8502", "8504"}));
}

TEST(SearchFills, AGapOfOnePieceIsFilledByItFirst) {
  const std::vector<Parts> rows = RowsFor(TrackSystem::MarklinC, 188.3);
  // 24094 twice is 188.4.
  EXPECT_EQ(rows, (std::vector<Parts>{{"24188"}, {"24094", "24094"}}));
}

TEST(SearchFills, TheToleranceIsOneAndAHalfMillimetresEitherWay) {
  EXPECT_EQ(RowsFor(TrackSystem::MarklinC, 64.3 - 1.49), (std::vector<Parts>{{"24064"}}));
  EXPECT_EQ(RowsFor(TrackSystem::MarklinC, 64.3 + 1.49), (std::vector<Parts>{{"24064"}}));
  EXPECT_TRUE(RowsFor(TrackSystem::MarklinC, 64.3 - 1.51).empty());
  EXPECT_TRUE(RowsFor(TrackSystem::MarklinC, 64.3 + 1.51).empty());
  // 110 - 1.5 and 110 + 1.5 are exact: the limit itself counts.
  EXPECT_EQ(RowsFor(TrackSystem::MarklinZ, 108.5).front(), (Parts{"8500"}));
  // At 111.5 the two parts of 112.8 mm are closer.
  EXPECT_EQ(RowsFor(TrackSystem::MarklinZ, 111.5).at(2), (Parts{"8500"}));
}

TEST(SearchFills, RowsOfTwoRankAboveRowsOfThreeWhateverTheirError) {
  const std::vector<Parts> rows = RowsFor(TrackSystem::MarklinC, 400.0);
  ASSERT_EQ(rows.size(), 10u);
  EXPECT_EQ(rows[0], (Parts{"24229", "24172"}));  // 401.0
  EXPECT_EQ(rows[1].size(), 3u);
  EXPECT_EQ(rows[3], (Parts{"24188", "24071", "24071", "24071"}));  // 400.7, the best of four
}

TEST(SearchFills, ARowMayHave32PiecesAndNoMore) {
  // 32 * 360 = 11520
  const std::vector<Parts> rows = RowsFor(TrackSystem::MarklinC, 11520.0);
  EXPECT_EQ(rows, (std::vector<Parts>{Parts(32, "24360")}));
  EXPECT_TRUE(RowsFor(TrackSystem::MarklinC, 11522.0).empty());
}

TEST(SearchFills, StopsAt64Rows) {
  std::size_t most = 0;
  for (double gap = 500.0; gap < 3000.0; gap += 0.7)
    most = std::max(most, searchFills(fillCandidates(TrackSystem::MarklinK), gap).size());
  EXPECT_EQ(most, 64u);
}

TEST(SearchFills, NoCandidatesFillNothing) {
  EXPECT_TRUE(searchFills({}, 100.0).empty());
}

TEST(SearchFills, GapsWithoutMeaningAreNotFilled) {
  for (const TrackSystem system : kSystems) {
    const std::vector<const PieceDef*> candidates = fillCandidates(system);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double gap : {std::nan(""), infinity, -infinity, 1e300, -1e300, 999'999'999.0, -5.0})
      EXPECT_TRUE(searchFills(candidates, gap).empty()) << gap;
  }
}

TEST(RankFills, OfTwoRowsOfTwoTheCloserComesFirst) {
  std::vector<FillSolution> fills = {{{"a", "b"}, 400.5}, {{"c", "d"}, 399.6}};
  rankFills(fills, 400.0);
  EXPECT_EQ(fills[0].parts, (Parts{"c", "d"}));  // off by 0.4 and not by 0.5
}

TEST(RankFills, FewerPiecesComeFirstHoweverFarOff) {
  std::vector<FillSolution> fills = {{{"a", "b", "c"}, 400.0}, {{"d", "e"}, 401.4}};
  rankFills(fills, 400.0);
  EXPECT_EQ(fills[0].parts, (Parts{"d", "e"}));
}

TEST(RankFills, EqualsStayInTheOrderInWhichTheyWereFound) {
  std::vector<FillSolution> fills = {{{"a", "b"}, 401.0}, {{"c", "d"}, 399.0}, {{"e", "f"}, 401.0}};
  rankFills(fills, 400.0);
  EXPECT_EQ(fills[0].parts[0], "a");
  EXPECT_EQ(fills[1].parts[0], "c");
  EXPECT_EQ(fills[2].parts[0], "e");
}

TEST(RankFills, KeepsTheBestTwelve) {
  std::vector<FillSolution> fills;
  for (int i = 0; i < 20; ++i) fills.push_back({{std::to_string(i)}, 120.0 - i});
  rankFills(fills, 100.0);
  ASSERT_EQ(fills.size(), 12u);
  EXPECT_EQ(fills[0].parts[0], "19");
  EXPECT_EQ(fills[11].parts[0], "8");
}

// Every row of up to so many pieces, by number of pieces, in the order of an odometer: the row of
// candidates 0, 0, 0, then 0, 0, 1 and so on, never falling. No sum is looked at while they are
// made.
class AllRows {
 public:
  AllRows(TrackSystem system, std::size_t mostPieces) : candidates_(fillCandidates(system)) {
    for (std::size_t pieces = 1; pieces <= mostPieces; ++pieces) {
      bySize_.emplace_back();
      std::vector<std::size_t> row(pieces, 0);
      do {
        bySize_.back().push_back({row, sumOf(row)});
      } while (advance(row));
    }
  }

  // What the search should find, or nothing at all with `complete` false when longer rows than
  // there are would be needed to tell.
  std::vector<FillSolution> fits(double gap, bool& complete) const {
    std::vector<FillSolution> found;
    const double needed = std::ceil(gap / candidates_.back()->length) + 2.0;
    const std::size_t deepest = needed > 32.0 ? 32 : static_cast<std::size_t>(needed);
    for (std::size_t pieces = 1; pieces <= deepest && found.size() < 16; ++pieces) {
      if (pieces > bySize_.size()) {
        complete = false;
        return {};
      }
      for (const auto& [row, sum] : bySize_[pieces - 1])
        if (std::abs(sum - gap) <= 1.5 && found.size() < 64) found.push_back(solution(row, sum));
    }
    complete = true;
    return found;
  }

 private:
  struct Row {
    std::vector<std::size_t> candidates;
    double sum = 0.0;
  };

  double sumOf(const std::vector<std::size_t>& row) const {
    double sum = 0.0;
    for (const std::size_t i : row) sum += candidates_[i]->length;
    return sum;
  }

  bool advance(std::vector<std::size_t>& row) const {
    std::size_t at = row.size();
    while (at > 0 && row[at - 1] + 1 == candidates_.size()) --at;
    if (at == 0) return false;
    const std::size_t next = row[at - 1] + 1;
    for (std::size_t i = at - 1; i < row.size(); ++i) row[i] = next;
    return true;
  }

  FillSolution solution(const std::vector<std::size_t>& row, double sum) const {
    FillSolution fill;
    for (const std::size_t i : row) fill.parts.push_back(candidates_[i]->partNumber);
    fill.total = sum;
    return fill;
  }

  std::vector<const PieceDef*> candidates_;
  std::vector<std::vector<Row>> bySize_;
};

class SearchAgainstAllRows : public testing::TestWithParam<TrackSystem> {
 protected:
  // As many as make a table of some 100,000 rows.
  static std::size_t mostPieces() {
    switch (GetParam()) {
      case TrackSystem::MarklinK:
        return 8;
      case TrackSystem::MarklinZ:
        return 12;
      default:
        return 10;
    }
  }
};

TEST_P(SearchAgainstAllRows, FindsTheSameForFiveGaps) {
  const AllRows all(GetParam(), mostPieces());
  const std::vector<const PieceDef*> candidates = fillCandidates(GetParam());
  for (const double gap : {45.0, 110.5, 188.3, 282.5, 620.0}) {
    bool complete = false;
    const std::vector<FillSolution> expected = all.fits(gap, complete);
    if (gap < 250.0) {
      EXPECT_TRUE(complete) << gap;
    }
    if (complete) {
      EXPECT_EQ(searchFills(candidates, gap), expected) << gap;
    }
  }
}

TEST_P(SearchAgainstAllRows, FindsTheSameForHundredsOfGaps) {
  const AllRows all(GetParam(), mostPieces());
  const std::vector<const PieceDef*> candidates = fillCandidates(GetParam());
  int compared = 0;
  int filled = 0;
  for (double gap = 1.0; gap < 1500.0; gap += 1.37) {
    bool complete = false;
    const std::vector<FillSolution> expected = all.fits(gap, complete);
    if (!complete) continue;
    ASSERT_EQ(searchFills(candidates, gap), expected) << gap;
    ++compared;
    filled += expected.empty() ? 0 : 1;
  }
  EXPECT_GT(compared, 200);
  EXPECT_GT(filled, 100);
}

INSTANTIATE_TEST_SUITE_P(AllSystems, SearchAgainstAllRows, testing::ValuesIn(kSystems),
                         [](const auto& system) { return std::string(NameOf(system.param)); });

}  // namespace
}  // namespace vantrel
