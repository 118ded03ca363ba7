#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>

#include <functional>
#include <utility>

#include "canvas/canvas_panel.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

void Press(wxWindow& dialog, const wxString& label) {
  auto* button = FindControl<wxButton>(dialog, label);
  ASSERT_NE(button, nullptr) << label;
  wxCommandEvent click(wxEVT_BUTTON, button->GetId());
  click.SetEventObject(button);
  button->ProcessWindowEvent(click);
}

class LayoutDialogs : public FrameTest {
 protected:
  // Layout, Layout Shape with one of its choices, ended by a button.
  void chooseShape(int shape, const wxString& button) {
    ModalScript script;
    script.shown("Layout Baseboard", [=](wxDialog& dialog) {
      auto* choice = FindControl<wxChoice>(dialog);
      choice->SetSelection(shape);
      wxCommandEvent event(wxEVT_CHOICE, choice->GetId());
      event.SetEventObject(choice);
      choice->ProcessWindowEvent(event);
      Press(dialog, button);
    });
    command(kCmdLayoutShape);
  }
  void openLevels(const ModalScript::Action& act) {
    ModalScript script;
    script.shown("Manage Levels", [&act](wxDialog& dialog) {
      act(dialog);
      Press(dialog, "Close");
    });
    command(kCmdLevels);
  }
  // Whether the canvas is painted because of `act`, which is to show nothing on the screen.
  bool paints(const std::function<void()>& act) {
    showFrame();
    waitForRest();
    const PaintCount paints(frame().canvas());
    act();
    return WaitUntil([&paints] { return paints.count() > 0; });
  }
};

const std::vector<Vec2> kTable = {{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}};

TEST_F(LayoutDialogs, AChosenShapeBecomesTheBaseboardAndMarksTheLayoutChanged) {
  chooseShape(0, "Apply");
  EXPECT_EQ(plan().baseboard, kTable);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(title(), "Vantrel v1.5 by Kelmor *");
  EXPECT_EQ(plan().toolMode, 0);
  EXPECT_TRUE(plan().undoHistory.empty());
}

TEST_F(LayoutDialogs, ClearTakesTheBaseboardAway) {
  plan().baseboard = kTable;
  chooseShape(6, "Apply");
  EXPECT_TRUE(plan().baseboard.empty());
  EXPECT_TRUE(frame().dirty());
}

TEST_F(LayoutDialogs, ACustomPageLeftEmptyTakesTheBaseboardAway) {
  plan().baseboard = kTable;
  ModalScript script;
  plan().lastShape.id = 4;
  script.shown("Layout Baseboard", [](wxDialog& dialog) {
    FindControl<wxTextCtrl>(dialog)->SetValue("");
    Press(dialog, "Apply");
  });
  command(kCmdLayoutShape);
  EXPECT_TRUE(plan().baseboard.empty());
  EXPECT_TRUE(frame().dirty());
}

TEST_F(LayoutDialogs, CancelKeepsTheBaseboardAndTheLayoutClean) {
  plan().baseboard = kTable;
  chooseShape(6, "Cancel");
  EXPECT_EQ(plan().baseboard, kTable);
  EXPECT_EQ(plan().lastShape, LastShape{});
  EXPECT_FALSE(frame().dirty());
}

TEST_F(LayoutDialogs, FreeFormArmsTheCanvasAndChangesNothingYet) {
  plan().baseboard = kTable;
  addPiece().sel = true;
  chooseShape(5, "Apply");
  EXPECT_EQ(plan().toolMode, 5);
  EXPECT_TRUE(frame().canvas().GetCursor().IsOk()) << "the normal arrow is none";
  EXPECT_EQ(statusText(kStatusMessage),
            "Click vertices to outline the baseboard. Click first vertex (or press Enter) to "
            "close. Backspace removes last vertex; Escape cancels.");
  EXPECT_EQ(plan().baseboard, kTable);
  EXPECT_TRUE(plan().pieces[0].sel);
  EXPECT_FALSE(frame().dirty());
  EXPECT_TRUE(plan().undoHistory.empty());
}

