#include "palette/palette_panel.h"

#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <cstddef>
#include <string_view>
#include <utility>

#include "app/services/least_width.h"
#include "app/services/wx_text.h"
#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "palette/palette_sections.h"
#include "palette/piece_preview_popup.h"

namespace vantrel {
namespace {

constexpr int kBorder = 4;  // pixels
// Where tabs need more room than there is, the toolkit hides some of them behind arrows; it doesn't
// tell when. Measured with its default theme: what it keeps free around the text of each tab, and
// at both ends of the row.
constexpr int kTabAir = 32;
constexpr int kRowEnds = 14;
constexpr std::string_view kHelixKeyPrefix = "@helix:";
const char* const kSceneryPageTitle = "Scenery";

// Where a double click puts a helix.
constexpr Pose kHelixPlace{500.0, 500.0, 0.0};

bool IsHelixKey(std::string_view key) {
  return key.starts_with(kHelixKeyPrefix);
}

std::string_view KitOf(std::string_view helixKey) {
  return helixKey.substr(kHelixKeyPrefix.size());
}

void AddHelixRows(TrackIconGrid& grid) {
  grid.AddHeader("Helix");
  for (const HelixKit& kit : kits())
    grid.AddTextRow(ToWx(kit.name), std::string(kHelixKeyPrefix) + std::string(kit.id));
}

}  // namespace

PalettePanel::PalettePanel(wxWindow* parent, Workspace& workspace, std::string libraryRoot)
    : wxPanel(parent), workspace_(workspace), libraryRoot_(std::move(libraryRoot)) {
  build();
  popup_ = new PiecePreviewPopup(this);
}

void PalettePanel::build() {
  chooser_ = new wxChoice(this, kSystemChooserId);
  for (const PaletteSystem& system : paletteSystems()) chooser_->Append(ToWx(system.entry));
  chooser_->SetSelection(0);
  chooser_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { showSystem(); });

  notebook_ = new wxNotebook(this, wxID_ANY);
  grid_ = new TrackIconGrid(notebook_, *this);
  library_ = new wxListBox(notebook_, kLibraryListId);
  scenery_.box = new wxListBox(notebook_, kSceneryListId);
  signals_.box = new wxListBox(notebook_, kSignalsListId);
  bindLibrary();
  bindList(scenery_.box);
  bindList(signals_.box);
  notebook_->AddPage(grid_, "Track");
  notebook_->AddPage(library_, "Library");
  notebook_->AddPage(scenery_.box, kSceneryPageTitle);
  notebook_->AddPage(signals_.box, "Signals");

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(chooser_, 0, wxEXPAND | wxALL, kBorder);
  sizer->Add(new wxStaticText(this, wxID_ANY, "Double-click to place on canvas."), 0, wxALL,
             kBorder);
  sizer->Add(notebook_, 1, wxEXPAND | wxALL, kBorder);
  SetSizer(sizer);
}

void PalettePanel::bindList(wxListBox* box) {
  box->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) {
    doubleClicked_ = true;
    startSceneryDrag();
  });
  box->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) {
    doubleClicked_ = false;
    event.Skip();
  });
  box->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
    if (event.LeftIsDown() && event.Dragging() && !doubleClicked_) startSceneryDrag();
    event.Skip();
  });
}

int PalettePanel::widthOfTabs() const {
  int width = kRowEnds + 2 * kBorder;
  for (std::size_t page = 0; page < notebook_->GetPageCount(); ++page)
    width += notebook_->GetTextExtent(notebook_->GetPageText(page)).x + kTabAir;
  return width;
}

int PalettePanel::smallestWidth() const {
  return LeastWidth(*notebook_) + 2 * kBorder;
}

void PalettePanel::RefreshAll() {
  fillGrid();
  RefreshLibrary();
  fillList(scenery_, sceneryListRows(sceneryCatalog()));
  fillSignals();
  setSceneryPageShown(true);
}

