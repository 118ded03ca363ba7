#include "canvas/gestures/autofill_gap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/gestures/canvas_driver.h"

namespace vantrel {
namespace {

// Two selected straights of 188.3 mm with a gap between them.
class AutofillGap : public CanvasTest {
 protected:
  void layGap(double gap) {
    lay("24188", {-188.3, 0.0, 0.0});
    lay("24188", {gap, 0.0, 0.0});
    for (Piece& piece : layout.pieces) piece.sel = true;
  }
  bool bothSelected() const { return layout.pieces[0].sel && layout.pieces[1].sel; }
  bool nothingSelected() const { return !layout.pieces[0].sel && !layout.pieces[1].sel; }

  void expectRefusal(const std::string& title, const std::string& text) {
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].title, title);
    EXPECT_EQ(host.boxes[0].text, text);
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::information);
    EXPECT_TRUE(host.offeredFills.empty());
    EXPECT_TRUE(layout.undoHistory.empty());
    EXPECT_EQ(host.dirtyMarks, 0);
  }
};

TEST_F(AutofillGap, OffersTheRowsAndLaysTheChosenOne) {
  layGap(188.3);
  host.chosenFill = 1;
  autofillGap(context);
  EXPECT_NEAR(host.offeredGap, 188.3, 1e-9);
  EXPECT_EQ(host.offeredFills,
            (std::vector<std::string>{"24188  (188.3 mm)", "24094 + 24094  (188.4 mm)"}));
  ASSERT_EQ(layout.pieces.size(), 4u);
  EXPECT_EQ(layout.pieces[2].cat, "24094");
  EXPECT_TRUE(bothSelected());
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(host.viewRefreshes, 1);
  EXPECT_EQ(host.selectionChanges, 0);
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 4");
  EXPECT_TRUE(host.boxes.empty());
}

TEST_F(AutofillGap, CancelKeepsBothPiecesSelectedAndTheLayoutUntouched) {
  layGap(188.3);
  const std::vector<Piece> before = layout.pieces;
  autofillGap(context);
  EXPECT_EQ(host.offeredFills.size(), 2u);
  EXPECT_EQ(layout.pieces, before);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
  EXPECT_EQ(host.viewRefreshes, 0);
}

TEST_F(AutofillGap, ARowThatIsNotThereIsNotLaid) {
  layGap(188.3);
  host.chosenFill = 2;
  autofillGap(context);
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(AutofillGap, AGapThatNothingFillsIsToldAndDeselects) {
  layGap(100.0);
  autofillGap(context);
  expectRefusal("Autofill - No Solution",
                "Gap is 100.0mm. No combination of catalog straights fills it within tolerance.");
  EXPECT_TRUE(nothingSelected());
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_EQ(host.repaints, 1);
}

TEST_F(AutofillGap, TouchingPiecesAreToldAndDeselected) {
  layGap(0.9);
  autofillGap(context);
  expectRefusal("Autofill", "The two pieces are already touching - no gap to fill.");
  EXPECT_TRUE(nothingSelected());
}

TEST_F(AutofillGap, PiecesThatDoNotFaceAreToldAndDeselected) {
  layGap(188.3);
  layout.pieces[1].heading = 90.0;
  autofillGap(context);
  expectRefusal("Autofill", "Could not find facing free connectors on the two selected pieces.");
  EXPECT_TRUE(nothingSelected());
}

TEST_F(AutofillGap, MixedSystemsAreToldAndStaySelected) {
  layGap(188.3);
  layout.pieces[1].cat = "2200";
  autofillGap(context);
  expectRefusal("Autofill - Mixed Track Systems",
                "Autofill can only run on pieces of the same track series.\n\nSelected pieces:\n"
                "  - 24188 (Marklin C-Track)\n  - 2200 (Marklin K-Track)");
  EXPECT_TRUE(bothSelected());
  EXPECT_EQ(host.selectionChanges, 0);
  EXPECT_EQ(host.repaints, 0);
}

TEST_F(AutofillGap, AnyOtherSelectionDoesNothing) {
  layGap(188.3);
  layout.pieces[0].sel = false;
  autofillGap(context);
  EXPECT_TRUE(host.boxes.empty());
  EXPECT_TRUE(host.offeredFills.empty());
  EXPECT_TRUE(layout.pieces[1].sel);
}

}  // namespace
}  // namespace vantrel
