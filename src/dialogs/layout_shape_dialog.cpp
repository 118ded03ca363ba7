#include "dialogs/layout_shape_dialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <optional>
#include <string>

#include "app/services/number_entry.h"
#include "app/services/wx_text.h"
#include "dialogs/message_boxes.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kBorder = 10;
constexpr int kGap = 6;
constexpr int kCaptionWidth = 160;
constexpr int kSpinWidth = 90;
const wxSize kVertexFieldSize(320, 180);

struct Page {
  const char* name;
  const char* help;
  std::array<const char*, 4> captions;
};

constexpr std::array<Page, kBaseboardShapes> kPages = {
    {{"Rectangle",
      "Simple rectangular baseboard:",
      {"Width (left to right):", "Depth (top to bottom):"}},
     {"L-Shape",
      "L-Shape: full rectangle minus bottom-right corner.\n"
      "W1/H1 = full size,  W2/H2 = cutout (bottom-right).",
      {"Full width  W1:", "Full depth  H1:", "Cutout width  W2:", "Cutout depth  H2:"}},
     {"U-Shape",
      "U-Shape: rectangle with notch cut from bottom centre.\n"
      "W/H = outer size,  W2/H2 = notch (centred on bottom).",
      {"Outer width  W:", "Outer depth  H:", "Notch width  W2:", "Notch depth  H2:"}},
     {"T-Shape",
      "T-Shape: wide top bar plus narrower stem below.\n"
      "W/H1 = top bar,  W2/H2 = stem (centred).",
      {"Top width  W:", "Top depth  H1:", "Stem width  W2:", "Stem depth  H2:"}},
     {"Custom polygon (vertices)",
      "Enter polygon vertices as  x,y  pairs, one per line.\n"
      "Values are in the unit selected above.\n"
      "Example (mm):  0,0  /  2400,0  /  2400,1200  /  0,1200",
      {}},
     {"Free-form (draw on canvas)",
      "Click OK and then click vertices on the canvas to outline the baseboard.\n"
      "Close the shape by clicking near the first vertex or pressing Enter.\n"
      "Backspace removes the last vertex; Escape cancels.",
      {}},
     {"Clear (no baseboard)", "Remove the baseboard outline from the canvas.", {}}}};

constexpr std::size_t kLeastVertices = 3;

}  // namespace

LayoutShapeDialog::LayoutShapeDialog(wxWindow* parent, vantrel::Layout& layout)
    : wxDialog(parent, wxID_ANY, "Layout Baseboard"),
      lastShape_(layout.lastShape),
      existing_(layout.baseboard),
      unit_(UnitOf(layout)),
      start_(boardToStartFrom(existing_, lastShape_, unit_.mm)),
      typed_(*this) {
  build();
  makeRoomForAllPages();
  buildPage(shape());
  shapeChoice_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { buildPage(shape()); });
  Bind(
      wxEVT_BUTTON, [this](wxCommandEvent&) { apply(); }, wxID_OK);
  shapeChoice_->SetFocus();
  Centre();
}

void LayoutShapeDialog::build() {
  auto* column = new wxBoxSizer(wxVERTICAL);
  const auto add = [column](auto* item) {
    column->Add(item, 0, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder);
  };
  auto* shapeRow = new wxBoxSizer(wxHORIZONTAL);
  shapeRow->Add(new wxStaticText(this, wxID_ANY, "Shape:"), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT,
                kGap);
  shapeChoice_ = new wxChoice(this, wxID_ANY);
  for (const Page& page : kPages) shapeChoice_->Append(page.name);
  const bool known = start_.id >= 0 && start_.id < kBaseboardShapes;
  shapeChoice_->SetSelection(known ? start_.id : kRectangleBoard);
  shapeRow->Add(shapeChoice_, 1, wxALIGN_CENTRE_VERTICAL);
  add(shapeRow);
  add(new wxStaticLine(this));
  add(new wxStaticText(this, wxID_ANY, "All dimensions in " + ToWx(std::string(unit_.name)) + "."));
  page_ = new wxPanel(this);
  pageSizer_ = new wxBoxSizer(wxVERTICAL);
  page_->SetSizer(pageSizer_);
  add(page_);
  add(new wxStaticLine(this));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  auto* applyButton = new wxButton(this, wxID_OK, "Apply");
  applyButton->SetDefault();
  buttons->AddStretchSpacer();
  buttons->Add(applyButton, 0, wxRIGHT, kGap);
  buttons->Add(new wxButton(this, wxID_CANCEL, "Cancel"));
  column->Add(buttons, 0, wxEXPAND | wxALL, kBorder);
  SetSizer(column);
}

