#include "dialogs/level_manager_dialog.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <string>

#include "app/services/box_text.h"
#include "app/services/wx_text.h"
#include "canvas/operations/level_edits.h"
#include "dialogs/ask_text.h"
#include "dialogs/dialog_layout.h"
#include "dialogs/level_properties_dialog.h"
#include "dialogs/message_boxes.h"
#include "doc/format_length.h"
#include "doc/trimmed.h"

namespace vantrel {
namespace {

const wxSize kDialogSize(500, 360);
constexpr int kBorder = 8;  // pixels
constexpr int kGap = 6;

constexpr const char* kIntroduction =
    "Check to show a level.  Double-click a row to edit its properties\n"
    "(name, height, and track color).  Single-click sets the active level\n"
    "for new pieces.";

enum Column : int { kNameColumn = 0, kHeightColumn = 1, kColourColumn = 2, kIdColumn = 3 };
constexpr int kIdWidth = 40;
constexpr int kCellPadding = 16;

// A box is as high as its text, and no name may push its buttons off the screen.
constexpr std::size_t kShownNameLength = 200;

std::string ShownName(const std::string& name) {
  const wxString shown = ToWx(name);
  if (shown.length() <= kShownNameLength) return ToUtf8(shown);
  return ToUtf8(shown.Left(kShownNameLength)) + "…";
}

std::string RemovalQuestion(const Level& level, const LevelContents& contents) {
  return "Remove level \"" + ShownName(level.name) +
         "\"?\n\nThis will PERMANENTLY DELETE everything on this level:\n    • " +
         std::to_string(contents.pieces) + " track piece(s)\n    • " +
         std::to_string(contents.scenery) + " scenery item(s)\n    • " +
         std::to_string(contents.helices) +
         " helix/helices\n\nThis cannot be undone from this dialog. Are you sure?";
}

}  // namespace

LevelManagerDialog::LevelManagerDialog(wxWindow* parent, vantrel::Layout& layout)
    : wxDialog(parent, wxID_ANY, "Manage Levels", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      layout_(layout) {
  build();
  bindEvents();
  fill();
  list_->SetFocus();
}

void LevelManagerDialog::build() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(new wxStaticText(this, wxID_ANY, kIntroduction), 0, wxALL, kBorder);
  list_ = new wxListView(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                         wxLC_REPORT | wxLC_SINGLE_SEL);
  list_->EnableCheckBoxes();
  list_->AppendColumn("Level Name", wxLIST_FORMAT_LEFT, 200);
  list_->AppendColumn("Height", wxLIST_FORMAT_RIGHT, 90);
  list_->AppendColumn("Track Color", wxLIST_FORMAT_LEFT, 90);
  list_->AppendColumn("ID", wxLIST_FORMAT_RIGHT, kIdWidth);
  column->Add(list_, 1, wxEXPAND | wxLEFT | wxRIGHT, kBorder);
  column->Add(buildButtons(), 0, wxEXPAND | wxALL, kBorder);
  FitAtLeast(*this, column, kDialogSize);
  CentreOnParent();
}

wxSizer* LevelManagerDialog::buildButtons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* add = new wxButton(this, wxID_ANY, "Add Level");
  add->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onAdd(); });
  row->Add(add, 0, wxRIGHT, kGap);
  remove_ = new wxButton(this, wxID_ANY, "Remove Level");
  remove_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onRemove(); });
  row->Add(remove_);
  row->AddStretchSpacer();
  auto* close = new wxButton(this, wxID_OK, "Close");
  close->SetDefault();
  row->Add(close);
  return row;
}

void LevelManagerDialog::bindEvents() {
  list_->Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& event) { onChecked(event, true); });
  list_->Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& event) { onChecked(event, false); });
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& event) { onSelected(event); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { onProperties(); });
  list_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.HasAnyModifiers() || !takeListKey(event.GetKeyCode())) event.Skip();
  });
}

// The list leaves three things to the mouse alone: the first selection when its invisible cursor
// stands on the row already, the check, and the activation, for which Enter goes to Close.
bool LevelManagerDialog::takeListKey(int key) {
  const std::optional<std::size_t> selected = selectedRow();
  const long cursor = std::max(list_->GetFocusedItem(), 0L);
  switch (key) {
    case WXK_UP:
    case WXK_DOWN:
    case WXK_HOME:
    case WXK_END:
      if (selected || list_->GetItemCount() == 0) return false;
      selectRow(static_cast<std::size_t>(cursor));
      return true;
    case WXK_SPACE:
      if (cursor < list_->GetItemCount()) list_->CheckItem(cursor, !list_->IsItemChecked(cursor));
      return true;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
      if (selected) onProperties();
      return selected.has_value();
    default:
      return false;
  }
}

