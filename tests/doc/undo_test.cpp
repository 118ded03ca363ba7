#include "doc/undo.h"

#include <gtest/gtest.h>

#include <random>

#include "doc/layout_ops.h"

namespace vantrel {
namespace {

std::int32_t AddPiece(Layout& layout, double x) {
  Piece piece;
  piece.id = TakeId(layout);
  piece.cat = "24188";
  piece.x = x;
  layout.pieces.push_back(piece);
  return piece.id;
}

// The steps by which the frame makes a new plan.
void NewPlan(Layout& layout) {
  ClearContents(layout);
  layout.baseboard.clear();
  layout.levels.clear();
  EnsureDefaultLevel(layout);
  layout.activeLevel = 1;
  ResetGrades(layout);
}

// What a snapshot must hold, taken apart from the code under test.
UndoSnapshot StateOf(const Layout& layout) {
  return {layout.pieces,  layout.scenery, layout.labels,    layout.measurements, layout.shapes,
          layout.tunnels, layout.helices, layout.gradeRuns, layout.currentGrade};
}

TEST(PushUndo, CopiesEveryKindOfRecordAndTheGrades) {
  Layout layout;
  layout.pieces.push_back({.id = 1, .cat = "24188", .joints = {{.target = 2, .tconn = 0}}});
  layout.scenery.push_back({.id = 2, .item = "platform"});
  layout.labels.push_back({.id = 3, .text = "Nord"});
  layout.measurements.push_back({.id = 4, .endX = 100.0});
  layout.shapes.push_back({.id = 5, .vertices = {{1.0, 2.0}}});
  layout.tunnels.push_back({.id = 6, .covers = {1}});
  layout.helices.push_back({.id = 7, .cx = 5.0});
  layout.gradeRuns.push_back({.deg = 2.0, .anchor = 1, .conn = 0});
  layout.currentGrade = {.active = true, .deg = 2.0, .anchor = 1, .conn = 0};
  PushUndo(layout);
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  const UndoSnapshot& taken = layout.undoHistory.back();
  EXPECT_EQ(taken.pieces, layout.pieces);
  EXPECT_EQ(taken.scenery, layout.scenery);
  EXPECT_EQ(taken.labels, layout.labels);
  EXPECT_EQ(taken.measurements, layout.measurements);
  EXPECT_EQ(taken.shapes, layout.shapes);
  EXPECT_EQ(taken.tunnels, layout.tunnels);
  EXPECT_EQ(taken.helices, layout.helices);
  EXPECT_EQ(taken.gradeRuns, layout.gradeRuns);
  EXPECT_EQ(taken.currentGrade, layout.currentGrade);
}

TEST(PushUndo, KeepsACopyThatLaterEditsDoNotReach) {
  Layout layout;
  AddPiece(layout, 10.0);
  layout.pieces[0].joints = {{.target = 9, .tconn = 1}};
  PushUndo(layout);
  layout.pieces[0].joints[0].target = 4;
  layout.pieces[0].cat = "24172";
  const Piece& kept = layout.undoHistory.back().pieces[0];
  EXPECT_EQ(kept.joints[0].target, 9);
  EXPECT_EQ(kept.cat, "24188");
}

TEST(PushUndo, Of51StatesKeeps50SoThatTheFirstIsOutOfReach) {
  Layout layout;
  for (int push = 0; push < 51; ++push) {
    PushUndo(layout);  // state number `push` holds `push` pieces
    AddPiece(layout, push);
  }
  EXPECT_EQ(layout.undoHistory.size(), 50u);
  for (int i = 0; i < 60; ++i) Undo(layout);
  EXPECT_EQ(layout.pieces.size(), 1u) << "the state with no piece was dropped";
  EXPECT_EQ(layout.redoHistory.size(), 50u);
  for (int i = 0; i < 60; ++i) Redo(layout);
  EXPECT_EQ(layout.pieces.size(), 51u);
  EXPECT_EQ(layout.undoHistory.size(), 50u);
}

TEST(Undo, ThenANewEditLeavesNothingToRedo) {
  Layout layout;
  PushUndo(layout);
  AddPiece(layout, 1.0);
  Undo(layout);
  EXPECT_EQ(layout.redoHistory.size(), 1u);
  PushUndo(layout);
  AddPiece(layout, 2.0);
  EXPECT_TRUE(layout.redoHistory.empty());
  const UndoSnapshot before = StateOf(layout);
  Redo(layout);
  EXPECT_EQ(StateOf(layout), before);
}

TEST(Undo, DoesNothingWithAnEmptyHistory) {
  Layout layout;
  AddPiece(layout, 1.0);
  Undo(layout);
  Redo(layout);
  EXPECT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_TRUE(layout.redoHistory.empty());
}

TEST(Undo, LeavesTheIdCounterSoThatANewPieceNeverTakesARedoableId) {
  Layout layout;
  PushUndo(layout);
  EXPECT_EQ(AddPiece(layout, 1.0), 1);
  PushUndo(layout);
  EXPECT_EQ(AddPiece(layout, 2.0), 2);
  Undo(layout);
  EXPECT_EQ(layout.nextId, 3);
  ASSERT_EQ(layout.redoHistory.size(), 1u);
  EXPECT_EQ(layout.redoHistory.back().pieces.back().id, 2);
  EXPECT_EQ(AddPiece(layout, 3.0), 3);
}

TEST(Undo, AfterNewBringsBackTheTrackButNeitherLevelsNorBaseboard) {
  Layout layout;
  EnsureDefaultLevel(layout);
  layout.levels.push_back({.id = 2, .name = "Upper"});
  layout.baseboard = {{0.0, 0.0}, {2400.0, 0.0}, {2400.0, 1200.0}};
  const std::int32_t id = AddPiece(layout, 50.0);
  layout.pieces[0].level = 2;
  NewPlan(layout);
  EXPECT_TRUE(layout.pieces.empty());
  Undo(layout);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, id);
  EXPECT_EQ(layout.pieces[0].level, 2);
  EXPECT_EQ(FindLevel(layout, 2), nullptr) << "the piece names a level that is gone";
  ASSERT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.levels[0].id, 1);
  EXPECT_TRUE(layout.baseboard.empty());
}

