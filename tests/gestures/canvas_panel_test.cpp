// The real window: that it translates the toolkit's events and offers the gestures what they ask.
#include "canvas/canvas_panel.h"

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/weakref.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "canvas/operations/placing.h"
#include "catalog/track_catalog.h"
#include "tests/support/waiting.h"

namespace vantrel {
namespace {

class FakeWorkspace : public Workspace {
 public:
  Layout document;
  int dirtyMarks = 0;
  int selectionChanges = 0;
  std::array<std::string, 3> texts;

  Layout& layout() override { return document; }
  void markDirty() override { ++dirtyMarks; }
  void selectionChanged() override { ++selectionChanges; }
  void refreshViews() override {}
  void noteCanvasClick(Vec2) override {}
  void setStatus(StatusField field, const std::string& text) override { texts.at(field) = text; }
  std::string status(StatusField field) const override { return texts.at(field); }
  void clickToolEnded(std::int32_t) override {}
  void placeHelix(std::string_view, const Pose&) override {}
};

// Answers every dialog with OK and remembers it.
class BoxWatcher : public wxModalDialogHook {
 public:
  BoxWatcher() { Register(); }

  std::vector<wxString> titles;
  std::vector<wxString> texts;
  std::vector<long> styles;
  wxWindow* parent = nullptr;

 protected:
  int Enter(wxDialog* dialog) override {
    titles.push_back(dialog->GetTitle());
    parent = dialog->GetParent();
    if (const auto* box = dynamic_cast<wxMessageDialog*>(dialog)) {
      texts.push_back(box->GetMessage());
      styles.push_back(box->GetMessageDialogStyle());
    }
    return wxID_OK;
  }
};

class CanvasWindow : public testing::Test {
 protected:
  CanvasWindow()
      : frame(new wxFrame(nullptr, wxID_ANY, "canvas", wxPoint(0, 0), wxSize(900, 700))) {
    canvas = new CanvasPanel(frame, workspace);
    frame->Show();
    settle();
  }
  ~CanvasWindow() override {
    const wxWeakRef<wxFrame> leaving(frame);
    frame->Destroy();
    EXPECT_TRUE(WaitUntil([&leaving] { return leaving.get() == nullptr; }));
  }

  // Lets the display server and the toolkit catch up.
  void settle() { WaitUntilSettled(*canvas); }
  // For tests of what makes the canvas paint, which don't ask for a paint themselves.
  bool comesToSay(StatusField field, const std::string& text) {
    return WaitUntil([&] { return workspace.texts[field] == text; });
  }

  bool mouse(wxEventType type, int x, int y, bool left = false, int rotation = 0,
             bool shift = false) {
    wxMouseEvent event(type);
    event.SetEventObject(canvas);
    event.SetX(x);
    event.SetY(y);
    event.SetLeftDown(left);
    event.SetShiftDown(shift);
    event.m_wheelRotation = rotation;
    return canvas->HandleWindowEvent(event);
  }
  bool middle(wxEventType type, int x, int y, bool down) {
    wxMouseEvent event(type);
    event.SetEventObject(canvas);
    event.SetPosition({x, y});
    event.SetMiddleDown(down);
    return canvas->HandleWindowEvent(event);
  }
  bool key(wxEventType type, int code, wxChar unicode = 0, bool ctrl = false) {
    wxKeyEvent event(type);
    event.SetControlDown(ctrl);
    event.SetEventObject(canvas);
    event.m_keyCode = code;
    event.m_uniChar = unicode;
    return canvas->HandleWindowEvent(event);
  }
  void lay(const std::string& part, const Pose& pose) {
    Piece piece = NewPiece(*findPart(part), pose);
    piece.id = workspace.document.nextId++;
    workspace.document.pieces.push_back(piece);
  }

