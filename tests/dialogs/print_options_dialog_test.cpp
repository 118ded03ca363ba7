#include "dialogs/print_options_dialog.h"

#include <wx/checkbox.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "tests/dialogs/dialog_fixture.h"
#include "tests/support/typed_keys.h"

namespace vantrel {
namespace {

class PrintOptionsPage : public DialogTest {
 protected:
  PrintOptions options_;
};

wxRadioBox& Radio(wxWindow& dialog, std::size_t i) {
  return *FindControls<wxRadioBox>(dialog).at(i);
}
wxSpinCtrl& Spin(wxWindow& dialog, std::size_t i) {
  return *FindControls<wxSpinCtrl>(dialog).at(i);
}

void Choose(wxRadioBox& box, int choice) {
  box.SetSelection(choice);
  wxCommandEvent event(wxEVT_RADIOBOX, box.GetId());
  event.SetEventObject(&box);
  event.SetInt(choice);
  box.ProcessWindowEvent(event);
}

// The standard buttons are labelled as the platform likes.
void PressStandard(wxWindow& dialog, int id) {
  wxWindow* button = dialog.FindWindow(id);
  ASSERT_NE(button, nullptr);
  wxCommandEvent click(wxEVT_BUTTON, id);
  click.SetEventObject(button);
  button->ProcessWindowEvent(click);
}

TEST_F(PrintOptionsPage, ShowsWhatIsSet) {
  options_ = {kCustomPercentage, 87, 250, 1, 1, true, false};
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.GetTitle(), "Print Options");
  EXPECT_EQ(Radio(dialog, 0).GetId(), 6001);
  EXPECT_EQ(Radio(dialog, 0).GetLabel(), "Scaling");
  EXPECT_EQ(Radio(dialog, 0).GetString(0), "Fit to page");
  EXPECT_EQ(Radio(dialog, 0).GetString(1), "Actual scale 1 : N");
  EXPECT_EQ(Radio(dialog, 0).GetString(2), "Custom percentage");
  EXPECT_EQ(Radio(dialog, 0).GetSelection(), 2);
  EXPECT_EQ(Spin(dialog, 0).GetValue(), 87);
  EXPECT_EQ(Spin(dialog, 1).GetValue(), 250);
  for (const std::size_t i : {0, 1}) {
    EXPECT_EQ(Spin(dialog, i).GetMin(), 1);
    EXPECT_EQ(Spin(dialog, i).GetMax(), 1000);
  }
  EXPECT_EQ(Radio(dialog, 1).GetLabel(), "Levels");
  EXPECT_EQ(Radio(dialog, 1).GetString(0), "Active level only");
  EXPECT_EQ(Radio(dialog, 1).GetString(1), "All levels (composite)");
  EXPECT_EQ(Radio(dialog, 1).GetSelection(), 1);
  EXPECT_EQ(Radio(dialog, 2).GetLabel(), "Color");
  EXPECT_EQ(Radio(dialog, 2).GetString(0), "Color");
  EXPECT_EQ(Radio(dialog, 2).GetString(1), "Grayscale");
  EXPECT_EQ(Radio(dialog, 2).GetSelection(), 1);
  EXPECT_NE(FindControl<wxStaticBox>(dialog, "Include"), nullptr);
  EXPECT_TRUE(FindControl<wxCheckBox>(dialog, "Grid")->GetValue());
  EXPECT_FALSE(FindControl<wxCheckBox>(dialog, "Baseboard outline")->GetValue());
  for (const char* text :
       {"    1 :", "  (e.g. 1:10 -- 10 mm on layout = 1 mm on paper)", "    Scale:", "  %"})
    EXPECT_NE(FindControl<wxStaticText>(dialog, text), nullptr) << text;
}

TEST_F(PrintOptionsPage, EnablesEachNumberWithItsTextsInItsModeAlone) {
  PrintOptionsDialog dialog(parent_, options_);
  const auto enabled = [&dialog] {
    std::vector<bool> states = {Spin(dialog, 0).IsEnabled(), Spin(dialog, 1).IsEnabled()};
    for (const char* text :
         {"    1 :", "  (e.g. 1:10 -- 10 mm on layout = 1 mm on paper)", "    Scale:", "  %"})
      states.push_back(FindControl<wxStaticText>(dialog, text)->IsEnabled());
    return states;
  };
  EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false, false, false, false}));
  Choose(Radio(dialog, 0), 1);
  EXPECT_EQ(enabled(), (std::vector<bool>{true, false, true, true, false, false}));
  Choose(Radio(dialog, 0), 2);
  EXPECT_EQ(enabled(), (std::vector<bool>{false, true, false, false, true, true}));
  Choose(Radio(dialog, 0), 0);
  EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false, false, false, false}));
}

