#include "print/layout_preview.h"

#include <wx/log.h>
#include <wx/utils.h>

#include <utility>

#include "print/layout_printout.h"
#include "print/print_progress.h"

namespace vantrel {

LayoutPreview::LayoutPreview(Layout& layout, const PrintOptions& options, const wxPrintData& data,
                             PreviewPrinting printing)
    : LayoutPreview(layout, options, wxPrintDialogData(data), std::move(printing)) {}

LayoutPreview::LayoutPreview(Layout& layout, const PrintOptions& options, wxPrintDialogData&& data,
                             PreviewPrinting&& printing)
    : wxPrintPreview(new LayoutPrintout(layout, options), new LayoutPrintout(layout, options),
                     &data),
      printing_(std::move(printing)) {}

// With a printer of its own: the toolkit's preview would keep what the user chose in the printer's
// dialog to itself. Pages are drawn in an event loop of their own: nothing may be closed or edited
// beneath it.
bool LayoutPreview::Print(bool interactive) {
  if (!printing_.mayPrint()) return false;
  wxPrinter printer(&GetPrintDialogData());
  bool done = false;
  {
    const wxWindowDisabler noEvents;
    const wxLogNull quiet;  // who is told of a problem tells it in its own words
    PrintProgress progress(
        GetFrame(), [&printer] { cancelPrintJob(printer.GetPrintDialogData().GetPrintData()); });
    auto* const printout = dynamic_cast<LayoutPrintout*>(GetPrintoutForPrinting());
    if (printout != nullptr)
      printout->watchSheets(
          [&progress](int number, int count) { return progress.sheet(number, count); });
    done = printer.Print(GetFrame(), GetPrintoutForPrinting(), interactive);
  }
  if (auto* const printout = dynamic_cast<LayoutPrintout*>(GetPrintoutForPrinting()))
    printout->watchSheets({});
  const wxPrintData& chosen = printer.GetPrintDialogData().GetPrintData();
  if (done) GetPrintDialogData().SetPrintData(chosen);
  printing_.printed(done, chosen);
  return done;
}

}  // namespace vantrel
