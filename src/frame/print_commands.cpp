// Print and Print Preview.
#include <wx/paper.h>
#include <wx/print.h>

#include <string>
#include <utility>

#include "app/services/program_icons.h"
#include "canvas/canvas_panel.h"
#include "dialogs/message_boxes.h"
#include "dialogs/print_options_dialog.h"
#include "frame/main_frame.h"
#include "print/layout_preview.h"
#include "print/layout_printout.h"
#include "print/pages/pagination.h"
#include "print/preview_frame.h"
#include "print/print_run.h"

namespace vantrel {
namespace {

constexpr const char* kPrintTitle = "Print";
constexpr const char* kPreviewTitle = "Print Preview";
constexpr const char* kPreviewFrameTitle = "Print Preview -- Vantrel";
const wxSize kPreviewSize(900, 700);

// More sheets than this are printed only when the user has heard of them, and more than that not at
// all: there is a piece far away, or the scale is a slip.
constexpr int kManySheets = 100;
constexpr int kTooManySheets = 10'000;

constexpr int kEstimateDpi = 300;
constexpr double kMmPerInch = 25.4;

// In tenths of a millimetre, as it will lie in the printer.
wxSize PaperSize(const wxPrintData& data) {
  const wxPrintPaperType* paper = wxThePrintPaperDatabase->FindPaperType(data.GetPaperId());
  wxSize size = paper != nullptr ? paper->GetSize() : data.GetPaperSize() * 10;
  if (size.x < 1 || size.y < 1) size = wxSize(2100, 2970);
  return data.GetOrientation() == wxLANDSCAPE ? wxSize(size.y, size.x) : size;
}

int SheetsNeeded(const Layout& layout, const PrintOptions& options, const wxPrintData& data) {
  const wxSize paper = PaperSize(data);
  const auto dots = [](int tenths) { return DeviceInt(tenths / 10.0 / kMmPerInch * kEstimateDpi); };
  return paginate(boundsOfPrint(layout, options), options, {dots(paper.x), dots(paper.y)},
                  kEstimateDpi)
      .pageCount();
}

}  // namespace

// Before the printer's own dialog: that one can't be told how many sheets there will be.
bool MainFrame::agreesToSheets(wxWindow* parent, const wxPrintData& data) {
  const int sheets = SheetsNeeded(layout_, printOptions_, data);
  if (sheets > kTooManySheets) {
    Warn(parent, kPrintTitle,
         "At this scale the layout takes more than 10,000 sheets of paper.\n\nChoose a smaller "
         "scale, or look for something that lies far away from the rest.");
    return false;
  }
  return sheets <= kManySheets ||
         AskCautiously(parent, kPrintTitle,
                       "At this scale the layout takes about " + std::to_string(sheets) +
                           " sheets of paper.\n\nPrint it?");
}

// A cancelled print changes nothing and needs no words.
void MainFrame::notePrinted(wxWindow* parent, bool done, const wxPrintData& data) {
  // Between two pages the canvas may have painted the levels as they are printed.
  canvas_->Refresh();
  if (done) {
    printData_ = data;
  } else if (wxPrinter::GetLastError() == wxPRINTER_ERROR) {
    ReportError(parent, kPrintTitle,
                "There was a problem printing. Check that a printer is installed and connected.");
  }
}

void MainFrame::onPrint(wxCommandEvent&) {
  canvas_->endGestures();
  {
    PrintOptionsDialog dialog(this, printOptions_);
    if (dialog.ShowModal() != wxID_OK) return;
    printOptions_ = dialog.options();
  }
  if (!agreesToSheets(this, printData_)) return;
  wxPrintDialogData data(printData_);
  wxPrinter printer(&data);
  PrintEnd end = PrintEnd::notPrinted;
  {
    LayoutPrintout printout(layout_, printOptions_);  // its end puts the levels back
    end = runPrinter(printer, this, printout, true);
  }
  canvas_->SetFocus();  // whatever had the keyboard lost it when the frame was disabled
  const wxPrintData& chosen = printer.GetPrintDialogData().GetPrintData();
  if (end == PrintEnd::previewWanted)
    showPreview(chosen);
  else
    notePrinted(this, end == PrintEnd::printed, chosen);
}

void MainFrame::onPrintPreview(wxCommandEvent&) {
  canvas_->endGestures();
  showPreview(printData_);
}

// The preview keeps every other window of the program disabled while it is open, and leaves the
// levels as they are after each page that it has drawn.
void MainFrame::showPreview(const wxPrintData& data) {
  canvas_->Refresh();  // a print that ended for it may have shown other levels
  PreviewPrinting printing;
  printing.mayPrint = [this](const wxPrintData& shown) { return agreesToSheets(preview_, shown); };
  printing.printed = [this](bool done, const wxPrintData& chosen) {
    notePrinted(preview_, done, chosen);
  };
  // Once the button by which it was opened is let go of, another one takes its place: the paper may
  // be another.
  printing.previewWanted = [this](const wxPrintData& chosen) {
    CallAfter([this, chosen] {
      if (preview_) preview_->Close();
      showPreview(chosen);
    });
  };
  auto* preview = new LayoutPreview(layout_, printOptions_, data, std::move(printing));
  if (!preview->IsOk()) {
    delete preview;
    ReportError(this, kPreviewTitle,
                "Could not create print preview. Is a printer driver installed?");
    return;
  }
  auto* window = new PreviewFrame(preview, this, kPreviewFrameTitle, kPreviewSize);
  preview_ = window;
  window->SetIcons(ProgramIcons());
  window->open();
}

}  // namespace vantrel
