// Asks which layout file of any folder to copy into the store, and under which name.
#pragma once

#include <wx/dialog.h>

#include <string>
#include <vector>

class wxButton;
class wxListBox;
class wxTextCtrl;

namespace vantrel {

class ImportDialog : public wxDialog {
 public:
  ImportDialog(wxWindow* parent, const std::string& folder);

  // The file of the selected row; an empty text without one.
  std::string sourcePath() const;
  // The name that the layout gets, without blanks at its ends.
  std::string layoutName() const;

 private:
  std::string folder() const;
  void refill();
  void takeRow();
  void updateButton();
  void acceptRow();

  std::vector<std::string> fileNames_;  // of the rows
  wxTextCtrl* folder_ = nullptr;
  wxListBox* list_ = nullptr;
  wxTextCtrl* name_ = nullptr;
  wxButton* import_ = nullptr;
};

}  // namespace vantrel
