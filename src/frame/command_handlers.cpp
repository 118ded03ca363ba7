// What the commands do that are no more than a switch on the document or a call to a panel.
#include <wx/menu.h>
#include <wx/printdlg.h>
#include <wx/toolbar.h>

#include <cstdint>
#include <optional>
#include <string>

#include "app/services/program_icons.h"
#include "canvas/canvas_panel.h"
#include "canvas/gestures/lock_boxes.h"
#include "canvas/gestures/view_navigation.h"
#include "canvas/operations/locks.h"
#include "canvas/operations/removal.h"
#include "canvas/operations/tunnels.h"
#include "dialogs/message_boxes.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"
#include "frame/character_keys.h"
#include "frame/commands.h"
#include "frame/experience_dialog.h"
#include "frame/help_dialog.h"
#include "frame/main_frame.h"
#include "frame/shared_shortcuts.h"
#include "view3d/view3d_frame.h"
#include "workspace/status_text.h"

namespace vantrel {

void MainFrame::onPageSetup(wxCommandEvent&) {
  wxPageSetupDialog dialog(this, &pageSetupData_);
  if (dialog.ShowModal() != wxID_OK) return;
  pageSetupData_ = dialog.GetPageSetupDialogData();
  printData_ = pageSetupData_.GetPrintData();
}

void MainFrame::onExit(wxCommandEvent&) {
  Close(false);
}

// Another state of the plan may bring another selection along.
void MainFrame::showHistoryState() {
  setStatus(kStatusPieces, PiecesText(layout_.pieces.size()));
  refreshViews();
  selectionChanged();
  markDirty();
}

// Both mark the layout as changed even when the history was empty: what is shown may have been
// saved, but the user has asked for another state. A drag under way ends first: going on beneath
// it, it would overwrite the state that was brought back.
void MainFrame::onUndo(wxCommandEvent&) {
  canvas_->endGestures();
  Undo(layout_);
  showHistoryState();
}

void MainFrame::onRedo(wxCommandEvent&) {
  canvas_->endGestures();
  Redo(layout_);
  showHistoryState();
}

// A simpler twin of the canvas's own Delete: it refuses helices selected as a whole, and leaves
// partners of paired pieces alone.
void MainFrame::onDelete(wxCommandEvent&) {
  canvas_->endGestures();
  if (const std::optional<Notice> lock = selectionLock(layout_, "delete")) {
    Inform(this, lock->title, lock->text);
    return;
  }
  if (isGradedSelection(layout_) &&
      !AskQuestion(this, std::string(kGradedDeleteTitle), std::string(kGradedDeleteQuestion)))
    return;
  deleteSelection(layout_);
  setStatus(kStatusPieces, PiecesText(layout_.pieces.size()));
  refreshViews();
  selectionChanged();
  markDirty();
}

// A drag under way ends first: it goes by the order of what is selected.
void MainFrame::onSelectAll(wxCommandEvent&) {
  canvas_->endGestures();
  for (Piece& piece : layout_.pieces) piece.sel = true;
  for (SceneryItem& item : layout_.scenery) item.sel = true;
  canvas_->Refresh();
  selectionChanged();
}

void MainFrame::onZoomIn(wxCommandEvent&) {
  canvas_->zoomCentred(kZoomInCommand);
}

void MainFrame::onZoomOut(wxCommandEvent&) {
  canvas_->zoomCentred(kZoomOutCommand);
}

void MainFrame::onZoomToFit(wxCommandEvent&) {
  canvas_->zoomToFit(false);
}

void MainFrame::onCharHook(wxKeyEvent& event) {
  const int command = CharacterCommandFor(event, FindFocus(), *canvas_);
  if (command == wxID_NONE || !ProcessCommand(command)) event.Skip();
}

void MainFrame::onShowGrid(wxCommandEvent& event) {
  canvas_->showGrid(event.IsChecked());
}

void MainFrame::onSnap(wxCommandEvent& event) {
  layout_.snapEnabled = event.IsChecked();
}

void MainFrame::onUnits(wxCommandEvent& event) {
  layout_.units = event.GetId() - kCmdMillimetres + Units::kMillimetres;
  canvas_->Refresh();
  selectionChanged();
}

void MainFrame::onHideLabels(wxCommandEvent& event) {
  layout_.labelsVisible = !event.IsChecked();
  GetToolBar()
      ->FindById(kCmdHideLabels)
      ->SetLabel(layout_.labelsVisible ? "Hide Labels" : "Show Labels");
  GetToolBar()->Realize();
  canvas_->Refresh();
}

void MainFrame::onTunnel(wxCommandEvent&) {
  if (!toggleTunnel(layout_)) return;
  markDirty();
  refreshViews();
}

void MainFrame::onTool(wxCommandEvent& event) {
  switchTool(event.GetId(), event.IsChecked());
}

void MainFrame::switchTool(int id, bool on) {
  const bool measuring = id == kCmdMeasure;
  // The baseboard's hint doesn't outlive its tool.
  if (layout_.toolMode == kBaseboardTool) setStatus(kStatusMessage, "");
  if (on) {
    layout_.toolMode = measuring ? kMeasureTool : kPolygonTool;
    ClearSelection(layout_);
    selectionChanged();
    GetToolBar()->ToggleTool(measuring ? kCmdPolygon : kCmdMeasure, false);
    canvas_->SetFocus();  // for Escape, before the first click
  } else {
    layout_.toolMode = kNoTool;
  }
  canvas_->setToolCursor(on);
  canvas_->Refresh();
}

// The baseboard's drawing has no button.
void MainFrame::clickToolEnded(std::int32_t toolMode) {
  if (toolMode == kMeasureTool) GetToolBar()->ToggleTool(kCmdMeasure, false);
  if (toolMode == kPolygonTool) GetToolBar()->ToggleTool(kCmdPolygon, false);
}

void MainFrame::onValidate(wxCommandEvent&) {
  Inform(this, "Validate", "Validation not yet implemented.");
}

void MainFrame::onLayoutProperties(wxCommandEvent&) {
  Inform(this, "Properties", "Layout properties not yet implemented.");
}

void MainFrame::on3DView(wxCommandEvent&) {
  if (view3D_) {
    rebuildView3D();
    view3D_->Raise();
    return;
  }
  view3D_ = new View3DFrame(this, layout_);
  view3D_->SetIcons(ProgramIcons());
  ShareMenuShortcuts(*this, *view3D_);
  view3D_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    view3D_ = nullptr;
    event.Skip();
  });
}

void MainFrame::onHelp(wxCommandEvent&) {
  HelpDialog(this).ShowModal();
}

void MainFrame::onOptions(wxCommandEvent&) {
  AskExperience(this, folders_.prefsPath);
}

void MainFrame::onUpdateUi(wxUpdateUIEvent& event) {
  const int id = event.GetId();
  event.Enable(IsCommandAvailable(id) && DocumentAllows(id, layout_));
}

void MainFrame::onUpdateTunnel(wxUpdateUIEvent& event) {
  const TunnelPlan plan = planTunnel(layout_);
  event.Enable(plan.valid);
  wxToolBarToolBase* const tool = GetToolBar()->FindById(kCmdTunnel);
  const wxString label = plan.removing ? "Remove Tunnel" : "Tunnel";
  // This runs at every idle moment: the toolbar is laid out anew for a change only.
  if (tool->GetLabel() == label) return;
  tool->SetLabel(label);
  GetToolBar()->Realize();
}

}  // namespace vantrel
