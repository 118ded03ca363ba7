#include "print/layout_preview.h"

#include <utility>

#include "print/layout_printout.h"
#include "print/print_run.h"

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
// dialog to itself.
bool LayoutPreview::Print(bool interactive) {
  auto* const printout = dynamic_cast<LayoutPrintout*>(GetPrintoutForPrinting());
  if (printout == nullptr || !printing_.mayPrint(GetPrintDialogData().GetPrintData())) return false;
  wxPrinter printer(&GetPrintDialogData());
  const PrintEnd end = runPrinter(printer, GetFrame(), *printout, interactive);
  // The control that had the keyboard lost it when its window was disabled.
  if (GetCanvas() != nullptr) GetCanvas()->SetFocus();
  const wxPrintData& chosen = printer.GetPrintDialogData().GetPrintData();
  if (end == PrintEnd::previewWanted) {
    printing_.previewWanted(chosen);
    return false;
  }
  const bool done = end == PrintEnd::printed;
  if (done) GetPrintDialogData().SetPrintData(chosen);
  printing_.printed(done, chosen);
  return done;
}

}  // namespace vantrel