  FakeWorkspace workspace;
  wxFrame* frame;
  CanvasPanel* canvas = nullptr;
};

TEST_F(CanvasWindow, HasTheStylesOfAPaintingSurface) {
  EXPECT_TRUE(canvas->HasFlag(wxFULL_REPAINT_ON_RESIZE));
  EXPECT_TRUE(canvas->HasFlag(wxWANTS_CHARS));
  EXPECT_EQ(canvas->GetBackgroundStyle(), wxBG_STYLE_PAINT);
}

TEST_F(CanvasWindow, PaintsWheneverItIsRefreshed) {
  GradeRun run;
  run.deg = 2.5;
  workspace.document.gradeRuns.push_back(run);
  canvas->Refresh();
  EXPECT_TRUE(comesToSay(kStatusMessage, "[ELEV] 2.5 deg  (right-click piece to stop)"));
}

TEST_F(CanvasWindow, PaintsAgainAfterAChangeOfSize) {
  settle();
  workspace.texts[kStatusMessage] = "[ELEV] stale";
  frame->SetSize(1000, 750);
  EXPECT_TRUE(comesToSay(kStatusMessage, "Ready"));
}

TEST_F(CanvasWindow, ADragFromThePaletteEndsInAPieceAtTheNextPress) {
  canvas->beginPieceDrag("24188");
  EXPECT_TRUE(canvas->HasCapture());
  mouse(wxEVT_MOTION, 100, 100, true);
  mouse(wxEVT_LEFT_UP, 100, 100);
  EXPECT_FALSE(canvas->HasCapture());
  mouse(wxEVT_MOTION, 160, 140);
  EXPECT_EQ(workspace.texts[kStatusPosition], "250 mm,  200 mm");
  EXPECT_TRUE(mouse(wxEVT_LEFT_DOWN, 160, 140, true));
  mouse(wxEVT_LEFT_UP, 160, 140);
  ASSERT_EQ(workspace.document.pieces.size(), 1u);
  EXPECT_EQ(workspace.document.pieces[0].pose(), (Pose{250.0, 200.0, 0.0}));
  EXPECT_EQ(workspace.dirtyMarks, 1);
  EXPECT_EQ(workspace.selectionChanges, 1);
  EXPECT_EQ(workspace.texts[kStatusPieces], "Pieces: 1");
  settle();
}

TEST_F(CanvasWindow, WhatHangsAtThePointerFollowsAJumpIntoTheWindow) {
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_ENTER_WINDOW, 160, 140);
  EXPECT_EQ(canvas->state().paletteDrag.at, (Vec2{250.0, 200.0}));
}

// The presses of two double clicks as the toolkit tells them: it takes the third for a triple
// click, and leaves the fourth alone. The straight has two ends to go on from.
TEST_F(CanvasWindow, TwoDoubleClicksInQuickSuccessionExtendThePieceTwice) {
  lay("24188", {250.0, 200.0, 0.0});
  long timeMs = 10000;
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_LEFT_DOWN, wxEVT_LEFT_DOWN}) {
    wxMouseEvent event(type);
    event.SetEventObject(canvas);
    event.SetPosition({190, 140});
    event.SetLeftDown(true);
    event.SetTimestamp(timeMs);
    canvas->HandleWindowEvent(event);
    mouse(wxEVT_LEFT_UP, 190, 140);
    timeMs += 50;
  }
  EXPECT_EQ(workspace.document.pieces.size(), 3u);
}

TEST_F(CanvasWindow, QuickRightPressesTurnAStepEach) {
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_RIGHT_DOWN, 100, 100);
  mouse(wxEVT_RIGHT_UP, 100, 100);
  mouse(wxEVT_RIGHT_DCLICK, 100, 100);
  mouse(wxEVT_RIGHT_UP, 100, 100);
  EXPECT_EQ(canvas->state().paletteDrag.rotation, 60.0);
}

TEST_F(CanvasWindow, TheMiddleButtonPansAlsoWhenPressedTwiceInQuickSuccession) {
  EXPECT_TRUE(middle(wxEVT_MIDDLE_DOWN, 100, 100, true));
  EXPECT_TRUE(canvas->HasCapture());
  middle(wxEVT_MOTION, 110, 120, true);
  EXPECT_TRUE(middle(wxEVT_MIDDLE_UP, 110, 120, false));
  EXPECT_FALSE(canvas->HasCapture());
  EXPECT_TRUE(middle(wxEVT_MIDDLE_DCLICK, 110, 120, true));
  middle(wxEVT_MOTION, 115, 120, true);
  middle(wxEVT_MIDDLE_UP, 115, 120, false);
  middle(wxEVT_MOTION, 300, 300, false);
  EXPECT_EQ(canvas->view().offsetX, 75.0);
  EXPECT_EQ(canvas->view().offsetY, 80.0);
}