TEST_F(LayoutDialogs, FreeFormTakesOverFromTheOtherTools) {
  for (const int other : {kCmdMeasure, kCmdPolygon}) {
    frame().GetToolBar()->ToggleTool(other, true);
    command(other, true);
    chooseShape(5, "Apply");
    EXPECT_EQ(plan().toolMode, 5);
    EXPECT_FALSE(frame().GetToolBar()->GetToolState(other));
  }
}

TEST_F(LayoutDialogs, LevelsStartWithADefaultLevelAndMarkTheLayoutChanged) {
  openLevels([this](wxDialog& dialog) {
    ASSERT_EQ(plan().levels.size(), 1u);
    EXPECT_EQ(plan().levels[0].name, "Level 1");
    EXPECT_EQ(FindControl<wxListCtrl>(dialog)->GetItemCount(), 1);
  });
  EXPECT_TRUE(frame().dirty());
}

TEST_F(LayoutDialogs, ALevelsNameThatWasAgreedToThereIsNotAskedAboutBySave) {
  WriteFileText(inStore("Attic.vtl"), LayoutText("Attic"));
  frame().LoadIntoFrame(inStore("Attic.vtl"));
  ModalScript script;
  // As the dialog's own question leaves it, answered with Yes.
  script.dialog("Manage Levels", wxID_OK, [this](wxDialog&) { plan().levels[0].name = "A r="; });
  command(kCmdLevels);
  command(kCmdSave);
  EXPECT_FALSE(frame().dirty());
  EXPECT_NE(ReadFileText(inStore("Attic.vtl")).find("name=\"A r=\""), std::string::npos);
}

TEST_F(LayoutDialogs, LevelsMarkTheLayoutChangedEvenWhenTheDialogWasCancelled) {
  ModalScript script;
  script.dialog("Manage Levels", wxID_CANCEL);
  command(kCmdLevels);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(LayoutDialogs, WhatARemovedLevelTookAlongIsGoneFromPanelAndStatusBar) {
  plan().levels.resize(2);
  plan().levels[1].id = 2;
  addPiece();
  Piece& upper = addPiece();
  upper.level = 2;
  upper.sel = true;
  frame().selectionChanged();
  EXPECT_EQ(frame().properties().page().pieceId, 2);
  openLevels([](wxDialog& dialog) {
    FindControl<wxListCtrl>(dialog)->SetItemState(1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    ModalScript script;
    script.dialog("Remove Level \xE2\x80\x94 Confirm Deletion", wxID_OK);
    Press(dialog, "Remove Level");
  });
  EXPECT_EQ(plan().pieces.size(), 1u);
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 1");
  EXPECT_EQ(frame().properties().page().pieceId, -1);
}

TEST_F(LayoutDialogs, ABaseboardThatWentIsGoneFromTheCanvas) {
  plan().baseboard = kTable;
  ModalScript script;
  script.dialog("Layout Baseboard", wxID_OK);
  EXPECT_TRUE(paints([this] { command(kCmdLayoutShape); }));
}

TEST_F(LayoutDialogs, WhatTheLevelsDialogDidIsPaintedHoweverItEnds) {
  ModalScript script;
  script.dialog("Manage Levels", wxID_CANCEL);
  EXPECT_TRUE(paints([this] { command(kCmdLevels); }));
}

// The view at scale 1 has its origin at pixel (60, 60).
TEST_F(LayoutDialogs, ADragEndsBeforeADialogOpens) {
  for (const auto& [id, title] :
       {std::pair(kCmdLevels, "Manage Levels"), std::pair(kCmdLayoutShape, "Layout Baseboard")}) {
    plan().pieces.clear();
    addPiece();
    showFrame();
    frame().canvas().resetViewUnitScale();
    dragOnCanvas({160, 60}, {160, 260});
    ASSERT_TRUE(frame().canvas().HasCapture());
    ModalScript script;
    script.dialog(title, wxID_CANCEL,
                  [this](wxDialog&) { EXPECT_FALSE(frame().canvas().HasCapture()); });
    command(id);
    mouseOnCanvas(wxEVT_MOTION, {160, 360}, true);
    EXPECT_EQ(plan().pieces[0].y, 200.0) << title;
    mouseOnCanvas(wxEVT_LEFT_UP, {160, 360}, false);
  }
}

}  // namespace
}  // namespace vantrel
