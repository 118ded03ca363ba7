#include "canvas/operations/placing.h"

#include <gtest/gtest.h>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

SnapResult SnapAt(const Layout& layout, std::string_view part, const Pose& pose) {
  const std::vector<const Piece*> others = VisiblePieces(layout);
  return findSnap(*findPart(part), pose, others);
}

std::int32_t Drop(Layout& layout, std::string_view part, const Pose& pose) {
  return placePiece(layout, *findPart(part), SnapAt(layout, part, pose), pose);
}

TEST(NewPiece, HasAnOpenSlotForEachConnectorAndDefaultsElsewhere) {
  const Piece piece = NewPiece(*findPart("24630"), {10.0, 20.0, 30.0});
  EXPECT_EQ(piece.cat, "24630");
  EXPECT_EQ(piece.pose(), (Pose{10.0, 20.0, 30.0}));
  ASSERT_EQ(piece.joints.size(), 4u);
  for (const Joint& joint : piece.joints) EXPECT_EQ(joint, (Joint{.target = -1, .tconn = -1}));
  EXPECT_EQ(piece.id, -1);
  EXPECT_EQ(piece.level, 1);
  EXPECT_FALSE(piece.sel);
  EXPECT_FALSE(piece.free);
}

TEST(AddPieceToLayout, IsOneUndoStepAndTakesTheNextId) {
  Layout layout;
  layout.nextId = 7;
  EXPECT_EQ(addPieceToLayout(layout, NewPiece(*findPart("24188"), {})), 7);
  EXPECT_EQ(layout.nextId, 8);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, 7);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(layout.undoHistory[0].pieces.empty());
}

TEST(PlacePiece, SetsAFreePieceWhereThePointerIs) {
  Layout layout;
  const std::int32_t id = Drop(layout, "24188", {600.0, 350.0, 30.0});
  EXPECT_EQ(PieceOf(layout, id).pose(), (Pose{600.0, 350.0, 30.0}));
  EXPECT_EQ(PieceOf(layout, id).z, 0.0);
  EXPECT_EQ(PieceOf(layout, id).grade, 0.0);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST(PlacePiece, JoinsASnappedPieceOnBothSides) {
  Layout layout;
  const std::int32_t first = Drop(layout, "24188", {0.0, 0.0, 0.0});
  const std::int32_t second = Drop(layout, "24188", {200.0, 10.0, 15.0});
  ExpectPose(PieceOf(layout, second).pose(), 188.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, first, 1), (Joint{.target = second, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, second, 0), (Joint{.target = first, .tconn = 1}));
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  Undo(layout);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(JointOf(layout, first, 1).open());
}

TEST(PlacePiece, FollowsTheGradeOfItsTarget) {
  Layout layout;
  const std::int32_t first = Drop(layout, "24188", {});
  PieceOf(layout, first).grade = 2.0;
  addGradeRun(layout, 2.0, first, 0);
  const std::int32_t second = Drop(layout, "24188", {190.0, 0.0, 0.0});
  EXPECT_NEAR(PieceOf(layout, second).z, 6.5716, 1e-4);  // 188.3 sin 2
  EXPECT_EQ(PieceOf(layout, second).grade, 2.0);
  EXPECT_EQ(layout.currentGrade.anchor, second);
  Undo(layout);
  EXPECT_EQ(layout.currentGrade.anchor, first);
}

TEST(PlacePiece, DroppedFreeLandsOnTheHighestVisibleLevel) {
  Layout layout;
  layout.levels.resize(3);
  layout.levels[1].id = 2;
  layout.levels[1].height = 150.0;
  layout.levels[2].id = 3;
  layout.levels[2].height = 300.0;
  layout.levels[2].visible = false;
  EXPECT_EQ(PieceOf(layout, Drop(layout, "24188", {})).level, 2);
}

TEST(PlacePiece, MakesTheFirstLevelWhenThereIsNone) {
  Layout layout;
  EXPECT_EQ(PieceOf(layout, Drop(layout, "24188", {})).level, 1);
  EXPECT_EQ(layout.levels.size(), 1u);
}

TEST(PlacePiece, TakesTheLevelOfThePieceThatItJoins) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[0].height = 150.0;
  layout.levels[1].id = 2;
  const std::int32_t low = LayPiece(layout, "24188", {});
  PieceOf(layout, low).level = 2;
  EXPECT_EQ(PieceOf(layout, Drop(layout, "24188", {190.0, 0.0, 0.0})).level, 2);
}

