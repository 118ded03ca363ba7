#include "canvas/operations/autofill.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "canvas/operations/joining.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

using Parts = std::vector<std::string>;

// Piece 1 is a straight of 188.3 mm whose connector 1 lies at the origin and points along +x;
// piece 2 stands at `pose`, its connector 0 there.
class Autofill : public testing::Test {
 protected:
  Layout layout;

  void layPair(const Pose& pose, const std::string& part = "24188") {
    LayPiece(layout, "24188", {-188.3, 0.0, 0.0});
    LayPiece(layout, part, pose);
    selectBoth();
  }
  void layGap(double gap) { layPair({gap, 0.0, 0.0}); }
  void selectBoth() { layout.pieces[0].sel = layout.pieces[1].sel = true; }

  std::string noticeTitle() const { return noticeOf().title; }
  std::string noticeText() const { return noticeOf().text; }
  Notice noticeOf() const {
    const std::optional<AutofillPlan> plan = planAutofill(layout);
    return plan && plan->notice ? *plan->notice : Notice{"none", ""};
  }
  bool deselects() const { return planAutofill(layout)->deselects; }
  std::vector<Parts> offered() const {
    const AutofillPlan plan = planAutofill(layout).value();
    std::vector<Parts> rows;
    for (const FillSolution& fill : plan.solutions) rows.push_back(fill.parts);
    return rows;
  }
};

constexpr const char* kNotFacing =
    "Could not find facing free connectors on the two selected pieces.";

TEST_F(Autofill, DoesNothingUnlessExactlyTwoPiecesAreSelected) {
  EXPECT_FALSE(planAutofill(layout).has_value());
  layGap(188.3);
  LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  EXPECT_TRUE(planAutofill(layout).has_value());
  layout.pieces[2].sel = true;
  EXPECT_FALSE(planAutofill(layout).has_value());
  layout.pieces[1].sel = layout.pieces[2].sel = false;
  EXPECT_FALSE(planAutofill(layout).has_value());
}

TEST_F(Autofill, CountsPiecesOnly) {
  layGap(188.3);
  layout.scenery.emplace_back().sel = true;
  layout.labels.emplace_back().sel = true;
  EXPECT_TRUE(planAutofill(layout).has_value());
}

TEST_F(Autofill, DoesNothingWithAnUnknownPart) {
  layGap(188.3);
  layout.pieces[1].cat = "no such part";
  EXPECT_FALSE(planAutofill(layout).has_value());
  layout.pieces[1].cat = "24188";
  layout.pieces[0].cat = "";
  EXPECT_FALSE(planAutofill(layout).has_value());
}

TEST_F(Autofill, RefusesMixedSystemsAndKeepsTheSelection) {
  layPair({188.3, 0.0, 0.0}, "8500");
  EXPECT_EQ(noticeTitle(), "Autofill - Mixed Track Systems");
  EXPECT_EQ(noticeText(),
            "Autofill can only run on pieces of the same track series.\n\nSelected pieces:\n"
            "  - 24188 (Marklin C-Track)\n  - 8500 (Marklin Z-Track)");
  EXPECT_FALSE(deselects());
}

TEST_F(Autofill, NamesThePieceFirstThatComesFirstInThePlan) {
  layPair({188.3, 0.0, 0.0}, "62188");
  std::swap(layout.pieces[0], layout.pieces[1]);
  EXPECT_EQ(noticeText(),
            "Autofill can only run on pieces of the same track series.\n\nSelected pieces:\n"
            "  - 62188 (TRIX C-Track)\n  - 24188 (Marklin C-Track)");
}

TEST_F(Autofill, LooksAtTheSystemsBeforeTheEnds) {
  layPair({0.0, 0.0, 0.0}, "2200");
  joinPieces(layout, 1, 1, 2, 0);
  EXPECT_EQ(noticeTitle(), "Autofill - Mixed Track Systems");
}

TEST_F(Autofill, EndsOf100DegreesDoNotFace) {
  layPair({188.3, 0.0, 80.0});  // outward 260 against 0
  EXPECT_EQ(noticeTitle(), "Autofill");
  EXPECT_EQ(noticeText(), kNotFacing);
  EXPECT_TRUE(deselects());
}

TEST_F(Autofill, EndsOf160DegreesFaceButAreNotFilled) {
  layPair({188.3, 0.0, 20.0});
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  EXPECT_EQ(noticeText(),
            "Gap is 188.3mm. No combination of catalog straights fills it within tolerance.");
  EXPECT_TRUE(deselects());
}

TEST_F(Autofill, EndsFaceFrom150DegreesOn) {
  layPair({188.3, 0.0, 30.0});
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  layout.pieces[1].heading = -30.0;
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  layout.pieces[1].heading = 30.5;
  EXPECT_EQ(noticeText(), kNotFacing);
}

