// New, Save, Open and Close, and the question that guards unsaved changes.
#include <wx/menu.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "canvas/canvas_panel.h"
#include "canvas/operations/joining.h"
#include "catalog/track_catalog.h"
#include "dialogs/ask_text.h"
#include "dialogs/message_boxes.h"
#include "doc/layout_ops.h"
#include "doc/trimmed.h"
#include "doc/undo.h"
#include "frame/commands.h"
#include "frame/main_frame.h"
#include "frame/open_dialog.h"
#include "frame/program_title.h"
#include "frame/store_folder.h"
#include "io/layout_file.h"
#include "palette/palette_panel.h"
#include "properties/properties_panel.h"
#include "workspace/status_text.h"

namespace vantrel {
namespace {

constexpr const char* kFirstName = "My Layout";

std::string NameOf(const std::string& typed) {
  const std::string_view name = Trimmed(typed);
  return std::string(name.empty() ? kFirstName : name);
}

bool HoldsZTrack(const Layout& layout) {
  return std::ranges::any_of(layout.pieces, [](const Piece& piece) {
    const PieceDef* def = findPart(piece.cat);
    return def && def->system == TrackSystem::MarklinZ;
  });
}

}  // namespace

// Each flow ends by forgetting what the user agreed to. An exception skips that, on purpose: it is
// reported after the flow is gone, and the answer still counts then.
void MainFrame::onNew(wxCommandEvent&) {
  newLayout();
  discardAgreed_ = false;
}

void MainFrame::onOpen(wxCommandEvent&) {
  openLayout();
  discardAgreed_ = false;
}

void MainFrame::onSave(wxCommandEvent&) {
  SaveLayout(false);
}

void MainFrame::onSaveAs(wxCommandEvent&) {
  SaveLayout(true);
}

void MainFrame::onCloseWindow(wxCloseEvent& event) {
  if (event.CanVeto() && !ConfirmDiscard()) {
    event.Veto();
    return;
  }
  Destroy();
}

bool MainFrame::ConfirmDiscard() {
  if (!dirty_) return true;
  switch (AskToSave("Unsaved Changes", "You have unsaved changes. Save before continuing?")) {
    case SaveAnswer::save:
      return SaveLayout(false);
    case SaveAnswer::discard:
      discardAgreed_ = true;
      return true;
    case SaveAnswer::cancel:
      break;
  }
  return false;
}

// layoutName stays: it is the default of the next save dialog.
void MainFrame::newLayout() {
  canvas_->endGestures();
  if (!ConfirmDiscard()) return;
  canvas_->dropDrafts();
  StartNewPlan(layout_);
  currentPath_.clear();
  forgetKeptNames();
  dirty_ = false;
  SetTitle(kProgramTitle);
  refreshViews();
  canvas_->resetView();
  properties_->RefreshSelection();
  setStatus(kStatusMessage, ReadyText(layout_));
  setStatus(kStatusPieces, PiecesText(0));
}

// A name may have come from a file and still be one that today's file wouldn't give back.
bool MainFrame::SaveLayout(bool askName) {
  if (!settleLevelNames()) return false;
  const bool named = !askName && !currentPath_.empty() && keepsLayoutName(layoutName_);
  if (!named && !askLayoutName()) return false;
  return writeLayout();
}

// True when each level has a name that the user has been asked about, or that needs no question.
bool MainFrame::settleLevelNames() {
  for (Level& level : layout_.levels) {
    if (keepsLevelName(level.name)) continue;
    const std::optional<std::string> typed =
        AskText(this, "Another name for the level:", "Level Name", level.name,
                [this](const std::string& text) {
                  const std::string_view name = Trimmed(text);
                  return !name.empty() && keepsLevelName(std::string(name));
                });
    if (!typed) return false;
    level.name = std::string(Trimmed(*typed));
    markDirty();
    selectionChanged();
  }
  return true;
}

// Asks once for each name.
bool MainFrame::keepsLayoutName(const std::string& name) {
  if (keptLayoutNames_.contains(name)) return true;
  if (!ConfirmsLayoutName(this, name)) return false;
  keptLayoutNames_.insert(name);
  return true;
}

bool MainFrame::keepsLevelName(const std::string& name) {
  if (keptLevelNames_.contains(name)) return true;
  if (!ConfirmsLevelName(this, name)) return false;
  keptLevelNames_.insert(name);
  return true;
}

void MainFrame::forgetKeptNames() {
  keptLayoutNames_.clear();
  keptLevelNames_.clear();
}

bool MainFrame::writeLayout() {
  const FileProblem problem = WriteLayoutFile(layout_, currentPath_, layoutName_);
  if (!problem.none()) {
    ReportError(nullptr, "Save Failed", problem.what, problem.why);
    return false;
  }
  dirty_ = false;
  UpdateTitle();
  return true;
}

// Sets currentPath and layoutName, which stay even when the write then fails.
bool MainFrame::askLayoutName() {
  const std::optional<std::string> typed =
      AskText(this, "Layout name:", "Save Layout", layoutName_.empty() ? kFirstName : layoutName_,
              [this](const std::string& text) { return keepsLayoutName(NameOf(text)); });
  if (!typed) return false;
  const std::string name = NameOf(*typed);
  const std::string path = LayoutPath(folders_.store, name);
  if (FileExists(path) && !confirmReplace(name)) return false;
  currentPath_ = path;
  layoutName_ = name;
  return true;
}

bool MainFrame::confirmReplace(const std::string& name) {
  return AskCautiously(this, "Confirm Replace",
                       "A layout named \"" + name + "\" already exists.\n\nReplace it?");
}

void MainFrame::openLayout() {
  canvas_->endGestures();
  if (!ConfirmDiscard()) return;
  std::vector<std::string> files = LayoutFiles(folders_.store);
  if (files.empty()) {
    Inform(this, "Open Layout", "No layouts found in\n" + folders_.store);
    return;
  }
  std::string path;
  {
    OpenDialog dialog(this, std::move(files),
                      [this](const std::string& deleted) { forgetFile(deleted); });
    if (dialog.ShowModal() == wxID_OK) path = dialog.chosenPath();
  }
  if (!path.empty()) LoadIntoFrame(path);
}

// The open document stays as it is, without a file.
void MainFrame::forgetFile(const std::string& path) {
  if (path == currentPath_) currentPath_.clear();
}

void MainFrame::LoadIntoFrame(const std::string& path) {
  std::string name;
  const std::string problem = LoadLayoutFile(layout_, path, name);
  if (!problem.empty()) {
    ReportError(nullptr, "Open Failed", problem);
    return;
  }
  canvas_->dropDrafts();
  GrowAllJoints(layout_);
  RenewTapeIds(layout_);
  EnsureDefaultLevel(layout_);
  currentPath_ = path;
  layoutName_ = name;
  forgetKeptNames();
  dirty_ = false;
  UpdateTitle();
  showLoadedLayout();
}

void MainFrame::showLoadedLayout() {
  const bool known = layout_.units > kMillimetres && layout_.units <= kInches;
  GetMenuBar()->Check(kCmdMillimetres + (known ? layout_.units : kMillimetres), true);
  refreshViews();
  if (HoldsZTrack(layout_))
    canvas_->resetViewUnitScale();
  else
    canvas_->zoomToFit(false);
  properties_->RefreshSelection();
  palette_->SelectSystemFor(layout_);
  setStatus(kStatusMessage, ReadyText(layout_));
  setStatus(kStatusPieces, PiecesText(layout_.pieces.size()));
}

}  // namespace vantrel