// A dialog that changed its size from page to page would depend on how soon the window manager
// follows, and its buttons would run away from the mouse.
void LayoutShapeDialog::makeRoomForAllPages() {
  wxSize largest;
  for (std::int32_t shape = 0; shape < kBaseboardShapes; ++shape) {
    buildPage(shape);
    largest.IncTo(pageSizer_->GetMinSize());
  }
  page_->SetMinSize(largest);
  GetSizer()->SetSizeHints(this);
}

void LayoutShapeDialog::buildPage(std::int32_t shape) {
  typed_.clear();
  spins_.fill(nullptr);
  vertexField_ = nullptr;
  pageSizer_->Clear(true);
  const Page& page = kPages[static_cast<std::size_t>(shape)];
  pageSizer_->Add(new wxStaticText(page_, wxID_ANY, page.help), 0, wxBOTTOM, kGap);
  buildSpins(shape);
  if (shape == kCustomBoard) buildVertexField();
  page_->Layout();
}

void LayoutShapeDialog::buildSpins(std::int32_t shape) {
  const LastShape& from = shape == start_.id ? start_ : lastShape_;
  const BoardWholeNumbers numbers = boardStartNumbers(shape, from, unit_.mm);
  const Page& page = kPages[static_cast<std::size_t>(shape)];
  for (std::size_t i = 0; i < boardDimensionCount(shape); ++i)
    addSpinRow(i, page.captions[i], numbers[i]);
}

void LayoutShapeDialog::addSpinRow(std::size_t index, const char* caption, std::int32_t value) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* text = new wxStaticText(page_, wxID_ANY, caption);
  text->SetMinSize(wxSize(std::max(kCaptionWidth, text->GetBestSize().x), -1));
  row->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
  auto* spin = new wxSpinCtrl(page_, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                              wxSP_ARROW_KEYS, kSmallestDimension, kLargestDimension, value);
  spin->SetMinSize(wxSize(std::max(kSpinWidth, spin->GetBestSize().x), -1));
  row->Add(spin, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
  row->Add(new wxStaticText(page_, wxID_ANY, ToWx(std::string(unit_.name))), 0,
           wxALIGN_CENTRE_VERTICAL);
  pageSizer_->Add(row, 0, wxTOP, kGap);
  spins_[index] = spin;
  typed_.watch(*spin, kSmallestDimension, kLargestDimension);
}

void LayoutShapeDialog::buildVertexField() {
  vertexField_ = new wxTextCtrl(page_, wxID_ANY, ToWx(boardText(existing_, unit_.mm)),
                                wxDefaultPosition, kVertexFieldSize, wxTE_MULTILINE);
  vertexField_->Bind(wxEVT_TEXT, [field = vertexField_](wxCommandEvent& event) {
    event.Skip();
    ClearRefusedEntry(*field);
  });
  pageSizer_->Add(vertexField_, 0, wxEXPAND | wxTOP, kGap);
}

std::int32_t LayoutShapeDialog::shape() const {
  return std::max(shapeChoice_->GetSelection(), 0);
}

BoardDimensions LayoutShapeDialog::dimensions() const {
  BoardWholeNumbers numbers{};
  for (std::size_t i = 0; i < spins_.size(); ++i)
    if (spins_[i] != nullptr) numbers[i] = spins_[i]->GetValue();
  return boardDimensions(numbers, unit_.mm);
}

void LayoutShapeDialog::apply() {
  if (wxSpinCtrlBase* spin = typed_.takeRefused()) {
    refuse(spin);
    return;
  }
  if (!takeVertices()) return;
  freeForm_ = shape() == kFreeFormBoard;
  rememberBoard(lastShape_, shape(), dimensions());
  EndModal(wxID_OK);
}

// False when the user has been told to mend something.
bool LayoutShapeDialog::takeVertices() {
  if (vertexField_ != nullptr) {
    const std::optional<std::vector<Vec2>> typed =
        boardFromText(ToUtf8(vertexField_->GetValue()), unit_.mm);
    if (!typed) {
      MarkRefusedEntry(*vertexField_, "One of these lines holds something that is no number.");
      refuse(vertexField_);
      return false;
    }
    vertices_ = *typed;
    return true;
  }
  vertices_ = boardVertices(shape(), dimensions());
  if (boardDimensionCount(shape()) == 0 || vertices_.size() >= kLeastVertices) return true;
  refuse(shapeChoice_);
  return false;
}

// The dialog stays open with everything that was typed.
void LayoutShapeDialog::refuse(wxWindow* field) {
  Warn(this, "Layout Shape", "Please enter valid dimensions.");
  field->SetFocus();
}

}  // namespace vantrel
