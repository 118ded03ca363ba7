#include "frame/export_dialog.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <utility>

#include "app/services/one_line_field.h"
#include "app/services/wx_text.h"
#include "dialogs/dialog_layout.h"
#include "frame/store_folder.h"

namespace vantrel {
namespace {

constexpr int kBorder = 8;  // pixels
constexpr int kLabelGap = 4;
const wxSize kSize(440, 480);

}  // namespace

ExportDialog::ExportDialog(wxWindow* parent, std::vector<std::string> files,
                           const std::string& folder, const std::string& layoutName)
    : wxDialog(parent, wxID_ANY, "Export Layout", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      files_(std::move(files)),
      names_(SortedBaseNames(files_)) {
  build(folder);
  for (const std::string& name : names_) list_->Append(ToWx(name));
  selectRowOf(layoutName);
  ReachFirstRowByKey(*list_);
  list_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { takeRow(); });
  list_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptRow(); });
  name_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { updateButton(); });
  KeepOnOneLine(*name_);
  list_->SetFocus();
}

void ExportDialog::build(const std::string& folder) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const auto label = [&](const char* text) {
    column->Add(new wxStaticText(this, wxID_ANY, text), 0, wxLEFT | wxRIGHT | wxTOP, kBorder);
    column->AddSpacer(kLabelGap);
  };
  label("Choose a layout to export:");
  list_ = new wxListBox(this, wxID_ANY);
  column->Add(list_, 1, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  label("Destination:");
  const FolderRow target = MakeFolderRow(*this, ToWx(folder), "Choose destination folder");
  folder_ = target.field;
  column->Add(target.row, 0, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  label("Save as (no extension):");
  name_ = new wxTextCtrl(this, wxID_ANY);
  column->Add(name_, 0, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  const AcceptRow accept = MakeAcceptRow(*this, "Export");
  export_ = accept.accept;
  column->Add(accept.row, 0, wxEXPAND | wxALL, kBorder);
  FitAtLeast(*this, column, kSize);
  Centre();
}

void ExportDialog::selectRowOf(const std::string& layoutName) {
  if (layoutName.empty()) return;
  const int row = list_->FindString(ToWx(layoutName), false);
  if (row == wxNOT_FOUND) return;
  list_->SetSelection(row);
  list_->EnsureVisible(row);
  takeRow();
}

std::string ExportDialog::sourcePath() const {
  const int row = list_->GetSelection();
  if (row == wxNOT_FOUND) return {};
  return FileWithBaseName(files_, names_[static_cast<std::size_t>(row)]);
}

std::string ExportDialog::folder() const {
  return ToUtf8(Trimmed(folder_->GetValue()));
}

std::string ExportDialog::fileName() const {
  return ToUtf8(Trimmed(WithoutLineBreaks(name_->GetValue())));
}

void ExportDialog::takeRow() {
  const int row = list_->GetSelection();
  if (row != wxNOT_FOUND) name_->ChangeValue(list_->GetString(static_cast<unsigned>(row)));
  updateButton();
}

void ExportDialog::updateButton() {
  export_->Enable(list_->GetSelection() != wxNOT_FOUND && !fileName().empty());
}

void ExportDialog::acceptRow() {
  updateButton();
  if (export_->IsEnabled()) EndModal(wxID_OK);
}

}  // namespace vantrel
