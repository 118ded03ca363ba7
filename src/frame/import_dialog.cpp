#include "frame/import_dialog.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

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

ImportDialog::ImportDialog(wxWindow* parent, const std::string& folder)
    : wxDialog(parent, wxID_ANY, "Import Layout", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const auto label = [&](const char* text) {
    column->Add(new wxStaticText(this, wxID_ANY, text), 0, wxLEFT | wxRIGHT | wxTOP, kBorder);
    column->AddSpacer(kLabelGap);
  };
  label("Source folder:");
  const FolderRow source =
      MakeFolderRow(*this, ToWx(folder), "Choose folder containing layout file");
  folder_ = source.field;
  column->Add(source.row, 0, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  label("Layout files in this folder:");
  list_ = new wxListBox(this, wxID_ANY);
  column->Add(list_, 1, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  label("Import as:");
  name_ = new wxTextCtrl(this, wxID_ANY);
  column->Add(name_, 0, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  const AcceptRow accept = MakeAcceptRow(*this, "Import");
  import_ = accept.accept;
  column->Add(accept.row, 0, wxEXPAND | wxALL, kBorder);

  folder_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { refill(); });
  ReachFirstRowByKey(*list_);
  list_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { takeRow(); });
  list_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { acceptRow(); });
  name_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { updateButton(); });
  KeepOnOneLine(*name_);
  refill();
  FitAtLeast(*this, column, kSize);
  Centre();
  list_->SetFocus();
}

std::string ImportDialog::sourcePath() const {
  const int row = list_->GetSelection();
  if (row == wxNOT_FOUND) return {};
  return PathIn(folder(), fileNames_[static_cast<std::size_t>(row)]);
}

std::string ImportDialog::layoutName() const {
  return ToUtf8(Trimmed(WithoutLineBreaks(name_->GetValue())));
}

std::string ImportDialog::folder() const {
  return ToUtf8(Trimmed(folder_->GetValue()));
}

void ImportDialog::refill() {
  fileNames_ = LayoutFileNames(folder());
  list_->Clear();
  for (const std::string& name : fileNames_) list_->Append(ToWx(name));
  updateButton();
}

void ImportDialog::takeRow() {
  const std::string source = sourcePath();
  if (!source.empty()) name_->ChangeValue(WithoutLineBreaks(ToWx(BaseName(source))));
  updateButton();
}

void ImportDialog::updateButton() {
  import_->Enable(list_->GetSelection() != wxNOT_FOUND && !layoutName().empty());
}

void ImportDialog::acceptRow() {
  updateButton();
  if (import_->IsEnabled()) EndModal(wxID_OK);
}

}  // namespace vantrel
