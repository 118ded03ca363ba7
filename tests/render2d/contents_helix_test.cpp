#include <gtest/gtest.h>

#include <unordered_set>

#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;
using Ids = std::unordered_set<std::int32_t>;

constexpr ViewTransform kSmall{0.2, 0.0, 0.0};
const Rgba kPlainBed{210, 210, 205};

Helix HelixAt(std::int32_t id, double x, double y, double heading = 0.0) {
  Helix helix;
  helix.id = id;
  helix.cx = x;
  helix.cy = y;
  helix.heading = heading;
  return helix;
}

Layout WithHelix(double heading = 0.0) {
  Layout layout = PlainPlan();
  layout.helices = {HelixAt(50, 1000, 1000, heading)};
  return layout;
}

Piece Stub(std::int32_t id, std::int32_t helix, double z, Rgba colour) {
  Piece piece = ColouredTrack(id, 2000, 200.0 * id, colour);
  piece.helix = helix;
  piece.z = z;
  return piece;
}

// Two stubs of helix 50, 1 below and 2 above, a piece on each of them (3 and 4), one behind 3 (5),
// and one that is joined to nothing (6); all lie 200 mm apart and show their id as their red.
Layout HelixWithTrack() {
  Layout layout = WithHelix();
  layout.pieces = {Stub(2, 50, 260.0, {2, 0, 0}), Stub(1, 50, 0.0, {1, 0, 0})};
  for (std::int32_t id = 3; id <= 6; ++id)
    layout.pieces.push_back(
        ColouredTrack(id, 2000, 200.0 * id, {static_cast<std::uint8_t>(id), 0, 0}));
  Join(layout, 1, 1, 3, 0);
  Join(layout, 2, 1, 4, 0);
  Join(layout, 3, 1, 5, 0);
  return layout;
}

// The reds of the beds in drawing order, all ring curves in a row as one 0.
std::vector<int> StubOrder(const Layout& layout) {
  std::vector<int> reds;
  for (const DrawCall& call : OfOp(Painted(layout, kSmall), DrawOp::polygon)) {
    const bool ring = call.points.size() == 42;  // 20 segments, the curves of 30 degrees
    const int red = ring ? 0 : call.brush.colour.r;
    if (!ring || reds.empty() || reds.back() != 0) reds.push_back(red);
  }
  return reds;
}

TEST(ContentsHelix, AHelixOf2Point5TurnsIsTwiceThirtyCurvesAroundItsCentre) {
  const auto rings = OfOp(Painted(WithHelix(), kSmall), DrawOp::polygon);
  ASSERT_EQ(rings.size(), 60u);
  for (const DrawCall& curve : rings) {
    EXPECT_EQ(curve.points.size(), 42u);
    EXPECT_EQ(curve.brush, SolidBrush(kPlainBed));
  }
  // A curve's first point is the outer edge of its start. Inner ring: 360 + 18.7 from the centre at
  // -120 degrees: (1000 - 189.35, 1000 - 327.96), a fifth of that on the device.
  EXPECT_EQ(rings[0].points[0], wxPoint(162, 134));
  // At -150 degrees: (1000 - 327.96, 1000 - 189.35).
  EXPECT_EQ(rings[1].points[0], wxPoint(134, 162));
  // A curve ends where the one drawn before it began.
  EXPECT_EQ(rings[1].points[20], wxPoint(162, 134));
  // Outer ring: 437.5 + 18.7 = 456.2 at -120: (1000 - 228.1, 1000 - 395.08).
  EXPECT_EQ(rings[30].points[0], wxPoint(154, 120));
}

TEST(ContentsHelix, TheRingsTurnWithTheHelix) {
  const auto rings = OfOp(Painted(WithHelix(90.0), kSmall), DrawOp::polygon);
  ASSERT_EQ(rings.size(), 60u);
  // -120 + 90 degrees: (1000 + 327.96, 1000 - 189.35).
  EXPECT_EQ(rings[0].points[0], wxPoint(265, 162));
}

