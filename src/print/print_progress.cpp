#include "print/print_progress.h"

#include <wx/prntbase.h>

#ifdef __WXGTK__
#include <wx/gtk/print.h>
#endif

#include <string>
#include <utility>

#include "app/services/toolkit_below.h"

namespace vantrel {

PrintProgress::PrintProgress(wxWindow* parent, std::function<void()> cancel)
    : parent_(parent), cancel_(std::move(cancel)) {}

bool PrintProgress::sheet(int number, int count) {
  if (cancelled_) return false;
  if (count < kSheetsWithProgress) return true;
  const std::string text = "Sheet " + std::to_string(number) + " of " + std::to_string(count);
  if (!dialog_)
    dialog_ = std::make_unique<wxProgressDialog>("Printing", text, count, parent_,
                                                 wxPD_CAN_ABORT | wxPD_SMOOTH);
  // A full bar would close it, and the last sheet is still to be drawn.
  if (dialog_->Update(number - 1, text)) return true;
  cancelled_ = true;
  dialog_.reset();
  cancel_();
  return false;
}

void cancelPrintJob(wxPrintData& data) {
  wxPrinterBase::sm_abortIt = true;
#ifdef __WXGTK__
  // The library that the toolkit prints with is loaded, but its headers are no part of the build.
  using Cancel = void(GtkPrintOperation*);
  auto* const cancel = FunctionBelowToolkit<Cancel>("gtk_print_operation_cancel");
  auto* const native = dynamic_cast<wxGtkPrintNativeData*>(data.GetNativeData());
  if (cancel != nullptr && native != nullptr && native->GetPrintJob() != nullptr)
    cancel(native->GetPrintJob());
#else
  static_cast<void>(data);
#endif
}

}  // namespace vantrel
