#include "canvas/operations/helix_placing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// The kit "proses_2_5_r1r2" has rings of 360 and 437.5 mm and climbs 260 mm.

TEST(PlaceHelix, PutsTheStubsOnALineThroughTheCentreBottomsOnOneSide) {
  Layout layout;
  placeHelix(layout, {500.0, 500.0}, 0.0, "proses_2_5_r1r2");
  ASSERT_EQ(layout.pieces.size(), 4u);
  // 500 - 360, 500 - 437.5, 500 + 360, 500 + 437.5
  ExpectPose(layout.pieces[0].pose(), 500.0, 140.0, 0.0, 1e-9);
  ExpectPose(layout.pieces[1].pose(), 500.0, 62.5, 0.0, 1e-9);
  ExpectPose(layout.pieces[2].pose(), 500.0, 860.0, 0.0, 1e-9);
  ExpectPose(layout.pieces[3].pose(), 500.0, 937.5, 0.0, 1e-9);
  EXPECT_EQ(layout.pieces[0].z, 0.0);
  EXPECT_EQ(layout.pieces[1].z, 0.0);
  EXPECT_EQ(layout.pieces[2].z, 260.0);
  EXPECT_EQ(layout.pieces[3].z, 260.0);
}

TEST(PlaceHelix, AtHeading0HasBottomR1TheInnerRadiusAboveTheCentre) {
  Layout layout;
  placeHelix(layout, {-20.0, 1000.0}, 0.0, "proses_2_5_r1r2");
  ExpectPose(PieceOf(layout, layout.helices.at(0).bottomR1).pose(), -20.0, 640.0, 0.0, 1e-9);
}

TEST(PlaceHelix, TurnedBy90DegreesHasTheBottomsToTheRight) {
  Layout layout;
  placeHelix(layout, {500.0, 500.0}, 90.0, "proses_2_5_r1r2");
  // x = 500 - (-360) sin 90 = 860, y = 500 + (-360) cos 90 = 500
  ExpectPose(layout.pieces.at(0).pose(), 860.0, 500.0, 90.0, 1e-9);
  ExpectPose(layout.pieces.at(1).pose(), 937.5, 500.0, 90.0, 1e-9);
  ExpectPose(layout.pieces.at(2).pose(), 140.0, 500.0, 90.0, 1e-9);
  ExpectPose(layout.pieces.at(3).pose(), 62.5, 500.0, 90.0, 1e-9);
}

TEST(PlaceHelix, TurnedBy30DegreesFollowsSineAndCosine) {
  Layout layout;
  placeHelix(layout, {0.0, 0.0}, 30.0, "proses_2_5_r1r2");
  // sin 30 = 0.5, cos 30 = 0.8660254: -(-360) * 0.5 = 180, -360 * 0.8660254 = -311.769145
  ExpectPose(layout.pieces.at(0).pose(), 180.0, -311.769145, 30.0, 1e-6);
  ExpectPose(layout.pieces.at(2).pose(), -180.0, 311.769145, 30.0, 1e-6);
}

TEST(PlaceHelix, RecordsTheHelixAndNamesItsStubs) {
  Layout layout;
  layout.nextId = 40;
  EXPECT_EQ(placeHelix(layout, {500.0, 400.0}, 15.0, "proses_3_5_r4r5"), 40);
  const Helix expected{.id = 40,
                       .cx = 500.0,
                       .cy = 400.0,
                       .heading = 15.0,
                       .variant = "proses_3_5_r4r5",
                       .bottomR1 = 41,
                       .bottomR2 = 42,
                       .topR1 = 43,
                       .topR2 = 44};
  ASSERT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(layout.helices[0], expected);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(layout.pieces.at(i).id, 41 + i);
  EXPECT_EQ(layout.pieces[3].z, 340.0);
}

TEST(PlaceHelix, TakesFiveIds) {
  Layout layout;
  placeHelix(layout, {}, 0.0, "");
  EXPECT_EQ(layout.nextId, 6);
  placeHelix(layout, {}, 0.0, "");
  EXPECT_EQ(layout.nextId, 11);
}

TEST(PlaceHelix, GivesEachStubTwoOpenEndsOnTheGroundLevel) {
  Layout layout;
  layout.activeLevel = 3;
  placeHelix(layout, {500.0, 500.0}, 0.0, "proses_2_5_r2r3");
  ASSERT_EQ(layout.pieces.size(), 4u);
  for (const Piece& stub : layout.pieces) {
    EXPECT_EQ(stub.cat, "24188");
    EXPECT_EQ(stub.helix, 1);
    EXPECT_EQ(stub.level, 1);
    EXPECT_EQ(stub.grade, 0.0);
    EXPECT_FALSE(stub.free);
    EXPECT_EQ(stub.joints, std::vector<Joint>(2));
  }
}

TEST(PlaceHelix, WithoutAKitOrWithAnUnknownOneTakesTheDefault) {
  for (const std::string_view kit : {"", "no such kit"}) {
    Layout layout;
    EXPECT_NE(placeHelix(layout, {500.0, 500.0}, 0.0, kit), kNone);
    EXPECT_EQ(layout.helices.at(0).variant, "proses_2_5_r1r2");
    EXPECT_NEAR(layout.pieces.at(1).y, 62.5, 1e-9);
  }
}

TEST(PlaceHelix, LeavesTheSelectionAlone) {
  Layout layout;
  LayPiece(layout, "24188", {});
  layout.pieces[0].sel = true;
  placeHelix(layout, {500.0, 500.0}, 0.0, "");
  EXPECT_TRUE(layout.pieces[0].sel);
  for (int i = 1; i < 5; ++i) EXPECT_FALSE(layout.pieces.at(i).sel);
}

TEST(PlaceHelix, IsOneUndoStep) {
  Layout layout;
  placeHelix(layout, {500.0, 500.0}, 0.0, "");
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(layout.helices.empty());
}

TEST(PlaceHelix, StillGivesDifferentIdsWhenTheCounterIsUsedUp) {
  Layout layout;
  layout.nextId = std::numeric_limits<std::int32_t>::max();
  placeHelix(layout, {}, 0.0, "");
  placeHelix(layout, {}, 0.0, "");
  std::set<std::int32_t> ids;
  for (const Piece& piece : layout.pieces) ids.insert(piece.id);
  for (const Helix& helix : layout.helices) ids.insert(helix.id);
  EXPECT_EQ(ids.size(), 10u);
}

TEST(PlaceHelix, SurvivesAPlaceThatIsNoNumber) {
  Layout layout;
  const double infinity = std::numeric_limits<double>::infinity();
  placeHelix(layout, {std::nan(""), infinity}, infinity, "");
  EXPECT_EQ(layout.pieces.size(), 4u);
}

}  // namespace
}  // namespace vantrel
