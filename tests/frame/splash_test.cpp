#include "frame/splash_dialog.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/dcmemory.h>
#include <wx/hyperlink.h>
#include <wx/image.h>
#include <wx/panel.h>
#include <wx/stattext.h>

#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

wxImage Painted(const SplashPictures& pictures) {
  wxBitmap bitmap(900, 600, 24);
  wxMemoryDC dc(bitmap);
  dc.SetBackground(*wxRED_BRUSH);
  dc.Clear();
  PaintSplash(dc, pictures);
  dc.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage();
}

wxColour At(const wxImage& image, int x, int y) {
  return {image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)};
}

wxBitmap Filled(int width, int height, const wxColour& colour) {
  wxBitmap bitmap(width, height, 24);
  wxMemoryDC dc(bitmap);
  dc.SetBackground(wxBrush(colour));
  dc.Clear();
  dc.SelectObject(wxNullBitmap);
  return bitmap;
}

int WhitePixels(const wxImage& image, const wxRect& area) {
  int count = 0;
  for (int y = area.GetTop(); y <= area.GetBottom(); ++y)
    for (int x = area.GetLeft(); x <= area.GetRight(); ++x)
      if (At(image, x, y) == *wxWHITE) ++count;
  return count;
}

// A key press as the dialog gets it on its way to the control that has the focus.
void PressKey(wxWindow& window, int code) {
  wxKeyEvent event(wxEVT_CHAR_HOOK);
  event.m_keyCode = code;
  window.ProcessWindowEvent(event);
}

using Splash = FrameTest;

TEST_F(Splash, WithoutPicturesOpensWithTheProgramsNameOnAPlainPanel) {
  const SplashPictures none = LoadSplashPictures(true, {});
  EXPECT_FALSE(none.main.IsOk());
  EXPECT_FALSE(none.inset.IsOk());
  const wxImage image = Painted(none);
  EXPECT_EQ(At(image, 0, 0), wxColour(30, 40, 60));
  EXPECT_EQ(At(image, 899, 599), wxColour(30, 40, 60));
  EXPECT_GT(WhitePixels(image, wxRect(20, 20, 150, 38)), 50) << "Vantrel";
  EXPECT_GT(WhitePixels(image, wxRect(20, 60, 150, 30)), 20) << "by Kelmor";
  EXPECT_EQ(WhitePixels(image, wxRect(0, 0, 900, 20)), 0);
  EXPECT_EQ(WhitePixels(image, wxRect(0, 0, 20, 600)), 0);
  EXPECT_EQ(WhitePixels(image, wxRect(0, 100, 900, 500)), 0);

  // And it can be shown and dismissed.
  ModalScript script;
  script.shown("Vantrel v1.5 by Kelmor", [](wxDialog& dialog) { PressKey(dialog, WXK_RETURN); });
  EXPECT_EQ(SplashDialog(&frame(), OpenInBrowser, {}).ShowModal(), wxID_OK);
}

TEST_F(Splash, APictureFillsThePanelAndTheInsetStandsInItsCorner) {
  const wxImage image =
      Painted({Filled(900, 600, wxColour(10, 120, 10)), Filled(120, 160, wxColour(0, 0, 250))});
  EXPECT_EQ(At(image, 0, 0), wxColour(10, 120, 10));
  EXPECT_EQ(At(image, 899, 599), wxColour(10, 120, 10));
  // The lower right corner at 890, 590: from 770, 430 on.
  EXPECT_EQ(At(image, 770, 430), wxColour(0, 0, 250));
  EXPECT_EQ(At(image, 889, 589), wxColour(0, 0, 250));
  EXPECT_EQ(At(image, 769, 430), wxColour(10, 120, 10));
  EXPECT_EQ(At(image, 770, 429), wxColour(10, 120, 10));
  EXPECT_EQ(At(image, 890, 589), wxColour(10, 120, 10));
  EXPECT_EQ(At(image, 889, 590), wxColour(10, 120, 10));
  EXPECT_EQ(WhitePixels(image, wxRect(0, 0, 900, 600)), 0) << "no name over the picture";
}