TEST(Undo, BringsBackTheSelectionOfItsTime) {
  Layout layout;
  AddPiece(layout, 1.0);
  AddPiece(layout, 2.0);
  layout.pieces[0].sel = true;
  PushUndo(layout);
  ClearSelection(layout);
  layout.pieces[1].sel = true;
  Undo(layout);
  EXPECT_TRUE(layout.pieces[0].sel);
  EXPECT_FALSE(layout.pieces[1].sel);
  Redo(layout);
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_TRUE(layout.pieces[1].sel);
}

TEST(Undo, OfAGradeRunTakesTheCurrentGradeFromTheSnapshotAndDoesNotRecomputeIt) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1.0, .anchor = 5, .conn = 0}};
  // As it stood when the snapshot was taken: it names the run's anchor of an earlier moment.
  layout.currentGrade = {.active = true, .deg = 3.5, .anchor = 4, .conn = 1};
  PushUndo(layout);
  ResetGrades(layout);
  Undo(layout);
  ASSERT_EQ(layout.gradeRuns.size(), 1u);
  EXPECT_EQ(layout.gradeRuns[0].anchor, 5);
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = 3.5, .anchor = 4, .conn = 1}));
}

TEST(Undo, TouchesNeitherSettingsNorLevelsNorTheBaseboard) {
  Layout layout;
  EnsureDefaultLevel(layout);
  PushUndo(layout);
  layout.levels.push_back({.id = 2});
  layout.activeLevel = 2;
  layout.baseboard = {{1.0, 1.0}};
  layout.lastShape.id = 3;
  layout.units = kInches;
  layout.snapEnabled = false;
  layout.gridVisible = false;
  layout.labelsVisible = false;
  layout.toolMode = kPolygonTool;
  layout.nextId = 40;
  Undo(layout);
  EXPECT_EQ(layout.levels.size(), 2u);
  EXPECT_EQ(layout.activeLevel, 2);
  EXPECT_EQ(layout.baseboard.size(), 1u);
  EXPECT_EQ(layout.lastShape.id, 3);
  EXPECT_EQ(layout.units, kInches);
  EXPECT_FALSE(layout.snapEnabled);
  EXPECT_FALSE(layout.gridVisible);
  EXPECT_FALSE(layout.labelsVisible);
  EXPECT_EQ(layout.toolMode, kPolygonTool);
  EXPECT_EQ(layout.nextId, 40);
}

