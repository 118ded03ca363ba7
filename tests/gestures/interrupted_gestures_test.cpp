// Every gesture, interrupted in its middle by everything that can come between: nothing crashes,
// nothing stays captured, and the next click works.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <tuple>

#include "canvas/gestures/deleting.h"
#include "canvas/gestures/gesture_end.h"
#include "canvas/gestures/helix_placement.h"
#include "canvas/gestures/palette_drag.h"
#include "canvas/gestures/scenery_drag.h"
#include "catalog/scenery_catalog.h"
#include "doc/undo.h"
#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class InterruptedGesture;

struct GestureCase {
  const char* name;
  void (InterruptedGesture::*begin)();
  bool (*isActive)(const CanvasState&);
};
void PrintTo(const GestureCase& gesture, std::ostream* out) {
  *out << gesture.name;
}

struct Interruption {
  const char* name;
  void (InterruptedGesture::*act)();
};
void PrintTo(const Interruption& interruption, std::ostream* out) {
  *out << interruption.name;
}

class InterruptedGesture
    : public EditingTest,
      public testing::WithParamInterface<std::tuple<GestureCase, Interruption>> {
 public:
  Ids chain;
  double halfPlatform = 0.0;

  void SetUp() override {
    EditingTest::SetUp();
    EnsureDefaultLevel(layout);
    layout.levels[0].outline = {{4000, 100}, {5000, 100}, {5000, 900}, {4000, 900}};
    chain = layChain(3, 100.0, 100.0);
    layHelix({3000.0, 3000.0});
    layScenery("platform", {500.0, 1000.0, 0.0});
    halfPlatform = findScenery("platform")->width / 2.0;
    layout.labels.push_back({.id = layout.nextId++, .x = 100.0, .y = 1500.0});
    layout.measurements.push_back(
        {.id = layout.nextId++, .startX = 100.0, .startY = 1700.0, .endX = 500.0, .endY = 1700.0});
    layShape({100.0, 2000.0}, 100.0);
    PushUndo(layout);
  }

  // The gestures, each begun and under way; the pointer ends within 40 pixels of its press.
  void palette() { beginPieceDrag(context, "24188"); }
  void scenery() { beginSceneryDrag(context, "platform"); }
  void helix() { beginHelixPlacement(context, "proses_2_5_r1r2"); }
  void middlePan() {
    pressMiddle(1500, 500);
    move(1540, 500);
  }
  void ctrlPan() {
    held.mods.ctrl = true;
    drag(1500, 500);
  }
  void spacePan() {
    pressLeft(1500, 500);
    held.spaceDown = true;
    move(1500, 500);
    move(1540, 500);
  }
  // Space held after a gesture has begun that lets it pan.
  void rotateAndSpacePan() {
    rotate();
    held.spaceDown = true;
    move(350, 350);
  }
  void pending() { pressLeft(350, 100); }
  void pieceDrag() { drag(350, 100); }
  void helixDrag() { drag(3050, 2640); }
  void sceneryMove() { drag(500, 1000); }
  void label() { drag(110, 1510); }
  void band() { drag(1500, 500); }
  void deck() {
    held.mods.shift = true;
    drag(4000, 500);
  }
  void tape() { drag(150, 1703); }
  void shape() { drag(150, 2050); }
  void rotate() {
    select({chain[1]});
    held.mods.alt = true;
    drag(350, 300);
  }
  void resize() {
    layout.scenery[0].sel = true;
    drag(static_cast<int>(500.0 + halfPlatform), 1000);
  }
  void tapeDraft() {
    layout.toolMode = kMeasureTool;
    clickLeft(1500, 500);
    move(1540, 510);
  }
  // Ready to be closed: the pointer is near the first vertex.
  void polygonDraft() { draftOutline(kPolygonTool); }
  void baseboardDraft() { draftOutline(kBaseboardTool); }

  // What comes between.
  void escape() { key(WXK_ESCAPE); }
  void loseCapture() {
    host.captured = false;
    onCaptureLost(context);
  }
  void loseButton() {
    held.leftDown = held.middleDown = false;
    move(1300, 900);
  }
  void undo() { Undo(layout); }
  void redoToo() {
    Undo(layout);
    move(360, 120);
    Redo(layout);
  }
  void newPlan() {
    ClearContents(layout);
    layout.levels.clear();
    EnsureDefaultLevel(layout);
  }
  void endAll() {
    endGestures(context);
    EXPECT_FALSE(isGestureActive(state));
    EXPECT_FALSE(host.captured);
  }
  void deleteByKey() { key(WXK_DELETE); }
  void deleteByCommand() { deleteFromCanvas(context); }
  void deleteRefused() {
    for (Piece& p : layout.pieces) p.grade = p.sel ? 2.0 : 0.0;
    deleteFromCanvas(context);
  }
  void deleteLocked() {
    for (const Piece& p : layout.pieces) layTunnel({p.id});
    deleteFromCanvas(context);
  }
  void selectAll() {
    for (Piece& p : layout.pieces) p.sel = true;
    for (SceneryItem& s : layout.scenery) s.sel = true;
  }
  void rightPress() {
    pressRight(150, 100);
    onRightRelease(context, at(150, 100));
  }
  void rightPressBeside() { pressRight(1500, 500); }
  void altRightPress() {
    held.mods.alt = true;
    pressRight(150, 100);
  }
  void middleClick() {
    pressMiddle(1500, 500);
    move(1520, 520);
    releaseMiddle(1520, 520);
  }
  void middleHeld() {
    pressMiddle(1500, 500);
    move(1520, 520);
  }
  void doubleClickOnTrack() { onDoubleClick(context, at(150, 100)); }
  void pressAgain() { pressLeft(600, 100); }
  void pressOnNothing() { pressLeft(1500, 500); }
  void ctrlWheel() {
    held.mods.ctrl = true;
    wheel(350, 100, 120);
  }
  void space() {
    held.spaceDown = true;
    move(380, 130);
  }

 protected:
  void drag(int x, int y) {
    pressLeft(x, y);
    move(x + 20, y + 10);
    move(x + 40, y + 10);
  }

  void draftOutline(std::int32_t tool) {
    layout.toolMode = tool;
    clickLeft(1500, 500);
    clickLeft(1900, 500);
    clickLeft(1900, 800);
    move(1504, 503);
    EXPECT_TRUE(state.polygonDraft.closeHover);
  }

  // The user's hands go back to rest; what still hangs at the pointer is put away.
  void letGo() {
    move(400, 140);
    if (held.middleDown) releaseMiddle(400, 140);
    releaseLeft(400, 140);
    EXPECT_FALSE(host.captured);
    EXPECT_FALSE(isGestureActive(state));
    held = {};
    move(420, 160);
    cancelPaletteDrag(context);
    paint();
    if (layout.toolMode != kNoTool) key(WXK_ESCAPE);
    EXPECT_EQ(layout.toolMode, kNoTool);
    EXPECT_FALSE(state.measureDraft.active);
    EXPECT_FALSE(state.polygonDraft.active);
    if (state.swallowNextClick) clickLeft(7000, 7000);
  }

  // A fresh piece can be selected and dragged, and takes nothing else along.
  void expectAClickAndADragWork() {
    state.view = {.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};
    layout.tunnels.clear();
    const std::int32_t id = lay("24188", {6000.0, 6000.0, 0.0});
    const std::vector<Piece> before(layout.pieces.begin(), layout.pieces.end() - 1);
    clickLeft(6050, 6000);
    EXPECT_EQ(selected(), Ids{id});
    dragLeft(6050, 6000, 6050, 6300);
    EXPECT_EQ(piece(id).pose(), (Pose{6000.0, 6300.0, 0.0}));
    EXPECT_FALSE(host.captured);
    EXPECT_FALSE(isGestureActive(state));
    ASSERT_EQ(layout.pieces.size(), before.size() + 1);
    for (std::size_t i = 0; i < before.size(); ++i)
      EXPECT_EQ(layout.pieces[i].pose(), before[i].pose());
  }
};

