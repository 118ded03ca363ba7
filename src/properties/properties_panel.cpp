#include "properties/properties_panel.h"

#include <wx/sizer.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

constexpr int kHeadingBorder = 8;  // pixels

}  // namespace

PropertiesPanel::PropertiesPanel(wxWindow* parent, Workspace&) : wxPanel(parent, wxID_ANY) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  auto* heading = new wxStaticText(this, wxID_ANY, "Properties");
  heading->SetFont(heading->GetFont().Bold());
  column->Add(heading, 0, wxALL, kHeadingBorder);
  SetSizer(column);
}

void PropertiesPanel::RefreshSelection() {
  RefreshTally();
}

void PropertiesPanel::RefreshTally() {}

void PropertiesPanel::SetPendingLabelPosition(double x, double y) {
  pendingLabelPos_ = {x, y};
  hasPendingLabelPos_ = true;
}

}  // namespace vantrel
