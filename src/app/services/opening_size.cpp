#include "app/services/opening_size.h"

#include <wx/toplevel.h>

#include "app/services/toolkit_below.h"

namespace vantrel {

void TellOpeningSize([[maybe_unused]] wxTopLevelWindow& window) {
#ifdef __WXGTK3__
  struct Allocation {
    int x, y, width, height;
  };
  auto* const allocate =
      FunctionBelowToolkit<void(WXWidget, const Allocation*)>("gtk_widget_set_allocation");
  if (!allocate || window.IsShown()) return;
  const wxSize size = window.GetSize();
  const Allocation room{0, 0, size.x, size.y};
  allocate(window.GetHandle(), &room);
#endif
}

}  // namespace vantrel