TEST(ContentsHelix, TheKitTellsTheNumberOfCurvesAndAnUnknownOneIsTheDefault) {
  const auto curves = [](const char* variant) {
    Layout layout = WithHelix();
    layout.helices[0].variant = variant;
    return OfOp(Painted(layout, kSmall), DrawOp::polygon).size();
  };
  EXPECT_EQ(curves("proses_2_5_r1r2"), 60u);
  EXPECT_EQ(curves("proses_3_5_r2r3"), 84u);
  EXPECT_EQ(curves("proses_4_5_r4r5"), 108u);
  EXPECT_EQ(curves("no such kit"), 60u);
}

TEST(ContentsHelix, RingsHaveNeitherNumbersNorDots) {
  Layout layout = WithHelix();
  layout.labelsVisible = true;
  const auto calls = Painted(layout, {0.4, 0.0, 0.0});
  EXPECT_EQ(OfOp(calls, DrawOp::polygon).size(), 60u);
  EXPECT_EQ(OfOp(calls, DrawOp::text).size(), 0u);
  EXPECT_EQ(OfOp(calls, DrawOp::ellipse).size(), 0u);
}

TEST(ContentsHelix, OneSelectedStubSelectsTheRings) {
  Layout layout = HelixWithTrack();
  EXPECT_EQ(Filled(Painted(layout, kSmall), kSelectedFill).size(), 0u);
  for (const std::size_t stub : {0u, 1u}) {
    layout.pieces[0].sel = stub == 0;
    layout.pieces[1].sel = stub == 1;
    // The stub itself as well.
    EXPECT_EQ(Filled(Painted(layout, kSmall), kSelectedFill).size(), 61u) << stub;
  }
}

TEST(ContentsHelix, TheRingsBelongToTheLevelOfTheFirstStub) {
  Layout layout = HelixWithTrack();
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 0, false)};
  layout.pieces[1].level = 2;  // the second one in the plan
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{3, 5, 0, 2, 4, 6}));
  layout.pieces[0].level = 2;
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{3, 5, 4, 6}));
}

TEST(ContentsHelix, AHelixWithoutStubsBelongsToLevel1) {
  Layout layout = WithHelix();
  layout.levels = {DeckLevel(1, 0)};
  layout.levels[0].trackcolor = true;
  layout.levels[0].r = 77;
  const auto rings = OfOp(Painted(layout, kSmall), DrawOp::polygon);
  ASSERT_EQ(rings.size(), 60u);
  EXPECT_EQ(rings[0].brush.colour.r, 77);
  layout.levels[0].visible = false;
  EXPECT_EQ(Painted(layout, kSmall).size(), 1u);
}

TEST(ContentsHelix, TheLowerEndAndWhatHangsOnItPassUnderTheRingsTheRestOverThem) {
  EXPECT_EQ(StubOrder(HelixWithTrack()), (std::vector<int>{1, 3, 5, 0, 2, 4, 6}));
}

TEST(ContentsHelix, SelectedLowTrackStaysUnderTheRings) {
  Layout layout = HelixWithTrack();
  layout.pieces[2].sel = true;  // piece 3
  layout.pieces[5].sel = true;  // piece 6
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 5, 180, 0, 2, 4, 180}));
}

TEST(ContentsHelix, AStubBelongsToTheUpperEndFromHalfAMillimetreOn) {
  Layout layout = HelixWithTrack();
  layout.pieces[1].z = 0.49;
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 3, 5, 0, 2, 4, 6}));
  layout.pieces[1].z = 0.5;
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{0, 2, 1, 3, 4, 5, 6}));
}

