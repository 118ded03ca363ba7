#include "app/services/program_icons.h"

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/mstream.h>

#include "app/services/embedded_pictures.h"

namespace vantrel {

wxIconBundle ProgramIcons() {
  if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG)) wxImage::AddHandler(new wxPNGHandler);
  wxIconBundle icons;
  for (const EmbeddedPicture& embedded : EmbeddedIcons()) {
    wxMemoryInputStream stream(embedded.data.data(), embedded.data.size());
    const wxImage image(stream, wxBITMAP_TYPE_PNG);
    if (!image.IsOk()) continue;
    wxIcon icon;
    icon.CopyFromBitmap(wxBitmap(image));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace vantrel
