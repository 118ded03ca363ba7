// The program's manual on the screen.
#pragma once

#include <wx/dialog.h>
#include <wx/image.h>

#include <vector>

#include "app/services/web_link.h"

class wxScrolledWindow;
class wxStaticText;

namespace vantrel {

struct HelpTopic;

class HelpDialog : public wxDialog {
 public:
  explicit HelpDialog(wxWindow* parent);
  // With this picture at the side: in playful mode, and only when it is valid.
  HelpDialog(wxWindow* parent, const wxImage& sidePicture, LinkOpener openLink = OpenInBrowser);

 private:
  wxSizer* buildText();
  wxSizer* buildTopics();
  void addTopic(wxSizer& column, const HelpTopic& topic);
  void addBody(wxSizer& column, const std::string& text);
  wxSizer* buildLink(const std::string& lead);
  wxSizer* buildShortcuts();
  wxStaticText* newText(const std::string& text);
  void onKey(wxKeyEvent& event);

  LinkOpener openLink_;
  wxScrolledWindow* page_ = nullptr;
};

}  // namespace vantrel
