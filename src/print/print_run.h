// A run of the printer, from its dialog to the last sheet.
#pragma once

#include <wx/print.h>

#include "print/layout_printout.h"

namespace vantrel {

enum class PrintEnd {
  printed,
  notPrinted,     // cancelled, or the printer has told of a problem
  previewWanted,  // the user pressed "Preview" in the printer's dialog; nothing is printed
};

// Pages are drawn in an event loop of its own: all other windows are disabled meanwhile, so that
// nobody edits or closes the plan beneath it. Tells how far it is and lets the user cancel it. The
// toolkit's own words on a problem are kept back; who is told of the end has others. The printer
// then has the data that the user chose, also those for a preview, and the parent's window has the
// keyboard.
PrintEnd runPrinter(wxPrinter& printer, wxWindow* parent, LayoutPrintout& printout,
                    bool interactive);

}  // namespace vantrel
