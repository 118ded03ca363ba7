#include "tests/print/pdf_pages.h"

#include <dlfcn.h>
#include <wx/gtk/print.h>

#include <cstdlib>
#include <filesystem>

namespace vantrel {
namespace {

// What the toolkit's printer does in its own dialog, from the library that it stands on. Its
// headers are no part of this build, so the few calls are declared here.
template <typename Function>
Function* FromLibrary(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

constexpr int kExport = 3;
constexpr int kResultError = 0;
constexpr int kPageUpright = 0;
constexpr int kPageAcross = 1;

const char* NativeName(wxPaperSize size) {
  return size == wxPAPER_LETTER ? "na_letter" : size == wxPAPER_A3 ? "iso_a3" : "iso_a4";
}

struct Run {
  wxGtkPrinter* printer = nullptr;
  wxPrintout* printout = nullptr;
};

void Begin(GtkPrintOperation* operation, GtkPrintContext* context, void* data) {
  const auto* run = static_cast<Run*>(data);
  run->printer->BeginPrint(run->printout, operation, context);
}

void Draw(GtkPrintOperation* operation, GtkPrintContext* context, int page, void* data) {
  const auto* run = static_cast<Run*>(data);
  run->printer->DrawPage(run->printout, operation, context, page);
}

void End(GtkPrintOperation*, GtkPrintContext*, void* data) {
  static_cast<Run*>(data)->printout->OnEndPrinting();
}

}  // namespace

bool PrintToPdf(wxPrintout& printout, const std::string& file, const PdfPaper& paper) {
  const auto newOperation = FromLibrary<GtkPrintOperation*()>("gtk_print_operation_new");
  const auto setFile =
      FromLibrary<void(GtkPrintOperation*, const char*)>("gtk_print_operation_set_export_filename");
  const auto newSetup = FromLibrary<GtkPageSetup*()>("gtk_page_setup_new");
  const auto newPaper = FromLibrary<void*(const char*)>("gtk_paper_size_new");
  const auto setPaper =
      FromLibrary<void(GtkPageSetup*, void*)>("gtk_page_setup_set_paper_size_and_default_margins");
  const auto setOrientation =
      FromLibrary<void(GtkPageSetup*, int)>("gtk_page_setup_set_orientation");
  const auto setSetup = FromLibrary<void(GtkPrintOperation*, GtkPageSetup*)>(
      "gtk_print_operation_set_default_page_setup");
  const auto setSettings = FromLibrary<void(GtkPrintOperation*, GtkPrintSettings*)>(
      "gtk_print_operation_set_print_settings");
  const auto run =
      FromLibrary<int(GtkPrintOperation*, int, void*, void**)>("gtk_print_operation_run");
  const auto connect =
      FromLibrary<unsigned long(void*, const char*, void (*)(), void*, void*, int)>(
          "g_signal_connect_data");
  const auto unref = FromLibrary<void(void*)>("g_object_unref");
  if (!newOperation || !setFile || !newSetup || !newPaper || !setPaper || !setOrientation ||
      !setSetup || !setSettings || !run || !connect || !unref)
    return false;

  wxPrintData data;
  data.SetPaperId(paper.size);
  data.SetOrientation(paper.orientation);
  data.SetQuality(paper.dpi);
  data.ConvertToNative();
  wxPrintDialogData dialogData(data);
  wxGtkPrinter printer(&dialogData);
  auto* native = static_cast<wxGtkPrintNativeData*>(
      printer.GetPrintDialogData().GetPrintData().GetNativeData());

  GtkPrintOperation* operation = newOperation();
  GtkPageSetup* setup = newSetup();
  setPaper(setup, newPaper(NativeName(paper.size)));
  setOrientation(setup, paper.orientation == wxLANDSCAPE ? kPageAcross : kPageUpright);
  setSetup(operation, setup);
  setSettings(operation, native->GetPrintConfig());
  native->SetPrintJob(operation);
  setFile(operation, file.c_str());
  Run state{&printer, &printout};
  connect(operation, "begin-print", reinterpret_cast<void (*)()>(&Begin), &state, nullptr, 0);
  connect(operation, "draw-page", reinterpret_cast<void (*)()>(&Draw), &state, nullptr, 0);
  connect(operation, "end-print", reinterpret_cast<void (*)()>(&End), &state, nullptr, 0);
  const int result = run(operation, kExport, nullptr, nullptr);
  unref(setup);
  unref(operation);
  return result != kResultError;
}

std::vector<wxImage> PagesOfPdf(const std::string& file, const std::string& folder, int dpi) {
  const std::string command =
      "pdftoppm -png -r " + std::to_string(dpi) + " '" + file + "' '" + folder + "/page'";
  if (std::system(command.c_str()) != 0) return {};
  if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) wxImage::AddHandler(new wxPNGHandler);
  std::vector<wxImage> pages;
  for (int i = 1; i < 100; ++i) {
    std::string page = folder + "/page-" + std::to_string(i) + ".png";
    if (!std::filesystem::exists(page)) page = folder + "/page-0" + std::to_string(i) + ".png";
    if (!std::filesystem::exists(page)) break;
    pages.emplace_back(page);
  }
  return pages;
}

}  // namespace vantrel
