// The choice among the rows of track that fill a gap.
#pragma once

#include <wx/dialog.h>

#include <string>
#include <vector>

class wxListBox;

namespace vantrel {

class AutofillDialog : public wxDialog {
 public:
  // One row of the list for each text; the first is selected.
  AutofillDialog(wxWindow* parent, double gapMm, const std::vector<std::string>& rows);

  // The selected row, or kNone.
  int row() const;

 private:
  void fitAtLeast(wxSize size);

  wxListBox* list_ = nullptr;
};

}  // namespace vantrel