TEST_F(Autofill, EndsAreStraightAbove170DegreesOnly) {
  layPair({188.3, 0.0, 10.0});
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  layout.pieces[1].heading = 9.0;
  EXPECT_EQ(offered().at(0), Parts{"24188"});
  layout.pieces[1].heading = 351.0;
  EXPECT_EQ(offered().at(0), Parts{"24188"});
}

TEST_F(Autofill, HeadingsAreComparedAcrossTheFullTurn) {
  // The whole turned by 350 degrees: outward headings 350 and 170.
  const double c = std::cos(350.0 * 3.141592653589793 / 180.0);
  const double s = std::sin(350.0 * 3.141592653589793 / 180.0);
  LayPiece(layout, "24188", {-188.3 * c, -188.3 * s, 350.0});
  LayPiece(layout, "24188", {188.3 * c, 188.3 * s, 350.0});
  selectBoth();
  EXPECT_EQ(offered().at(0), Parts{"24188"});
}

TEST_F(Autofill, PiecesWithAllConnectorsJoinedDoNotFace) {
  layGap(188.3);
  for (int i = 0; i < 4; ++i) LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  joinPieces(layout, 1, 0, 3, 0);
  joinPieces(layout, 1, 1, 4, 0);
  joinPieces(layout, 2, 0, 5, 0);
  joinPieces(layout, 2, 1, 6, 0);
  EXPECT_EQ(noticeText(), kNotFacing);
}

TEST_F(Autofill, OnlyOpenEndsFace) {
  layGap(188.3);
  LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  joinPieces(layout, 1, 1, 3, 0);
  // What is left of piece 1 is connector 0 at (-188.3, 0), heading 180: it faces connector 1 of
  // piece 2 at (376.6, 0), 564.9 mm away.
  EXPECT_NEAR(planAutofill(layout)->gap, 564.9, 1e-9);
}

TEST_F(Autofill, AMissingSlotAndAnyNegativeTargetAreOpen) {
  layGap(188.3);
  layout.pieces[0].joints.clear();
  layout.pieces[1].joints[0] = {.target = -7, .tconn = 3};
  EXPECT_NEAR(planAutofill(layout)->gap, 188.3, 1e-9);
}

TEST_F(Autofill, TakesTheNearestFacingPair) {
  // Both branches of the turnout and its other end lie farther off.
  layPair({94.2, 0.0, 0.0}, "24611");
  const std::optional<AutofillPlan> plan = planAutofill(layout);
  EXPECT_NEAR(plan->gap, 94.2, 1e-9);
  EXPECT_EQ(plan->endA, (Vec2{0.0, 0.0}));
  EXPECT_EQ(plan->endB, (Vec2{94.2, 0.0}));
}

TEST_F(Autofill, AGapBelow1MmIsTouching) {
  layGap(0.9);
  EXPECT_EQ(noticeTitle(), "Autofill");
  EXPECT_EQ(noticeText(), "The two pieces are already touching - no gap to fill.");
  EXPECT_TRUE(deselects());
  layout.pieces[1].x = 0.0;
  EXPECT_EQ(noticeText(), "The two pieces are already touching - no gap to fill.");
  layout.pieces[1].x = 1.0;
  EXPECT_EQ(noticeText(),
            "Gap is 1.0mm. No combination of catalog straights fills it within tolerance.");
}

TEST_F(Autofill, OffersTheRankedRows) {
  layGap(188.3);
  const std::optional<AutofillPlan> plan = planAutofill(layout);
  EXPECT_FALSE(plan->notice.has_value());
  EXPECT_NEAR(plan->gap, 188.3, 1e-9);
  EXPECT_EQ(offered(), (std::vector<Parts>{{"24188"}, {"24094", "24094"}}));
}

TEST_F(Autofill, OffersAtMostTwelveRows) {
  layGap(1000.0);
  EXPECT_EQ(offered().size(), 12u);
}

TEST_F(Autofill, OffersPartsOfTheirOwnSystemOnly) {
  LayPiece(layout, "62188", {-188.3, 0.0, 0.0});
  LayPiece(layout, "62188", {188.3, 0.0, 0.0});
  selectBoth();
  EXPECT_EQ(offered(), (std::vector<Parts>{{"62188"}, {"62094", "62094"}}));
}

TEST_F(Autofill, NeverOffersPiecesWithAFunctionOrBridges) {
  // 180 mm is the length of the adapters, of the feeder tracks and of a bridge; 57.5 mm that of
  // the turntable's spoke.
  layGap(180.0);
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  layout.pieces[1].x = 57.5;
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
  layout.pieces[0].cat = layout.pieces[1].cat = "2200";  // 180 mm long
  layout.pieces[0].x = -180.0;
  layout.pieces[1].x = 180.0;
  EXPECT_EQ(offered().at(0), Parts{"2200"});
  for (const Parts& row : offered())
    for (const std::string& part : row)
      for (const char* never : {"2290", "2291", "2292", "2295", "2297", "2299", "7262", "7263"})
        EXPECT_NE(part, never);
}

