#include "app/services/opening_size.h"

#include <wx/dynlib.h>
#include <wx/toplevel.h>

namespace vantrel {

void TellOpeningSize([[maybe_unused]] wxTopLevelWindow& window) {
#ifdef __WXGTK3__
  // wxWidgets has no call for it, and its own libraries bring GTK's along without the headers.
  struct Allocation {
    int x, y, width, height;
  };
  const auto allocate =
      reinterpret_cast<void (*)(WXWidget, const Allocation*)>(wxDynamicLibrary::RawGetSymbol(
          wxDynamicLibrary::GetProgramHandle(), "gtk_widget_set_allocation"));
  if (!allocate || window.IsShown()) return;
  const wxSize size = window.GetSize();
  const Allocation room{0, 0, size.x, size.y};
  allocate(window.GetHandle(), &room);
#endif
}

}  // namespace vantrel
