#include "print/preview_frame.h"

namespace vantrel {
namespace {

// A window manager that insists on a place of its own gets its way in the end.
constexpr int kMostPlaces = 4;

}  // namespace

PreviewFrame::PreviewFrame(wxPrintPreviewBase* preview, wxWindow* parent, const wxString& title,
                           wxSize size)
    : wxPreviewFrame(preview, parent, title, wxDefaultPosition, size) {
  Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
    event.Skip();
    if (event.IsShown()) CallAfter([this] { takePlace(); });
  });
  // Where the window manager has put it is heard of only now; it may have had its own mind.
  Bind(wxEVT_MOVE, [this](wxMoveEvent& event) {
    event.Skip();
    if (settled_ || places_ >= kMostPlaces) return;
    ++places_;
    CentreOnParent(wxBOTH);
  });
  // From here on the user moves it.
  Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
    event.Skip();
    if (!event.GetActive() || settled_) return;
    CentreOnParent(wxBOTH);
    settled_ = true;
  });
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE && !event.HasAnyModifiers())
      Close();
    else
      event.Skip();
  });
}

void PreviewFrame::open() {
  CentreOnParent(wxBOTH);
  Initialize();
  Show();
}

// Once more when the window is there: only now is its border known, and some window managers give a
// window whose parent is disabled neither a place nor the keyboard of their own accord.
void PreviewFrame::takePlace() {
  CentreOnParent(wxBOTH);
  Raise();
  m_previewCanvas->SetFocus();
}

}  // namespace vantrel
