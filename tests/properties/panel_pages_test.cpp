// That what is selected gets into the controls, and that what the user types stays there.
#include <wx/settings.h>

#include "tests/properties/panel_fixture.h"

namespace vantrel {
namespace {

const wxColour kWarningRed(200, 40, 40);

class PanelPages : public PanelTest {
 protected:
  std::vector<std::string> levels() const {
    std::vector<std::string> names;
    for (unsigned row = 0; row < levelChoice().GetCount(); ++row)
      names.push_back(levelChoice().GetString(row).utf8_string());
    return names;
  }
  bool gradeCanBeSet() const {
    EXPECT_EQ(up().IsEnabled(), spin().IsEnabled());
    EXPECT_EQ(down().IsEnabled(), spin().IsEnabled());
    EXPECT_EQ(button(4102).IsEnabled(), spin().IsEnabled());
    EXPECT_EQ(button(4106).IsEnabled(), spin().IsEnabled());
    return spin().IsEnabled();
  }
};

TEST_F(PanelPages, APieceFillsEveryControl) {
  plan().currentGrade.active = true;
  const std::int32_t id = selectPiece();
  piece(id).level = 2;
  piece(id).z = 12.34;
  piece(id).grade = -3.0;
  panel->RefreshSelection();
  EXPECT_EQ(panel->page().pieceId, id);
  EXPECT_EQ(text("titleLabel").GetLabelText(), "24188 - 188.3mm");
  EXPECT_EQ(text("infoLabel").GetLabelText(), wxString::FromUTF8("Märklin C  |  188.3 mm"));
  EXPECT_EQ(heightField().GetValue(), "12.3");
  EXPECT_TRUE(heightField().IsEnabled());
  EXPECT_EQ(levels(), (std::vector<std::string>{"Ground", "Upper", "Hidden yard"}));
  EXPECT_EQ(levelChoice().GetStringSelection(), "Upper");
  EXPECT_TRUE(levelChoice().IsEnabled());
  EXPECT_EQ(text("gradeValue").GetLabelText(), "-3.00 deg (5.2%)");
  EXPECT_TRUE(down().GetValue());
  EXPECT_EQ(spin().GetValue(), 3.0);
  EXPECT_TRUE(gradeCanBeSet());
  EXPECT_TRUE(button(4104).IsEnabled());
}

TEST_F(PanelPages, ASteepGradeIsRedAndTheNextFlatOneIsNot) {
  const std::int32_t id = selectPiece();
  piece(id).grade = 6.1;
  panel->RefreshSelection();
  EXPECT_EQ(wrapped("gradeWarning").text(), "WARNING: Grade 6.1 deg exceeds 6 deg max!");
  EXPECT_EQ(text("gradeValue").GetForegroundColour(), kWarningRed);
  EXPECT_EQ(spin().GetValue(), 6.0);
  piece(id).grade = 6.0;
  panel->RefreshSelection();
  EXPECT_EQ(text("gradeWarning").GetLabelText(), "");
  EXPECT_EQ(text("gradeValue").GetForegroundColour(),
            wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
}

TEST_F(PanelPages, AnAmpersandInATitleIsALetter) {
  LayHelix(plan(), "proses_2_5_r1r2");
  plan().pieces[0].sel = true;
  panel->RefreshSelection();
  EXPECT_EQ(text("titleLabel").GetLabelText(), "Proses 2.5 R1&R2 26cm/10.2\"");
  EXPECT_EQ(text("heightCaption").GetLabelText(), "Base height (mm):");
  EXPECT_FALSE(heightField().IsEnabled());
  EXPECT_TRUE(levelChoice().IsEnabled());
  EXPECT_FALSE(gradeCanBeSet());
}

TEST_F(PanelPages, NamesThatAreNotUtf8AreStillShown) {
  plan().levels[0].name = "B\xfchne";
  selectPiece();
  EXPECT_EQ(levels()[0], "Bühne");
}

TEST_F(PanelPages, ALevelGetsItsNewName) {
  selectPiece();
  plan().levels[0].name = "Cellar";
  panel->RefreshSelection();
  EXPECT_EQ(levels()[0], "Cellar");
  EXPECT_EQ(levelChoice().GetStringSelection(), "Cellar");
}

TEST_F(PanelPages, ARunHasNeitherCaptionNorHeight) {
  const std::int32_t a = LaySelected(plan(), "24188");
  Join(plan(), a, 1, LaySelected(plan(), "24172"), 0);
  panel->RefreshSelection();
  EXPECT_EQ(text("titleLabel").GetLabelText(), "24188 + 24172");
  EXPECT_EQ(text("heightCaption").GetLabelText(), "");
  EXPECT_FALSE(heightField().IsEnabled());
  EXPECT_FALSE(gradeCanBeSet());
}

TEST_F(PanelPages, ShowNoSelectionShowsTheEmptyPageWhateverIsSelected) {
  selectPiece();
  panel->ShowNoSelection();
  EXPECT_EQ(text("titleLabel").GetLabelText(), "No selection");
  EXPECT_EQ(heightField().GetValue(), "0");
  EXPECT_FALSE(heightField().IsEnabled());
  EXPECT_FALSE(levelChoice().IsEnabled());
  EXPECT_FALSE(gradeCanBeSet());
  EXPECT_EQ(panel->page().pieceId, -1);
}

class TypedIn : public PanelTest {
 protected:
  TypedIn() = default;

  void SetUp() override {
    PanelTest::SetUp();
    id = selectPiece();
    show();
  }

  // Types into a field that has the focus.
  void type(wxTextCtrl& field, const wxString& value) {
    field.SetFocus();
    settle();
    field.ChangeValue(value);
    ASSERT_TRUE(field.HasFocus());
  }

  // Whether the field keeps Ctrl with this letter for itself.
  bool takes(wxTextCtrl& field, char letter) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(&field);
    event.m_keyCode = letter;
    event.SetControlDown(true);
    return field.GetEventHandler()->ProcessEvent(event);
  }

  std::int32_t id = -1;
};

TEST_F(TypedIn, AHeightStaysWhileNothingElseChanged) {
  type(heightField(), "12");
  panel->RefreshSelection();
  EXPECT_EQ(heightField().GetValue(), "12");
  // Neither does another thing about the piece matter.
  piece(id).level = 2;
  panel->RefreshSelection();
  EXPECT_EQ(heightField().GetValue(), "12");
  EXPECT_EQ(levelChoice().GetStringSelection(), "Upper");
}

TEST_F(TypedIn, AHeightGoesWhenThePieceHasAnother) {
  type(heightField(), "12");
  piece(id).z = 30.0;
  panel->RefreshSelection();
  EXPECT_EQ(heightField().GetValue(), "30.0");
}

TEST_F(TypedIn, AHeightGoesWhenTheUnitChanges) {
  type(heightField(), "12");
  plan().units = kCentimetres;
  panel->RefreshSelection();
  EXPECT_EQ(heightField().GetValue(), "0.0");
}

TEST_F(TypedIn, AHeightGoesWithItsPiece) {
  type(heightField(), "12");
  piece(id).sel = false;
  selectPiece();
  EXPECT_EQ(heightField().GetValue(), "0.0");
}

TEST_F(TypedIn, AHeightThatWasLeftWithoutReturnGivesWayToTheTruth) {
  type(heightField(), "12");
  labelField().SetFocus();
  settle();
  panel->RefreshSelection();
  EXPECT_EQ(heightField().GetValue(), "0.0");
}

TEST_F(TypedIn, TheSameHeightEnteredAgainIsShownAsTheProgramWritesIt) {
  type(heightField(), "0");
  enter(heightField(), "0");
  EXPECT_EQ(heightField().GetValue(), "0.0");
}

TEST_F(TypedIn, CtrlZTakesBackWhatIsBeingTypedAndNotThePlan) {
  type(heightField(), "12");
  EXPECT_TRUE(takes(heightField(), 'Z'));
  EXPECT_EQ(heightField().GetValue(), "0.0");
  type(labelField(), "North");
  EXPECT_TRUE(takes(labelField(), 'Y'));
  EXPECT_EQ(labelField().GetValue(), "North");
  EXPECT_TRUE(takes(labelField(), 'Z'));
  EXPECT_EQ(labelField().GetValue(), "");
}

TEST_F(TypedIn, CtrlZBelongsToThePlanWhereNothingIsBeingTyped) {
  for (wxTextCtrl* field : {&heightField(), &labelField()}) {
    field->SetFocus();
    settle();
    EXPECT_FALSE(takes(*field, 'Z'));
    EXPECT_FALSE(takes(*field, 'Y'));
  }
  type(heightField(), "12");
  EXPECT_FALSE(takes(heightField(), 'C'));
}

TEST_F(TypedIn, AHeightIsReadyToBeReplacedWhenItsFieldIsEnteredAndAfterReturn) {
  heightField().SetFocus();
  settle();
  EXPECT_EQ(heightField().GetStringSelection(), "0.0");
  enter(heightField(), "12");
  EXPECT_EQ(heightField().GetStringSelection(), "12.0");
}

TEST_F(TypedIn, ALabelStaysWhateverIsSelected) {
  type(labelField(), "North");
  panel->RefreshSelection();
  panel->ShowNoSelection();
  EXPECT_EQ(labelField().GetValue(), "North");
}

TEST_F(TypedIn, ADegreeStaysWhileTheSpinIsInUseAndGoesWithThePiece) {
  spin().SetFocus();
  settle();
  spin().SetValue(2.5);
  panel->RefreshSelection();
  EXPECT_EQ(spin().GetValue(), 2.5);
  piece(id).sel = false;
  selectPiece();
  EXPECT_EQ(spin().GetValue(), 0.0);
}

}  // namespace
}  // namespace vantrel
