// Numbers typed with real keys into spin controls, as a keyboard with a decimal comma types them.
#include "app/services/number_entry.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <functional>
#include <vector>

namespace vantrel {
namespace {

class NumberEntry : public testing::Test {
 protected:
  NumberEntry() {
    auto* column = new wxBoxSizer(wxVERTICAL);
    auto* page = new wxPanel(frame);
    // From 0 to 1000 and 12.5 at the start; whole numbers from 1 to 99000, 2400 at the start.
    real = new wxSpinCtrlDouble(page, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                wxSP_ARROW_KEYS, 0.0, 1000.0, 12.5, 0.5);
    real->SetDigits(2);
    whole = new wxSpinCtrl(page, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                           wxSP_ARROW_KEYS, 1, 99000, 2400);
    other = new wxTextCtrl(page, wxID_ANY);
    for (wxWindow* control : {static_cast<wxWindow*>(real), static_cast<wxWindow*>(whole),
                              static_cast<wxWindow*>(other)})
      column->Add(control);
    page->SetSizer(column);
    WatchNumberEntry(*real);
    WatchNumberEntry(*whole);
    frame->Show();
    frame->Raise();
    focus(*other);
  }
  ~NumberEntry() override {
    delete frame;
    wxTheApp->ProcessPendingEvents();
  }

  static bool waitFor(const std::function<bool()>& holds) {
    for (int i = 0; i < 500 && !holds(); ++i) {
      wxTheApp->Yield();
      wxMilliSleep(10);
    }
    return holds();
  }
  static void focus(wxWindow& window) {
    window.SetFocus();
    EXPECT_TRUE(waitFor([&] { return window.HasFocus(); }));
  }
  static void press(int key, int modifiers = wxMOD_NONE) {
    wxUIActionSimulator().Char(key, modifiers);
    wxTheApp->Yield();
  }
  // In the place of what stands there.
  static void typeInto(wxSpinCtrlBase& spin, const char* keys) {
    focus(spin);
    spin.SetSelection(-1, -1);
    press(WXK_DELETE);
    EXPECT_TRUE(waitFor([&] { return spin.GetTextValue().empty(); }));
    for (const char* key = keys; *key != '\0'; ++key) press(*key);
  }
  static bool shows(wxSpinCtrlBase& spin, const wxString& text) {
    return waitFor([&] { return spin.GetTextValue() == text; });
  }

  wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "numbers", wxPoint(0, 0), wxSize(300, 200));
  wxSpinCtrlDouble* real = nullptr;
  wxSpinCtrl* whole = nullptr;
  wxTextCtrl* other = nullptr;
};

TEST_F(NumberEntry, ATypedCommaIsTheDecimalPoint) {
  typeInto(*real, "1,5");
  EXPECT_TRUE(shows(*real, "1.5")) << real->GetTextValue();
  focus(*other);
  EXPECT_EQ(real->GetValue(), 1.5);
  EXPECT_FALSE(IsMarkedRefused(*real));
}

TEST_F(NumberEntry, ACommaTakesThePlaceOfWhatIsSelectedAndStandsAtTheCaret) {
  typeInto(*real, "25");
  ASSERT_TRUE(shows(*real, "25"));
  press(WXK_LEFT);
  press(',');
  EXPECT_TRUE(shows(*real, "2.5")) << real->GetTextValue();
  real->SetSelection(-1, -1);
  press(',');
  press('5');
  EXPECT_TRUE(shows(*real, ".5")) << real->GetTextValue();
}

TEST_F(NumberEntry, AFieldLeftWithoutANumberSaysSoAndKeepsTheOneFromBefore) {
  typeInto(*real, "");
  focus(*other);
  EXPECT_TRUE(shows(*real, "12.50")) << real->GetTextValue();
  EXPECT_EQ(real->GetValue(), 12.5);
  EXPECT_TRUE(IsMarkedRefused(*real));
  EXPECT_EQ(real->GetToolTipText(), "No number was typed here. The one from before stays.");
  focus(*real);
  EXPECT_FALSE(IsMarkedRefused(*real));
  EXPECT_EQ(real->GetToolTipText(), "");
}

TEST_F(NumberEntry, EnterOnAFieldWithoutANumberSaysSoToo) {
  typeInto(*real, ",");
  press(WXK_RETURN);
  EXPECT_TRUE(waitFor([&] { return IsMarkedRefused(*real); }));
  EXPECT_TRUE(shows(*real, "12.50")) << real->GetTextValue();
  typeInto(*real, "7");
  EXPECT_TRUE(waitFor([&] { return !IsMarkedRefused(*real); }));
  EXPECT_EQ(real->GetValue(), 7.0);
}

// The control alone would make 125 of it.
TEST_F(NumberEntry, AFractionInAFieldOfWholeNumbersIsRefused) {
  for (const char* typed : {"12,5", "12.5"}) {
    typeInto(*whole, typed);
    EXPECT_TRUE(waitFor([&] { return IsMarkedRefused(*whole); })) << typed;
    EXPECT_EQ(whole->GetTextValue(), "12") << typed;
    focus(*other);
    EXPECT_TRUE(shows(*whole, "2400")) << typed << whole->GetTextValue();
    EXPECT_TRUE(IsMarkedRefused(*whole)) << typed;
    EXPECT_EQ(whole->GetToolTipText(),
              "Only a whole number can stand here. The one from before stays.");
  }
}

TEST_F(NumberEntry, WhoeverGoesBackFromAFractionBeginsAnew) {
  typeInto(*whole, "12,5");
  press(WXK_BACK);
  press('7');
  EXPECT_TRUE(shows(*whole, "17")) << whole->GetTextValue();
  EXPECT_FALSE(IsMarkedRefused(*whole));
  focus(*other);
  EXPECT_EQ(whole->GetValue(), 17);
}

TEST_F(NumberEntry, TheOwnerHearsNothingOfANumberThatNobodyTyped) {
  std::vector<double> heard;
  wxSpinCtrlDouble spin(real->GetParent(), wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                        wxSP_ARROW_KEYS, 0.1, 10.0, 2.0, 0.1);
  spin.Bind(wxEVT_SPINCTRLDOUBLE,
            [&heard](wxSpinDoubleEvent& event) { heard.push_back(event.GetValue()); });
  WatchNumberEntry(spin);
  typeInto(spin, "");
  focus(*other);
  EXPECT_EQ(spin.GetValue(), 2.0);
  EXPECT_TRUE(heard.empty());
  typeInto(spin, "3");
  focus(*other);
  EXPECT_EQ(heard, std::vector<double>{3.0});
}

}  // namespace
}  // namespace vantrel
