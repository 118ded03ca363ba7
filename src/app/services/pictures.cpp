#include "app/services/pictures.h"

#include <wx/imagjpeg.h>
#include <wx/log.h>
#include <wx/mstream.h>

namespace vantrel {

wxImage LoadPicture(int id, std::span<const EmbeddedPicture> pictures) {
  const wxLogNull quiet;  // a picture that doesn't decode is as good as none
  wxImage image;
  for (const EmbeddedPicture& picture : pictures) {
    if (picture.id != id) continue;
    if (!wxImage::FindHandler(wxBITMAP_TYPE_JPEG)) wxImage::AddHandler(new wxJPEGHandler);
    wxMemoryInputStream stream(picture.data.data(), picture.data.size());
    image.LoadFile(stream, wxBITMAP_TYPE_JPEG);
    break;
  }
  return image;
}

}  // namespace vantrel
