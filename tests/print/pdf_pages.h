// Prints a printout through the toolkit's own printer into a PDF file, without a print dialog or a
// printer, and turns the pages into pictures.
#pragma once

#include <wx/cmndata.h>
#include <wx/image.h>
#include <wx/paper.h>
#include <wx/print.h>

#include <string>
#include <vector>

namespace vantrel {

struct PdfPaper {
  wxPaperSize size = wxPAPER_A4;
  wxPrintOrientation orientation = wxPORTRAIT;
  int dpi = 300;
};

// On that paper, which must be letter, A4 or A3. False when the toolkit can't.
bool PrintToPdf(wxPrintout& printout, const std::string& file, const PdfPaper& paper = {});

// Each page of a PDF file at so many dots an inch; `folder` takes the pictures' files.
std::vector<wxImage> PagesOfPdf(const std::string& file, const std::string& folder, int dpi);

}  // namespace vantrel
