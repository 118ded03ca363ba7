#include "print/layout_preview.h"

#include <wx/utils.h>

#include <utility>

#include "print/layout_printout.h"

namespace vantrel {

LayoutPreview::LayoutPreview(Layout& layout, const PrintOptions& options, const wxPrintData& data,
                             PreviewPrinting printing)
    : LayoutPreview(layout, options, wxPrintDialogData(data), std::move(printing)) {}

LayoutPreview::LayoutPreview(Layout& layout, const PrintOptions& options, wxPrintDialogData&& data,
                             PreviewPrinting&& printing)
    : wxPrintPreview(new LayoutPrintout(layout, options), new LayoutPrintout(layout, options),
                     &data),
      printing_(std::move(printing)) {}

// Pages are drawn in an event loop of their own: nothing may be closed or edited beneath it.
bool LayoutPreview::Print(bool interactive) {
  if (!printing_.mayPrint()) return false;
  bool done = false;
  {
    const wxWindowDisabler noEvents;
    done = wxPrintPreview::Print(interactive);
  }
  printing_.printed(done, GetPrintDialogData().GetPrintData());
  return done;
}

}  // namespace vantrel
