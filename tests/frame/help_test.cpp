#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/hyperlink.h>
#include <wx/menu.h>
#include <wx/scrolwin.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include <algorithm>
#include <string>
#include <vector>

#include "frame/help_dialog.h"
#include "frame/help_topics.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

// Any picture will do, of any size.
wxImage SomePicture() {
  wxImage image(40, 30);
  image.SetRGB(wxRect(0, 0, 40, 30), 20, 90, 40);
  return image;
}

std::vector<std::string> TextsOf(wxWindow& window) {
  std::vector<std::string> texts;
  for (const wxStaticText* text : FindControls<wxStaticText>(window))
    texts.push_back(text->GetLabel().utf8_string());
  return texts;
}

// With every run of blanks and line ends as one blank: the window breaks lines where it has to.
std::string Unbroken(const std::string& text) {
  std::string out;
  for (const char c : text)
    if (c != '\n' && c != ' ')
      out += c;
    else if (!out.ends_with(' '))
      out += ' ';
  return out;
}

// A key on its way to the control that has the focus.
void Press(wxWindow& window, int code) {
  wxKeyEvent event(wxEVT_CHAR_HOOK);
  event.m_keyCode = code;
  event.SetEventObject(&window);
  window.ProcessWindowEvent(event);
}

class Help : public FrameTest {
 protected:
  // The manual laid out at its own size, as ShowModal does it.
  std::unique_ptr<HelpDialog> laidOut(bool playful, const wxImage& picture) {
    MainFrame& parent = frame();  // reads the preferences
    Prefs().playful = playful;
    auto dialog = std::make_unique<HelpDialog>(&parent, picture);
    dialog->Layout();
    return dialog;
  }
  static wxScrolledWindow& pageOf(wxDialog& dialog) {
    return *FindControl<wxScrolledWindow>(dialog);
  }
};

TEST_F(Help, TellsTheStoresAddressWhenItsLinkFindsNoBrowser) {
  HelpDialog dialog(&frame(), wxImage(), [](const std::string&) { return false; });
  auto* link = FindControl<wxHyperlinkCtrl>(dialog);
  ASSERT_NE(link, nullptr);
  ModalScript script;
  script.box("Web Page",
             "No web browser could be started. The address is:\nhttps://shop.kelmor.example",
             kInformationBox, wxID_OK);
  wxHyperlinkEvent click(link, link->GetId(), link->GetURL());
  EXPECT_TRUE(link->ProcessWindowEvent(click));
}

TEST_F(Help, IsOpenedModallyByItsCommandAndClosedByItsButton) {
  bool wasModal = false;
  ModalScript script;
  script.shown("Vantrel v1.5 Help", [&](wxDialog& dialog) {
    wasModal = dialog.IsModal();
    EXPECT_EQ(dialog.GetParent(), frame_);
    auto* close = FindControl<wxButton>(dialog, "Close");
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(close->GetId(), wxID_OK);
    EXPECT_TRUE(close->IsShownOnScreen());
    wxCommandEvent click(wxEVT_BUTTON, wxID_OK);
    click.SetEventObject(close);
    close->ProcessWindowEvent(click);
  });
  showFrame();
  command(2022);
  EXPECT_TRUE(script.finished());
  EXPECT_TRUE(wasModal);
  EXPECT_TRUE(frame().GetMenuBar()->FindItem(2022)->IsEnabled());
}

TEST_F(Help, EscapeClosesIt) {
  ModalScript script;
  script.shown("Vantrel v1.5 Help", [](wxDialog& dialog) { Press(dialog, WXK_ESCAPE); });
  EXPECT_EQ(HelpDialog(&frame()).ShowModal(), wxID_OK);
}

TEST_F(Help, IsAResizableWindowInTheMiddle) {
  frame().SetSize(wxRect(31, 17, 1203, 851));
  HelpDialog dialog(&frame());
  // (1203 - 925) / 2 = 139 beside it, (851 - 700) / 2 = 75.5 above it.
  EXPECT_EQ(dialog.GetPosition().x, 31 + 139);
  EXPECT_NEAR(dialog.GetPosition().y, 17 + 75, 1);
  EXPECT_EQ(dialog.GetTitle(), "Vantrel v1.5 Help");
  EXPECT_EQ(dialog.GetSize(), wxSize(925, 700));
  EXPECT_TRUE(dialog.HasFlag(wxRESIZE_BORDER));
  int xStep = -1;
  int yStep = -1;
  pageOf(dialog).GetScrollPixelsPerUnit(&xStep, &yStep);
  EXPECT_EQ(xStep, 0);
  EXPECT_EQ(yStep, 12);
}

