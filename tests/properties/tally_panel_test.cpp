#include "properties/tally_panel.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/hyperlink.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/tooltip.h>
#include <wx/utils.h>

#include <string>
#include <vector>

#include "app/services/pictures.h"
#include "app/services/prefs.h"
#include "properties/buy_track_help.h"
#include "properties/tally_list.h"
#include "tests/shopping/shopping_support.h"
#include "tests/support/modal_script.h"
#include "tests/support/waiting.h"

namespace vantrel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kHelpTitle = "Buy Track - How it works";

class QuietWorkspace : public Workspace {
 public:
  Layout& layout() override { return document; }
  void markDirty() override { ++changes; }
  void selectionChanged() override { ++changes; }
  void refreshViews() override { ++changes; }
  void noteCanvasClick(Vec2) override {}
  void setStatus(StatusField, const std::string&) override {}
  std::string status(StatusField) const override { return {}; }
  void clickToolEnded(std::int32_t) override {}
  void placeHelix(std::string_view, const Pose&) override {}

  Layout document;
  int changes = 0;
};

class TallyPanelTest : public testing::Test {
 protected:
  void SetUp() override {
    frame = new wxFrame(nullptr, wxID_ANY, "tally", wxPoint(0, 0), wxSize(280, 500));
    panel = new TallyPanel(frame, workspace,
                           [this](const std::string& address) { opened.push_back(address); });
    resize(280, 400);
    list = FindControl<TallyList>(*panel);
    ASSERT_NE(list, nullptr);
  }
  void TearDown() override {
    delete frame;
    Prefs() = {};
  }

  void resize(int width, int height) {
    panel->SetSize(0, 0, width, height);
    panel->Layout();
  }

  void show() {
    frame->Show();
    WaitUntilSettled(*panel);
  }

  void press(const wxString& label) {
    auto* button = FindControl<wxButton>(*panel, label);
    ASSERT_NE(button, nullptr);
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
  }
  void buy() { press("  Buy Track  "); }

  // What stands in the list, as "text x count".
  Texts shown() const {
    Texts rows;
    for (long i = 0; i < list->GetItemCount(); ++i)
      rows.push_back(list->GetItemText(i, 0).utf8_string() + " x " +
                     list->GetItemText(i, 1).utf8_string());
    return rows;
  }

  Layout& plan() { return workspace.document; }

  QuietWorkspace workspace;
  wxFrame* frame = nullptr;
  TallyPanel* panel = nullptr;
  TallyList* list = nullptr;
  Texts opened;
};

TEST_F(TallyPanelTest, HasItsTitleInBoldAboveTheListAndTheButtonsBelow) {
  auto* title = FindControl<wxStaticText>(*panel, "Piece Count");
  ASSERT_NE(title, nullptr);
  EXPECT_EQ(title->GetFont().GetNumericWeight(), 700);
  EXPECT_LT(title->GetPosition().y, list->GetPosition().y);

  auto* buyButton = FindControl<wxButton>(*panel, "  Buy Track  ");
  auto* help = FindControl<wxButton>(*panel, "?");
  ASSERT_NE(buyButton, nullptr);
  ASSERT_NE(help, nullptr);
  EXPECT_GT(buyButton->GetPosition().y, list->GetPosition().y + list->GetSize().y - 1);
  EXPECT_GT(help->GetPosition().x, buyButton->GetPosition().x + buyButton->GetSize().x - 1);
  EXPECT_EQ(help->GetToolTipText(), "About Buy Track");
}

TEST_F(TallyPanelTest, HasAButtonToBuyThatStandsOut) {
  auto* buyButton = FindControl<wxButton>(*panel, "  Buy Track  ");
  ASSERT_NE(buyButton, nullptr);
  EXPECT_EQ(buyButton->GetBackgroundColour(), wxColour(20, 110, 20));
  EXPECT_EQ(buyButton->GetForegroundColour(), *wxWHITE);
  const wxButton plain(frame, wxID_ANY, "plain");
  EXPECT_EQ(buyButton->GetFont().GetPointSize(), plain.GetFont().GetPointSize() + 2);
  EXPECT_EQ(buyButton->GetFont().GetNumericWeight(), 800);
}