TEST(ContentsHelix, TheWalkFromTheLowerEndStopsAtAnyStub) {
  Layout layout = HelixWithTrack();
  // 5 leads on to a stub of another helix, high above, and that one to 6.
  layout.pieces.push_back(Stub(7, 51, 100.0, {7, 0, 0}));
  Join(layout, 5, 1, 7, 0);
  Join(layout, 7, 1, 6, 0);
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 3, 5, 0, 2, 4, 6, 7}));
}

TEST(ContentsHelix, TrackBetweenBothEndsIsLow) {
  Layout layout = HelixWithTrack();
  Join(layout, 5, 1, 4, 1);
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 3, 4, 5, 0, 2, 6}));
}

TEST(ContentsHelix, AllThatHangsOnAHelixIsLinkedAndTheNextPaintStartsAnew) {
  RenderContext context;
  context.helixLinked = {99};
  PaintedWith(context, HelixWithTrack(), kSmall);
  EXPECT_EQ(context.helixLinked, (Ids{1, 2, 3, 4, 5}));
  PaintedWith(context, WithHelix(), kSmall);
  EXPECT_EQ(context.helixLinked, Ids{});
}

TEST(ContentsHelix, LinkedTrackKeepsItsColourHighAboveTheGround) {
  Layout layout = HelixWithTrack();
  for (Piece& piece : layout.pieces) piece.z = piece.id == 1 ? 0.0 : 60.0;
  // Piece 6 alone is neither a stub nor linked: at 60 mm it is yellow, (255, 220, 60).
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 3, 5, 0, 2, 4, 255}));
}

TEST(ContentsHelix, LinkedTrackWithAGradeShowsItsHeight) {
  Layout layout = HelixWithTrack();
  for (Piece& piece : layout.pieces) piece.z = piece.id == 1 ? 0.0 : 60.0;
  layout.pieces[2].grade = 2.0;   // piece 3, below
  layout.pieces[3].grade = -2.0;  // piece 4, above
  EXPECT_EQ(StubOrder(layout), (std::vector<int>{1, 255, 5, 0, 2, 255, 255}));
}

TEST(ContentsHelix, JointsToNowhereAndRingsOfTrackEndTheWalk) {
  Layout layout = HelixWithTrack();
  layout.pieces[4].joints[1] = {3, 1};   // 5 back to 3
  layout.pieces[3].joints[1] = {77, 0};  // 4 to a piece that doesn't exist
  layout.pieces[5].joints[0] = {-7, 0};  // 6 to what is no id
  RenderContext context;
  PaintedWith(context, layout, kSmall);
  EXPECT_EQ(context.helixLinked, (Ids{1, 2, 3, 4, 5}));
}

TEST(ContentsHelix, TheWalkReachesPiece0ButNoneBelow) {
  Layout layout = HelixWithTrack();
  layout.pieces[4].joints[1] = {0, 0};  // 5 to piece 0, and that one to piece -7
  layout.pieces.push_back(ColouredTrack(0, -5000, 0, {8, 0, 0}));
  layout.pieces.back().joints[1] = {-7, 0};
  layout.pieces.push_back(ColouredTrack(-7, -5000, 0, {9, 0, 0}));
  RenderContext context;
  PaintedWith(context, layout, kSmall);
  EXPECT_EQ(context.helixLinked, (Ids{0, 1, 2, 3, 4, 5}));
}

TEST(ContentsHelix, AChainOfAHundredThousandPiecesIsWalked) {
  Layout layout = WithHelix();
  layout.pieces = {Stub(1, 50, 0.0, {1, 0, 0})};
  for (std::int32_t id = 2; id <= 100'000; ++id) {
    layout.pieces.push_back(ColouredTrack(id, -5000, 0, {2, 0, 0}));
    layout.pieces[static_cast<std::size_t>(id - 2)].joints[1] = {id, 0};
    layout.pieces.back().joints[0] = {id - 1, 1};
  }
  RenderContext context;
  PaintedWith(context, layout, kSmall);
  EXPECT_EQ(context.helixLinked.size(), 100'000u);
}

}  // namespace
}  // namespace vantrel
