#include <gtest/gtest.h>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Points = std::vector<wxPoint>;

// The red channels of the beds in drawing order.
std::vector<int> BedOrder(const Layout& layout, const ViewTransform& view = kOneToOne) {
  std::vector<int> reds;
  for (const DrawCall& call : OfOp(Painted(layout, view), DrawOp::polygon))
    reds.push_back(call.brush.colour.r);
  return reds;
}

TEST(ContentsTrack, UnselectedPiecesComeFirstAndEachPassKeepsThePlansOrder) {
  Layout layout = PlainPlan();
  for (int i = 1; i <= 4; ++i)
    layout.pieces.push_back(ColouredTrack(i, 100, 100.0 * i, {static_cast<std::uint8_t>(i), 0, 0}));
  layout.pieces[0].sel = true;
  layout.pieces[2].sel = true;
  const auto beds = OfOp(Painted(layout), DrawOp::polygon);
  ASSERT_EQ(beds.size(), 4u);
  EXPECT_EQ(beds[0].brush, SolidBrush({2, 0, 0}));
  EXPECT_EQ(beds[1].brush, SolidBrush({4, 0, 0}));
  EXPECT_EQ(beds[2].brush, SolidBrush(kSelectedFill));
  EXPECT_EQ(beds[3].brush, SolidBrush(kSelectedFill));
  // Bed 18.7 mm to either side of y = 100 and y = 300.
  EXPECT_EQ(beds[2].points[0], wxPoint(100, 118));
  EXPECT_EQ(beds[3].points[0], wxPoint(100, 318));
}

TEST(ContentsTrack, UnknownPartsAndPiecesOfHiddenLevelsAreSkipped) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 100, false)};
  layout.pieces = {ColouredTrack(1, 100, 100, {1, 0, 0}), ColouredTrack(2, 100, 200, {2, 0, 0}),
                   ColouredTrack(3, 100, 300, {3, 0, 0}), ColouredTrack(4, 100, 400, {4, 0, 0})};
  layout.pieces[1].cat = "no such part";
  layout.pieces[2].level = 2;
  layout.pieces[3].level = 99;  // a level that doesn't exist hides nothing
  EXPECT_EQ(BedOrder(layout), (std::vector<int>{1, 4}));
}

TEST(ContentsTrack, PiecesCoveredByAnyTunnelAreFaded) {
  Layout layout = PlainPlan();
  layout.pieces = {ColouredTrack(1, 100, 100, {10, 0, 0}), ColouredTrack(2, 100, 200, {20, 0, 0}),
                   ColouredTrack(3, 100, 300, {30, 0, 0})};
  layout.tunnels.resize(2);
  layout.tunnels[0].covers = {1};
  layout.tunnels[1].covers = {3, 77};
  // 0.4 * 10 + 132 = 136 and 0.4 * 30 + 132 = 144.
  EXPECT_EQ(BedOrder(layout), (std::vector<int>{136, 20, 144}));
}

TEST(ContentsTrack, NumbersAndDotsAreDrawnOnlyWhileLabelsAreOn) {
  Layout layout = PlainPlan();
  layout.pieces = {ColouredTrack(1, 100, 100, {1, 0, 0})};
  auto calls = Painted(layout);
  EXPECT_EQ(OfOp(calls, DrawOp::text).size(), 0u);
  EXPECT_EQ(OfOp(calls, DrawOp::ellipse).size(), 0u);
  layout.labelsVisible = true;
  calls = Painted(layout);
  EXPECT_EQ(Texts(calls, "24188").size(), 1u);
  EXPECT_EQ(OfOp(calls, DrawOp::ellipse).size(), 2u);
}

TEST(ContentsTrack, SpokeExtensionsAreDrawnAgainOnTopWhateverTheirSelection) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 0, false)};
  layout.pieces = {ColouredTrack(1, 100, 100, {1, 0, 0}), ColouredTrack(2, 100, 200, {2, 0, 0}),
                   ColouredTrack(3, 100, 300, {3, 0, 0}), ColouredTrack(4, 100, 400, {4, 0, 0})};
  for (const std::size_t spoke : {0u, 1u, 2u}) layout.pieces[spoke].cat = "74871";
  layout.pieces[0].sel = true;
  layout.pieces[2].level = 2;
  // Unselected 2 and 4, selected 1; then 1 and 2 again as they stand in the plan.
  EXPECT_EQ(BedOrder(layout), (std::vector<int>{2, 4, 180, 180, 2}));
}

TEST(ContentsTrack, ALevelsColourReachesItsTrack) {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0)};
  layout.levels[0].trackcolor = true;
  layout.levels[0].r = 77;
  layout.pieces = {ColouredTrack(1, 100, 100, {1, 0, 0})};
  layout.pieces[0].hasColor = false;
  EXPECT_EQ(BedOrder(layout), (std::vector<int>{77}));
}

}  // namespace
}  // namespace vantrel