TEST(PlacePiece, TakesTheActiveLevelWhenItsTargetIsGone) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[1].id = 2;
  layout.levels[1].height = 150.0;
  layout.activeLevel = 1;
  LayPiece(layout, "24188", {});
  const SnapResult snap = SnapAt(layout, "24188", {190.0, 0.0, 0.0});
  ASSERT_TRUE(snap.found);
  layout.pieces.clear();
  const std::int32_t id = placePiece(layout, *findPart("24188"), snap, {190.0, 0.0, 0.0});
  EXPECT_EQ(PieceOf(layout, id).level, 1);
  ExpectPose(PieceOf(layout, id).pose(), 188.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PlacePiece, OfAPairedPartBringsOneOnly) {
  Layout layout;
  Drop(layout, "74618", {});
  EXPECT_EQ(layout.pieces.size(), 1u);
}

// The connectors of a turntable at (1000, 500): 139 cos 12 = 135.9625 and 139 sin 12 = 28.8997.
TEST(Turntable, IsFollowedBySixSpokesAndOneUndoRemovesAllSeven) {
  Layout layout;
  const std::int32_t table = Drop(layout, "74861", {1000.0, 500.0, 0.0});
  ASSERT_EQ(layout.pieces.size(), 7u);
  const std::int32_t connectors[] = {29, 0, 1, 14, 15, 16};
  const Pose poses[] = {{1135.9625, 471.1003, 348.0}, {1139.0, 500.0, 0.0},
                        {1135.9625, 528.8997, 12.0},  {864.0375, 528.8997, 168.0},
                        {861.0, 500.0, 180.0},        {864.0375, 471.1003, 192.0}};
  for (std::size_t i = 0; i < 6; ++i) {
    const Piece& spoke = layout.pieces[i + 1];
    EXPECT_EQ(spoke.cat, "74871");
    EXPECT_EQ(spoke.id, table + 1 + static_cast<std::int32_t>(i));
    EXPECT_TRUE(spoke.free);
    EXPECT_EQ(spoke.grade, 0.0);
    ExpectPose(spoke.pose(), poses[i].x, poses[i].y, poses[i].heading, 1e-4);
    EXPECT_EQ(JointOf(layout, spoke.id, 0), (Joint{.target = table, .tconn = connectors[i]}));
    EXPECT_TRUE(JointOf(layout, spoke.id, 1).open());
    EXPECT_EQ(JointOf(layout, table, static_cast<std::size_t>(connectors[i])),
              (Joint{.target = spoke.id, .tconn = 0}));
  }
  EXPECT_FALSE(layout.pieces[0].free);
  EXPECT_EQ(BrokenJoint(layout), "");
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.pieces.empty());
  Redo(layout);
  EXPECT_EQ(layout.pieces.size(), 7u);
}