TEST_F(CanvasWindow, ARightReleaseGivesTheMouseBackAndKeepsTheDrag) {
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_RIGHT_DOWN, 100, 100);
  ASSERT_TRUE(canvas->HasCapture());
  EXPECT_FALSE(mouse(wxEVT_RIGHT_UP, 100, 100));
  EXPECT_FALSE(canvas->HasCapture());
  EXPECT_TRUE(canvas->state().paletteDrag.active);
}

TEST_F(CanvasWindow, APressTakesTheKeyboardFocus) {
  auto* other = new wxWindow(frame, wxID_ANY);
  other->SetFocus();
  ASSERT_EQ(wxWindow::FindFocus(), other);
  mouse(wxEVT_LEFT_DOWN, 100, 100, true);
  EXPECT_EQ(wxWindow::FindFocus(), canvas);
}

TEST_F(CanvasWindow, TheWheelZoomsOrTurns) {
  EXPECT_TRUE(mouse(wxEVT_MOUSEWHEEL, 60, 60, false, 120));
  EXPECT_NEAR(canvas->view().scale, 0.46, 1e-12);
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_MOUSEWHEEL, 60, 60, false, 120, true);
  EXPECT_EQ(canvas->state().paletteDrag.rotation, 15.0);
  EXPECT_NEAR(canvas->view().scale, 0.46, 1e-12);
}

TEST_F(CanvasWindow, ASidewaysWheelIsLeftAlone) {
  wxMouseEvent event(wxEVT_MOUSEWHEEL);
  event.SetEventObject(canvas);
  event.m_wheelAxis = wxMOUSE_WHEEL_HORIZONTAL;
  event.m_wheelRotation = 120;
  canvas->HandleWindowEvent(event);
  EXPECT_EQ(canvas->view().scale, 0.4);
}

TEST_F(CanvasWindow, TypedPlusAndMinusZoom) {
  EXPECT_TRUE(key(wxEVT_CHAR, '+', '+'));
  EXPECT_NEAR(canvas->view().scale, 0.5, 1e-12);
  EXPECT_TRUE(key(wxEVT_CHAR, '-', '-'));
  EXPECT_NEAR(canvas->view().scale, 0.4, 1e-12);
  EXPECT_TRUE(key(wxEVT_CHAR, WXK_NUMPAD_ADD));
  EXPECT_NEAR(canvas->view().scale, 0.5, 1e-12);
  EXPECT_FALSE(key(wxEVT_CHAR, 'x', 'x'));
}

TEST_F(CanvasWindow, RAndEscReachTheDrag) {
  canvas->beginPieceDrag("24188");
  EXPECT_TRUE(key(wxEVT_KEY_DOWN, 'R'));
  EXPECT_EQ(canvas->state().paletteDrag.rotation, 30.0);
  EXPECT_FALSE(key(wxEVT_KEY_DOWN, 'R', 0, true));  // a chord with Ctrl
  EXPECT_EQ(canvas->state().paletteDrag.rotation, 30.0);
  EXPECT_TRUE(key(wxEVT_KEY_DOWN, WXK_ESCAPE));
  EXPECT_FALSE(canvas->state().paletteDrag.active);
  EXPECT_FALSE(canvas->HasCapture());
  // From now on it clears the selection.
  EXPECT_TRUE(key(wxEVT_KEY_DOWN, WXK_ESCAPE));
}

TEST_F(CanvasWindow, DeleteAndBackspaceAreItsOwnCommandThatDeletesShapesToo) {
  for (const int code : {WXK_DELETE, WXK_BACK}) {
    wxKeyEvent pressed(wxEVT_KEY_DOWN);
    pressed.m_keyCode = code;
    EXPECT_EQ(canvas->GetAcceleratorTable()->GetCommand(pressed), 5038) << code;
  }
  workspace.document.shapes.resize(2);
  workspace.document.shapes[1].sel = true;
  wxCommandEvent command(wxEVT_MENU, 5038);
  command.SetEventObject(canvas);
  EXPECT_TRUE(canvas->HandleWindowEvent(command));
  ASSERT_EQ(workspace.document.shapes.size(), 1u);
  EXPECT_FALSE(workspace.document.shapes[0].sel);
  EXPECT_EQ(workspace.dirtyMarks, 1);
}