TEST_F(PrintOptionsPage, TakesAllValuesOnOk) {
  ModalScript script;
  script.shown("Print Options", [](wxDialog& dialog) {
    Choose(Radio(dialog, 0), 1);
    Spin(dialog, 0).SetValue(87);
    Spin(dialog, 1).SetValue(250);
    Radio(dialog, 1).SetSelection(1);
    Radio(dialog, 2).SetSelection(1);
    FindControl<wxCheckBox>(dialog, "Grid")->SetValue(true);
    FindControl<wxCheckBox>(dialog, "Baseboard outline")->SetValue(false);
    PressStandard(dialog, wxID_OK);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
  EXPECT_EQ(dialog.options(), (PrintOptions{kActualScale, 87, 250, 1, 1, true, false}));
}

TEST_F(PrintOptionsPage, CancelLeavesWhatWasSet) {
  ModalScript script;
  script.shown("Print Options", [](wxDialog& dialog) {
    Choose(Radio(dialog, 0), 1);
    Spin(dialog, 0).SetValue(87);
    PressStandard(dialog, wxID_CANCEL);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
  EXPECT_EQ(dialog.options(), options_);
}

TEST_F(PrintOptionsPage, ANumberThatIsNoneIsToldInItsOwnModeAlone) {
  ModalScript script;
  script.shown("Print Options", [&script](wxDialog& dialog) {
    Choose(Radio(dialog, 0), 1);
    Spin(dialog, 0).SetValue(wxString());
    script.box("Print Options", "Please enter a whole number from 1 to 1000.",
               wxOK | wxICON_WARNING, wxID_OK);
    PressStandard(dialog, wxID_OK);
    EXPECT_TRUE(script.finished()) << "not told";
    Choose(Radio(dialog, 0), 0);
    PressStandard(dialog, wxID_OK);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
  EXPECT_EQ(dialog.options().mode, kFitToPage);
}

// "12,5" would become 125.
TEST_F(PrintOptionsPage, AFractionIsToldAndNotTaken) {
  ModalScript script;
  script.shown("Print Options", [&script](wxDialog& dialog) {
    Choose(Radio(dialog, 0), 1);
    EXPECT_TRUE(RefusesFractions(Spin(dialog, 0)));
    EXPECT_TRUE(RefusesFractions(Spin(dialog, 1)));
    script.box("Print Options", "Please enter a whole number from 1 to 1000.",
               wxOK | wxICON_WARNING, wxID_OK);
    PressStandard(dialog, wxID_OK);
    EXPECT_TRUE(script.finished()) << "not told";
    EXPECT_FALSE(IsMarkedRefused(Spin(dialog, 0)));
    PressStandard(dialog, wxID_OK);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
}

TEST_F(PrintOptionsPage, StandsInItsOrderFromTheTop) {
  ModalScript script;
  script.shown("Print Options", [](wxDialog& dialog) {
    const std::vector<wxWindow*> column = {
        &Radio(dialog, 0),         &Spin(dialog, 0),  &Spin(dialog, 1),
        &Radio(dialog, 1),         &Radio(dialog, 2), FindControl<wxStaticBox>(dialog, "Include"),
        dialog.FindWindow(wxID_OK)};
    for (std::size_t i = 1; i < column.size(); ++i)
      EXPECT_GE(column[i]->GetPosition().y,
                column[i - 1]->GetPosition().y + column[i - 1]->GetSize().y)
          << i;
    const auto left = [&dialog](const char* text) {
      return FindControl<wxStaticText>(dialog, text)->GetPosition().x;
    };
    EXPECT_LT(left("    1 :"), Spin(dialog, 0).GetPosition().x);
    EXPECT_LT(Spin(dialog, 0).GetPosition().x,
              left("  (e.g. 1:10 -- 10 mm on layout = 1 mm on paper)"));
    EXPECT_LT(left("    Scale:"), Spin(dialog, 1).GetPosition().x);
    EXPECT_LT(Spin(dialog, 1).GetPosition().x, left("  %"));
    EXPECT_NE(dialog.FindWindow(wxID_CANCEL), nullptr);
    PressStandard(dialog, wxID_CANCEL);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
  EXPECT_EQ(Radio(dialog, 0).GetColumnCount(), 1U);
  EXPECT_EQ(Radio(dialog, 1).GetColumnCount(), 1U);
  EXPECT_EQ(Radio(dialog, 2).GetColumnCount(), 2U);
  for (const std::size_t i : {0, 1}) EXPECT_GE(Spin(dialog, i).GetMinSize().x, 80);
}

TEST_F(PrintOptionsPage, NothingIsCutOff) {
  ModalScript script;
  script.shown("Print Options", [](wxDialog& dialog) {
    WaitUntilNothingIsCutOff(dialog);
    EXPECT_EQ(CutOffControls(dialog), std::vector<std::string>{});
    PressStandard(dialog, wxID_CANCEL);
  });
  PrintOptionsDialog dialog(parent_, options_);
  EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
}

}  // namespace
}  // namespace vantrel
