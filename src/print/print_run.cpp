#include "print/print_run.h"

#include <wx/log.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "print/preview_button.h"
#include "print/print_progress.h"

namespace vantrel {
namespace {

PrintEnd run(wxPrinter& printer, wxWindow* parent, LayoutPrintout& printout, bool interactive) {
  const wxWindowDisabler noEvents;
  const wxLogNull quiet;
  PreviewButton preview;
  PrintProgress progress(
      parent, [&printer] { cancelPrintJob(printer.GetPrintDialogData().GetPrintData()); });
  printout.watchSheets(
      [&progress](int number, int count) { return progress.sheet(number, count); });
  const bool done = printer.Print(parent, &printout, interactive);
  printout.watchSheets({});
  if (preview.pressed()) return PrintEnd::previewWanted;
  return done ? PrintEnd::printed : PrintEnd::notPrinted;
}

}  // namespace

PrintEnd runPrinter(wxPrinter& printer, wxWindow* parent, LayoutPrintout& printout,
                    bool interactive) {
  const PrintEnd end = run(printer, parent, printout, interactive);
  // When the progress window went, all others were disabled, and the window manager may have given
  // the keyboard to any of them.
  wxWindow* const window = wxGetTopLevelParent(parent);
  if (window != nullptr && window->IsShown()) window->Raise();
  return end;
}

}  // namespace vantrel
