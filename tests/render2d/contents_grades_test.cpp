#include <gtest/gtest.h>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Points = std::vector<wxPoint>;

const Rgba kUp{220, 100, 20};
const Rgba kDown{30, 100, 200};

// Piece 1 of 188.3 mm at (300, 100), heading right, with a run of `degrees`.
Layout WithRun(double degrees) {
  Layout layout = PlainPlan();
  layout.pieces.push_back(ColouredTrack(1, 300, 100, {1, 2, 3}));
  layout.gradeRuns.push_back({.deg = degrees, .anchor = 1, .conn = 1});
  return layout;
}

// What is drawn after the piece's bed.
std::vector<DrawCall> ArrowOf(const Layout& layout, double scale = 1.0) {
  const auto calls = Painted(layout, {scale, 0.0, 0.0});
  const std::size_t bed = LastPlace(calls, IsFilled({1, 2, 3}));
  if (bed == kNowhere) return {};
  return {calls.begin() + static_cast<std::ptrdiff_t>(bed) + 1, calls.end()};
}

TEST(ContentsGrades, AnUpwardArrowPointsAheadFromTheMiddleOfThePiece) {
  const auto calls = ArrowOf(WithRun(2.0));
  ASSERT_EQ(calls.size(), 3u);
  // Base 300 + 94.15, tip 20 further, neck 8 back from the tip.
  EXPECT_EQ(calls[0].op, DrawOp::line);
  EXPECT_EQ(calls[0].points, Points({{394, 100}, {414, 100}}));
  EXPECT_EQ(calls[0].pen, SolidPen(kUp, 3));
  EXPECT_EQ(calls[1].op, DrawOp::polygon);
  EXPECT_EQ(calls[1].points, Points({{414, 100}, {406, 106}, {406, 94}}));
  EXPECT_EQ(calls[1].brush, SolidBrush(kUp));
  EXPECT_EQ(calls[2].text, "+2.0 deg");
  EXPECT_EQ(calls[2].points, Points({{418, 90}}));
  EXPECT_EQ(calls[2].font.pointSize, 8);
  EXPECT_EQ(calls[2].font.weight, 700);
  EXPECT_EQ(calls[2].textForeground, kUp);
  EXPECT_EQ(calls[2].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST(ContentsGrades, ADownwardRunIsBlueAndALevelOneOrange) {
  const auto down = ArrowOf(WithRun(-1.5));
  ASSERT_EQ(down.size(), 3u);
  EXPECT_EQ(down[0].pen, SolidPen(kDown, 3));
  EXPECT_EQ(down[1].brush, SolidBrush(kDown));
  EXPECT_EQ(down[2].text, "-1.5 deg");
  EXPECT_EQ(down[2].textForeground, kDown);
  const auto level = ArrowOf(WithRun(0.0));
  ASSERT_EQ(level.size(), 3u);
  EXPECT_EQ(level[2].text, "+0.0 deg");
  EXPECT_EQ(level[0].pen, SolidPen(kUp, 3));
}

TEST(ContentsGrades, ASlopeThatRoundsToZeroKeepsItsSign) {
  const auto calls = ArrowOf(WithRun(-0.04));
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[2].text, "-0.0 deg");
  EXPECT_EQ(calls[2].textForeground, kDown);
}

TEST(ContentsGrades, TheArrowTurnsRoundWhenOnlyConnector1IsJoined) {
  Layout layout = WithRun(2.0);
  layout.pieces.push_back(ColouredTrack(2, 488.3, 700, {1, 2, 3}));
  Join(layout, 1, 1, 2, 0);
  const auto calls = ArrowOf(layout);
  ASSERT_EQ(calls.size(), 3u);
  // Base 300 - 94.15 = 205.85, tip 185.85, neck 193.85.
  EXPECT_EQ(calls[0].points, Points({{205, 100}, {185, 100}}));
  EXPECT_EQ(calls[1].points, Points({{185, 100}, {193, 94}, {193, 106}}));
}

TEST(ContentsGrades, TheArrowPointsAheadWhenConnector0IsJoinedOrThePieceHasNoSlots) {
  Layout layout = WithRun(2.0);
  layout.pieces.push_back(ColouredTrack(2, 488.3, 700, {1, 2, 3}));
  layout.pieces.push_back(ColouredTrack(3, 100, 700, {1, 2, 3}));
  Join(layout, 1, 1, 2, 0);
  Join(layout, 1, 0, 3, 1);
  EXPECT_EQ(ArrowOf(layout).at(0).points, Points({{394, 100}, {414, 100}}));
  layout.pieces[0].joints.clear();
  EXPECT_EQ(ArrowOf(layout).at(0).points, Points({{394, 100}, {414, 100}}));
}

TEST(ContentsGrades, TheArrowFollowsTheHeading) {
  Layout layout = WithRun(2.0);
  layout.pieces[0].heading = 90.0;
  // Down the screen: base (300, 194.15), tip 20 below, the head's first corner to the left.
  const auto calls = ArrowOf(layout);
  EXPECT_EQ(calls.at(0).points, Points({{300, 194}, {300, 214}}));
  EXPECT_EQ(calls.at(1).points, Points({{300, 214}, {294, 206}, {306, 206}}));
}

TEST(ContentsGrades, TheSlopeIsWrittenFromScale0Point25On) {
  EXPECT_EQ(ArrowOf(WithRun(2.0), 0.24).size(), 2u);
  const auto calls = ArrowOf(WithRun(2.0), 0.25);
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[2].font.pointSize, 7);
  EXPECT_EQ(ArrowOf(WithRun(2.0), 1.99).at(2).font.pointSize, 15);
}

TEST(ContentsGrades, ARunThatLeadsNowhereHasNoArrow) {
  Layout layout = WithRun(2.0);
  layout.gradeRuns[0].anchor = -1;
  EXPECT_EQ(ArrowOf(layout).size(), 0u);
  layout.gradeRuns[0].anchor = 77;
  EXPECT_EQ(ArrowOf(layout).size(), 0u);
  layout.pieces.push_back(ColouredTrack(2, 300, 300, {1, 2, 3}));
  layout.pieces[1].cat = "no such part";
  layout.gradeRuns[0].anchor = 2;
  EXPECT_EQ(ArrowOf(layout).size(), 0u);
}

TEST(ContentsGrades, TheAnchorMayBePiece0ButNoneBelow) {
  Layout layout = WithRun(2.0);
  layout.pieces[0].id = 0;
  layout.gradeRuns[0].anchor = 0;
  EXPECT_EQ(ArrowOf(layout).size(), 3u);
  layout.pieces[0].id = -2;
  layout.gradeRuns[0].anchor = -2;
  EXPECT_EQ(ArrowOf(layout).size(), 0u);
}

TEST(ContentsGrades, EveryRunHasItsArrow) {
  Layout layout = WithRun(2.0);
  layout.pieces.push_back(ColouredTrack(2, 300, 300, {1, 2, 3}));
  layout.gradeRuns.push_back({.deg = -1.0, .anchor = 2, .conn = 1});
  const auto calls = ArrowOf(layout);
  ASSERT_EQ(calls.size(), 6u);
  EXPECT_EQ(calls[2].text, "+2.0 deg");
  EXPECT_EQ(calls[5].text, "-1.0 deg");
}

}  // namespace
}  // namespace vantrel