void LevelManagerDialog::fill() {
  filling_ = true;
  list_->DeleteAllItems();
  for (std::size_t row = 0; row < layout_.levels.size(); ++row) showRow(row);
  markActive();
  makeRoomForIds();
  filling_ = false;
}

// A cut number would be another number.
void LevelManagerDialog::makeRoomForIds() {
  int width = kIdWidth;
  const wxFont bold = list_->GetFont().Bold();
  for (const Level& level : layout_.levels) {
    int text = 0;
    int height = 0;
    list_->GetTextExtent(std::to_string(level.id), &text, &height, nullptr, nullptr, &bold);
    width = std::max(width, text + kCellPadding);
  }
  list_->SetColumnWidth(kIdColumn, width);
}

void LevelManagerDialog::showRow(std::size_t row) {
  const Level& level = layout_.levels[row];
  const auto item = list_->InsertItem(static_cast<long>(row), ToWx(level.name));
  list_->SetItem(item, kHeightColumn, ToWx(FormatLength(level.height, layout_.units)));
  list_->SetItem(item, kColourColumn, level.trackcolor ? "custom" : "");
  list_->SetItem(item, kIdColumn, std::to_string(level.id));
  list_->CheckItem(item, level.visible);
}

void LevelManagerDialog::markActive() {
  const wxFont plain = list_->GetFont();
  for (std::size_t row = 0; row < layout_.levels.size(); ++row) {
    const bool active = layout_.levels[row].id == layout_.activeLevel;
    list_->SetItemFont(static_cast<long>(row), active ? plain.Bold() : plain);
  }
}

std::optional<std::size_t> LevelManagerDialog::selectedRow() const {
  const long row = list_->GetFirstSelected();
  if (row < 0 || static_cast<std::size_t>(row) >= layout_.levels.size()) return std::nullopt;
  return static_cast<std::size_t>(row);
}

void LevelManagerDialog::selectRow(std::size_t row) {
  const auto item = static_cast<long>(row);
  list_->Select(item);
  list_->Focus(item);
}

void LevelManagerDialog::onChecked(wxListEvent& event, bool checked) {
  if (!filling_) showLevel(layout_, static_cast<std::size_t>(event.GetIndex()), checked);
}

void LevelManagerDialog::onSelected(wxListEvent& event) {
  const auto row = static_cast<std::size_t>(event.GetIndex());
  if (filling_ || row >= layout_.levels.size()) return;
  layout_.activeLevel = layout_.levels[row].id;
  markActive();
  remove_->Enable(layout_.levels.size() > 1);
}

void LevelManagerDialog::onAdd() {
  const std::string proposed = "Level " + std::to_string(nextLevelId(layout_));
  const std::string name =
      AskText(this, "Name for new level:", "Add Level", proposed, [this](const std::string& typed) {
        return ConfirmsLevelName(this, typed);
      }).value_or("");
  if (name.empty()) return;
  const std::optional<std::size_t> selected = selectedRow();
  addLevel(layout_, name);
  fill();
  if (selected) selectRow(*selected);
  list_->EnsureVisible(list_->GetItemCount() - 1);
}

void LevelManagerDialog::onRemove() {
  if (layout_.levels.size() == 1) {
    Inform(this, "Remove Level", "A layout must have at least one level.");
    return;
  }
  const std::optional<std::size_t> row = selectedRow();
  if (!row) return;
  const std::string question = RemovalQuestion(layout_.levels[*row], levelContents(layout_, *row));
  wxMessageDialog dialog(this, BoxText(ToWx(question)), ToWx("Remove Level — Confirm Deletion"),
                         wxOK | wxCANCEL | wxCANCEL_DEFAULT | wxICON_WARNING);
  dialog.SetOKCancelLabels("Delete Level && Contents", "Cancel");
  if (dialog.ShowModal() != wxID_OK) return;
  removeLevel(layout_, *row);
  fill();
}

void LevelManagerDialog::onProperties() {
  const std::optional<std::size_t> row = selectedRow();
  if (!row) {
    Inform(this, "Level Properties", "Select a level first.");
    return;
  }
  LevelPropertiesDialog dialog(this, layout_.levels[*row], UnitOf(layout_));
  LevelProperties typed;
  do {
    if (dialog.ShowModal() != wxID_OK) return;
    typed = dialog.properties();
  } while (!ConfirmsLevelName(this, std::string(Trimmed(std::string_view(typed.name)))));
  changeLevel(layout_, *row, typed);
  fill();
  selectRow(*row);
}

}  // namespace vantrel
