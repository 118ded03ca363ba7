#include "dialogs/level_properties_dialog.h"

#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <cmath>
#include <limits>

#include "tests/dialogs/dialog_fixture.h"
#include "tests/support/typed_keys.h"

namespace vantrel {
namespace {

class LevelPropertiesPage : public DialogTest {
 protected:
  LevelPropertiesPage() { level_ = {2, "Deck", true, 50.0, true, 10, 20, 30, {}}; }

  ShownUnit unit(std::int32_t units) {
    plan_.units = units;
    return UnitOf(plan_);
  }

  Level level_;
};

wxSpinCtrlDouble& HeightOf(wxWindow& dialog) {
  return *FindControl<wxSpinCtrlDouble>(dialog);
}

TEST_F(LevelPropertiesPage, ShowsWhatTheLevelHas) {
  LevelPropertiesDialog dialog(parent_, level_, unit(kMillimetres));
  EXPECT_EQ(dialog.GetTitle(), "Level Properties: Deck");
  EXPECT_EQ(FindControls<wxStaticText>(dialog).at(0)->GetLabel(), "Name:");
  EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "Deck");
  EXPECT_EQ(FindControl<wxCheckBox>(dialog)->GetLabel(), "Color track on this level:");
  EXPECT_TRUE(FindControl<wxCheckBox>(dialog)->GetValue());
  EXPECT_EQ(FindControl<wxColourPickerCtrl>(dialog)->GetColour(), wxColour(10, 20, 30));
}

TEST_F(LevelPropertiesPage, APastedNameStandsOnOneLine) {
  LevelPropertiesDialog dialog(parent_, level_, unit(kMillimetres));
  FindControl<wxTextCtrl>(dialog)->SetValue("Upper\ndeck");
  EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "Upper deck");
  EXPECT_EQ(dialog.properties().name, "Upper deck");
}

TEST_F(LevelPropertiesPage, TakesTheHeightInTheUnit) {
  const char* captions[] = {
      "Height off the ground (mm):", "Height off the ground (cm):", "Height off the ground (in):"};
  const double largest[] = {10000.0, 1000.0, 400.0};
  const double steps[] = {1.0, 1.0, 0.1};
  const double shown[] = {50.0, 5.0, 1.969};         // 50 / 25.4 = 1.9685
  const double entered[] = {120.0, 1200.0, 3048.0};  // 120 of the unit in mm
  for (const std::int32_t units : {0, 1, 2}) {
    LevelPropertiesDialog dialog(parent_, level_, unit(units));
    EXPECT_EQ(FindControls<wxStaticText>(dialog).at(1)->GetLabel(), captions[units]);
    wxSpinCtrlDouble& height = HeightOf(dialog);
    EXPECT_EQ(height.GetMin(), 0.0);
    EXPECT_EQ(height.GetMax(), largest[units]);
    EXPECT_EQ(height.GetIncrement(), steps[units]);
    EXPECT_NEAR(height.GetValue(), shown[units], 1e-9);
    height.SetValue(120.0);
    EXPECT_NEAR(dialog.properties().height, entered[units], 1e-9);
  }
}

TEST_F(LevelPropertiesPage, AHeightLeftAloneStaysToTheLastDigit) {
  for (const double height : {12.34567, -50.0, 20000.0, 1e300}) {
    for (const std::int32_t units : {0, 1, 2}) {
      level_.height = height;
      LevelPropertiesDialog dialog(parent_, level_, unit(units));
      EXPECT_EQ(dialog.properties().height, height);
    }
  }
}

TEST_F(LevelPropertiesPage, AHeightOfNoNumberIsShownAsZero) {
  level_.height = std::numeric_limits<double>::quiet_NaN();
  LevelPropertiesDialog dialog(parent_, level_, unit(kInches));
  EXPECT_EQ(HeightOf(dialog).GetValue(), 0.0);
}

// The track of the level would go to no height at all.
TEST_F(LevelPropertiesPage, AHeightThatIsNoFiniteNumberBecomesTheOneThatIsShown) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const auto accepted = [this](double height, std::int32_t units) {
    level_.height = height;
    return LevelPropertiesDialog(parent_, level_, unit(units)).properties().height;
  };
  EXPECT_EQ(accepted(std::numeric_limits<double>::quiet_NaN(), kMillimetres), 0.0);
  EXPECT_EQ(accepted(-kInfinity, kCentimetres), 0.0);
  EXPECT_EQ(accepted(kInfinity, kMillimetres), 10000.0);
  EXPECT_NEAR(accepted(kInfinity, kInches), 10160.0, 1e-9);  // 400 * 25.4
}

TEST_F(LevelPropertiesPage, AnEmptyHeightIsToldAndTheDialogStays) {
  ModalScript script;
  script.shown("Level Properties: Deck", [&script](wxDialog& dialog) {
    HeightOf(dialog).SetValue(wxString());
    script.box("Level Properties", "Please enter a height from 0 to 1000 cm.",
               wxOK | wxICON_WARNING, wxID_OK);
    Press(dialog, "OK");
    EXPECT_TRUE(script.finished()) << "not told";
    HeightOf(dialog).SetValue(7.5);
    Press(dialog, "OK");
  });
  LevelPropertiesDialog dialog(parent_, level_, unit(kCentimetres));
  EXPECT_EQ(dialog.ShowModal(), wxID_OK);
  EXPECT_NEAR(dialog.properties().height, 75.0, 1e-9);
}

TEST_F(LevelPropertiesPage, ADecimalCommaInTheHeightIsADecimalPoint) {
  LevelPropertiesDialog dialog(parent_, level_, unit(kMillimetres));
  EXPECT_TRUE(TakesDecimalComma(HeightOf(dialog)));
}

TEST_F(LevelPropertiesPage, NothingIsCutOffInAnyUnit) {
  for (const std::int32_t units : {0, 1, 2}) {
    ModalScript script;
    script.shown("Level Properties: Deck", [](wxDialog& dialog) {
      WaitUntilNothingIsCutOff(dialog);
      EXPECT_EQ(CutOffControls(dialog), std::vector<std::string>{});
      Press(dialog, "Cancel");
    });
    LevelPropertiesDialog dialog(parent_, level_, unit(units));
    EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
  }
}

}  // namespace
}  // namespace vantrel
