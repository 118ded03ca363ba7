#include "app/services/web_link.h"

#include <wx/hyperlink.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/utils.h>

#include <utility>

namespace vantrel {

bool OpenInBrowser(const std::string& address) {
  const wxLogNull quiet;
  return wxLaunchDefaultBrowser(wxString::FromUTF8(address));
}

void FollowLink(wxHyperlinkCtrl& link, LinkOpener open) {
  link.Bind(wxEVT_HYPERLINK, [&link, open = std::move(open)](wxHyperlinkEvent& event) {
    const wxString address = event.GetURL();
    if (open(address.utf8_string())) {
      link.SetVisited();
      return;
    }
    wxMessageBox("No web browser could be started. The address is:\n" + address, "Web Page",
                 wxOK | wxICON_INFORMATION, wxGetTopLevelParent(&link));
  });
}

}  // namespace vantrel