TEST_F(Autofill, AGapTooLongFor32OfTheLongestPiecesHasNoSolution) {
  layGap(11880.0);  // 33 * 360: one piece more would fill it
  EXPECT_EQ(noticeText(),
            "Gap is 11880.0mm. No combination of catalog straights fills it within tolerance.");
  layout.pieces[1].x = 11520.0;
  EXPECT_EQ(offered(), std::vector<Parts>{Parts(32, "24360")});
}

TEST_F(Autofill, CoordinatesWithoutMeaningFaceNothing) {
  for (const double x :
       {std::nan(""), std::numeric_limits<double>::infinity(), 1e300, -1e300, 1.1e9}) {
    layout = {};
    layGap(x);
    EXPECT_EQ(noticeText(), kNotFacing) << x;
  }
}

TEST_F(Autofill, AnEnormousGapIsAnsweredToo) {
  layGap(900'000'000.0);
  EXPECT_EQ(noticeTitle(), "Autofill - No Solution");
}

TEST(AutofillRowText, JoinsThePartsAndTellsTheTotal) {
  EXPECT_EQ(autofillRowText({{"24188", "24094"}, 282.5}), "24188 + 24094  (282.5 mm)");
  EXPECT_EQ(autofillRowText({{"24188"}, 188.3}), "24188  (188.3 mm)");
  EXPECT_EQ(autofillRowText({{"gone", "24094"}, 188.25}), "gone + 24094  (188.2 mm)");
}

class AutofillPlacing : public Autofill {
 protected:
  bool place(std::size_t solution = 0) {
    return placeAutofill(layout, planAutofill(layout).value(), solution);
  }
};

