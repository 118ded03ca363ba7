#include "print/preview_button.h"

#include <wx/dialog.h>

#ifdef __WXGTK__
#include <wx/gtk/print.h>

#include "app/services/toolkit_below.h"
#endif

namespace vantrel {

#ifdef __WXGTK__

namespace {

// The libraries that the toolkit prints with are loaded, but their headers are no part of the
// build.
struct PrintLibrary {
  using Handler = void();
  unsigned long (*connect)(void* object, const char* signal, Handler* handler, void* data,
                           void* destroyData, int flags);
  void (*setContext)(void* printContext, void* drawing, double dpiAcross, double dpiDown);
  void (*endPreview)(void* preview);
  void* (*newRecording)(int content, const void* extents);
  void* (*newDrawing)(void* surface);
  void (*dropRecording)(void* surface);
  void (*dropDrawing)(void* drawing);

  bool complete() const {
    return connect != nullptr && setContext != nullptr && endPreview != nullptr &&
           newRecording != nullptr && newDrawing != nullptr && dropRecording != nullptr &&
           dropDrawing != nullptr;
  }
};

template <typename Function>
void Find(Function*& function, const char* name) {
  function = FunctionBelowToolkit<Function>(name);
}

const PrintLibrary& Library() {
  static const PrintLibrary library = [] {
    PrintLibrary found{};
    Find(found.connect, "g_signal_connect_data");
    Find(found.setContext, "gtk_print_context_set_cairo_context");
    Find(found.endPreview, "gtk_print_operation_preview_end_preview");
    Find(found.newRecording, "cairo_recording_surface_create");
    Find(found.newDrawing, "cairo_create");
    Find(found.dropRecording, "cairo_surface_destroy");
    Find(found.dropDrawing, "cairo_destroy");
    return found;
  }();
  return library;
}

constexpr double kPointsPerInch = 72.0;

// The toolkit makes a device for the pages before it hears that none is wanted, and needs something
// to make it of.
void GiveDrawing(void* printContext) {
  constexpr int kColour = 0x1000;
  const PrintLibrary& library = Library();
  void* const surface = library.newRecording(kColour, nullptr);
  void* const drawing = library.newDrawing(surface);
  library.setContext(printContext, drawing, kPointsPerInch, kPointsPerInch);
  library.dropDrawing(drawing);
  library.dropRecording(surface);
}

// Nonzero: whoever is told of the press shows the pages.
int OnPreview(void*, void*, void* printContext, void*, bool* pressed) {
  *pressed = true;
  GiveDrawing(printContext);
  return 1;
}

// Where pages would be asked for, one by one.
void OnReady(void* preview, void*, void*) {
  Library().endPreview(preview);
}

}  // namespace

int PreviewButton::Enter(wxDialog* dialog) {
  auto* const print = dynamic_cast<wxGtkPrintDialog*>(dialog);
  if (print == nullptr || !Library().complete()) return wxID_NONE;
  auto* const native = dynamic_cast<wxGtkPrintNativeData*>(print->GetPrintData().GetNativeData());
  if (native == nullptr || native->GetPrintJob() == nullptr) return wxID_NONE;
  const auto connect = [job = native->GetPrintJob()](const char* signal, auto* handler,
                                                     void* data) {
    Library().connect(job, signal, reinterpret_cast<PrintLibrary::Handler*>(handler), data, nullptr,
                      0);
  };
  connect("preview", OnPreview, &pressed_);
  connect("ready", OnReady, nullptr);
  return wxID_NONE;
}

#else

int PreviewButton::Enter(wxDialog*) {
  return wxID_NONE;
}

#endif

}  // namespace vantrel