TEST_F(Help, ShowsEveryTopicWholeAndInOrder) {
  HelpDialog dialog(&frame());
  std::vector<std::string> expected;
  for (const HelpTopic& topic : HelpTopics()) {
    expected.push_back(topic.heading);
    if (!topic.text.empty()) expected.push_back(topic.text);
    if (!topic.linkLead.empty()) expected.push_back(topic.linkLead);
    if (topic.shortcuts)
      for (const HelpShortcut& shortcut : HelpShortcuts()) {
        expected.push_back(shortcut.keys);
        expected.push_back(shortcut.action);
      }
    if (!topic.textBehind.empty()) expected.push_back(topic.textBehind);
  }
  const std::vector<std::string> shown = TextsOf(dialog);
  ASSERT_EQ(shown.size(), expected.size());
  for (std::size_t i = 0; i < shown.size(); ++i)
    EXPECT_EQ(Unbroken(shown[i]), Unbroken(expected[i]));
}

TEST_F(Help, SetsHeadingsInLargerBoldLettersAndBodiesInPlainOnes) {
  HelpDialog dialog(&frame());
  const int normal = dialog.GetFont().GetPointSize();
  for (wxStaticText* text : FindControls<wxStaticText>(dialog)) {
    const bool heading = std::ranges::find(HelpTopics(), text->GetLabel().utf8_string(),
                                           &HelpTopic::heading) != HelpTopics().end();
    EXPECT_EQ(text->GetFont().GetWeight() == wxFONTWEIGHT_BOLD, heading) << text->GetLabel();
    EXPECT_EQ(text->GetFont().GetPointSize() > normal, heading) << text->GetLabel();
  }
}

TEST_F(Help, LinksTheMakersNameToTheStoreTwice) {
  HelpDialog dialog(&frame());
  const std::vector<wxHyperlinkCtrl*> links = FindControls<wxHyperlinkCtrl>(dialog);
  ASSERT_EQ(links.size(), 2u);
  for (const wxHyperlinkCtrl* link : links) {
    EXPECT_EQ(link->GetLabel(), "Kelmor");
    EXPECT_EQ(link->GetURL(), "https://shop.kelmor.example");
  }
}

TEST_F(Help, InPlayfulModeHasThePictureOnTheLeft) {
  const auto dialog = laidOut(true, SomePicture());
  const std::vector<wxStaticBitmap*> pictures = FindControls<wxStaticBitmap>(*dialog);
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_EQ(pictures[0]->GetBitmap().GetSize(), wxSize(368, 660));
  EXPECT_EQ(pictures[0]->GetPosition(), wxPoint(8, 8));
  // Both borders, then the page's own: 8 + 368 + 8 + 4.
  EXPECT_EQ(pageOf(*dialog).GetPosition().x, 388);
}

TEST_F(Help, InBusinessModeHasNoPictureAndTextOfTheSameWidth) {
  const std::vector<std::string> playful = TextsOf(*laidOut(true, SomePicture()));
  const auto dialog = laidOut(false, SomePicture());
  EXPECT_EQ(FindControl<wxStaticBitmap>(*dialog), nullptr);
  EXPECT_EQ(pageOf(*dialog).GetPosition().x, 4);
  EXPECT_EQ(TextsOf(*dialog), playful) << "the lines break at the same words";
}

TEST_F(Help, WithoutAPictureResourceHasNoSidePicture) {
  const auto dialog = laidOut(true, wxImage());
  EXPECT_EQ(FindControl<wxStaticBitmap>(*dialog), nullptr);
  EXPECT_EQ(pageOf(*dialog).GetPosition().x, 4);
}

TEST_F(Help, FollowsTheExperienceAtItsNextOpening) {
  for (const bool playful : {false, true, false}) {
    const auto dialog = laidOut(playful, SomePicture());
    EXPECT_EQ(FindControl<wxStaticBitmap>(*dialog) != nullptr, playful);
  }
}

