// The palette's page of saved blocks: listing them, placing one whole, deleting one.
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>

#include <cstddef>
#include <string>
#include <utility>

#include "app/services/box_text.h"
#include "app/services/wx_text.h"
#include "canvas/operations/block_placing.h"
#include "io/block_file.h"
#include "palette/block_library.h"
#include "palette/palette_panel.h"
#include "palette/palette_sections.h"
#include "workspace/status_text.h"

namespace vantrel {

void PalettePanel::bindLibrary() {
  library_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { placeSelectedBlock(); });
  library_->Bind(wxEVT_CONTEXT_MENU,
                 [this](wxContextMenuEvent& event) { offerToDelete(event.GetPosition()); });
}

std::string PalettePanel::libraryFolder() const {
  const std::int32_t index = systemIndex();
  if (index < 0) return libraryRoot_;
  const std::string_view entry = paletteSystems()[static_cast<std::size_t>(index)].entry;
  return pathIn(libraryRoot_, libraryFolderName(entry));
}

void PalettePanel::RefreshLibrary() {
  library_->Clear();
  libraryPaths_ = blockFiles(libraryFolder());
  for (const std::string& path : libraryPaths_) library_->Append(ToWx(blockTitle(path)));
}

std::string PalettePanel::libraryPath(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= libraryPaths_.size()) return {};
  return libraryPaths_[static_cast<std::size_t>(row)];
}

void PalettePanel::placeSelectedBlock() {
  const std::string path = libraryPath(library_->GetSelection());
  if (path.empty()) return;
  Block block;
  std::string name;
  const std::string problem = LoadBlockFile(path, name, block.pieces, block.scenery);
  if (!problem.empty()) {
    wxMessageBox(BoxText(ToWx(problem)), "Load Block Failed", wxOK | wxICON_ERROR,
                 wxGetTopLevelParent(this));
    return;
  }
  if (block.empty()) return;
  // A drag goes by the order of what is in the plan.
  if (canvas_ != nullptr) canvas_->endGestures();
  placeBlock(workspace_.layout(), std::move(block));
  workspace_.setStatus(kStatusPieces, PiecesText(workspace_.layout().pieces.size()));
  workspace_.markDirty();
  workspace_.selectionChanged();
  if (canvas_ != nullptr) canvas_->zoomToFit(true);
  workspace_.refreshViews();
}

// `at` is on the screen, or wxDefaultPosition for the keyboard's menu key.
void PalettePanel::offerToDelete(wxPoint at) {
  int row = wxNOT_FOUND;
  if (at != wxDefaultPosition) row = library_->HitTest(library_->ScreenToClient(at));
  if (row == wxNOT_FOUND) row = library_->GetSelection();
  const std::string path = libraryPath(row);
  if (path.empty()) return;
  library_->SetSelection(row);
  wxMenu menu;
  menu.Append(kDeleteBlockId, "Delete...");
  if (chooseFrom(menu) == kDeleteBlockId) deleteBlock(path);
}

int PalettePanel::chooseFrom(wxMenu& menu) {
  int chosen = wxID_NONE;
  menu.Bind(wxEVT_MENU, [&chosen](wxCommandEvent& event) { chosen = event.GetId(); });
  library_->PopupMenu(&menu);
  return chosen;
}

void PalettePanel::deleteBlock(const std::string& path) {
  wxWindow* const parent = wxGetTopLevelParent(this);
  const wxString question =
      BoxText(ToWx("Delete library block \"" + blockTitle(path) + "\"?\n\nThis cannot be undone."));
  if (wxMessageBox(question, "Delete Library Block", wxYES_NO | wxICON_WARNING, parent) != wxYES)
    return;
  if (removeBlockFile(path))
    RefreshLibrary();
  else
    wxMessageBox(BoxText(ToWx("Could not delete:\n" + path)), "Delete Failed", wxOK | wxICON_ERROR,
                 parent);
}

}  // namespace vantrel
