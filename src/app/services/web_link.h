// The way from a link to the user's browser.
#pragma once

#include <functional>
#include <string>

class wxHyperlinkCtrl;

namespace vantrel {

// Opens a web address; false when no browser starts.
using LinkOpener = std::function<bool(const std::string& address)>;

// In the desktop's default browser, without a box of the toolkit's when there is none.
bool OpenInBrowser(const std::string& address);

// A click on the link opens its address; when that fails, a message box tells the address.
void FollowLink(wxHyperlinkCtrl& link, LinkOpener open = OpenInBrowser);

}  // namespace vantrel
