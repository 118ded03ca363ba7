// Prints a printout through the toolkit's own printer into a PDF file, without a print dialog or a
// printer, and turns the pages into pictures.
#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>
#include <wx/print.h>

#include <string>
#include <vector>

namespace vantrel {

// On upright A4 paper at 1,200 dots an inch. False when the toolkit can't.
bool PrintToPdf(wxPrintout& printout, const std::string& file);

// Each page of a PDF file at so many dots an inch; `folder` takes the pictures' files.
std::vector<wxImage> PagesOfPdf(const std::string& file, const std::string& folder, int dpi);

}  // namespace vantrel
