#include "app/services/web_link.h"

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/hyperlink.h>

#include <string>
#include <vector>

#include "tests/support/modal_script.h"

namespace vantrel {
namespace {

class WebLink : public testing::Test {
 protected:
  ~WebLink() override { frame->Destroy(); }

  // A click on a link of the window, as its control tells it. True when it was taken.
  bool click(bool browserStarts) {
    auto* link = new wxHyperlinkCtrl(frame, wxID_ANY, "here", "https://page.example/a?b=1");
    FollowLink(*link, [this, browserStarts](const std::string& address) {
      opened.push_back(address);
      return browserStarts;
    });
    wxHyperlinkEvent event(link, link->GetId(), link->GetURL());
    return link->ProcessWindowEvent(event);
  }

  wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "links");
  std::vector<std::string> opened;
};

TEST_F(WebLink, OpensItsAddressOnceWithoutAWord) {
  ModalScript script;
  EXPECT_TRUE(click(true)) << "or the toolkit opens it once more";
  EXPECT_EQ(opened, (std::vector<std::string>{"https://page.example/a?b=1"}));
}

TEST_F(WebLink, TellsTheAddressWhenNoBrowserStarts) {
  ModalScript script;
  script.box("Web Page",
             "No web browser could be started. The address is:\nhttps://page.example/a?b=1",
             kInformationBox, wxID_OK);
  EXPECT_TRUE(click(false));
}

}  // namespace
}  // namespace vantrel