TEST(Turntable, GivesItsHeightAndLevelToTheSpokes) {
  Layout layout;
  layout.levels.resize(2);
  layout.levels[0].height = 150.0;
  layout.levels[1].id = 2;
  const std::int32_t approach = LayPiece(layout, "24188", {});
  PieceOf(layout, approach).z = 40.0;
  PieceOf(layout, approach).level = 2;
  // Connector 3, at (139 cos 36, 139 sin 36) = (112.4534, 81.7021), meets the end at (188.3, 0).
  const PieceDef& def = *findPart("74861");
  const Pose pose = poseForConnector(def, 3, {193.3, 0.0, 0.0});
  const std::int32_t table = Drop(layout, "74861", pose);
  EXPECT_EQ(JointOf(layout, approach, 1), (Joint{.target = table, .tconn = 3}));
  ASSERT_EQ(layout.pieces.size(), 8u) << "a join elsewhere leaves all six spokes";
  for (std::size_t i = 2; i < 8; ++i) {
    EXPECT_EQ(layout.pieces[i].z, 40.0);
    EXPECT_EQ(layout.pieces[i].level, 2);
    EXPECT_EQ(layout.pieces[i].grade, 0.0);
  }
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(Turntable, GetsNoSpokeAtTheConnectorThatTheDropJoined) {
  Layout layout;
  const std::int32_t approach = LayPiece(layout, "24188", {});
  // Connector 15 lies at (-139, 0) heading 180, opposite the open end at (188.3, 0).
  const std::int32_t table = Drop(layout, "74861", {188.3 + 139.0 + 5.0, 0.0, 0.0});
  EXPECT_EQ(JointOf(layout, approach, 1), (Joint{.target = table, .tconn = 15}));
  EXPECT_EQ(JointOf(layout, table, 15), (Joint{.target = approach, .tconn = 1}));
  ASSERT_EQ(layout.pieces.size(), 7u);  // the approach, the table, five spokes
  const std::int32_t connectors[] = {29, 0, 1, 14, 16};
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_EQ(layout.pieces[i + 2].joints[0].tconn, connectors[i]);
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(AddTurntableSpokes, DoesNothingForAnyOtherPiece) {
  Layout layout;
  const std::int32_t id = LayPiece(layout, "24188", {});
  addTurntableSpokes(layout, id);
  addTurntableSpokes(layout, 99);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST(PairPartner, IsASecondUndoStep) {
  Layout layout;
  const std::int32_t first = Drop(layout, "74618", {100.0, 50.0, 0.0});
  const std::int32_t partner = addPairPartner(layout, first);
  ASSERT_NE(partner, kNone);
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(PieceOf(layout, partner).cat, "74618");
  ExpectPose(PieceOf(layout, partner).pose(), 280.0, 50.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, first, 1), (Joint{.target = partner, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, partner, 0), (Joint{.target = first, .tconn = 1}));
  EXPECT_EQ(layout.undoHistory.size(), 2u);
  Undo(layout);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, first);
  EXPECT_TRUE(JointOf(layout, first, 1).open());
  Undo(layout);
  EXPECT_TRUE(layout.pieces.empty());
}

TEST(PairPartner, SharesTheLevelAndContinuesTheGrade) {
  Layout layout;
  const std::int32_t first = LayPiece(layout, "74618", {});
  PieceOf(layout, first).level = 4;
  PieceOf(layout, first).grade = 2.0;
  addGradeRun(layout, 2.0, first, 0);
  const std::int32_t partner = addPairPartner(layout, first);
  EXPECT_EQ(PieceOf(layout, partner).level, 4);
  EXPECT_NEAR(PieceOf(layout, partner).z, 6.2819, 1e-4);  // 180 sin 2
  EXPECT_EQ(PieceOf(layout, partner).grade, 2.0);
  EXPECT_EQ(layout.currentGrade.anchor, partner);
}

TEST(PairPartner, ComesOnlyToAPairedPieceWithItsConnector1Open) {
  Layout layout;
  const std::int32_t single = LayPiece(layout, "24188", {});
  EXPECT_EQ(addPairPartner(layout, single), kNone);
  const std::int32_t ramp = LayPiece(layout, "74618", {0.0, 300.0, 0.0});
  const std::int32_t after = LayPiece(layout, "24188", {180.0, 300.0, 0.0});
  joinPieces(layout, ramp, 1, after, 0);
  EXPECT_EQ(addPairPartner(layout, ramp), kNone);
  EXPECT_EQ(addPairPartner(layout, 99), kNone);
  const std::int32_t unknown = LayPiece(layout, "no such part", {});
  EXPECT_EQ(addPairPartner(layout, unknown), kNone);
  EXPECT_EQ(layout.pieces.size(), 4u);
  EXPECT_TRUE(layout.undoHistory.empty());
}

}  // namespace
}  // namespace vantrel
