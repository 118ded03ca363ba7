// What the panel passes on when the user acts, and what it then shows.
#include <cmath>

#include "app/services/number_entry.h"
#include "doc/layout_ops.h"
#include "tests/properties/panel_fixture.h"
#include "tests/support/typed_keys.h"

namespace vantrel {
namespace {

using Calls = std::vector<std::string>;

const Calls kNoCalls = {};
const Calls kChanged = {"dirty", "views"};

class PanelEvents : public PanelTest {};

TEST_F(PanelEvents, ReturnInTheHeightFieldSetsTheHeight) {
  const std::int32_t id = selectPiece();
  enter(heightField(), "55.26");
  EXPECT_DOUBLE_EQ(piece(id).z, 55.26);
  EXPECT_EQ(heightField().GetValue(), "55.3");
  EXPECT_EQ(takeCalls(), kChanged);
  EXPECT_EQ(plan().undoHistory.size(), 1u);
}

TEST_F(PanelEvents, AHeightIsTakenInTheUnitInForce) {
  plan().units = kInches;
  const std::int32_t id = selectPiece();
  enter(heightField(), "2");
  EXPECT_DOUBLE_EQ(piece(id).z, 50.8);
  EXPECT_EQ(heightField().GetValue(), "2.000");
}

TEST_F(PanelEvents, AHeightThatIsNoNumberStaysInTheFieldAndChangesNothing) {
  const std::int32_t id = selectPiece();
  for (const char* typed : {"12 mm", "", "1,2,5", "inf"}) {
    enter(heightField(), typed);
    EXPECT_EQ(heightField().GetValue(), typed);
    EXPECT_EQ(piece(id).z, 0.0);
  }
  EXPECT_EQ(takeCalls(), kNoCalls);
  EXPECT_TRUE(plan().undoHistory.empty());
}

TEST_F(PanelEvents, AHeightWithADecimalCommaIsTheNumberWithThePoint) {
  const std::int32_t id = selectPiece();
  enter(heightField(), "12,5");
  EXPECT_EQ(piece(id).z, 12.5);
  EXPECT_EQ(heightField().GetValue(), "12.5");
}

TEST_F(PanelEvents, AHeightThatIsNoNumberIsMarkedUntilItIsTypedAnewOrAnotherPieceIsShown) {
  selectPiece();
  enter(heightField(), "high");
  EXPECT_TRUE(IsMarkedRefused(heightField()));
  EXPECT_EQ(heightField().GetToolTipText(), "This is no number. The height stays as it was.");
  heightField().SetValue("12");
  EXPECT_FALSE(IsMarkedRefused(heightField()));
  EXPECT_EQ(heightField().GetToolTipText(), "");
  enter(heightField(), "");
  EXPECT_TRUE(IsMarkedRefused(heightField()));
  ClearSelection(plan());
  panel->RefreshSelection();
  EXPECT_FALSE(IsMarkedRefused(heightField()));
}

TEST_F(PanelEvents, AHeightWithNoPieceShownChangesNothing) {
  LayPiece(plan(), "24188", {});
  panel->RefreshSelection();
  enter(heightField(), "50");
  EXPECT_EQ(plan().pieces[0].z, 0.0);
  EXPECT_EQ(takeCalls(), kNoCalls);
}

TEST_F(PanelEvents, AChosenLevelTakesThePieceAlong) {
  const std::int32_t id = selectPiece();
  choose(levelChoice(), 1);
  EXPECT_EQ(piece(id).level, 2);
  EXPECT_EQ(piece(id).z, 120.0);
  EXPECT_EQ(plan().activeLevel, 2);
  EXPECT_EQ(heightField().GetValue(), "120.0");
  EXPECT_EQ(levelChoice().GetStringSelection(), "Upper");
  EXPECT_EQ(takeCalls(), kChanged);
}

TEST_F(PanelEvents, ALevelThatChangesNothingIsNotReported) {
  selectPiece();
  choose(levelChoice(), 0);
  EXPECT_EQ(takeCalls(), kNoCalls);
  EXPECT_TRUE(plan().undoHistory.empty());
}

TEST_F(PanelEvents, ChoosingMixedDoesNothingAndALevelMakesItGo) {
  LaySelected(plan(), "24130");
  selectPiece("24130");
  plan().pieces[0].level = 5;
  panel->RefreshSelection();
  ASSERT_EQ(levelChoice().GetStringSelection(), "(mixed)");
  ASSERT_EQ(levelChoice().GetCount(), 4u);
  choose(levelChoice(), 0);
  EXPECT_EQ(takeCalls(), kNoCalls);
  choose(levelChoice(), 2);
  EXPECT_EQ(plan().pieces[0].level, 2);
  EXPECT_EQ(plan().pieces[1].level, 2);
  EXPECT_EQ(levelChoice().GetStringSelection(), "Upper");
  EXPECT_EQ(levelChoice().GetCount(), 3u);
}

TEST_F(PanelEvents, ALevelThatNothingShownCanGetIsNotLeftChosen) {
  // Stubs of two helices that are gone: pieces, but none that takes a level.
  LaySelected(plan(), "24188");
  selectPiece();
  plan().pieces[0].helix = 71;
  plan().pieces[1].helix = 72;
  panel->RefreshSelection();
  const wxString before = levelChoice().GetStringSelection();
  choose(levelChoice(), 1);
  EXPECT_EQ(takeCalls(), kNoCalls);
  EXPECT_NE(levelChoice().GetString(1), before);
  EXPECT_EQ(levelChoice().GetStringSelection(), before);
}

TEST_F(PanelEvents, RowsOfTheLevelChoiceCarryTheirLevelsId) {
  LaySelected(plan(), "24130");
  selectPiece("24130");
  plan().pieces[0].level = 5;
  panel->RefreshSelection();
  const std::intptr_t ids[] = {-1, 1, 2, 5};
  for (unsigned row = 0; row < 4; ++row)
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(levelChoice().GetClientData(row)), ids[row]);
}

TEST_F(PanelEvents, ApplyPaintsAndDeselects) {
  const std::int32_t id = selectPiece();
  colourChoice().SetSelection(5);
  press(4110);
  EXPECT_TRUE(piece(id).hasColor);
  EXPECT_EQ(piece(id).colorB, 200);
  EXPECT_FALSE(piece(id).sel);
  EXPECT_EQ(text("titleLabel").GetLabelText(), "No selection");
  EXPECT_EQ(takeCalls(), kChanged);
}

TEST_F(PanelEvents, ApplyWithoutAPieceOrAColourDoesNothing) {
  press(4110);
  selectPiece();
  colourChoice().SetSelection(wxNOT_FOUND);
  press(4110);
  EXPECT_EQ(takeCalls(), kNoCalls);
  EXPECT_TRUE(plan().pieces[0].sel);
}

TEST_F(PanelEvents, OkAddsTheLabelWhereTheCanvasWasPressed) {
  panel->SetPendingLabelPosition(120.5, -30.0);
  labelField().ChangeValue("  North yard ");
  press(4108);
  ASSERT_EQ(plan().labels.size(), 1u);
  EXPECT_EQ(plan().labels[0].text, "North yard");
  EXPECT_EQ(plan().labels[0].x, 120.5);
  EXPECT_EQ(plan().labels[0].y, -30.0);
  EXPECT_EQ(labelField().GetValue(), "");
  EXPECT_FALSE(panel->hasPendingLabelPos());
  EXPECT_EQ(takeCalls(), kChanged);
}

TEST_F(PanelEvents, APastedLabelStandsOnOneLineInItsFieldAndInThePlan) {
  labelField().SetValue("North\nyard");
  EXPECT_EQ(labelField().GetValue(), "North yard");
  press(4108);
  ASSERT_EQ(plan().labels.size(), 1u);
  EXPECT_EQ(plan().labels[0].text, "North yard");
}

TEST_F(PanelEvents, ReturnInTheLabelFieldAddsTheLabelAtTheOriginWithoutAPlace) {
  panel->SetPendingLabelPosition(120.5, -30.0);
  enter(labelField(), "first");
  enter(labelField(), wxString::FromUTF8("Brücke"));
  ASSERT_EQ(plan().labels.size(), 2u);
  EXPECT_EQ(plan().labels[0].x, 120.5);
  EXPECT_EQ(plan().labels[1].text, "Brücke");
  EXPECT_EQ(plan().labels[1].x, 0.0);
  EXPECT_EQ(plan().labels[1].y, 0.0);
}

TEST_F(PanelEvents, ABlankLabelDoesNothingAndKeepsItsPlace) {
  panel->SetPendingLabelPosition(1.0, 2.0);
  enter(labelField(), "   ");
  press(4108);
  EXPECT_TRUE(plan().labels.empty());
  EXPECT_TRUE(panel->hasPendingLabelPos());
  EXPECT_EQ(takeCalls(), kNoCalls);
}

TEST_F(PanelEvents, StartGradePutsAnUpwardRunInForceWithoutAnUndoStep) {
  const std::int32_t id = selectPiece();
  EXPECT_FALSE(button(4104).IsEnabled());
  spin().SetValue(2.5);
  press(4102);
  ASSERT_EQ(plan().gradeRuns.size(), 1u);
  EXPECT_EQ(plan().gradeRuns[0], (GradeRun{.deg = 2.5, .anchor = id, .conn = 0}));
  EXPECT_EQ(piece(id).grade, 2.5);
  // tan 2.5 degrees = 0.043661
  EXPECT_EQ(text("gradeValue").GetLabelText(), "+2.50 deg (4.4%)");
  EXPECT_TRUE(button(4104).IsEnabled());
  EXPECT_EQ(takeCalls(), (Calls{"status 0 Elevation: UP 2.5 deg", "views"}));
  EXPECT_TRUE(plan().undoHistory.empty());
}

// "1,5" became 15 and that the steepest, 6.
TEST_F(PanelEvents, ADecimalCommaInTheDegreesIsADecimalPoint) {
  selectPiece();
  EXPECT_TRUE(TakesDecimalComma(spin()));
}

TEST_F(PanelEvents, StartGradeDownwardIsNegative) {
  const std::int32_t id = selectPiece();
  spin().SetValue(3.0);
  down().SetValue(true);
  press(4102);
  EXPECT_EQ(plan().gradeRuns[0].deg, -3.0);
  EXPECT_EQ(piece(id).grade, -3.0);
  EXPECT_TRUE(down().GetValue());
  EXPECT_EQ(spin().GetValue(), 3.0);
  EXPECT_EQ(takeCalls(), (Calls{"status 0 Elevation: DOWN 3.0 deg", "views"}));
}

TEST_F(PanelEvents, StartGradeDownwardAtZeroIsPlainZero) {
  selectPiece();
  down().SetValue(true);
  press(4102);
  EXPECT_FALSE(std::signbit(plan().gradeRuns[0].deg));
}

TEST_F(PanelEvents, EndGradeFlattensThePieceAndEndsTheRun) {
  const std::int32_t id = selectPiece();
  spin().SetValue(2.0);
  press(4102);
  takeCalls();
  press(4104);
  EXPECT_TRUE(plan().gradeRuns.empty());
  EXPECT_EQ(piece(id).grade, 0.0);
  EXPECT_EQ(text("gradeValue").GetLabelText(), "-");
  EXPECT_EQ(spin().GetValue(), 0.0);
  EXPECT_FALSE(button(4104).IsEnabled());
  EXPECT_EQ(takeCalls(),
            (Calls{"status 0 Grade ended - subsequent pieces will be flat", "dirty", "views"}));
  EXPECT_EQ(plan().undoHistory.size(), 1u);
}

TEST_F(PanelEvents, RecalcLaysTheHeightsAgain) {
  const std::int32_t first = selectPiece();
  const std::int32_t second = LayPiece(plan(), "24188", {});
  Join(plan(), first, 1, second, 0);
  piece(first).grade = 2.0;
  press(4106);
  // 188.3 mm at 2 degrees: 188.3 * 0.0348995 = 6.5716
  EXPECT_NEAR(piece(second).z, 6.5716, 1e-3);
  EXPECT_EQ(takeCalls(), kChanged);
  EXPECT_EQ(plan().undoHistory.size(), 1u);
}

TEST_F(PanelEvents, GradesNeedOnePieceShown) {
  const std::int32_t a = LaySelected(plan(), "24188");
  Join(plan(), a, 1, LaySelected(plan(), "24188"), 0);
  panel->RefreshSelection();
  ASSERT_EQ(panel->page().kind, PageKind::run);
  for (const int id : {4102, 4104, 4106}) press(id);
  EXPECT_EQ(takeCalls(), kNoCalls);
  EXPECT_TRUE(plan().gradeRuns.empty());
}

}  // namespace
}  // namespace vantrel
