// The preview of a print, and printing from it.
#pragma once

#include <wx/print.h>

#include <functional>

#include "doc/layout.h"
#include "print/pages/print_options.h"

namespace vantrel {

// The preview's "Print" button asks `mayPrint` first, with the data that it shows, and reports to
// `printed`: whether it went well, and the printer data that the user chose. In its place
// `previewWanted` gets these data when the user pressed "Preview" in the printer's dialog.
struct PreviewPrinting {
  std::function<bool(const wxPrintData& data)> mayPrint;
  std::function<void(bool done, const wxPrintData& data)> printed;
  std::function<void(const wxPrintData& data)> previewWanted;
};

class LayoutPreview : public wxPrintPreview {
 public:
  LayoutPreview(Layout& layout, const PrintOptions& options, const wxPrintData& data,
                PreviewPrinting printing);

  bool Print(bool interactive) override;

 private:
  LayoutPreview(Layout& layout, const PrintOptions& options, wxPrintDialogData&& data,
                PreviewPrinting&& printing);

  PreviewPrinting printing_;
};

}  // namespace vantrel