TEST(ClearContents, StartsTheIdsAnewWhileASnapshotStillHoldsAPieceWithId1) {
  Layout layout;
  EXPECT_EQ(AddPiece(layout, 100.0), 1);
  NewPlan(layout);
  EXPECT_EQ(layout.nextId, 1);
  PushUndo(layout);
  EXPECT_EQ(AddPiece(layout, 200.0), 1);
  // Two steps back the old piece 1 stands alone: the lists are replaced whole.
  Undo(layout);
  EXPECT_TRUE(layout.pieces.empty());
  Undo(layout);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, 1);
  EXPECT_EQ(layout.pieces[0].x, 100.0);
}

TEST(StartNewPlan, LeavesOneDefaultLevelAndNoBaseboardButTheSettings) {
  Layout layout;
  AddPiece(layout, 100.0);
  layout.levels = {{.id = 4, .name = "Attic"}, {.id = 7}};
  layout.activeLevel = 7;
  layout.baseboard = {{0.0, 0.0}, {900.0, 0.0}, {900.0, 600.0}};
  layout.gradeRuns = {{.deg = 2.0, .anchor = 1, .conn = 0}};
  SyncCurrentGrade(layout);
  layout.units = kInches;
  StartNewPlan(layout);
  EXPECT_EQ(StateOf(layout), UndoSnapshot{});
  ASSERT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.levels[0].name, "Level 1");
  EXPECT_EQ(layout.activeLevel, 1);
  EXPECT_TRUE(layout.baseboard.empty());
  EXPECT_EQ(layout.units, kInches);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST(ClearContents, EmptiesAllRecordsInOneUndoStepAndKeepsTheSettings) {
  Layout layout;
  EnsureDefaultLevel(layout);
  AddPiece(layout, 1.0);
  layout.scenery.resize(1);
  layout.labels.resize(1);
  layout.measurements.resize(1);
  layout.shapes.resize(1);
  layout.tunnels.resize(1);
  layout.helices.resize(1);
  layout.gradeRuns = {{.deg = 2.0, .anchor = 1, .conn = 0}};
  SyncCurrentGrade(layout);
  layout.baseboard = {{0.0, 0.0}};
  layout.lastShape.id = 2;
  layout.units = kCentimetres;
  const UndoSnapshot before = StateOf(layout);
  ClearContents(layout);
  EXPECT_EQ(StateOf(layout), UndoSnapshot{});
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.baseboard.size(), 1u);
  EXPECT_EQ(layout.lastShape.id, 2);
  EXPECT_EQ(layout.units, kCentimetres);
  Undo(layout);
  EXPECT_EQ(StateOf(layout), before);
}

void RandomEdit(Layout& layout, std::mt19937& random) {
  PushUndo(layout);
  switch (random() % 6) {
    case 0:
      AddPiece(layout, static_cast<double>(random() % 1000));
      break;
    case 1:
      layout.scenery.push_back({.id = TakeId(layout), .item = "tree"});
      break;
    case 2:
      layout.shapes.push_back({.id = TakeId(layout), .vertices = {{1.0, 2.0}, {3.0, 4.0}}});
      break;
    case 3:
      if (!layout.pieces.empty()) layout.pieces.erase(layout.pieces.begin());
      break;
    case 4:
      for (Piece& piece : layout.pieces) piece.sel = random() % 2 == 0;
      break;
    default:
      layout.gradeRuns.push_back({.deg = 1.0, .anchor = layout.nextId, .conn = 1});
      SyncCurrentGrade(layout);
      break;
  }
}

TEST(Undo, WalksBackThroughEveryStateAndRedoForwardThroughTheSame) {
  for (unsigned seed = 0; seed < 50; ++seed) {
    std::mt19937 random(seed);
    Layout layout;
    std::vector<UndoSnapshot> states = {StateOf(layout)};
    const int edits = 1 + static_cast<int>(random() % 50);
    for (int i = 0; i < edits; ++i) {
      RandomEdit(layout, random);
      states.push_back(StateOf(layout));
    }
    for (std::size_t i = states.size() - 1; i-- > 0;) {
      Undo(layout);
      ASSERT_EQ(StateOf(layout), states[i]) << "seed " << seed << ", state " << i;
    }
    for (std::size_t i = 1; i < states.size(); ++i) {
      Redo(layout);
      ASSERT_EQ(StateOf(layout), states[i]) << "seed " << seed << ", state " << i;
    }
    EXPECT_TRUE(layout.redoHistory.empty());
    EXPECT_EQ(layout.undoHistory.size(), states.size() - 1);
  }
}

}  // namespace
}  // namespace vantrel
