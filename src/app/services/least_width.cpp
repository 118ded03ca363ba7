#include "app/services/least_width.h"

#include <wx/dynlib.h>
#include <wx/window.h>

namespace vantrel {

int LeastWidth(wxWindow& control) {
#ifdef __WXGTK3__
  // wxWidgets has no call for it, and its own libraries bring GTK's along without the headers.
  const auto preferred =
      reinterpret_cast<void (*)(WXWidget, int*, int*)>(wxDynamicLibrary::RawGetSymbol(
          wxDynamicLibrary::GetProgramHandle(), "gtk_widget_get_preferred_width"));
  if (preferred) {
    int least = 0;
    int natural = 0;
    preferred(control.GetHandle(), &least, &natural);
    return least;
  }
#endif
  return control.GetBestSize().x;
}

}  // namespace vantrel
