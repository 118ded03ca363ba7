#include "inspection/straight_run.h"

#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/selection.h"
#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

// Two joined straights at these headings.
bool IsRunAt(double first, double second) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188", {0, 0, first});
  const std::int32_t b = LaySelected(layout, "24188", {0, 0, second});
  Join(layout, a, 1, b, 0);
  return isStraightRun(selectedPieces(static_cast<const Layout&>(layout)));
}

bool IsRun(const Layout& layout) {
  return isStraightRun(selectedPieces(layout));
}

TEST(StraightRun, TakesOneDirectionAndItsReverseWithinADegree) {
  EXPECT_TRUE(IsRunAt(10, 10));
  EXPECT_TRUE(IsRunAt(10, 190));
  EXPECT_TRUE(IsRunAt(10, 11));
  EXPECT_TRUE(IsRunAt(10, 189));
  EXPECT_TRUE(IsRunAt(0, 359));
  EXPECT_TRUE(IsRunAt(0, 541));
  EXPECT_FALSE(IsRunAt(10, 12));
  EXPECT_FALSE(IsRunAt(10, 11.01));
  EXPECT_FALSE(IsRunAt(10, 188.99));
  EXPECT_FALSE(IsRunAt(0, 90));
  EXPECT_FALSE(IsRunAt(0, -2));
}

TEST(StraightRun, MeasuresEachPieceAgainstTheFirstOne) {
  Layout layout;
  for (const double heading : {0.0, 0.9, 1.8}) LaySelected(layout, "24188", {0, 0, heading});
  Join(layout, layout.pieces[0].id, 1, layout.pieces[1].id, 0);
  Join(layout, layout.pieces[1].id, 1, layout.pieces[2].id, 0);
  EXPECT_FALSE(IsRun(layout));
  layout.pieces[0].heading = 0.9;
  EXPECT_TRUE(IsRun(layout));
}

TEST(StraightRun, AHeadingThatIsNoNumberIsNotOutOfLine) {
  EXPECT_TRUE(IsRunAt(0, std::numeric_limits<double>::quiet_NaN()));
  EXPECT_TRUE(IsRunAt(0, std::numeric_limits<double>::infinity()));
}

TEST(StraightRun, NeedsTwoPieces) {
  Layout layout;
  LaySelected(layout, "24188");
  EXPECT_FALSE(IsRun(layout));
  EXPECT_FALSE(isStraightRun({}));
  EXPECT_TRUE(walkRun({}).empty());
}

TEST(StraightRun, NeedsKnownStraightsOutsideOfHelices) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188");
  const std::int32_t b = LaySelected(layout, "24188");
  Join(layout, a, 1, b, 0);
  ASSERT_TRUE(IsRun(layout));
  PieceOf(layout, b).cat = "24130";  // a curve
  EXPECT_FALSE(IsRun(layout));
  PieceOf(layout, b).cat = "unknown";
  EXPECT_FALSE(IsRun(layout));
  PieceOf(layout, b).cat = "24188";
  PieceOf(layout, b).helix = 4;
  EXPECT_FALSE(IsRun(layout));
}

TEST(StraightRun, NeedsJointsThatStayInTheSelection) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188");
  const std::int32_t between = LayPiece(layout, "24188", {});
  const std::int32_t b = LaySelected(layout, "24188");
  Join(layout, a, 1, between, 0);
  Join(layout, between, 1, b, 0);
  EXPECT_FALSE(IsRun(layout));
  PieceOf(layout, between).sel = true;
  EXPECT_TRUE(IsRun(layout));
}

TEST(StraightRun, CopesWithJointsThatLeadNowhere) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188");
  const std::int32_t b = LaySelected(layout, "24188");
  PieceOf(layout, a).joints = {{.target = 999, .tconn = 0}, {.target = -7, .tconn = 90}, {}, {}};
  PieceOf(layout, b).joints = {{.target = b, .tconn = 1}};
  EXPECT_FALSE(IsRun(layout));
  PieceOf(layout, a).joints.push_back({.target = b, .tconn = -1});
  EXPECT_TRUE(IsRun(layout));
}

TEST(StraightRun, PiecesWithOneIdCountAsOnePlaceInTheWalk) {
  Layout layout;
  const std::int32_t a = LaySelected(layout, "24188");
  const std::int32_t b = LaySelected(layout, "24188");
  Join(layout, a, 1, b, 0);
  layout.pieces.push_back(PieceOf(layout, b));
  EXPECT_FALSE(IsRun(layout));
}

TEST(StraightRun, WalksTensOfThousandsOfPieces) {
  Layout layout;
  for (std::int32_t id = 1; id <= 50000; ++id) {
    Piece piece;
    piece.id = id;
    piece.cat = "24188";
    piece.sel = true;
    piece.joints = {{.target = id > 1 ? id - 1 : -1, .tconn = 1},
                    {.target = id < 50000 ? id + 1 : -1, .tconn = 0}};
    layout.pieces.push_back(piece);
  }
  const auto pieces = selectedPieces(static_cast<const Layout&>(layout));
  EXPECT_TRUE(isStraightRun(pieces));
  EXPECT_EQ(walkRun(pieces).back()->id, 50000);
}

}  // namespace
}  // namespace vantrel
