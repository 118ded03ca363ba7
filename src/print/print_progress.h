// How far a print has come, and a way to end it.
#pragma once

#include <wx/cmndata.h>
#include <wx/progdlg.h>

#include <functional>
#include <memory>

namespace vantrel {

// A print of fewer sheets is over before anybody could read of it.
inline constexpr int kSheetsWithProgress = 6;

// Shows "Sheet 3 of 24" with a Cancel button over `parent` from the first sheet on.
class PrintProgress {
 public:
  // `cancel` is called once, when the user cancels.
  PrintProgress(wxWindow* parent, std::function<void()> cancel);

  // Before each sheet. False when the user has cancelled: no sheet is to be printed any more.
  bool sheet(int number, int count);

 private:
  wxWindow* parent_;
  std::function<void()> cancel_;
  std::unique_ptr<wxProgressDialog> dialog_;
  bool cancelled_ = false;
};

// Ends the print that runs with these data: nothing of it reaches the printer or the file.
void cancelPrintJob(wxPrintData& data);

}  // namespace vantrel
