#include "app/services/least_width.h"

#include <wx/window.h>

#include "app/services/toolkit_below.h"

namespace vantrel {

int LeastWidth(wxWindow& control) {
#ifdef __WXGTK3__
  auto* const preferred =
      FunctionBelowToolkit<void(WXWidget, int*, int*)>("gtk_widget_get_preferred_width");
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
