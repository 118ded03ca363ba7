// The list of the store's layouts, to open one or to delete some.
#pragma once

#include <wx/dialog.h>

#include <functional>
#include <string>
#include <vector>

class wxButton;
class wxListBox;

namespace vantrel {

class OpenDialog : public wxDialog {
 public:
  using Deleted = std::function<void(const std::string& path)>;

  // `files` are the full paths of the layouts. `deleted` hears of each file that was removed.
  OpenDialog(wxWindow* parent, std::vector<std::string> files, Deleted deleted);

  // The file of the selected row, or an empty text.
  std::string chosenPath() const;

 private:
  void updateButtons();
  void acceptRow();
  void deleteRow();

  std::vector<std::string> files_;
  std::vector<std::string> names_;  // of the rows
  Deleted deleted_;
  wxListBox* list_ = nullptr;
  wxButton* open_ = nullptr;
  wxButton* delete_ = nullptr;
};

}  // namespace vantrel
