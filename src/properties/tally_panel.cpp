#include "properties/tally_panel.h"
#include "app/services/wx_text.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

#include "app/services/prefs.h"
#include "app/services/store_address.h"
#include "app/services/web_link.h"
#include "properties/buy_track_help.h"
#include "properties/store_colours.h"
#include "properties/tally_list.h"
#include "shopping/cart.h"
#include "shopping/tally.h"

namespace vantrel {
namespace {

constexpr int kBorder = 6;  // pixels
constexpr int kGap = 4;
constexpr int kBuyPointsLarger = 2;

}  // namespace

TallyPanel::TallyPanel(wxWindow* parent, Workspace& workspace, Browser browser, wxWindow* foot)
    : wxPanel(parent),
      workspace_(workspace),
      browser_(browser ? std::move(browser) : Browser(OpenInBrowser)) {
  auto* title = new wxStaticText(this, wxID_ANY, "Piece Count");
  title->SetFont(title->GetFont().Bold());
  list_ = new TallyList(this);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(title, 0, wxLEFT | wxRIGHT | wxTOP, kBorder);
  column->Add(list_, 1, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, kBorder);
  SetSizer(column);
  wxSizer* below = column;
  if (foot) foot->SetSizer(below = new wxBoxSizer(wxVERTICAL));
  below->Add(buildButtonRow(foot ? foot : this), 0, wxEXPAND | wxALL, kBorder);
}

wxSizer* TallyPanel::buildButtonRow(wxWindow* on) {
  auto* buy = new wxButton(on, wxID_ANY, "  Buy Track  ");
  wxFont font = buy->GetFont();
  font.SetPointSize(font.GetPointSize() + kBuyPointsLarger);
  font.SetWeight(wxFONTWEIGHT_EXTRABOLD);
  buy->SetFont(font);
  buy->SetBackgroundColour(StoreGreen());
  buy->SetForegroundColour(*wxWHITE);
  buy->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnBuyTrack(); });
  auto* help = new wxButton(on, wxID_ANY, "?", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
  help->SetToolTip("About Buy Track");
  help->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnBuyTrackHelp(); });
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(buy, 1, wxRIGHT, kGap);
  row->Add(help, 0, wxEXPAND);
  return row;
}

int TallyPanel::usualWidth() const {
  return list_->usualWidth() + 2 * kBorder;
}

void TallyPanel::RefreshTally() {
  list_->showRows(TallyRows(CountForTally(workspace_.layout())));
}

void TallyPanel::OnBuyTrack() {
  const Checkout checkout = PrepareCheckout(workspace_.layout(), kStoreAddress);
  for (const CartMessage& message : checkout.messages)
    wxMessageBox(ToWx(message.text), ToWx(message.title),
                 wxOK | (message.warning ? wxICON_WARNING : wxICON_INFORMATION),
                 wxGetTopLevelParent(this));
  if (!checkout.address.empty()) browser_(checkout.address);
}

void TallyPanel::OnBuyTrackHelp() {
  BuyTrackHelpDialog(wxGetTopLevelParent(this), BuyTrackPicture(Prefs().playful)).ShowModal();
}

}  // namespace vantrel
