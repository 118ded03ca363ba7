// Asks which of the store's layouts to copy out, to which folder and under which name.
#pragma once

#include <wx/dialog.h>

#include <string>
#include <vector>

class wxButton;
class wxListBox;
class wxTextCtrl;

namespace vantrel {

class ExportDialog : public wxDialog {
 public:
  // `files` are the full paths of the layouts. The row of `layoutName`, in whatever case, starts
  // selected.
  ExportDialog(wxWindow* parent, std::vector<std::string> files, const std::string& folder,
               const std::string& layoutName);

  // The file of the selected row; an empty text without one.
  std::string sourcePath() const;
  // Without blanks at their ends.
  std::string folder() const;
  std::string fileName() const;

 private:
  void build(const std::string& folder);
  void selectRowOf(const std::string& layoutName);
  void takeRow();
  void updateButton();
  void acceptRow();

  std::vector<std::string> files_;
  std::vector<std::string> names_;  // of the rows
  wxListBox* list_ = nullptr;
  wxTextCtrl* folder_ = nullptr;
  wxTextCtrl* name_ = nullptr;
  wxButton* export_ = nullptr;
};

}  // namespace vantrel