TEST_F(CanvasWindow, SpaceHeldWithTheLeftButtonPans) {
  key(wxEVT_KEY_DOWN, WXK_SPACE);
  mouse(wxEVT_MOTION, 100, 100, true);
  mouse(wxEVT_MOTION, 130, 110, true);
  EXPECT_EQ(canvas->view().offsetX, 90.0);
  EXPECT_EQ(canvas->view().offsetY, 70.0);
  mouse(wxEVT_LEFT_UP, 130, 110);
  key(wxEVT_KEY_UP, WXK_SPACE);
  mouse(wxEVT_MOTION, 100, 100, true);
  mouse(wxEVT_MOTION, 200, 200, true);
  EXPECT_EQ(canvas->view().offsetX, 90.0);
}

TEST_F(CanvasWindow, SpaceIsForgottenWithTheFocusSinceItsReleaseGoesElsewhere) {
  key(wxEVT_KEY_DOWN, WXK_SPACE);
  wxFocusEvent lost(wxEVT_KILL_FOCUS, canvas->GetId());
  lost.SetEventObject(canvas);
  canvas->HandleWindowEvent(lost);
  mouse(wxEVT_MOTION, 100, 100, true);
  mouse(wxEVT_MOTION, 130, 110, true);
  EXPECT_EQ(canvas->view().offsetX, 60.0);
}

TEST_F(CanvasWindow, AMouseTakenAwayLeavesTheDragAndTheNextPressDrops) {
  canvas->beginPieceDrag("24188");
  ASSERT_TRUE(canvas->HasCapture());
  // As the toolkit does it: the window no longer has the mouse when it is told.
  canvas->ReleaseMouse();
  wxMouseCaptureLostEvent lost(canvas->GetId());
  lost.SetEventObject(canvas);
  EXPECT_TRUE(canvas->HandleWindowEvent(lost));
  EXPECT_FALSE(canvas->HasCapture());
  mouse(wxEVT_MOTION, 160, 140);
  mouse(wxEVT_LEFT_DOWN, 160, 140, true);
  mouse(wxEVT_LEFT_UP, 160, 140);
  EXPECT_EQ(workspace.document.pieces.size(), 1u);
}

TEST_F(CanvasWindow, AMouseTakenAwayEndsADragOfTheSelectionWhereItIs) {
  lay("24188", {250.0, 200.0, 0.0});
  mouse(wxEVT_LEFT_DOWN, 190, 140, true);
  mouse(wxEVT_MOTION, 210, 148, true);
  ASSERT_TRUE(canvas->state().selectionDrag.active);
  ASSERT_TRUE(canvas->HasCapture());
  canvas->ReleaseMouse();
  wxMouseCaptureLostEvent lost(canvas->GetId());
  lost.SetEventObject(canvas);
  EXPECT_TRUE(canvas->HandleWindowEvent(lost));
  EXPECT_FALSE(canvas->state().selectionDrag.active);
  EXPECT_EQ(workspace.dirtyMarks, 1);
  // 20 and 8 pixels at 0.4 pixels a mm; the button is still held elsewhere.
  mouse(wxEVT_MOTION, 300, 300, true);
  EXPECT_EQ(workspace.document.pieces[0].pose(), (Pose{300.0, 220.0, 0.0}));
}

TEST_F(CanvasWindow, ADialogDuringADragTakesTheMouseAndTheDragGoesOn) {
  canvas->beginPieceDrag("24188");
  ASSERT_TRUE(canvas->HasCapture());
  wxDialog dialog(frame, wxID_ANY, "in between");
  dialog.CallAfter([&dialog] { dialog.EndModal(wxID_OK); });
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
  EXPECT_FALSE(canvas->HasCapture());
  EXPECT_TRUE(canvas->state().paletteDrag.active);
  mouse(wxEVT_LEFT_DOWN, 160, 140, true);
  mouse(wxEVT_LEFT_UP, 160, 140);
  EXPECT_EQ(workspace.document.pieces.size(), 1u);
}

