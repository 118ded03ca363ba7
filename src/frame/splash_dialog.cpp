#include "frame/splash_dialog.h"

#include <wx/button.h>
#include <wx/dcclient.h>
#include <wx/hyperlink.h>
#include <wx/image.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

#include "app/services/pictures.h"
#include "app/services/prefs.h"
#include "app/services/store_address.h"
#include "frame/fonts.h"
#include "frame/program_title.h"

namespace vantrel {
namespace {

const wxSize kDialogSize(900, 700);
const wxSize kPictureSize(900, 600);
const wxSize kInsetSize(120, 160);
const wxPoint kInsetCorner(890, 590);  // its lower right corner
constexpr int kMakerBorder = 6;        // pixels
constexpr int kMakerGap = 4;
constexpr int kButtonBorder = 8;

wxBitmap ScaledPicture(int id, std::span<const EmbeddedPicture> carried, wxSize size) {
  const wxImage image = LoadPicture(id, carried);
  if (!image.IsOk()) return {};
  return wxBitmap(image.Scale(size.x, size.y, wxIMAGE_QUALITY_HIGH));
}

wxFont FontOfSize(int points, wxFontWeight weight) {
  return wxFont(wxFontInfo(points).Family(wxFONTFAMILY_DEFAULT).Weight(weight));
}

}  // namespace

SplashPictures LoadSplashPictures(bool playful, std::span<const EmbeddedPicture> carried) {
  SplashPictures pictures;
  pictures.main = ScaledPicture(kSplashPicture, carried, kPictureSize);
  if (playful) pictures.inset = ScaledPicture(kInsetPicture, carried, kInsetSize);
  return pictures;
}

void PaintSplash(wxDC& dc, const SplashPictures& pictures) {
  if (pictures.main.IsOk()) {
    dc.DrawBitmap(pictures.main, 0, 0);
  } else {
    dc.SetBackground(wxBrush(wxColour(30, 40, 60)));
    dc.Clear();
    dc.SetTextForeground(*wxWHITE);
    dc.SetFont(FontOfSize(20, wxFONTWEIGHT_BOLD));
    dc.DrawText("Vantrel", 20, 20);
    dc.SetFont(FontOfSize(13, wxFONTWEIGHT_NORMAL));
    dc.DrawText("by Kelmor", 20, 60);
  }
  if (pictures.inset.IsOk()) dc.DrawBitmap(pictures.inset, kInsetCorner - pictures.inset.GetSize());
}

wxBEGIN_EVENT_TABLE(SplashDialog, wxDialog) EVT_KEY_DOWN(SplashDialog::onKeyDown)
    wxEND_EVENT_TABLE()

        SplashDialog::SplashDialog(wxWindow* parent, LinkOpener openLink,
                                   std::span<const EmbeddedPicture> carried)
    : wxDialog(parent, wxID_ANY, kProgramTitle, wxDefaultPosition, kDialogSize),
      openLink_(std::move(openLink)) {
  wxInitAllImageHandlers();
  pictures_ = LoadSplashPictures(Prefs().playful, carried);
  build();
  Centre(wxBOTH);
  done_->SetFocus();
}

void SplashDialog::build() {
  auto* picture = new wxPanel(this, wxID_ANY, wxDefaultPosition, kPictureSize);
  picture->SetMinSize(kPictureSize);
  picture->Bind(wxEVT_PAINT, [this, picture](wxPaintEvent&) {
    wxPaintDC dc(picture);
    PaintSplash(dc, pictures_);
  });
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(picture);
  column->Add(buildMakerRow(), 0, wxALIGN_CENTRE_HORIZONTAL | wxTOP, kMakerBorder);
  column->Add(buildButtonRow(), 0, wxEXPAND);
  SetSizerAndFit(column);
  // A key goes to the control that has the focus and not on to the dialog, so that the children's
  // keys are taken on their way.
  Bind(wxEVT_CHAR_HOOK, &SplashDialog::onKeyDown, this);
}

wxSizer* SplashDialog::buildMakerRow() {
  auto* text = new wxStaticText(this, wxID_ANY, "Vantrel by");
  text->SetFont(OnePointLarger(text->GetFont()));
  auto* link = new wxHyperlinkCtrl(this, wxID_ANY, "Kelmor", kStoreAddress);
  link->SetFont(OnePointLarger(link->GetFont()).Bold());
  FollowLink(*link, openLink_);
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(text, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kMakerGap);
  row->Add(link, 0, wxALIGN_CENTRE_VERTICAL);
  return row;
}

wxSizer* SplashDialog::buildButtonRow() {
  done_ = new wxButton(this, wxID_OK, "  Done Staring  ");
  done_->SetFont(OnePointLarger(done_->GetFont()).Bold());
  done_->SetDefault();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->AddStretchSpacer();
  row->Add(done_, 0, wxALL, kButtonBorder);
  row->AddStretchSpacer();
  return row;
}

void SplashDialog::onKeyDown(wxKeyEvent& event) {
  if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_ESCAPE) {
    EndModal(wxID_OK);
    return;
  }
  event.Skip();
}

}  // namespace vantrel
