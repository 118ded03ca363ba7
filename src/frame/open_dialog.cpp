#include "frame/open_dialog.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>

#include <utility>

#include "app/services/wx_text.h"
#include "dialogs/dialog_layout.h"
#include "dialogs/message_boxes.h"
#include "frame/store_folder.h"

namespace vantrel {
namespace {

constexpr int kBorder = 8;  // pixels
const wxSize kSize(320, 420);

}  // namespace

OpenDialog::OpenDialog(wxWindow* parent, std::vector<std::string> files, Deleted deleted)
    : wxDialog(parent, wxID_ANY, "Open Layout", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      files_(std::move(files)),
      names_(SortedBaseNames(files_)),
      deleted_(std::move(deleted)) {
  list_ = new wxListBox(this, wxID_ANY);
  for (const std::string& name : names_) list_->Append(ToWx(name));
  delete_ = new wxButton(this, wxID_ANY, "Delete...");
  const AcceptRow accept = MakeAcceptRow(*this, "Open");
  open_ = accept.accept;

  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(delete_);
  row->Add(accept.row, 1);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(list_, 1, wxEXPAND | wxALL, kBorder);
  column->Add(row, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, kBorder);

  ReachFirstRowByKey(*list_);
  list_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { updateButtons(); });
  list_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptRow(); });
  delete_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { deleteRow(); });
  updateButtons();
  FitAtLeast(*this, column, kSize);
  Centre();
  list_->SetFocus();
}

std::string OpenDialog::chosenPath() const {
  const int row = list_->GetSelection();
  if (row == wxNOT_FOUND) return {};
  return FileWithBaseName(files_, names_[static_cast<std::size_t>(row)]);
}

void OpenDialog::updateButtons() {
  const bool selected = list_->GetSelection() != wxNOT_FOUND;
  open_->Enable(selected);
  delete_->Enable(selected);
}

void OpenDialog::acceptRow() {
  updateButtons();
  if (open_->IsEnabled()) EndModal(wxID_OK);
}

void OpenDialog::deleteRow() {
  const int row = list_->GetSelection();
  const std::string path = chosenPath();
  if (path.empty()) return;
  const std::string name = names_[static_cast<std::size_t>(row)];
  if (!AskWithWarning(this, "Delete Layout",
                      "Delete layout \"" + name + "\"?\n\nThis cannot be undone."))
    return;
  if (!RemoveFile(path)) {
    ReportError(this, "Delete Failed", "Could not delete:\n" + path);
    return;
  }
  list_->Delete(static_cast<unsigned>(row));
  names_.erase(names_.begin() + row);
  std::erase(files_, path);
  list_->SetSelection(wxNOT_FOUND);
  updateButtons();
  deleted_(path);
}

}  // namespace vantrel