void PalettePanel::SelectSystemFor(const vantrel::Layout& layout) {
  chooser_->SetSelection(paletteIndexFor(layout));
  showSystem();
}

std::int32_t PalettePanel::systemIndex() const {
  return chooser_->GetSelection();
}

void PalettePanel::showSystem() {
  fillGrid();
  RefreshLibrary();
  fillSignals();
  setSceneryPageShown(systemIndex() != kPaletteIndexZ);
}

void PalettePanel::fillGrid() {
  grid_->Clear();
  hoverRow_ = -1;
  const std::int32_t index = systemIndex();
  if (index < 0) return;
  for (const PaletteSection& section : paletteSystems()[static_cast<std::size_t>(index)].sections) {
    grid_->AddHeader(ToWx(section.title));
    for (const std::string_view part : section.parts()) grid_->AddPart(part);
    if (index == kPaletteIndexC && section.title == kHelixFollowsSection) AddHelixRows(*grid_);
  }
}

void PalettePanel::fillList(KeyedList& list, const std::vector<SceneryListRow>& rows) {
  list.box->Clear();
  list.keys.clear();
  for (const SceneryListRow& row : rows) {
    list.box->Append(ToWx(row.text));
    list.keys.push_back(row.key);
  }
}

void PalettePanel::fillSignals() {
  fillList(signals_, signalListRows(sceneryCatalog(), systemIndex() == kPaletteIndexZ));
}

void PalettePanel::setSceneryPageShown(bool shown) {
  if (shown == sceneryPageShown_) return;
  sceneryPageShown_ = shown;
  if (shown) {
    notebook_->AddPage(scenery_.box, kSceneryPageTitle, false);
    return;
  }
  const int page = notebook_->FindPage(scenery_.box);
  if (page == wxNOT_FOUND) return;
  if (page == notebook_->GetSelection()) notebook_->SetSelection(0);
  notebook_->RemovePage(static_cast<std::size_t>(page));
}

std::string PalettePanel::currentListKey() const {
  const wxWindow* page = notebook_->GetCurrentPage();
  for (const KeyedList* list : {&scenery_, &signals_}) {
    if (list->box != page) continue;
    const int row = list->box->GetSelection();
    if (row >= 0 && static_cast<std::size_t>(row) < list->keys.size())
      return list->keys[static_cast<std::size_t>(row)];
  }
  return {};
}

void PalettePanel::startSceneryDrag() {
  const std::string key = currentListKey();
  if (!key.empty() && canvas_ != nullptr) canvas_->beginSceneryDrag(key);
}

void PalettePanel::hidePopup() {
  popup_->Hide();
}

void PalettePanel::rowActivated(const std::string& key) {
  doubleClicked_ = true;
  hidePopup();
  if (IsHelixKey(key))
    workspace_.placeHelix(KitOf(key), kHelixPlace);
  else if (canvas_ != nullptr)
    canvas_->placeByDoubleClick(key);
}

void PalettePanel::rowDragged(const std::string& key) {
  doubleClicked_ = false;
  hidePopup();
  if (canvas_ == nullptr) return;
  if (IsHelixKey(key))
    canvas_->beginHelixDrag(KitOf(key));
  else
    canvas_->beginPieceDrag(key);
}

void PalettePanel::rowPressed() {
  hidePopup();
  hoverRow_ = -1;
}

void PalettePanel::rowHovered(int row) {
  hidePopup();
  // Setting a tooltip anew makes it flicker.
  if (row >= 0 && row == hoverRow_) return;
  hoverRow_ = row;
  const PieceDef* def =
      row < 0 ? nullptr : findPart(grid_->rows()[static_cast<std::size_t>(row)].key);
  if (def != nullptr)
    grid_->SetToolTip(ToWx(def->description));
  else
    grid_->UnsetToolTip();
}

}  // namespace vantrel