TEST_F(TallyPanelTest, HasAListOfTwoColumnsWithoutAHeader) {
  EXPECT_TRUE(list->HasFlag(wxLC_REPORT));
  EXPECT_TRUE(list->HasFlag(wxLC_NO_HEADER));
  EXPECT_TRUE(list->HasFlag(wxBORDER_SIMPLE));
  EXPECT_GE(list->GetMinSize().y, 180);
  ASSERT_EQ(list->GetColumnCount(), 2);
  wxListItem column;
  column.SetMask(wxLIST_MASK_TEXT);
  list->GetColumn(0, column);
  EXPECT_EQ(column.GetText(), "Piece");
  list->GetColumn(1, column);
  EXPECT_EQ(column.GetText(), "Count");
}

TEST_F(TallyPanelTest, ShowsNothingBeforeTheFirstCountAndForAnEmptyPlan) {
  EXPECT_EQ(shown(), Texts());
  panel->RefreshTally();
  EXPECT_EQ(shown(), Texts());
}

TEST_F(TallyPanelTest, CountsThePlanAnew) {
  Place(plan(), "24188", 2);
  Place(plan(), "74636");
  panel->RefreshTally();
  EXPECT_EQ(shown(),
            (Texts{"24188 - 188.3mm x 2", "24360 - 360mm x 1", "74636 Arch Bridge 360mm x 1"}));
  plan().pieces.pop_back();
  panel->RefreshTally();
  EXPECT_EQ(shown(), (Texts{"24188 - 188.3mm x 2"}));
  plan().pieces.clear();
  panel->RefreshTally();
  EXPECT_EQ(shown(), Texts());
  EXPECT_EQ(workspace.changes, 0) << "counting is no change of the document";
}

TEST_F(TallyPanelTest, PaintsTheRecommendationsHeadingBoldAndBlue) {
  Place(plan(), "24720");
  panel->RefreshTally();
  ASSERT_EQ(shown(), (Texts{"24720 Double Slip Switch slim 12.1° x 1", "We Recommend x ",
                            "74491 Turnout Motor x 1", "74467 Decoder (24720) x 1"}));
  EXPECT_EQ(list->GetItemTextColour(1), wxColour(60, 60, 160));
  EXPECT_EQ(list->GetItemFont(1).GetNumericWeight(), 700);
  EXPECT_NE(list->GetItemTextColour(2), wxColour(60, 60, 160));
}

TEST_F(TallyPanelTest, ShowsPartNumbersThatAreNoUtf8AndCutsEndlessOnes) {
  Place(plan(), "\xFF\xFE");
  Place(plan(), std::string(1'000'000, 'x'));
  panel->RefreshTally();
  ASSERT_EQ(list->GetItemCount(), 2);
  EXPECT_EQ(list->GetItemText(0, 0), wxString(std::string(200, 'x')) + "...");
  EXPECT_EQ(list->GetItemText(1, 0).length(), 2u);
}

TEST_F(TallyPanelTest, GivesTheDescriptionsTheRoomBesideTheCount) {
  show();
  for (int width : {200, 280, 420}) {
    resize(width, 400);
    EXPECT_EQ(list->GetColumnWidth(0) + list->GetColumnWidth(1), list->GetClientSize().x) << width;
    EXPECT_EQ(list->GetColumnWidth(1), 40) << width;
  }
  resize(100, 400);
  EXPECT_EQ(list->GetColumnWidth(0), 110);
}

