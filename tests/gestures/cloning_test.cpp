// Extending track by a double click.
#include "canvas/gestures/cloning.h"

#include <gtest/gtest.h>

#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class Cloning : public EditingTest {};

TEST_F(Cloning, ADoubleClickExtendsACurveInTheSameSense) {
  const std::int32_t first = lay("24130", {300.0, 300.0, 0.0});
  EXPECT_TRUE(doubleClick(350, 305));
  ASSERT_EQ(layout.pieces.size(), 2u);
  const Piece& clone = layout.pieces[1];
  EXPECT_EQ(clone.cat, "24130");
  EXPECT_NEAR(clone.heading, 30.0, 1e-9);
  // 360 sin 30 = 180 ahead, 360 (1 - cos 30) = 48.2309 aside.
  ExpectPose(clone.pose(), 480.0, 348.2309, 30.0, 1e-4);
  EXPECT_EQ(clone.joints[0], (Joint{first, 1}));
  EXPECT_EQ(selected(), Ids{clone.id});
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 2");
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_FALSE(host.captured);
}

TEST_F(Cloning, ThePressAfterACloneIsSwallowedAndTheNextDoubleClickGoesOn) {
  lay("24188", {100.0, 100.0, 0.0});
  doubleClick(150, 100);
  EXPECT_TRUE(state.swallowNextClick);
  clickLeft(150, 100);
  EXPECT_FALSE(state.swallowNextClick);
  EXPECT_EQ(selected(), Ids{layout.pieces[1].id});
  doubleClick(350, 100);
  doubleClick(540, 100);
  EXPECT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST_F(Cloning, APieceWithBothEndsJoinedChangesNothingAndSwallowsNoClick) {
  layChain(3, 100.0, 100.0);
  const std::vector<Piece> before = layout.pieces;
  EXPECT_TRUE(doubleClick(350, 100));
  EXPECT_EQ(layout.pieces.size(), before.size());
  EXPECT_FALSE(state.swallowNextClick);
  EXPECT_EQ(host.dirtyMarks, 0);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST_F(Cloning, AHelixStubIsNotExtended) {
  const Helix helix = layHelix({600.0, 600.0});
  EXPECT_FALSE(doubleClick(650, 240));
  EXPECT_EQ(layout.pieces.size(), 4u);
  EXPECT_FALSE(state.swallowNextClick);
  EXPECT_EQ(helix.id, layout.helices[0].id);
}

TEST_F(Cloning, AltAndEmptyCanvasAreNotUsed) {
  lay("24188", {100.0, 100.0, 0.0});
  EXPECT_FALSE(doubleClick(700, 700));
  held.mods.alt = true;
  EXPECT_FALSE(onDoubleClick(context, at(150, 100)));
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(Cloning, WhatLiesOverTheTrackKeepsItFromBeingExtended) {
  lay("24188", {100.0, 100.0, 0.0});
  layScenery("platform", {150.0, 100.0, 0.0});
  EXPECT_TRUE(onDoubleClick(context, at(150, 100)));
  layout.scenery.clear();
  layShape({0.0, 0.0}, 400.0);
  EXPECT_TRUE(onDoubleClick(context, at(150, 100)));
  EXPECT_EQ(layout.pieces.size(), 1u);
  layout.shapes.clear();
  EXPECT_TRUE(onDoubleClick(context, at(150, 100)));
  EXPECT_EQ(layout.pieces.size(), 2u);
}

TEST_F(Cloning, ACloneContinuesTheClimbOfARun) {
  const std::int32_t first = lay("24188", {100.0, 100.0, 0.0});
  piece(first).grade = 2.0;
  layout.gradeRuns = {{.deg = 2.0, .anchor = first, .conn = 0}};
  doubleClick(150, 100);
  // 188.3 mm times sin 2 degrees (0.0348995) = 6.5716.
  EXPECT_NEAR(layout.pieces[1].z, 6.5716, 1e-3);
  EXPECT_EQ(layout.pieces[1].grade, 2.0);
  EXPECT_EQ(layout.gradeRuns[0].anchor, layout.pieces[1].id);
}

}  // namespace
}  // namespace vantrel
