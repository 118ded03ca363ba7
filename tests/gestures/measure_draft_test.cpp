// The measuring tape.
#include "canvas/gestures/measure_draft.h"

#include <gtest/gtest.h>

#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class MeasureDrafts : public EditingTest {
 protected:
  void SetUp() override {
    EditingTest::SetUp();
    layout.toolMode = kMeasureTool;
    layout.gridVisible = false;
  }
};

TEST_F(MeasureDrafts, TwoClicksLayATapeAndEndTheTool) {
  clickLeft(100, 100);
  EXPECT_TRUE(state.measureDraft.active);
  EXPECT_TRUE(layout.undoHistory.empty());
  move(400, 500);
  EXPECT_EQ(host.cursor(), CanvasCursor::cross);
  clickLeft(400, 500);
  ASSERT_EQ(layout.measurements.size(), 1u);
  const Measurement& tape = layout.measurements[0];
  EXPECT_EQ(tape.startX, 100.0);
  EXPECT_EQ(tape.endY, 500.0);
  EXPECT_EQ(tape.moveX, 0.0);
  EXPECT_EQ(tape.id, 1);
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{3});
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_FALSE(state.measureDraft.active);
}

TEST_F(MeasureDrafts, TwoClicksHalfAMillimetreApartLayNothingButEndTheTool) {
  state.view.scale = 2.0;
  clickLeft(100, 100);
  clickLeft(101, 100);
  EXPECT_TRUE(layout.measurements.empty());
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST_F(MeasureDrafts, ATapeOfExactlyOneMillimetreIsLaid) {
  clickLeft(100, 100);
  clickLeft(101, 100);
  EXPECT_EQ(layout.measurements.size(), 1u);
}

TEST_F(MeasureDrafts, ATooShortTapeLeavesItsUndoStepAndIsMarkedAsAChange) {
  state.view.scale = 2.0;
  clickLeft(100, 100);
  clickLeft(101, 100);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{3});
  EXPECT_EQ(host.cursor(), CanvasCursor::normal);
}

TEST_F(MeasureDrafts, WhileArmedEveryMotionShowsTheCrossAndNothingElseMoves) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressMiddle(150, 100);
  EXPECT_TRUE(move(350, 300));
  EXPECT_EQ(host.cursor(), CanvasCursor::cross);
  EXPECT_EQ(state.view.offsetX, 0.0);
  EXPECT_EQ(piece(id).x, 100.0);
  EXPECT_FALSE(state.measureDraft.active);
}

TEST_F(MeasureDrafts, TakenUpAgainTheFrozenDraftGoesOnFromItsStart) {
  clickLeft(100, 100);
  layout.toolMode = kNoTool;
  move(300, 300);
  layout.toolMode = kMeasureTool;
  clickLeft(500, 100);
  ASSERT_EQ(layout.measurements.size(), 1u);
  EXPECT_EQ(layout.measurements[0].startX, 100.0);
  EXPECT_EQ(layout.measurements[0].endX, 500.0);
}

TEST_F(MeasureDrafts, TheSecondOfTwoQuickPressesCounts) {
  lay("24188", {50.0, 100.0, 0.0});
  clickLeft(100, 100);
  EXPECT_TRUE(onDoubleClick(context, at(100, 100)));
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(MeasureDrafts, EscapeEndsDraftAndToolWithoutATrace) {
  clickLeft(100, 100);
  EXPECT_TRUE(key(WXK_ESCAPE));
  EXPECT_EQ(layout.toolMode, kNoTool);
  EXPECT_EQ(host.endedTools, std::vector<std::int32_t>{3});
  EXPECT_FALSE(state.measureDraft.active);
  EXPECT_TRUE(layout.measurements.empty());
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(MeasureDrafts, PutAwayInBetweenTheDraftStaysOnShowFrozen) {
  clickLeft(100, 100);
  move(200, 100);
  layout.toolMode = kNoTool;
  move(300, 300);
  EXPECT_EQ(state.measureDraft.end, (Vec2{200.0, 100.0}));
  EXPECT_EQ(paint()->calls().back().text, "100 mm");
}

TEST_F(MeasureDrafts, TheDraftShowsItsLengthInTheUnitsOfThePlan) {
  clickLeft(100, 100);
  move(354, 100);
  const std::pair<std::int32_t, const char*> expected[] = {
      {kMillimetres, "254 mm"}, {kCentimetres, "25.4 cm"}, {kInches, "10.00\""}};
  for (const auto& [units, text] : expected) {
    layout.units = units;
    EXPECT_EQ(paint()->calls().back().text, text);
  }
}

TEST_F(MeasureDrafts, TheDraftIsADashedLineWithTwoDotsAndATag) {
  clickLeft(100, 100);
  move(354, 100);
  const std::unique_ptr<RecordingDC> dc = paint();
  const DrawCall* tail = &dc->calls()[dc->calls().size() - 5];
  const Rgba blue{40, 80, 200, 255};
  EXPECT_EQ(tail[0].points, (std::vector<wxPoint>{{100, 100}, {354, 100}}));
  EXPECT_EQ(tail[0].pen, (RecordedPen{blue, 2, wxPENSTYLE_LONG_DASH}));
  EXPECT_EQ(tail[1].box, wxRect(96, 96, 8, 8));
  EXPECT_EQ(tail[2].box, wxRect(350, 96, 8, 8));
  EXPECT_EQ(tail[2].brush.colour, blue);
  EXPECT_EQ(tail[2].pen, (RecordedPen{blue, 1, wxPENSTYLE_SOLID}));
  // "254 mm": 6 characters, 10 wide and 20 high in the recorder.
  EXPECT_EQ(tail[3].box, wxRect(362, 88, 70, 24));
  EXPECT_EQ(tail[3].brush.colour, (Rgba{255, 248, 220, 235}));
  EXPECT_EQ(tail[3].pen.colour, blue);
  EXPECT_EQ(tail[4].points[0], wxPoint(367, 90));
  EXPECT_EQ(tail[4].textForeground, (Rgba{20, 20, 20, 255}));
  EXPECT_EQ(tail[4].font.weight, wxFONTWEIGHT_BOLD);
  EXPECT_EQ(tail[4].font.pointSize, 10);
}

}  // namespace
}  // namespace vantrel
