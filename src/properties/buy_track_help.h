// The dialog that explains what Buy Track does.
#pragma once

#include <wx/bitmap.h>
#include <wx/dialog.h>
#include <wx/image.h>

#include <span>

#include "app/services/embedded_pictures.h"
#include "app/services/web_link.h"

namespace vantrel {

// The picture of the dialog at its size, or an invalid bitmap for a dialog without one.
wxBitmap BuyTrackPicture(bool playful,
                         std::span<const EmbeddedPicture> carried = EmbeddedPictures());
wxBitmap ScaledBuyTrackPicture(const wxImage& image);

class BuyTrackHelpDialog : public wxDialog {
 public:
  // An invalid picture leaves its side of the dialog out.
  BuyTrackHelpDialog(wxWindow* parent, const wxBitmap& picture,
                     const LinkOpener& openLink = OpenInBrowser);

 private:
  wxSizer* buildText(const LinkOpener& openLink);
};

}  // namespace vantrel
