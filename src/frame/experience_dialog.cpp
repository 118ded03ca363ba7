#include "frame/experience_dialog.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "app/services/prefs.h"
#include "frame/fonts.h"

namespace vantrel {
namespace {

const wxSize kDialogSize(420, 200);
const wxSize kButtonSize(160, 38);
constexpr int kWrapWidth = 380;  // pixels
constexpr int kTextBorder = 16;
constexpr int kButtonBorder = 8;

// GTK measures a control in the usual letters until it is on the screen.
wxSize RoomFor(const wxControl& control) {
  const wxString label = control.GetLabel();
  return control.GetBestSize() + control.GetTextExtent(label) -
         control.GetParent()->GetTextExtent(label);
}

void AddButton(wxDialog& dialog, wxSizer& row, int id, const char* label) {
  auto* button = new wxButton(&dialog, id, label);
  button->SetFont(OnePointLarger(button->GetFont()));
  wxSize size = kButtonSize;
  size.IncTo(RoomFor(*button));
  button->SetMinSize(size);
  button->Bind(wxEVT_BUTTON, [&dialog, id](wxCommandEvent&) { dialog.EndModal(id); });
  row.Add(button, 0, wxALL, kButtonBorder);
}

}  // namespace

ExperienceDialog::ExperienceDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Choose Your Experience", wxDefaultPosition, kDialogSize) {
  auto* question = new wxStaticText(this, wxID_ANY, "How would you like Vantrel to greet you?",
                                    wxDefaultPosition, wxDefaultSize, wxALIGN_CENTRE_HORIZONTAL);
  question->SetFont(OnePointLarger(question->GetFont()).Bold());
  question->Wrap(kWrapWidth);
  question->SetMinSize(RoomFor(*question));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->AddStretchSpacer();
  AddButton(*this, *row, kKeepItPlayful, "Keep it Playful");
  AddButton(*this, *row, kDownToBusiness, "Down to Business");
  row->AddStretchSpacer();
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(question, 0, wxALIGN_CENTRE_HORIZONTAL | wxALL, kTextBorder);
  column->Add(row, 0, wxEXPAND);
  SetSizerAndFit(column);
  SetEscapeId(kDownToBusiness);  // what closing by the title bar means, too
  Centre(wxBOTH);
}

void AskExperience(wxWindow* parent, const std::string& prefsPath) {
  ExperienceDialog dialog(parent);
  Prefs().playful = dialog.ShowModal() == kKeepItPlayful;
  Prefs().asked = true;
  SavePrefs(prefsPath, Prefs());
}

}  // namespace vantrel