TEST_P(InterruptedGesture, LeavesNothingCapturedAndTheNextClickWorks) {
  const auto& [gesture, interruption] = GetParam();
  (this->*gesture.begin)();
  ASSERT_TRUE(gesture.isActive(state));
  (this->*interruption.act)();
  letGo();
  EXPECT_EQ(host.popUpsWhileCaptured, 0);
  EXPECT_EQ(BrokenJoint(layout), "");
  expectAClickAndADragWork();
}

#define VANTREL_IN(flag) [](const CanvasState& state) { return state.flag.active; }

const GestureCase kGestures[] = {
    {"PaletteDrag", &InterruptedGesture::palette, VANTREL_IN(paletteDrag)},
    {"SceneryDrag", &InterruptedGesture::scenery, VANTREL_IN(sceneryDrag)},
    {"HelixPlacement", &InterruptedGesture::helix, VANTREL_IN(helixPlacement)},
    {"MiddlePan", &InterruptedGesture::middlePan, VANTREL_IN(buttonPan)},
    {"CtrlPan", &InterruptedGesture::ctrlPan, VANTREL_IN(buttonPan)},
    {"SpacePan", &InterruptedGesture::spacePan, VANTREL_IN(spacePan)},
    {"RotateAndSpacePan", &InterruptedGesture::rotateAndSpacePan, VANTREL_IN(spacePan)},
    {"SelectionPending", &InterruptedGesture::pending, VANTREL_IN(selectionPending)},
    {"PieceDrag", &InterruptedGesture::pieceDrag, VANTREL_IN(selectionDrag)},
    {"HelixDrag", &InterruptedGesture::helixDrag, VANTREL_IN(selectionDrag)},
    {"SceneryMove", &InterruptedGesture::sceneryMove, VANTREL_IN(selectionDrag)},
    {"LabelDrag", &InterruptedGesture::label, VANTREL_IN(labelDrag)},
    {"RubberBand", &InterruptedGesture::band, VANTREL_IN(rubberBand)},
    {"DeckDrag", &InterruptedGesture::deck, VANTREL_IN(deckDrag)},
    {"MeasureMove", &InterruptedGesture::tape, VANTREL_IN(measureMove)},
    {"ShapeMove", &InterruptedGesture::shape, VANTREL_IN(shapeMove)},
    {"AltRotate", &InterruptedGesture::rotate, VANTREL_IN(altRotate)},
    {"SceneryResize", &InterruptedGesture::resize, VANTREL_IN(sceneryResize)},
    {"MeasureDraft", &InterruptedGesture::tapeDraft, VANTREL_IN(measureDraft)},
    {"PolygonDraft", &InterruptedGesture::polygonDraft, VANTREL_IN(polygonDraft)},
    {"BaseboardDraft", &InterruptedGesture::baseboardDraft, VANTREL_IN(polygonDraft)},
};

