#include "doc/undo.h"

#include <utility>

#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// Exchanges the layout's state with the snapshot's, so that a step through history copies nothing.
void SwapState(Layout& layout, UndoSnapshot& snapshot) {
  std::swap(layout.pieces, snapshot.pieces);
  std::swap(layout.scenery, snapshot.scenery);
  std::swap(layout.labels, snapshot.labels);
  std::swap(layout.measurements, snapshot.measurements);
  std::swap(layout.shapes, snapshot.shapes);
  std::swap(layout.tunnels, snapshot.tunnels);
  std::swap(layout.helices, snapshot.helices);
  std::swap(layout.gradeRuns, snapshot.gradeRuns);
  std::swap(layout.currentGrade, snapshot.currentGrade);
}

void Step(Layout& layout, std::deque<UndoSnapshot>& from, std::deque<UndoSnapshot>& to) {
  if (from.empty()) return;
  UndoSnapshot snapshot = std::move(from.back());
  from.pop_back();
  SwapState(layout, snapshot);
  to.push_back(std::move(snapshot));
}

}  // namespace

UndoSnapshot TakeSnapshot(const Layout& layout) {
  return {.pieces = layout.pieces,
          .scenery = layout.scenery,
          .labels = layout.labels,
          .measurements = layout.measurements,
          .shapes = layout.shapes,
          .tunnels = layout.tunnels,
          .helices = layout.helices,
          .gradeRuns = layout.gradeRuns,
          .currentGrade = layout.currentGrade};
}

void PushUndo(Layout& layout) {
  layout.undoHistory.push_back(TakeSnapshot(layout));
  if (layout.undoHistory.size() > kUndoLimit) layout.undoHistory.pop_front();
  layout.redoHistory.clear();
}

void Undo(Layout& layout) {
  Step(layout, layout.undoHistory, layout.redoHistory);
}

void Redo(Layout& layout) {
  Step(layout, layout.redoHistory, layout.undoHistory);
}

void ClearContents(Layout& layout) {
  PushUndo(layout);
  layout.pieces.clear();
  layout.scenery.clear();
  layout.labels.clear();
  layout.measurements.clear();
  layout.shapes.clear();
  layout.tunnels.clear();
  layout.helices.clear();
  layout.nextId = 1;
  ResetGrades(layout);
}

void StartNewPlan(Layout& layout) {
  ClearContents(layout);
  layout.baseboard.clear();
  layout.levels.clear();
  EnsureDefaultLevel(layout);
  layout.activeLevel = 1;
}

}  // namespace vantrel