TEST_F(Splash, TheCarriedPicturesAreScaledToTheirPlaces) {
  if (EmbeddedPictures().empty()) GTEST_SKIP() << "a build without pictures";
  const SplashPictures playful = LoadSplashPictures(true, EmbeddedPictures());
  EXPECT_EQ(playful.main.GetSize(), wxSize(900, 600));
  EXPECT_EQ(playful.inset.GetSize(), wxSize(120, 160));
  const SplashPictures plain = LoadSplashPictures(false, EmbeddedPictures());
  EXPECT_TRUE(plain.main.IsOk());
  EXPECT_FALSE(plain.inset.IsOk());
}

TEST_F(Splash, PicturesThatCannotBeReadAreAsGoodAsNone) {
  const unsigned char garbage[] = {0xFF, 0xD8, 0xFF, 0x00, 0x12};
  const EmbeddedPicture broken[] = {{101, garbage}, {102, garbage}};
  const SplashPictures pictures = LoadSplashPictures(true, broken);
  EXPECT_FALSE(pictures.main.IsOk());
  EXPECT_FALSE(pictures.inset.IsOk());
  EXPECT_EQ(At(Painted(pictures), 450, 300), wxColour(30, 40, 60));
}

TEST_F(Splash, EnterAndEscapeEndItAndOtherKeysDoNot) {
  for (const int key : {13, 27}) {
    ModalScript script;
    script.shown("Vantrel v1.5 by Kelmor", [key](wxDialog& dialog) {
      PressKey(dialog, 'A');
      EXPECT_TRUE(dialog.IsModal());
      PressKey(dialog, key);
    });
    EXPECT_EQ(SplashDialog(&frame()).ShowModal(), wxID_OK) << key;
  }
}

TEST_F(Splash, AKeyThatReachesTheDialogItselfEndsItToo) {
  ModalScript script;
  script.shown("Vantrel v1.5 by Kelmor", [](wxDialog& dialog) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = WXK_ESCAPE;
    dialog.ProcessWindowEvent(event);
  });
  EXPECT_EQ(SplashDialog(&frame()).ShowModal(), wxID_OK);
}

TEST_F(Splash, TheButtonEndsIt) {
  ModalScript script;
  script.shown("Vantrel v1.5 by Kelmor", [](wxDialog& dialog) {
    auto* done = FindControl<wxButton>(dialog, "  Done Staring  ");
    ASSERT_NE(done, nullptr);
    EXPECT_EQ(done->GetId(), wxID_OK);
    wxCommandEvent click(wxEVT_BUTTON, wxID_OK);
    click.SetEventObject(done);
    done->ProcessWindowEvent(click);
  });
  EXPECT_EQ(SplashDialog(&frame()).ShowModal(), wxID_OK);
}

TEST_F(Splash, TellsTheStoresAddressWhenItsLinkFindsNoBrowser) {
  SplashDialog dialog(&frame(), [](const std::string&) { return false; });
  auto* link = FindControl<wxHyperlinkCtrl>(dialog);
  ASSERT_NE(link, nullptr);
  ModalScript script;
  script.box("Web Page",
             "No web browser could be started. The address is:\nhttps://shop.kelmor.example",
             kInformationBox, wxID_OK);
  wxHyperlinkEvent click(link, link->GetId(), link->GetURL());
  EXPECT_TRUE(link->ProcessWindowEvent(click)) << "or the toolkit opens it once more";
}

TEST_F(Splash, NamesTheMakerInLargerLettersAndLinksToTheStore) {
  SplashDialog dialog(&frame());
  auto* text = FindControl<wxStaticText>(dialog, "Vantrel by");
  auto* link = FindControl<wxHyperlinkCtrl>(dialog);
  ASSERT_TRUE(text && link);
  const int normal = dialog.GetFont().GetPointSize();
  EXPECT_EQ(text->GetFont().GetPointSize(), normal + 1);
  EXPECT_EQ(link->GetLabel(), "Kelmor");
  EXPECT_EQ(link->GetURL(), "https://shop.kelmor.example");
  EXPECT_EQ(link->GetFont().GetPointSize(), normal + 1);
  EXPECT_EQ(link->GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
  EXPECT_EQ(FindControl<wxPanel>(dialog)->GetMinSize(), wxSize(900, 600));
}

}  // namespace
}  // namespace vantrel