#undef VANTREL_IN

const Interruption kInterruptions[] = {
    {"Escape", &InterruptedGesture::escape},
    {"CaptureLost", &InterruptedGesture::loseCapture},
    {"MotionWithoutButton", &InterruptedGesture::loseButton},
    {"Undo", &InterruptedGesture::undo},
    {"UndoAndRedo", &InterruptedGesture::redoToo},
    {"NewLayout", &InterruptedGesture::newPlan},
    {"EndGestures", &InterruptedGesture::endAll},
    {"DeleteKey", &InterruptedGesture::deleteByKey},
    {"DeleteCommand", &InterruptedGesture::deleteByCommand},
    {"DeleteRefused", &InterruptedGesture::deleteRefused},
    {"DeleteLocked", &InterruptedGesture::deleteLocked},
    {"SelectAll", &InterruptedGesture::selectAll},
    {"RightPress", &InterruptedGesture::rightPress},
    {"RightPressBeside", &InterruptedGesture::rightPressBeside},
    {"AltRightPress", &InterruptedGesture::altRightPress},
    {"MiddleClick", &InterruptedGesture::middleClick},
    {"MiddleHeld", &InterruptedGesture::middleHeld},
    {"DoubleClick", &InterruptedGesture::doubleClickOnTrack},
    {"PressOnTrack", &InterruptedGesture::pressAgain},
    {"PressOnNothing", &InterruptedGesture::pressOnNothing},
    {"CtrlWheel", &InterruptedGesture::ctrlWheel},
    {"Space", &InterruptedGesture::space},
};

std::string CaseName(const testing::TestParamInfo<InterruptedGesture::ParamType>& parameter) {
  return std::string(std::get<0>(parameter.param).name) + "By" + std::get<1>(parameter.param).name;
}

INSTANTIATE_TEST_SUITE_P(Every, InterruptedGesture,
                         testing::Combine(testing::ValuesIn(kGestures),
                                          testing::ValuesIn(kInterruptions)),
                         CaseName);

using InterruptedEditing = EditingTest;

TEST_F(InterruptedEditing, EscapeInAHelixDragLeavesTheRingsWithTheirStubs) {
  layHelix({600.0, 600.0});
  pressLeft(650, 240);
  move(650, 340);
  key(WXK_ESCAPE);
  move(650, 540);
  releaseLeft(650, 540);
  // The first motion moved both by 100 mm, the second neither.
  EXPECT_EQ(piece(layout.helices[0].bottomR1).y, 340.0);
  EXPECT_EQ(layout.helices[0].cy, 700.0);
}

TEST_F(InterruptedEditing, OneReleaseEndsAPanAndWhatRanBesideIt) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  pressLeft(150, 100);
  move(150, 200);
  pressMiddle(150, 200);
  EXPECT_TRUE(releaseLeft(150, 200));
  EXPECT_FALSE(state.buttonPan.active);
  EXPECT_FALSE(state.selectionDrag.active);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(piece(id).y, 200.0);
}

TEST_F(InterruptedEditing, APressWithoutTheReleaseBeforeItEndsTheOldDragFirst) {
  const std::int32_t moved = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t other = lay("24188", {100.0, 600.0, 0.0});
  pressLeft(150, 100);
  move(150, 300);
  pressLeft(150, 600);
  EXPECT_FALSE(state.selectionDrag.active);
  EXPECT_TRUE(state.selectionPending.active);
  EXPECT_EQ(host.dirtyMarks, 1);
  EXPECT_EQ(piece(moved).y, 300.0);
  EXPECT_EQ(selected(), Ids{other});
}

TEST_F(InterruptedEditing, ABandWhoseReleaseWasMissedSelectsNothingAtTheNextPress) {
  lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t other = lay("24188", {100.0, 600.0, 0.0});
  pressLeft(50, 50);
  move(400, 300);
  held.mods.ctrl = true;
  pressLeft(150, 600);
  EXPECT_EQ(selected(), Ids{other});
}

TEST_F(InterruptedEditing, ARightPressInAPanPopsUpNoMenuAndKeepsTheSelection) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  select({id});
  pressMiddle(700, 700);
  EXPECT_TRUE(pressRight(150, 100));
  EXPECT_TRUE(pressRight(900, 900));
  EXPECT_TRUE(host.menus.empty());
  EXPECT_EQ(selected(), Ids{id});
  EXPECT_TRUE(host.captured);
}

}  // namespace
}  // namespace vantrel
