// The question that chooses between the playful and the plain interface.
#pragma once

#include <wx/dialog.h>

#include <string>

namespace vantrel {

inline constexpr int kKeepItPlayful = 5103;
inline constexpr int kDownToBusiness = 5104;

// ShowModal returns the id of the button, or anything else when the dialog was just closed.
class ExperienceDialog : public wxDialog {
 public:
  explicit ExperienceDialog(wxWindow* parent);
};

// Asks, takes anything but the playful button as business, and keeps the answer in Prefs() and in
// the file.
void AskExperience(wxWindow* parent, const std::string& prefsPath);

}  // namespace vantrel
