// Colours, heights and labels.
#include "inspection/selection_edits.h"

#include <gtest/gtest.h>

#include "doc/undo.h"
#include "inspection/page_texts.h"
#include "tests/inspection/inspection_support.h"

namespace vantrel {
namespace {

// A plan with something to redo, so that a test sees whether an undo step was taken.
Layout PlanWithHistory() {
  Layout layout = PlanWithThreeLevels();
  PushUndo(layout);
  Undo(layout);
  EXPECT_EQ(layout.redoHistory.size(), 1u);
  return layout;
}

void ExpectNoUndoStep(const Layout& layout) {
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(layout.redoHistory.size(), 1u);
}

struct NamedColour {
  const char* name;
  int r, g, b;
};

TEST(Colours, AreNineInTheirOrder) {
  const NamedColour expected[] = {{"Red", 220, 60, 60},     {"Orange", 230, 140, 40},
                                  {"Yellow", 220, 200, 50}, {"Green", 60, 170, 60},
                                  {"Blue", 60, 100, 200},   {"Purple", 140, 60, 180},
                                  {"Pink", 210, 90, 150},   {"White", 240, 240, 240}};
  ASSERT_EQ(paintColours().size(), 9u);
  EXPECT_EQ(paintColours()[0].name, "Default");
  for (int row = 1; row <= 8; ++row) {
    Layout layout;
    LaySelected(layout, "24188");
    ASSERT_TRUE(ApplyColour(layout, row));
    const NamedColour& colour = expected[row - 1];
    EXPECT_EQ(paintColours()[static_cast<std::size_t>(row)].name, colour.name);
    EXPECT_TRUE(layout.pieces[0].hasColor);
    EXPECT_EQ(layout.pieces[0].colorR, colour.r);
    EXPECT_EQ(layout.pieces[0].colorG, colour.g);
    EXPECT_EQ(layout.pieces[0].colorB, colour.b);
  }
}

TEST(Colours, DefaultClearsTheColour) {
  Layout layout;
  LaySelected(layout, "24188");
  ApplyColour(layout, 3);
  layout.pieces[0].sel = true;
  EXPECT_TRUE(ApplyColour(layout, 0));
  EXPECT_FALSE(layout.pieces[0].hasColor);
  EXPECT_EQ(layout.pieces[0].colorR, 0);
  EXPECT_EQ(layout.pieces[0].colorG, 0);
  EXPECT_EQ(layout.pieces[0].colorB, 0);
}

TEST(Colours, GoToTheSelectedPiecesAndLeaveNothingSelected) {
  Layout layout;
  LaySelected(layout, "24188");
  LayPiece(layout, "24188", {});
  LaySelected(layout, "unknown part");
  PlaceScenery(layout, "platform");
  DrawShape(layout, {});
  layout.labels.emplace_back().sel = true;
  layout.measurements.emplace_back().sel = true;
  EXPECT_TRUE(ApplyColour(layout, 1));
  EXPECT_TRUE(layout.pieces[0].hasColor);
  EXPECT_FALSE(layout.pieces[1].hasColor);
  EXPECT_TRUE(layout.pieces[2].hasColor);
  for (const Piece& piece : layout.pieces) EXPECT_FALSE(piece.sel);
  EXPECT_FALSE(layout.scenery[0].sel);
  EXPECT_FALSE(layout.shapes[0].sel);
  EXPECT_FALSE(layout.labels[0].sel);
  EXPECT_FALSE(layout.measurements[0].sel);
}

TEST(Colours, OneUndoBringsColourAndSelectionBack) {
  Layout layout;
  LaySelected(layout, "24188");
  LaySelected(layout, "24188");
  const std::vector<Piece> before = layout.pieces;
  ApplyColour(layout, 1);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

TEST(Colours, WithoutASelectedPieceNothingHappens) {
  Layout layout = PlanWithHistory();
  LayPiece(layout, "24188", {});
  PlaceScenery(layout, "platform");
  EXPECT_FALSE(ApplyColour(layout, 1));
  EXPECT_TRUE(layout.scenery[0].sel);
  ExpectNoUndoStep(layout);
}

TEST(Colours, WithoutAChosenRowNothingHappens) {
  Layout layout = PlanWithHistory();
  LaySelected(layout, "24188");
  for (const int row : {-1, 9, 1000}) EXPECT_FALSE(ApplyColour(layout, row));
  EXPECT_TRUE(layout.pieces[0].sel);
  ExpectNoUndoStep(layout);
}

TEST(EnteredHeight, IsSetInMillimetresFromTheUnitInForce) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t id = LaySelected(layout, "24188");
  EXPECT_TRUE(EnterHeight(layout, id, "50"));
  EXPECT_DOUBLE_EQ(PieceOf(layout, id).z, 50.0);
  layout.units = 1;
  EXPECT_TRUE(EnterHeight(layout, id, "50"));
  EXPECT_DOUBLE_EQ(PieceOf(layout, id).z, 500.0);
  layout.units = 2;
  EXPECT_TRUE(EnterHeight(layout, id, "2"));
  EXPECT_DOUBLE_EQ(PieceOf(layout, id).z, 50.8);
}

TEST(EnteredHeight, ChangesThePieceShownAloneAndNothingElseOfIt) {
  Layout layout = PlanWithThreeLevels();
  LaySelected(layout, "24130");
  const std::int32_t id = LaySelected(layout, "24130");
  Layout expected = layout;
  PieceOf(layout, id).grade = PieceOf(expected, id).grade = 2.0;
  PieceOf(expected, id).z = -7.5;
  EXPECT_TRUE(EnterHeight(layout, id, "-7.5"));
  EXPECT_EQ(layout.pieces, expected.pieces);
}

TEST(EnteredHeight, TakesOneUndoStepEvenForTheSameHeight) {
  Layout layout = PlanWithThreeLevels();
  const std::int32_t id = LaySelected(layout, "24188");
  EXPECT_TRUE(EnterHeight(layout, id, "0"));
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_TRUE(EnterHeight(layout, id, "8"));
  Undo(layout);
  EXPECT_EQ(PieceOf(layout, id).z, 0.0);
}

TEST(EnteredHeight, ThatIsNoNumberChangesNothing) {
  Layout layout = PlanWithHistory();
  const std::int32_t id = LaySelected(layout, "24188");
  for (const char* text : {"", "high", "12 mm", "1,2,5", "inf", "nan"}) {
    EXPECT_FALSE(EnterHeight(layout, id, text));
    EXPECT_EQ(PieceOf(layout, id).z, 0.0);
  }
  ExpectNoUndoStep(layout);
}

TEST(EnteredHeight, WithoutAPieceShownChangesNothing) {
  Layout layout = PlanWithHistory();
  LaySelected(layout, "24188");
  EXPECT_FALSE(EnterHeight(layout, -1, "50"));
  EXPECT_FALSE(EnterHeight(layout, 4711, "50"));
  ExpectNoUndoStep(layout);
}

TEST(AddedLabel, HasTheNextIdTheTrimmedTextAndThePoint) {
  Layout layout;
  layout.nextId = 17;
  EXPECT_TRUE(AddLabel(layout, "  North yard\t", {12.5, -40.0}));
  Label expected;
  expected.id = 17;
  expected.text = "North yard";
  expected.x = 12.5;
  expected.y = -40.0;
  EXPECT_EQ(layout.labels, std::vector<Label>{expected});
  EXPECT_EQ(layout.nextId, 18);
}

TEST(AddedLabel, StandsOnOneLine) {
  Layout layout;
  EXPECT_TRUE(AddLabel(layout, "North\nyard\r\nand depot\n", {}));
  EXPECT_EQ(layout.labels.at(0).text, "North yard  and depot");
}

TEST(AddedLabel, TakesOneUndoStep) {
  Layout layout;
  AddLabel(layout, "a", {});
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_TRUE(layout.labels.empty());
}

TEST(AddedLabel, WithABlankTextIsNone) {
  Layout layout = PlanWithHistory();
  for (const char* text : {"", "   ", "\t\n", "\u3000"}) EXPECT_FALSE(AddLabel(layout, text, {}));
  EXPECT_TRUE(layout.labels.empty());
  ExpectNoUndoStep(layout);
}

TEST(StatusTexts, TellWhatBecameOfAGrade) {
  EXPECT_EQ(GradeStartedText(true, 2.0), "Elevation: UP 2.0 deg");
  EXPECT_EQ(GradeStartedText(false, 5.5), "Elevation: DOWN 5.5 deg");
  EXPECT_EQ(GradeStartedText(false, 0.0), "Elevation: DOWN 0.0 deg");
  EXPECT_EQ(kGradeEndedText, "Grade ended - subsequent pieces will be flat");
}

}  // namespace
}  // namespace vantrel