TEST_F(TallyPanelTest, WidensTheCountForBigNumbers) {
  show();
  Place(plan(), "24188", 123'456);
  panel->RefreshTally();
  EXPECT_GE(list->GetColumnWidth(1), list->GetTextExtent("123456").x + 8);
  EXPECT_EQ(list->GetColumnWidth(0) + list->GetColumnWidth(1), list->GetClientSize().x);
}

TEST_F(TallyPanelTest, ShowsTheDescriptionsOfUsualCurvesWhole) {
  // More letters than a list of the panel's width holds in the usual size.
  Place(plan(), "24130");
  Place(plan(), "24230");
  Place(plan(), "24630");
  resize(275, 400);
  panel->RefreshTally();
  show();
  for (long i = 0; i < 3; ++i) {
    const wxString text = list->GetItemText(i, 0);
    EXPECT_LE(list->GetTextExtent(text).x + 12, list->GetColumnWidth(0)) << text;
  }
}

TEST_F(TallyPanelTest, WritesAllDescriptionsInLettersOfOneSize) {
  // A short, a long and a very long one, and a count.
  for (const char* part : {"24188", "2290", "2270", "24611"}) Place(plan(), part);
  panel->RefreshTally();
  show();
  ASSERT_EQ(list->GetItemCount(), 7);  // with the heading, a motor and a decoder
  for (const int width : {200, 280, 700}) {
    resize(width, 400);
    for (long row = 0; row < list->GetItemCount(); ++row) {
      wxFont used = list->GetItemFont(row);
      if (!used.IsOk()) used = list->GetFont();
      EXPECT_EQ(used.GetFractionalPointSize(), list->GetFont().GetFractionalPointSize())
          << list->GetItemText(row, 0);
    }
  }
}

TEST_F(TallyPanelTest, IsUsuallyWideEnoughForTheDescriptionsOfTheCTrackAndOfStraights) {
  for (const char* part : {"24712", "24294", "24740", "2200"}) Place(plan(), part);
  panel->RefreshTally();
  show();
  resize(panel->usualWidth(), 400);
  for (long row = 0; row < 4; ++row) {
    wxRect rect;
    ASSERT_TRUE(list->GetItemRect(row, rect));
    EXPECT_EQ(list->tipAt(rect.GetPosition() + wxPoint(20, 5)), "") << list->GetItemText(row, 0);
  }
}

TEST_F(TallyPanelTest, TellsTheWholeTextOfARowThatIsCutOff) {
  Place(plan(), "2270");
  Place(plan(), "24188");
  panel->RefreshTally();
  show();
  wxRect row;
  ASSERT_TRUE(list->GetItemRect(0, row));
  EXPECT_EQ(list->tipAt(row.GetPosition() + wxPoint(20, 5)),
            "2270 Symmetrical Three-Way Turnout Length 168.9 mm / Radius 424.6 mm / 16-3/4\"");
  ASSERT_TRUE(list->GetItemRect(1, row));
  EXPECT_EQ(list->tipAt(row.GetPosition() + wxPoint(20, 5)), "");
  EXPECT_EQ(list->tipAt(wxPoint(20, 390)), "") << "below the rows";
}

TEST_F(TallyPanelTest, StaysWhereTheUserScrolledToWhenTheRowsChange) {
  for (int i = 100; i < 160; ++i) Place(plan(), "part " + std::to_string(i));
  panel->RefreshTally();
  show();
  list->EnsureVisible(50);
  show();
  const long top = list->GetTopItem();
  ASSERT_GT(top, 20);

  panel->RefreshTally();
  EXPECT_EQ(list->GetTopItem(), top);
  Place(plan(), "part 120");
  panel->RefreshTally();
  show();
  EXPECT_EQ(list->GetTopItem(), top);
  Place(plan(), "part 200");
  panel->RefreshTally();
  show();
  EXPECT_EQ(list->GetTopItem(), top);
}

TEST_F(TallyPanelTest, ComesBackIntoViewWhenTheRowsGetFewerThanWereScrolledPast) {
  for (int i = 100; i < 160; ++i) Place(plan(), "part " + std::to_string(i));
  panel->RefreshTally();
  show();
  list->EnsureVisible(59);
  show();
  plan().pieces.resize(3);
  panel->RefreshTally();
  show();
  EXPECT_EQ(list->GetTopItem(), 0);
}

TEST_F(TallyPanelTest, LeavesTheListAloneWhenNothingChanged) {
  Place(plan(), "24188", 2);
  panel->RefreshTally();
  show();
  int paints = 0;
  wxWindow* area = list->GetChildren().empty() ? list : list->GetChildren()[0];
  area->Bind(wxEVT_PAINT, [&paints](wxPaintEvent& event) {
    ++paints;
    event.Skip();
  });
  panel->RefreshTally();
  show();
  EXPECT_EQ(paints, 0);
  Place(plan(), "24188");
  panel->RefreshTally();
  show();
  EXPECT_GT(paints, 0);
}

TEST_F(TallyPanelTest, KeepsASelectionWithItsTextOnly) {
  Place(plan(), "24188");
  Place(plan(), "24360");
  panel->RefreshTally();
  list->SetItemState(1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
  Place(plan(), "24188");
  panel->RefreshTally();
  EXPECT_TRUE(list->GetItemState(1, wxLIST_STATE_SELECTED) & wxLIST_STATE_SELECTED);
  Place(plan(), "2200");
  panel->RefreshTally();
  EXPECT_EQ(list->GetSelectedItemCount(), 0);
}

TEST_F(TallyPanelTest, SurvivesASelectedRowThatGoes) {
  Place(plan(), "24188");
  Place(plan(), "24360");
  panel->RefreshTally();
  list->SetItemState(1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
  plan().pieces.clear();
  panel->RefreshTally();
  show();
  EXPECT_EQ(list->GetSelectedItemCount(), 0);
}

TEST_F(TallyPanelTest, BuysNothingForAnEmptyPlan) {
  ModalScript script;
  script.box("Buy Track", "No purchasable track pieces found in your layout.", kInformationBox,
             wxID_OK);
  buy();
  EXPECT_EQ(opened, Texts());
}

TEST_F(TallyPanelTest, SaysOnlyThatThereIsNothingToBuyForPartsThatTheStoreLacks) {
  Place(plan(), "62188", 2);
  ModalScript script;
  script.box("Buy Track", "No purchasable track pieces found in your layout.", kInformationBox,
             wxID_OK);
  buy();
  EXPECT_EQ(opened, Texts());
}

TEST_F(TallyPanelTest, BuysNothingForPartsThatTheCatalogLacks) {
  Place(plan(), "made up");
  ModalScript script;
  script.box("Buy Track", "No purchasable track pieces found in your layout.", kInformationBox,
             wxID_OK);
  buy();
  EXPECT_EQ(opened, Texts());
}

TEST_F(TallyPanelTest, WarnsOfWhatIsMissingAndStillOpensTheCart) {
  Place(plan(), "24188", 2);
  Place(plan(), "62188");
  Place(plan(), "made up");
  Place(plan(), "8501");
  ModalScript script;
  script.box("Some pieces not available",
             "The following pieces are not available in the store and will be skipped:\n"
             "  62188\n  8501\n",
             wxOK | wxICON_WARNING, wxID_OK);
  buy();
  EXPECT_EQ(opened, (Texts{"https://shop.kelmor.example/cart/00000000000055:2"}));
}

TEST_F(TallyPanelTest, OpensTheCartAtOnceWhenTheStoreHasEverything) {
  Place(plan(), "24188", 2);
  Place(plan(), "24611");
  ModalScript script;
  buy();
  EXPECT_EQ(opened, (Texts{"https://shop.kelmor.example/cart/00000000000055:2,00000000000070:1,"
                           "00000000000135:1,00000000000127:1"}));
  EXPECT_EQ(workspace.changes, 0);
}

TEST_F(TallyPanelTest, ExplainsItselfBehindTheQuestionMark) {
  Prefs().playful = false;
  ModalScript script;
  script.dialog(kHelpTitle, wxID_OK, [](wxDialog& dialog) {
    auto* text = FindControl<wxStaticText>(dialog);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->GetLabel(),
              "Buy all required track and accessories securely and\n"
              "conveniently online from Kelmor.\n\n"
              "Click Buy Track and you will be taken to the Kelmor\n"
              "website with all required track waiting\n"
              "in the shopping cart for you to review and check out.");
    auto* link = FindControl<wxHyperlinkCtrl>(dialog);
    ASSERT_NE(link, nullptr);
    EXPECT_EQ(link->GetURL(), "https://shop.kelmor.example");
    auto* close = FindControl<wxButton>(dialog, "Got it!");
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(close->GetId(), wxID_OK);
    EXPECT_EQ(close->GetBackgroundColour(), wxColour(20, 110, 20));
    EXPECT_EQ(close->GetForegroundColour(), *wxWHITE);
    EXPECT_EQ(FindControl<wxStaticBitmap>(dialog), nullptr);
  });
  press("?");
}

TEST_F(TallyPanelTest, ShowsAPictureBesideTheExplanationOnlyIfThereIsOne) {
  Prefs().playful = true;
  const bool carriesPicture = LoadPicture(kInsetPicture).IsOk();
  ModalScript script;
  script.dialog(kHelpTitle, wxID_OK, [carriesPicture](wxDialog& dialog) {
    EXPECT_EQ(FindControl<wxStaticBitmap>(dialog) != nullptr, carriesPicture);
  });
  press("?");
}

TEST_F(TallyPanelTest, PutsThePictureAtTheLeftOfTheExplanation) {
  const wxBitmap picture = ScaledBuyTrackPicture(wxImage(90, 30));
  ASSERT_TRUE(picture.IsOk());
  EXPECT_EQ(picture.GetSize(), wxSize(450, 510));
  BuyTrackHelpDialog dialog(frame, picture);
  auto* shownPicture = FindControl<wxStaticBitmap>(dialog);
  auto* text = FindControl<wxStaticText>(dialog);
  ASSERT_NE(shownPicture, nullptr);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(shownPicture->GetBitmap().GetSize(), wxSize(450, 510));
  EXPECT_GE(text->GetPosition().x, shownPicture->GetPosition().x + 450);
}

TEST_F(TallyPanelTest, HasNoPictureInThePlainModeNorOneThatCannotBeRead) {
  EXPECT_FALSE(BuyTrackPicture(false).IsOk());
  EXPECT_FALSE(BuyTrackPicture(true, {}).IsOk());
  const unsigned char garbage[] = {0xFF, 0xD8, 0xFF, 0x00, 0x12};
  const EmbeddedPicture broken[] = {{kInsetPicture, garbage}};
  EXPECT_FALSE(BuyTrackPicture(true, broken).IsOk());
  EXPECT_FALSE(ScaledBuyTrackPicture(wxImage()).IsOk());
}

TEST_F(TallyPanelTest, TellsTheStoresAddressWhenTheExplanationsLinkFindsNoBrowser) {
  BuyTrackHelpDialog dialog(frame, wxBitmap(), [](const std::string&) { return false; });
  auto* link = FindControl<wxHyperlinkCtrl>(dialog);
  ASSERT_NE(link, nullptr);
  ModalScript script;
  script.box("Web Page",
             "No web browser could be started. The address is:\nhttps://shop.kelmor.example",
             kInformationBox, wxID_OK);
  wxHyperlinkEvent click(link, link->GetId(), link->GetURL());
  EXPECT_TRUE(link->ProcessWindowEvent(click));
}

TEST_F(TallyPanelTest, ClosesTheExplanationWithItsButton) {
  frame->Show();
  ModalScript script;
  script.shown(kHelpTitle, [](wxDialog& dialog) {
    auto* close = FindControl<wxButton>(dialog, "Got it!");
    ASSERT_NE(close, nullptr);
    wxCommandEvent event(wxEVT_BUTTON, wxID_OK);
    event.SetEventObject(close);
    close->ProcessWindowEvent(event);
  });
  press("?");
}

}  // namespace
}  // namespace vantrel