TEST_F(AutofillPlacing, LaysTheRowFromTheFirstPieceToTheSecondAndJoinsAllEnds) {
  layGap(282.5);
  ASSERT_EQ(offered().at(0), (Parts{"24188", "24094"}));
  EXPECT_TRUE(place());
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[2].id, 3);
  EXPECT_EQ(layout.pieces[3].id, 4);
  EXPECT_EQ(layout.nextId, 5);
  EXPECT_EQ(layout.pieces[2].cat, "24188");
  EXPECT_EQ(layout.pieces[3].cat, "24094");
  ExpectPose(layout.pieces[2].pose(), 0.0, 0.0, 0.0, 1e-9);
  ExpectPose(layout.pieces[3].pose(), 188.3, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, 1, 1), (Joint{.target = 3, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 3, 0), (Joint{.target = 1, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, 3, 1), (Joint{.target = 4, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 4, 0), (Joint{.target = 3, .tconn = 1}));
  EXPECT_EQ(JointOf(layout, 4, 1), (Joint{.target = 2, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 2, 0), (Joint{.target = 4, .tconn = 1}));
  EXPECT_TRUE(JointOf(layout, 1, 0).open());
  EXPECT_TRUE(JointOf(layout, 2, 1).open());
}

TEST_F(AutofillPlacing, LaysTheChosenRow) {
  layGap(188.3);
  EXPECT_TRUE(place(1));
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[2].cat, "24094");
  EXPECT_EQ(layout.pieces[3].cat, "24094");
}

TEST_F(AutofillPlacing, StartsAtTheFirstPieceWhicheverWayItPoints) {
  // The gap lies before connector 0 of the first piece, which points to 180 degrees.
  LayPiece(layout, "24188", {0.0, 0.0, 0.0});
  LayPiece(layout, "24188", {-376.6, 0.0, 0.0});
  selectBoth();
  EXPECT_TRUE(place());
  ASSERT_EQ(layout.pieces.size(), 3u);
  ExpectPose(layout.pieces[2].pose(), 0.0, 0.0, 180.0, 1e-9);
  EXPECT_EQ(JointOf(layout, 1, 0), (Joint{.target = 3, .tconn = 0}));
  EXPECT_EQ(JointOf(layout, 2, 1), (Joint{.target = 3, .tconn = 1}));
}

TEST_F(AutofillPlacing, LiesFlatOnTheLevelAndAtTheHeightOfTheFirstPiece) {
  layGap(282.5);
  layout.pieces[0].level = 5;
  layout.pieces[0].z = 42.0;
  layout.pieces[0].grade = 3.0;
  layout.pieces[1].level = 6;
  layout.pieces[1].z = 90.0;
  place();
  for (const std::size_t i : {std::size_t{2}, std::size_t{3}}) {
    EXPECT_EQ(layout.pieces[i].level, 5);
    EXPECT_EQ(layout.pieces[i].z, 42.0);
    EXPECT_EQ(layout.pieces[i].grade, 0.0);
    EXPECT_FALSE(layout.pieces[i].rev);
    EXPECT_FALSE(layout.pieces[i].sel);
    EXPECT_FALSE(layout.pieces[i].free);
  }
  EXPECT_EQ(layout.pieces[1].z, 90.0);
}

TEST_F(AutofillPlacing, KeepsTheSelectionAndMovesNeitherPiece) {
  layGap(189.7);  // the fill is 1.4 mm short
  place();
  EXPECT_TRUE(layout.pieces[0].sel);
  EXPECT_TRUE(layout.pieces[1].sel);
  EXPECT_EQ(layout.pieces[0].pose(), (Pose{-188.3, 0.0, 0.0}));
  EXPECT_EQ(layout.pieces[1].pose(), (Pose{189.7, 0.0, 0.0}));
  EXPECT_EQ(JointOf(layout, 3, 1), (Joint{.target = 2, .tconn = 0}));
}

TEST_F(AutofillPlacing, FillsParallelOffsetEndsAsIfInLineAndJoinsThem) {
  layPair({0.0, 188.3, 0.0});  // beside, not ahead
  EXPECT_EQ(offered().at(0), Parts{"24188"});
  EXPECT_TRUE(place());
  ExpectPose(layout.pieces.at(2).pose(), 0.0, 0.0, 0.0, 1e-9);
  EXPECT_EQ(JointOf(layout, 2, 0), (Joint{.target = 3, .tconn = 1}));
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST_F(AutofillPlacing, IsOneUndoStep) {
  layGap(282.5);
  const std::vector<Piece> before = layout.pieces;
  place();
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

TEST_F(AutofillPlacing, AnEndThatIsNoLongerThereLeavesOnlyTheUndoStep) {
  layGap(188.3);
  const AutofillPlan plan = planAutofill(layout).value();
  for (const std::size_t moved : {std::size_t{0}, std::size_t{1}}) {
    Layout changed = layout;
    changed.pieces[moved].y += 1.0;
    EXPECT_FALSE(placeAutofill(changed, plan, 0));
    EXPECT_EQ(changed.undoHistory.size(), 1u);
    EXPECT_EQ(changed.pieces.size(), 2u);
    EXPECT_TRUE(JointOf(changed, 1, 1).open());
    EXPECT_TRUE(JointOf(changed, 2, 0).open());
  }
  layout.pieces[0].y += 0.9;
  EXPECT_TRUE(placeAutofill(layout, plan, 0)) << "within a millimetre";
}

TEST_F(AutofillPlacing, ARowThatDoesNotExistChangesNothing) {
  layGap(188.3);
  EXPECT_FALSE(place(2));
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(layout.pieces.size(), 2u);
}

TEST_F(AutofillPlacing, APartThatIsGoneIsLeftOut) {
  layGap(282.5);
  AutofillPlan plan = planAutofill(layout).value();
  plan.solutions[0].parts = {"gone", "24094", "24951"};
  EXPECT_TRUE(placeAutofill(layout, plan, 0));
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.pieces[2].cat, "24094");
  EXPECT_EQ(JointOf(layout, 2, 0), (Joint{.target = 3, .tconn = 1}));
}

TEST_F(AutofillPlacing, GrowsMissingSlotsAndOpensStraySlotsThatNameTheEnds) {
  layGap(188.3);
  layout.pieces[0].joints.clear();
  LayPiece(layout, "24188", {0.0, 900.0, 0.0});
  layout.pieces[2].joints[0] = {.target = 2, .tconn = 0};  // piece 2 doesn't name it back
  place();
  EXPECT_EQ(layout.pieces[0].joints.size(), 2u);
  EXPECT_TRUE(JointOf(layout, 3, 0).open());
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST_F(AutofillPlacing, TwoPiecesWithOneIdAreStillToldApart) {
  layGap(282.5);
  layout.pieces[1].id = 1;
  EXPECT_TRUE(place());
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[0].joints[1], (Joint{.target = 3, .tconn = 0}));
  EXPECT_EQ(layout.pieces[1].joints[0], (Joint{.target = 4, .tconn = 1}));
}

TEST_F(AutofillPlacing, FillsTheLongestGapThereIs) {
  layGap(11520.0);
  EXPECT_TRUE(place());
  EXPECT_EQ(layout.pieces.size(), 34u);
  EXPECT_EQ(BrokenJoint(layout), "");
  ExpectPose(layout.pieces.back().pose(), 31 * 360.0, 0.0, 0.0, 1e-6);
}

}  // namespace
}  // namespace vantrel