TEST_F(CanvasWindow, CanBeClosedInTheMiddleOfADrag) {
  canvas->beginPieceDrag("24188");
  EXPECT_TRUE(canvas->HasCapture());
  canvas->Destroy();
  EXPECT_EQ(wxWindow::GetCapture(), nullptr);
}

TEST_F(CanvasWindow, TheRefusalIsABoxOfTheFrame) {
  lay("2200", {0.0, 0.0, 0.0});
  BoxWatcher boxes;
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_MOTION, 134, 60);  // 185 mm: 5 off the K-Track end at 180
  mouse(wxEVT_LEFT_DOWN, 134, 60, true);
  ASSERT_EQ(boxes.titles.size(), 1u);
  EXPECT_EQ(boxes.titles[0], "Incompatible Track Systems");
  ASSERT_EQ(boxes.texts.size(), 1u);
  EXPECT_TRUE(boxes.texts[0].StartsWith("Marklin C-Track cannot connect to Marklin K-Track.\n\n"));
  EXPECT_EQ(boxes.parent, frame);
  EXPECT_TRUE(boxes.styles[0] & wxOK);
  EXPECT_TRUE(boxes.styles[0] & wxICON_EXCLAMATION);
  EXPECT_EQ(workspace.document.pieces.size(), 1u);
  EXPECT_FALSE(canvas->HasCapture());
}

TEST_F(CanvasWindow, OffersTheViewToTheFrame) {
  canvas->zoomAt({60, 60}, 2.0);
  EXPECT_NEAR(canvas->view().scale, 0.8, 1e-12);
  canvas->resetViewUnitScale();
  EXPECT_EQ(canvas->view().scale, 1.0);
  canvas->resetView();
  EXPECT_EQ(canvas->view(), ViewTransform{});
  canvas->zoomCentred(1.25);
  EXPECT_NEAR(canvas->view().scale, 0.5, 1e-12);
  canvas->zoomToFit(false);
  EXPECT_EQ(canvas->view(), ViewTransform{});
  workspace.document.baseboard = {{0.0, 0.0}, {9000.0, 0.0}, {9000.0, 9000.0}};
  canvas->zoomToFit(false);
  EXPECT_LT(canvas->view().scale, 0.1);
  canvas->zoomToFit(true);
  EXPECT_EQ(canvas->view(), ViewTransform{});
  canvas->showGrid(false);
  EXPECT_FALSE(workspace.document.gridVisible);
}

TEST_F(CanvasWindow, PaintsPlansFullOfNumbersWithoutMeaning) {
  for (const double bad : {1e308, -1e308, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()}) {
    lay("24188", {bad, bad, bad});
    lay("24611", {0.0, bad, 0.0});
  }
  canvas->zoomToFit(false);
  settle();
  canvas->beginPieceDrag("24188");
  mouse(wxEVT_MOTION, 200, 200);
  settle();
  EXPECT_TRUE(canvas->state().paletteDrag.active);
}

TEST_F(CanvasWindow, TheToolCursorIsTheCross) {
  canvas->setToolCursor(true);
  EXPECT_TRUE(canvas->GetCursor().IsOk());
  canvas->setToolCursor(false);
  EXPECT_FALSE(canvas->GetCursor().IsOk());
}

TEST_F(CanvasWindow, AHelixDragHangsTheKitAtThePointer) {
  canvas->beginHelixDrag("proses_2_5_r1r2");
  EXPECT_TRUE(canvas->state().helixPlacement.active);
  EXPECT_TRUE(canvas->HasCapture());
  canvas->cancelPaletteDrag();
  EXPECT_FALSE(canvas->HasCapture());
}

TEST_F(CanvasWindow, AHelixIsPlacedWithoutAPreviewToo) {
  canvas->placeHelix("proses_2_5_r1r2", {500.0, 500.0, 0.0});
  EXPECT_EQ(workspace.document.helices.size(), 1u);
  EXPECT_FALSE(canvas->state().helixPlacement.active);
  EXPECT_EQ(workspace.dirtyMarks, 1);
}

}  // namespace
}  // namespace vantrel
