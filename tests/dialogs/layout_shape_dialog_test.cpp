#include "dialogs/layout_shape_dialog.h"

#include <wx/choice.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <limits>

#include "tests/dialogs/dialog_fixture.h"
#include "tests/support/typed_keys.h"

namespace vantrel {
namespace {

constexpr long kWarning = wxOK | wxICON_WARNING;

class LayoutShape : public DialogTest {
 protected:
  // Shows the dialog, lets `act` use it, and returns how it ended.
  int run(const ModalScript::Action& act) {
    script_.shown("Layout Baseboard", act);
    LayoutShapeDialog dialog(parent_, plan_);
    const int answer = dialog.ShowModal();
    vertices_ = dialog.vertices();
    freeForm_ = dialog.freeForm();
    return answer;
  }
  void expectWarning() {
    script_.box("Layout Shape", "Please enter valid dimensions.", kWarning, wxID_OK);
  }

  ModalScript script_;
  std::vector<Vec2> vertices_;
  bool freeForm_ = false;
};

void Choose(wxDialog& dialog, int shape) {
  auto* choice = FindControl<wxChoice>(dialog);
  ASSERT_NE(choice, nullptr);
  choice->SetSelection(shape);
  wxCommandEvent event(wxEVT_CHOICE, choice->GetId());
  event.SetEventObject(choice);
  event.SetInt(shape);
  choice->ProcessWindowEvent(event);
}

std::vector<int> SpinValues(wxDialog& dialog) {
  std::vector<int> values;
  for (const wxSpinCtrl* spin : FindControls<wxSpinCtrl>(dialog))
    values.push_back(spin->GetValue());
  return values;
}

void SetSpins(wxDialog& dialog, const std::vector<int>& values) {
  const std::vector<wxSpinCtrl*> spins = FindControls<wxSpinCtrl>(dialog);
  ASSERT_EQ(spins.size(), values.size());
  for (std::size_t i = 0; i < values.size(); ++i) spins[i]->SetValue(values[i]);
}

std::vector<std::string> Texts(wxDialog& dialog) {
  std::vector<std::string> texts;
  for (const wxStaticText* text : FindControls<wxStaticText>(dialog))
    texts.push_back(text->GetLabelText().utf8_string());
  return texts;
}

TEST_F(LayoutShape, OffersSevenShapes) {
  LayoutShapeDialog dialog(parent_, plan_);
  auto* choice = FindControl<wxChoice>(dialog);
  const std::vector<wxString> expected = {"Rectangle",
                                          "L-Shape",
                                          "U-Shape",
                                          "T-Shape",
                                          "Custom polygon (vertices)",
                                          "Free-form (draw on canvas)",
                                          "Clear (no baseboard)"};
  ASSERT_EQ(choice->GetCount(), expected.size());
  for (unsigned i = 0; i < expected.size(); ++i) EXPECT_EQ(choice->GetString(i), expected[i]);
  EXPECT_EQ(choice->GetSelection(), 0);
  EXPECT_NE(FindControl<wxButton>(dialog, "Apply"), nullptr);
  EXPECT_EQ(FindControl<wxButton>(dialog, "Apply")->GetId(), wxID_OK);
  EXPECT_EQ(FindControl<wxButton>(dialog, "Cancel")->GetId(), wxID_CANCEL);
}

TEST_F(LayoutShape, StartsWithTheLastShapeAndItsValues) {
  plan_.lastShape = {2, 3000.0, 1500.0, 1000.0, 600.0};
  plan_.units = kCentimetres;
  LayoutShapeDialog dialog(parent_, plan_);
  EXPECT_EQ(FindControl<wxChoice>(dialog)->GetSelection(), 2);
  EXPECT_EQ(SpinValues(dialog), (std::vector<int>{300, 150, 100, 60}));
}

TEST_F(LayoutShape, StartsWithARectangleWhenTheLastShapeIsUnknown) {
  for (const std::int32_t id : {-1, 7, 2000000000}) {
    plan_.lastShape.id = id;
    plan_.lastShape.w_mm = 500.0;
    LayoutShapeDialog dialog(parent_, plan_);
    EXPECT_EQ(FindControl<wxChoice>(dialog)->GetSelection(), 0);
    EXPECT_EQ(SpinValues(dialog), (std::vector<int>{2400, 1200})) << id;
  }
}

TEST_F(LayoutShape, EachPageHasItsHelpItsCaptionsAndTheUnit) {
  plan_.units = kInches;
  LayoutShapeDialog dialog(parent_, plan_);
  EXPECT_EQ(Texts(dialog), (std::vector<std::string>{
                               "Shape:", "All dimensions in in.", "Simple rectangular baseboard:",
                               "Width (left to right):", "in", "Depth (top to bottom):", "in"}));
  Choose(dialog, 1);
  EXPECT_EQ(Texts(dialog),
            (std::vector<std::string>{
                "Shape:", "All dimensions in in.",
                "L-Shape: full rectangle minus bottom-right corner.\nW1/H1 = full size,  W2/H2 = "
                "cutout (bottom-right).",
                "Full width  W1:", "in", "Full depth  H1:", "in", "Cutout width  W2:", "in",
                "Cutout depth  H2:", "in"}));
  Choose(dialog, 2);
  EXPECT_EQ(Texts(dialog),
            (std::vector<std::string>{
                "Shape:", "All dimensions in in.",
                "U-Shape: rectangle with notch cut from bottom centre.\nW/H = outer size,  W2/H2 = "
                "notch (centred on bottom).",
                "Outer width  W:", "in", "Outer depth  H:", "in", "Notch width  W2:", "in",
                "Notch depth  H2:", "in"}));
  Choose(dialog, 3);
  EXPECT_EQ(Texts(dialog),
            (std::vector<std::string>{
                "Shape:", "All dimensions in in.",
                "T-Shape: wide top bar plus narrower stem below.\nW/H1 = top bar,  W2/H2 = stem "
                "(centred).",
                "Top width  W:", "in", "Top depth  H1:", "in", "Stem width  W2:", "in",
                "Stem depth  H2:", "in"}));
  Choose(dialog, 4);
  EXPECT_EQ(Texts(dialog).at(2),
            "Enter polygon vertices as  x,y  pairs, one per line.\nValues are in the unit selected "
            "above.\nExample (mm):  0,0  /  2400,0  /  2400,1200  /  0,1200");
  Choose(dialog, 5);
  EXPECT_EQ(Texts(dialog).at(2),
            "Click OK and then click vertices on the canvas to outline the baseboard.\nClose the "
            "shape by clicking near the first vertex or pressing Enter.\nBackspace removes the "
            "last vertex; Escape cancels.");
  Choose(dialog, 6);
  EXPECT_EQ(Texts(dialog).at(2), "Remove the baseboard outline from the canvas.");
  EXPECT_TRUE(FindControls<wxSpinCtrl>(dialog).empty());
}

TEST_F(LayoutShape, SaysWhichUnitItTakes) {
  const char* names[] = {"mm", "cm", "in"};
  for (const std::int32_t units : {0, 1, 2}) {
    plan_.units = units;
    LayoutShapeDialog dialog(parent_, plan_);
    EXPECT_EQ(Texts(dialog).at(1), std::string("All dimensions in ") + names[units] + ".");
  }
}

TEST_F(LayoutShape, SpinsGoFromOneToNinetyNineThousand) {
  LayoutShapeDialog dialog(parent_, plan_);
  for (int shape = 0; shape < 4; ++shape) {
    Choose(dialog, shape);
    for (const wxSpinCtrl* spin : FindControls<wxSpinCtrl>(dialog)) {
      EXPECT_EQ(spin->GetMin(), 1);
      EXPECT_EQ(spin->GetMax(), 99000);
    }
  }
}

TEST_F(LayoutShape, ItsRowsLineUpBehindCaptionsOf160Pixels) {
  LayoutShapeDialog dialog(parent_, plan_);
  for (int shape = 0; shape < 4; ++shape) {
    Choose(dialog, shape);
    const std::vector<wxSpinCtrl*> spins = FindControls<wxSpinCtrl>(dialog);
    const std::vector<wxStaticText*> texts = FindControls<wxStaticText>(dialog);
    // Behind three other texts: a caption and a unit for each row.
    ASSERT_EQ(texts.size(), 3 + 2 * spins.size());
    for (std::size_t row = 0; row < spins.size(); ++row) {
      EXPECT_GE(texts[3 + 2 * row]->GetSize().x, 160) << shape;
      EXPECT_GE(spins[row]->GetSize().x, 90) << shape;
      EXPECT_EQ(spins[row]->GetPosition().x, spins[0]->GetPosition().x) << shape;
      EXPECT_GT(texts[4 + 2 * row]->GetPosition().x, spins[row]->GetRect().GetRight()) << shape;
    }
  }
}

// 150 cm = 1500 mm, 80 cm = 800 mm
TEST_F(LayoutShape, ApplyGivesTheVerticesInMillimetresAndRemembersTheValues) {
  plan_.units = kCentimetres;
  const int answer = run([](wxDialog& dialog) {
    SetSpins(dialog, {150, 80});
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_EQ(vertices_, (std::vector<Vec2>{{0, 0}, {1500, 0}, {1500, 800}, {0, 800}}));
  EXPECT_FALSE(freeForm_);
  EXPECT_EQ(plan_.lastShape, (LastShape{0, 1500.0, 800.0, 1200.0, 1200.0}));
  EXPECT_TRUE(plan_.baseboard.empty()) << "the caller's business";
}

TEST_F(LayoutShape, ApplyTakesAllFourValuesOfAnL) {
  run([](wxDialog& dialog) {
    Choose(dialog, 1);
    SetSpins(dialog, {2000, 1600, 900, 700});
    Press(dialog, "Apply");
  });
  EXPECT_EQ(vertices_, (std::vector<Vec2>{
                           {0, 0}, {2000, 0}, {2000, 900}, {1100, 900}, {1100, 1600}, {0, 1600}}));
  EXPECT_EQ(plan_.lastShape, (LastShape{1, 2000.0, 1600.0, 900.0, 700.0}));
}

TEST_F(LayoutShape, CancelChangesNothing) {
  const LastShape before = plan_.lastShape;
  const int answer = run([](wxDialog& dialog) {
    Choose(dialog, 1);
    SetSpins(dialog, {2000, 1600, 900, 700});
    Press(dialog, "Cancel");
  });
  EXPECT_EQ(answer, wxID_CANCEL);
  EXPECT_EQ(plan_.lastShape, before);
}

TEST_F(LayoutShape, ComingBackToTheLastShapeBringsBackWhatWasStored) {
  plan_.lastShape = {1, 2000.0, 1600.0, 900.0, 700.0};
  LayoutShapeDialog dialog(parent_, plan_);
  SetSpins(dialog, {1, 2, 3, 4});
  Choose(dialog, 0);
  EXPECT_EQ(SpinValues(dialog), (std::vector<int>{2400, 1200}));
  Choose(dialog, 1);
  EXPECT_EQ(SpinValues(dialog), (std::vector<int>{2000, 1600, 900, 700}));
}

TEST_F(LayoutShape, StartsFromTheTableThatTheLastShapeDoesntGive) {
  const LastShape last = plan_.lastShape;
  plan_.units = kCentimetres;
  plan_.baseboard = {{0, 0}, {3000, 0}, {3000, 1200}, {2000, 1200}, {2000, 2000}, {0, 2000}};
  {
    LayoutShapeDialog dialog(parent_, plan_);
    EXPECT_EQ(FindControl<wxChoice>(dialog)->GetSelection(), 1);
    EXPECT_EQ(SpinValues(dialog), (std::vector<int>{300, 200, 100, 80}));
    // Another shape starts as ever, and the first comes back with the table's values.
    Choose(dialog, 0);
    EXPECT_EQ(SpinValues(dialog), (std::vector<int>{240, 120}));
    Choose(dialog, 1);
    EXPECT_EQ(SpinValues(dialog), (std::vector<int>{300, 200, 100, 80}));
  }
  plan_.baseboard = {{0, 0}, {3000, 0}, {0, 2000}};
  LayoutShapeDialog dialog(parent_, plan_);
  EXPECT_EQ(FindControl<wxChoice>(dialog)->GetSelection(), 4);
  ASSERT_NE(FindControl<wxTextCtrl>(dialog), nullptr);
  EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "0.00,0.00\n300.00,0.00\n0.00,200.00\n");
  EXPECT_EQ(plan_.lastShape, last) << "nothing is written before Apply";
}

TEST_F(LayoutShape, ApplyRightAwayKeepsTheTable) {
  plan_.baseboard = {{0, 0}, {1800, 0}, {1800, 900}, {0, 900}};
  EXPECT_EQ(run([](wxDialog& dialog) { Press(dialog, "Apply"); }), wxID_OK);
  EXPECT_EQ(vertices_, plan_.baseboard);
}

TEST_F(LayoutShape, FreeFormDrawsOnTheCanvas) {
  const int answer = run([](wxDialog& dialog) {
    Choose(dialog, 5);
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_TRUE(freeForm_);
  EXPECT_TRUE(vertices_.empty());
  EXPECT_EQ(plan_.lastShape.id, 5);
}

TEST_F(LayoutShape, ClearGivesNoVertices) {
  const int answer = run([](wxDialog& dialog) {
    Choose(dialog, 6);
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_FALSE(freeForm_);
  EXPECT_TRUE(vertices_.empty());
  EXPECT_EQ(plan_.lastShape, (LastShape{6, 2400.0, 1200.0, 1200.0, 1200.0}));
}

TEST_F(LayoutShape, TheCustomPageShowsTheOutlineThatThereIs) {
  plan_.lastShape.id = 4;
  plan_.units = kCentimetres;
  plan_.baseboard = {{0, 0}, {1234.5, 0}, {0, 20}};
  LayoutShapeDialog dialog(parent_, plan_);
  EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "0.00,0.00\n123.45,0.00\n0.00,2.00\n");
}

TEST_F(LayoutShape, TheCustomPageStartsWithATableWhenThereIsNone) {
  plan_.lastShape.id = 4;
  LayoutShapeDialog dialog(parent_, plan_);
  EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "0,0\n2400,0\n2400,1200\n0,1200\n");
}

TEST_F(LayoutShape, CustomVerticesAreTaken) {
  run([](wxDialog& dialog) {
    Choose(dialog, 4);
    FindControl<wxTextCtrl>(dialog)->SetValue("0,0\n500.5,0\n\n0,300");
    Press(dialog, "Apply");
  });
  EXPECT_EQ(vertices_, (std::vector<Vec2>{{0, 0}, {500.5, 0}, {0, 300}}));
  EXPECT_EQ(plan_.lastShape, (LastShape{4, 2400.0, 1200.0, 1200.0, 1200.0}));
}

TEST_F(LayoutShape, ACustomPageLeftEmptyGivesNoOutline) {
  plan_.baseboard = {{0, 0}, {1, 0}, {0, 1}};
  const int answer = run([](wxDialog& dialog) {
    Choose(dialog, 4);
    FindControl<wxTextCtrl>(dialog)->SetValue("");
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_TRUE(vertices_.empty());
}

TEST_F(LayoutShape, FewerThanThreeCustomVerticesPass) {
  const int answer = run([](wxDialog& dialog) {
    Choose(dialog, 4);
    FindControl<wxTextCtrl>(dialog)->SetValue("1,2\n3,4");
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_EQ(vertices_.size(), 2u);
}

TEST_F(LayoutShape, ACustomLineThatCantBeReadKeepsTheDialogOpenWithItsText) {
  const LastShape before = plan_.lastShape;
  const int answer = run([&](wxDialog& dialog) {
    Choose(dialog, 4);
    FindControl<wxTextCtrl>(dialog)->SetValue("0,0\n10 mm,0\n0,5");
    expectWarning();
    Press(dialog, "Apply");
    EXPECT_TRUE(dialog.IsModal());
    EXPECT_EQ(dialog.GetReturnCode(), 0);
    EXPECT_EQ(FindControl<wxTextCtrl>(dialog)->GetValue(), "0,0\n10 mm,0\n0,5");
    EXPECT_EQ(plan_.lastShape, before);
    Press(dialog, "Cancel");
  });
  EXPECT_EQ(answer, wxID_CANCEL);
  EXPECT_EQ(plan_.lastShape, before);
}

TEST_F(LayoutShape, AnEmptyFieldIsToldBeforeANumberIsTakenForIt) {
  const int answer = run([&](wxDialog& dialog) {
    FindControls<wxSpinCtrl>(dialog).at(1)->SetValue(wxString());
    expectWarning();
    Press(dialog, "Apply");
    EXPECT_TRUE(script_.finished()) << "not told";
    SetSpins(dialog, {900, 700});
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_EQ(vertices_.at(2), (Vec2{900, 700}));
}

TEST_F(LayoutShape, NothingIsCutOffOnAnyPageInAnyUnit) {
  for (const std::int32_t units : {0, 1, 2}) {
    plan_.units = units;
    run([&](wxDialog& dialog) {
      for (int shape = 0; shape < 7; ++shape) {
        Choose(dialog, shape);
        WaitUntilNothingIsCutOff(dialog);
        EXPECT_EQ(CutOffControls(dialog), std::vector<std::string>{}) << shape;
      }
      Press(dialog, "Cancel");
    });
  }
}

TEST_F(LayoutShape, CopesWithAnyLastShapeThatAFileCouldHold) {
  for (const double value : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
    plan_.lastShape = {1, value, value, value, value};
    plan_.baseboard = {{value, value}};
    plan_.units = 99;
    LayoutShapeDialog dialog(parent_, plan_);
    EXPECT_EQ(SpinValues(dialog).size(), 4u);
    Choose(dialog, 4);
    EXPECT_NE(FindControl<wxTextCtrl>(dialog), nullptr);
  }
}

// "12,5" would become 125.
TEST_F(LayoutShape, AFractionIsToldAndNotTaken) {
  const int answer = run([this](wxDialog& dialog) {
    for (wxSpinCtrl* spin : FindControls<wxSpinCtrl>(dialog)) EXPECT_TRUE(RefusesFractions(*spin));
    expectWarning();
    Press(dialog, "Apply");
    EXPECT_TRUE(script_.finished()) << "not told";
    Press(dialog, "Apply");
  });
  EXPECT_EQ(answer, wxID_OK);
  EXPECT_EQ(vertices_, (std::vector<Vec2>{{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}}));
}

TEST_F(LayoutShape, CornersThatHoldNoNumberAreMarkedUntilTheyAreMended) {
  run([this](wxDialog& dialog) {
    Choose(dialog, 4);
    auto* field = FindControl<wxTextCtrl>(dialog);
    field->SetValue("0,0\n1,2,5");
    expectWarning();
    Press(dialog, "Apply");
    EXPECT_TRUE(IsMarkedRefused(*field));
    EXPECT_EQ(field->GetToolTipText(), "One of these lines holds something that is no number.");
    field->SetValue("0,0\n1,2.5");
    EXPECT_FALSE(IsMarkedRefused(*field));
    Press(dialog, "Apply");
  });
  EXPECT_EQ(vertices_, (std::vector<Vec2>{{0, 0}, {1, 2.5}}));
}

}  // namespace
}  // namespace vantrel
