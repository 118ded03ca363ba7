#include "app/services/program_icons.h"

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/mstream.h>

#include "app/services/embedded_pictures.h"

namespace vantrel {

wxIconBundle ProgramIcons() {
  wxPNGHandler png;  // not one of the program's list: the splash registers them all, once
  wxIconBundle icons;
  for (const EmbeddedPicture& embedded : EmbeddedIcons()) {
    wxMemoryInputStream stream(embedded.data.data(), embedded.data.size());
    wxImage image;
    if (!png.LoadFile(&image, stream, false)) continue;
    wxIcon icon;
    icon.CopyFromBitmap(wxBitmap(image));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace vantrel
