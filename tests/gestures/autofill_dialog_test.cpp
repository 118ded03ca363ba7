#include "canvas/autofill_dialog.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>
#include <string>
#include <vector>

#include "doc/records.h"
#include "tests/support/modal_script.h"
#include "tests/support/waiting.h"

namespace vantrel {
namespace {

using Texts = std::vector<std::string>;

class AutofillDialogTest : public testing::Test {
 protected:
  AutofillDialogTest() { frame->Show(); }
  ~AutofillDialogTest() override { frame->Destroy(); }

  static wxListBox& listOf(wxDialog& dialog) { return *FindControl<wxListBox>(dialog); }

  wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "canvas", wxPoint(0, 0), wxSize(900, 700));
  Texts rows{"24188  (188.3 mm)", "24094 + 24094  (188.4 mm)", "third"};
};

TEST_F(AutofillDialogTest, ShowsTheGapTheRowsAndTwoButtons) {
  AutofillDialog dialog(frame, 188.26, rows);
  EXPECT_EQ(dialog.GetTitle(), "Autofill Gap");
  EXPECT_EQ(FindControl<wxStaticText>(dialog)->GetLabel(), "Gap: 188.3 mm. Select fill:");
  Texts shown;
  for (const wxString& text : listOf(dialog).GetStrings()) shown.push_back(text.utf8_string());
  EXPECT_EQ(shown, rows);
  const std::vector<wxButton*> buttons = FindControls<wxButton>(dialog);
  ASSERT_EQ(buttons.size(), 2u);
  EXPECT_EQ(buttons[0]->GetLabel(), "Place");
  EXPECT_EQ(buttons[0]->GetId(), wxID_OK);
  EXPECT_EQ(buttons[1]->GetLabel(), "Cancel");
  EXPECT_EQ(buttons[1]->GetId(), wxID_CANCEL);
  EXPECT_EQ(dialog.GetDefaultItem(), buttons[0]) << "Enter places";
}

TEST_F(AutofillDialogTest, StartsOnItsFirstRowWithTheKeyboardInTheList) {
  AutofillDialog dialog(frame, 188.3, rows);
  EXPECT_EQ(dialog.row(), 0);
  EXPECT_EQ(listOf(dialog).GetWindowStyle() & (wxLB_MULTIPLE | wxLB_EXTENDED), 0);
  bool listHasFocus = false;
  ModalScript script;
  script.shown("Autofill Gap", [&](wxDialog& shown) {
    listHasFocus = listOf(shown).HasFocus();
    shown.EndModal(wxID_CANCEL);
  });
  dialog.ShowModal();
  EXPECT_TRUE(listHasFocus);
}

TEST_F(AutofillDialogTest, IsResizableAndNotSmallerThanItsUsualSize) {
  AutofillDialog dialog(frame, 188.3, rows);
  EXPECT_TRUE(dialog.HasFlag(wxRESIZE_BORDER));
  EXPECT_EQ(dialog.GetSize(), wxSize(380, 320));
  EXPECT_LT(dialog.GetMinSize().x, 380) << "the user may make it smaller";
}

TEST_F(AutofillDialogTest, ShowsTwelveRowsOfEightPiecesWholeWithoutScrolling) {
  std::string row = "24360";
  for (int i = 1; i < 8; ++i) row += " + 24360";
  rows.assign(12, row + "  (2880.0 mm)");
  AutofillDialog dialog(frame, 2880.0, rows);
  dialog.Show();
  WaitUntilSettled(dialog);
  const wxListBox& list = listOf(dialog);
  EXPECT_GE(list.GetClientSize().x, list.GetTextExtent(rows[0]).x + 8);
  // The last row lies at the foot of what is seen, not behind it.
  EXPECT_EQ(list.HitTest(wxPoint(20, 8)), 0);
  int last = wxNOT_FOUND;
  for (int y = 0; y < list.GetClientSize().y; ++y) last = std::max(last, list.HitTest({20, y}));
  EXPECT_EQ(last, 11);
}

TEST_F(AutofillDialogTest, IsNoLargerThanTheWindowBehindIt) {
  // 32 pieces in one row: the list scrolls to its end.
  rows.push_back("24360");
  for (int i = 1; i < 32; ++i) rows.back() += " + 24360";
  AutofillDialog dialog(frame, 11520.0, rows);
  EXPECT_LE(dialog.GetSize().x, 900 + 2 * 8) << "the border around the list";
  EXPECT_GT(dialog.GetSize().x, 800);
}

TEST_F(AutofillDialogTest, CutsNoControlOff) {
  AutofillDialog dialog(frame, 188.3, rows);
  const std::vector<wxButton*> buttons = FindControls<wxButton>(dialog);
  ASSERT_GE(buttons.size(), 2u);
  for (const wxButton* button : buttons) {
    EXPECT_GE(button->GetSize().x, button->GetBestSize().x);
    EXPECT_GE(button->GetSize().y, button->GetBestSize().y);
    EXPECT_TRUE(dialog.GetClientRect().Contains(button->GetRect()));
  }
}

TEST_F(AutofillDialogTest, StandsInTheMiddleOfItsParent) {
  frame->Move(100, 60);
  AutofillDialog dialog(frame, 188.3, rows);
  EXPECT_EQ(dialog.GetParent(), frame);
  const wxRect parent = frame->GetRect();
  const wxRect own = dialog.GetRect();
  EXPECT_NEAR(own.x + own.width / 2, parent.x + parent.width / 2, 2);
  EXPECT_NEAR(own.y + own.height / 2, parent.y + parent.height / 2, 2);
}

TEST_F(AutofillDialogTest, ADoubleClickPlacesTheRow) {
  AutofillDialog dialog(frame, 188.3, rows);
  ModalScript script;
  script.shown("Autofill Gap", [](wxDialog& shown) {
    listOf(shown).SetSelection(2);
    wxCommandEvent event(wxEVT_LISTBOX_DCLICK, listOf(shown).GetId());
    event.SetEventObject(&listOf(shown));
    event.SetInt(2);
    listOf(shown).ProcessWindowEvent(event);
  });
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
  EXPECT_EQ(dialog.row(), 2);
}

TEST_F(AutofillDialogTest, CancelEndsItWithoutPlacing) {
  AutofillDialog dialog(frame, 188.3, rows);
  ModalScript script;
  script.shown("Autofill Gap", [](wxDialog& shown) {
    wxCommandEvent click(wxEVT_BUTTON, wxID_CANCEL);
    FindControls<wxButton>(shown).at(1)->ProcessWindowEvent(click);
  });
  EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
}

TEST_F(AutofillDialogTest, TellsWhenNoRowIsSelected) {
  AutofillDialog dialog(frame, 188.3, rows);
  listOf(dialog).SetSelection(wxNOT_FOUND);
  EXPECT_EQ(dialog.row(), kNone);
  AutofillDialog empty(frame, 188.3, {});
  EXPECT_EQ(empty.row(), kNone);
}

}  // namespace
}  // namespace vantrel
