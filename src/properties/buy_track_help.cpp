#include "properties/buy_track_help.h"

#include <wx/button.h>
#include <wx/hyperlink.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "app/services/pictures.h"
#include "app/services/store_address.h"
#include "properties/store_colours.h"

namespace vantrel {
namespace {

const wxSize kPictureSize(450, 510);
constexpr int kBorder = 10;  // pixels

constexpr const char* kExplanation =
    "Buy all required track and accessories securely and\n"
    "conveniently online from Kelmor.\n"
    "\n"
    "Click Buy Track and you will be taken to the Kelmor\n"
    "website with all required track waiting\n"
    "in the shopping cart for you to review and check out.";

}  // namespace

wxBitmap BuyTrackPicture(bool playful, std::span<const EmbeddedPicture> carried) {
  return playful ? ScaledBuyTrackPicture(LoadPicture(kInsetPicture, carried)) : wxBitmap();
}

wxBitmap ScaledBuyTrackPicture(const wxImage& image) {
  if (!image.IsOk()) return {};
  return wxBitmap(image.Scale(kPictureSize.x, kPictureSize.y, wxIMAGE_QUALITY_HIGH));
}

BuyTrackHelpDialog::BuyTrackHelpDialog(wxWindow* parent, const wxBitmap& picture,
                                       const LinkOpener& openLink)
    : wxDialog(parent, wxID_ANY, "Buy Track - How it works") {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  if (picture.IsOk()) row->Add(new wxStaticBitmap(this, wxID_ANY, picture), 0, wxALL, kBorder);
  row->Add(buildText(openLink), 1, wxALIGN_CENTRE_VERTICAL | wxALL, kBorder);
  SetSizerAndFit(row);
  Centre(wxBOTH);
}

wxSizer* BuyTrackHelpDialog::buildText(const LinkOpener& openLink) {
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(new wxStaticText(this, wxID_ANY, kExplanation), 0, wxALL, kBorder);
  auto* link = new wxHyperlinkCtrl(this, wxID_ANY, kStoreAddress, kStoreAddress);
  FollowLink(*link, openLink);
  column->Add(link, 0, wxALIGN_LEFT | wxLEFT | wxRIGHT | wxBOTTOM, kBorder);
  auto* close = new wxButton(this, wxID_OK, "Got it!");
  close->SetBackgroundColour(StoreGreen());
  close->SetForegroundColour(*wxWHITE);
  close->SetDefault();
  close->SetFocus();
  column->Add(close, 0, wxALIGN_CENTRE_HORIZONTAL | wxALL, kBorder);
  return column;
}

}  // namespace vantrel
