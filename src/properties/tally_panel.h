// The foot of the properties panel: the tally of what the plan needs, and the way to the store.
#pragma once

#include <wx/panel.h>

#include <functional>
#include <string>

#include "workspace/workspace.h"

namespace vantrel {

class TallyList;

class TallyPanel : public wxPanel {
 public:
  // Opens a web address in the user's browser.
  using Browser = std::function<void(const std::string& address)>;

  // Without a `browser` it is the desktop's default one; when that doesn't start, nothing happens.
  // The buttons lie on the `foot`, by default on the panel itself, below the list.
  TallyPanel(wxWindow* parent, Workspace& workspace, Browser browser = {},
             wxWindow* foot = nullptr);

  // The width at which the list shows what it usually holds, in pixels.
  int usualWidth() const;

  // Counts the pieces anew.
  void RefreshTally();

 private:
  wxSizer* buildButtonRow(wxWindow* on);
  void OnBuyTrack();
  void OnBuyTrackHelp();

  Workspace& workspace_;
  Browser browser_;
  TallyList* list_ = nullptr;
};

}  // namespace vantrel
