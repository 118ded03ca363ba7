// The commands that open the dialogs on the plan as a whole: its table and its levels.
#include <wx/toolbar.h>

#include <set>
#include <string>

#include "canvas/canvas_panel.h"
#include "dialogs/layout_shape_dialog.h"
#include "dialogs/level_manager_dialog.h"
#include "doc/layout_ops.h"
#include "frame/commands.h"
#include "frame/main_frame.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

constexpr const char* kOutlineHint =
    "Click vertices to outline the baseboard. Click first vertex (or press Enter) to close. "
    "Backspace removes last vertex; Escape cancels.";

}  // namespace

void MainFrame::onLayoutShape(wxCommandEvent&) {
  canvas_->endGestures();
  LayoutShapeDialog dialog(this, layout_);
  if (dialog.ShowModal() != wxID_OK) return;
  if (dialog.freeForm()) {
    armBaseboardTool();
    return;
  }
  layout_.baseboard = dialog.vertices();
  markDirty();
  refreshViews();
}

// Nothing changes before the drawing is closed.
void MainFrame::armBaseboardTool() {
  layout_.toolMode = kBaseboardTool;
  for (const int other : {kCmdMeasure, kCmdPolygon}) GetToolBar()->ToggleTool(other, false);
  canvas_->setToolCursor(true);
  canvas_->Refresh();
  canvas_->SetFocus();
  setStatus(kStatusMessage, kOutlineHint);
}

// The dialog works on the plan itself: whatever closes it, the plan may have changed.
void MainFrame::onLevels(wxCommandEvent&) {
  canvas_->endGestures();
  EnsureDefaultLevel(layout_);
  std::set<std::string> before;
  for (const Level& level : layout_.levels) before.insert(level.name);
  LevelManagerDialog(this, layout_).ShowModal();
  for (const Level& level : layout_.levels)  // the dialog has asked about each new name
    if (!before.contains(level.name)) keptLevelNames_.insert(level.name);
  setStatus(kStatusPieces, PiecesText(layout_.pieces.size()));
  refreshViews();
  selectionChanged();
  markDirty();
}

}  // namespace vantrel