TEST_F(Help, BreaksItsLinesAt490Pixels) {
  HelpDialog dialog(&frame());
  int widest = 0;
  for (wxStaticText* text : FindControls<wxStaticText>(dialog)) {
    EXPECT_LE(text->GetBestSize().x, 490) << text->GetLabel();
    widest = std::max(widest, text->GetBestSize().x);
  }
  // No word is longer than 100 pixels, so that a full line ends beyond 390.
  EXPECT_GT(widest, 390);
}

TEST_F(Help, CutsNothingOffAtItsOwnSize) {
  for (const bool playful : {true, false}) {
    const auto dialog = laidOut(playful, SomePicture());
    wxScrolledWindow& page = pageOf(*dialog);
    const wxSize whole = page.GetVirtualSize();
    for (const wxWindow* child : page.GetChildren()) {
      const wxRect place = child->GetRect();
      EXPECT_GE(place.width, child->GetBestSize().x) << child->GetLabel();
      EXPECT_GE(place.height, child->GetBestSize().y) << child->GetLabel();
      EXPECT_LE(place.GetRight(), page.GetClientSize().x) << child->GetLabel();
      EXPECT_LE(place.GetBottom(), whole.y) << child->GetLabel();
    }
    auto* close = FindControl<wxButton>(*dialog, "Close");
    EXPECT_TRUE(wxRect(dialog->GetClientSize()).Contains(close->GetRect()));
    EXPECT_GT(close->GetPosition().x, dialog->GetClientSize().x / 2) << "at the right";
    EXPECT_GT(close->GetPosition().y, page.GetRect().GetBottom()) << "below the text";
  }
}

TEST_F(Help, ItsShortcutsStandInTwoColumns) {
  const auto dialog = laidOut(false, wxImage());
  const std::vector<wxStaticText*> texts = FindControls<wxStaticText>(*dialog);
  const auto first = std::ranges::find_if(
      texts, [](const wxStaticText* text) { return text->GetLabel() == "Ctrl+Z / Ctrl+Y"; });
  ASSERT_NE(first, texts.end());
  const std::size_t begin = static_cast<std::size_t>(first - texts.begin());
  int keysEnd = 0;
  for (std::size_t row = 0; row < HelpShortcuts().size(); ++row) {
    const wxRect keys = texts[begin + 2 * row]->GetRect();
    const wxRect action = texts[begin + 2 * row + 1]->GetRect();
    EXPECT_EQ(keys.x, texts[begin]->GetRect().x) << row;
    EXPECT_EQ(action.x, texts[begin + 1]->GetRect().x) << row;
    EXPECT_EQ(keys.y, action.y) << row;
    keysEnd = std::max(keysEnd, keys.GetRight());
  }
  EXPECT_GT(texts[begin + 1]->GetRect().x, keysEnd);
}

TEST_F(Help, ScrollsByTheKeyboard) {
  ModalScript script;
  script.shown("Vantrel v1.5 Help", [](wxDialog& dialog) {
    wxScrolledWindow& page = pageOf(dialog);
    const auto position = [&page] { return page.GetViewStart().y; };
    EXPECT_EQ(position(), 0);
    Press(dialog, WXK_DOWN);
    EXPECT_EQ(position(), 3);  // three steps of 12 pixels
    Press(dialog, WXK_UP);
    EXPECT_EQ(position(), 0);
    Press(dialog, WXK_UP);
    EXPECT_EQ(position(), 0);
    Press(dialog, WXK_PAGEDOWN);
    const int page1 = position();
    EXPECT_GT(page1, page.GetClientSize().y / 12 / 2);
    EXPECT_LT(page1, page.GetClientSize().y / 12) << "a line or more of the page before stays";
    Press(dialog, WXK_PAGEDOWN);
    EXPECT_EQ(position(), 2 * page1);
    Press(dialog, WXK_PAGEUP);
    EXPECT_EQ(position(), page1);
    Press(dialog, WXK_END);
    // The last line is in view.
    const wxWindow& last = *page.GetChildren().GetLast()->GetData();
    EXPECT_LE(last.GetRect().GetBottom(), page.GetClientSize().y);
    EXPECT_GT(last.GetRect().GetTop(), 0);
    Press(dialog, WXK_HOME);
    EXPECT_EQ(position(), 0);
    EXPECT_TRUE(dialog.IsModal());
    dialog.EndModal(wxID_OK);
  });
  EXPECT_EQ(HelpDialog(&frame()).ShowModal(), wxID_OK);
}

}  // namespace
}  // namespace vantrel
