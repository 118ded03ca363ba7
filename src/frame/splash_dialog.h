// The greeting at the start of the program, in playful mode.
#pragma once

#include <wx/bitmap.h>
#include <wx/dialog.h>

#include <span>

#include "app/services/embedded_pictures.h"
#include "app/services/web_link.h"

class wxButton;
class wxDC;

namespace vantrel {

// Invalid where the build carries no picture.
struct SplashPictures {
  wxBitmap main;   // 900 by 600
  wxBitmap inset;  // 120 by 160, in playful mode only
};

SplashPictures LoadSplashPictures(bool playful, std::span<const EmbeddedPicture> carried);

// The upper panel: the picture with its inset, or the program's name without one.
void PaintSplash(wxDC& dc, const SplashPictures& pictures);

class SplashDialog : public wxDialog {
 public:
  explicit SplashDialog(wxWindow* parent, LinkOpener openLink = OpenInBrowser,
                        std::span<const EmbeddedPicture> carried = EmbeddedPictures());

 private:
  void build();
  wxSizer* buildMakerRow();
  wxSizer* buildButtonRow();
  void onKeyDown(wxKeyEvent& event);

  SplashPictures pictures_;
  LinkOpener openLink_;
  wxButton* done_ = nullptr;

  wxDECLARE_EVENT_TABLE();
};

}  // namespace vantrel
