// What a double click on a shape or on scenery changes, and the two dialogs themselves.
#include "canvas/gestures/annotation_dialogs.h"

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/frame.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "canvas/resize_scenery_dialog.h"
#include "canvas/shape_properties_dialog.h"
#include "tests/gestures/editing_driver.h"
#include "tests/support/typed_keys.h"

namespace vantrel {
namespace {

class AnnotationDialogs : public EditingTest {};

TEST_F(AnnotationDialogs, AShapeTakesWhatItsDialogSaysAsOneStep) {
  layShape({100.0, 100.0}, 200.0);
  layout.shapes[0].a = 128;
  host.shapeChosen = ShapeProperties{.label = "River",
                                     .r = 1,
                                     .g = 2,
                                     .b = 3,
                                     .opacityPercent = 100,
                                     .height = 12.5,
                                     .outline = false};
  EXPECT_TRUE(onDoubleClick(context, at(150, 150)));
  ASSERT_EQ(host.shapesShown.size(), 1u);
  // 128 * 100 / 255 = 50.2.
  EXPECT_EQ(host.shapesShown[0].opacityPercent, 50);
  const Shape& shape = layout.shapes[0];
  EXPECT_EQ(shape.label, "River");
  EXPECT_EQ(shape.b, 3);
  EXPECT_EQ(shape.a, 255);
  EXPECT_EQ(shape.height, 12.5);
  EXPECT_FALSE(shape.outline);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(layout.undoHistory[0].shapes[0].a, 128);
  EXPECT_EQ(host.dirtyMarks, 1);
}

TEST_F(AnnotationDialogs, CancelChangesNothing) {
  layShape({100.0, 100.0}, 200.0);
  layScenery("platform", {600.0, 600.0, 0.0});
  EXPECT_TRUE(onDoubleClick(context, at(150, 150)));
  EXPECT_TRUE(onDoubleClick(context, at(600, 600)));
  EXPECT_EQ(host.scalesShown.size(), 1u);
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_EQ(host.dirtyMarks, 0);
}

TEST_F(AnnotationDialogs, AnOpacityOfThirtyThreePercentIs84) {
  layShape({100.0, 100.0}, 200.0);
  host.shapeChosen.emplace().opacityPercent = 33;
  onDoubleClick(context, at(150, 150));
  // 33 * 255 / 100 = 84.15.
  EXPECT_EQ(layout.shapes[0].a, 84);
}

TEST_F(AnnotationDialogs, SceneryOfAnyCategoryIsResizedByItsDialog) {
  layScenery("car", {600.0, 600.0, 0.0});
  layout.scenery[0].sel = true;
  host.scaleChosen = SceneryScale{.x = 2.0, .y = 0.5};
  EXPECT_TRUE(onDoubleClick(context, at(600, 600)));
  EXPECT_EQ(host.scalesShown[0], (SceneryScale{1.0, 1.0}));
  EXPECT_EQ(layout.scenery[0].scalex, 2.0);
  EXPECT_EQ(layout.scenery[0].scaley, 0.5);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
}

TEST_F(AnnotationDialogs, AFactorOfATenthStaysAndNothingIsSmaller) {
  layScenery("platform", {600.0, 600.0, 0.0});
  host.scaleChosen = SceneryScale{.x = 0.1, .y = 0.05};
  onDoubleClick(context, at(600, 600));
  EXPECT_EQ(layout.scenery[0].scalex, 0.1);
  EXPECT_EQ(layout.scenery[0].scaley, 0.1);
}

TEST_F(AnnotationDialogs, AShapeComesBeforeSceneryAndSceneryBeforeTrack) {
  lay("24188", {100.0, 150.0, 0.0});
  layScenery("platform", {150.0, 150.0, 0.0});
  layShape({100.0, 100.0}, 200.0);
  onDoubleClick(context, at(150, 150));
  EXPECT_EQ(host.shapesShown.size(), 1u);
  EXPECT_TRUE(host.scalesShown.empty());
  layout.shapes.clear();
  onDoubleClick(context, at(150, 150));
  EXPECT_EQ(host.scalesShown.size(), 1u);
  EXPECT_EQ(layout.pieces.size(), 1u);
}

class SmallDialogs : public testing::Test {
 protected:
  wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "frame");
  ~SmallDialogs() override { delete frame; }

  template <typename Control>
  static std::vector<Control*> all(const wxWindow& dialog) {
    std::vector<Control*> found;
    for (wxWindow* child : dialog.GetChildren())
      if (auto* const control = dynamic_cast<Control*>(child)) found.push_back(control);
    return found;
  }
  // No control has less room than it needs.
  static void expectNothingCutOff(const wxWindow& dialog) {
    for (const wxWindow* child : dialog.GetChildren()) {
      EXPECT_GE(child->GetSize().GetWidth(), child->GetBestSize().GetWidth());
      EXPECT_LE(child->GetRect().GetRight(), dialog.GetClientSize().GetWidth());
      EXPECT_LE(child->GetRect().GetBottom(), dialog.GetClientSize().GetHeight());
    }
  }
};

TEST_F(SmallDialogs, ResizeSceneryTellsSizesAndHoldsTheFactors) {
  const ResizeSceneryDialog dialog(frame, {.width = 300.0, .depth = 60.0}, {.x = 1.5, .y = 0.5});
  EXPECT_EQ(dialog.GetTitle(), "Resize Scenery");
  const auto texts = all<wxStaticText>(dialog);
  ASSERT_EQ(texts.size(), 5u);
  EXPECT_EQ(texts[0]->GetLabel(), "Catalog size: 300 x 60 mm    Current: 450 x 30 mm");
  EXPECT_EQ(texts[1]->GetLabel(), "Width scale:");
  EXPECT_EQ(texts[2]->GetLabel(), "(= 450 mm)");
  EXPECT_EQ(texts[4]->GetLabel(), "(= 30 mm)");
  EXPECT_EQ(dialog.scale(), (SceneryScale{1.5, 0.5}));
  EXPECT_TRUE(all<wxCheckBox>(dialog)[0]->GetValue());
  const auto spins = all<wxSpinCtrlDouble>(dialog);
  EXPECT_EQ(spins[0]->GetMin(), 0.1);
  EXPECT_EQ(spins[0]->GetMax(), 10.0);
  EXPECT_EQ(spins[0]->GetIncrement(), 0.1);
  expectNothingCutOff(dialog);
}

TEST_F(SmallDialogs, ALockedWidthTakesTheDepthAlongByTheStartsRatioAndNotTheOtherWayRound) {
  ResizeSceneryDialog dialog(frame, {.width = 300.0, .depth = 60.0}, {.x = 2.0, .y = 1.0});
  const auto spins = all<wxSpinCtrlDouble>(dialog);
  const auto turn = [](wxSpinCtrlDouble& spin, double value) {
    spin.SetValue(value);
    wxSpinDoubleEvent event(wxEVT_SPINCTRLDOUBLE, spin.GetId(), value);
    event.SetEventObject(&spin);
    spin.ProcessWindowEvent(event);
  };
  turn(*spins[0], 3.0);
  EXPECT_EQ(dialog.scale(), (SceneryScale{3.0, 1.5}));
  turn(*spins[1], 4.0);
  EXPECT_EQ(dialog.scale(), (SceneryScale{3.0, 4.0}));
  all<wxCheckBox>(dialog)[0]->SetValue(false);
  turn(*spins[0], 1.0);
  EXPECT_EQ(dialog.scale(), (SceneryScale{1.0, 4.0}));
}

TEST_F(SmallDialogs, AFactorThatIsNotTouchedKeepsItsLastDigit) {
  // As a handle leaves them: 270 / 230 and 70 / 60.
  const SceneryScale pulled{270.0 / 230.0, 70.0 / 60.0};
  ResizeSceneryDialog dialog(frame, {.width = 230.0, .depth = 60.0}, pulled);
  EXPECT_EQ(dialog.scale(), pulled);
  const auto spins = all<wxSpinCtrlDouble>(dialog);
  spins[1]->SetValue(2.0);
  EXPECT_EQ(dialog.scale(), (SceneryScale{270.0 / 230.0, 2.0}));
}

TEST_F(SmallDialogs, AFactorOutsideTheSpinsRangeBecomesWhatTheSpinShows) {
  const ResizeSceneryDialog dialog(frame, {.width = 230.0, .depth = 60.0}, {.x = 12.0, .y = 0.05});
  EXPECT_EQ(dialog.scale(), (SceneryScale{10.0, 0.1}));
}

TEST_F(SmallDialogs, ResetGivesTheCatalogsSize) {
  ResizeSceneryDialog dialog(frame, {.width = 300.0, .depth = 60.0}, {.x = 2.0, .y = 3.0});
  dialog.SetReturnCode(wxID_RESET);
  EXPECT_EQ(dialog.scale(), (SceneryScale{1.0, 1.0}));
}

TEST_F(SmallDialogs, AnUnlockedDepthOfNoughtCountsAsARatioOfOne) {
  ResizeSceneryDialog dialog(frame, {.width = 300.0, .depth = 60.0}, {.x = 2.0, .y = 0.0});
  const auto spins = all<wxSpinCtrlDouble>(dialog);
  spins[0]->SetValue(3.0);
  wxSpinDoubleEvent event(wxEVT_SPINCTRLDOUBLE, spins[0]->GetId(), 3.0);
  event.SetEventObject(spins[0]);
  spins[0]->ProcessWindowEvent(event);
  EXPECT_EQ(dialog.scale(), (SceneryScale{3.0, 3.0}));
}

const ShapeProperties kRiver{.label = "M\xC3\xBChlbach",
                             .r = 10,
                             .g = 20,
                             .b = 200,
                             .opacityPercent = 60,
                             .height = 63.5,
                             .outline = false};

TEST_F(SmallDialogs, ShapePropertiesHoldsAndReturnsEverything) {
  for (const std::int32_t units : {kMillimetres, kCentimetres, kInches}) {
    const ShapePropertiesDialog dialog(frame, kRiver, units);
    EXPECT_EQ(dialog.GetTitle(), "Shape Properties");
    EXPECT_EQ(dialog.properties(), kRiver);
    expectNothingCutOff(dialog);
  }
}

TEST_F(SmallDialogs, APastedNameOfAShapeStandsOnOneLine) {
  const ShapePropertiesDialog dialog(frame, kRiver, kMillimetres);
  all<wxTextCtrl>(dialog)[0]->SetValue("Mill\r\npond");
  EXPECT_EQ(all<wxTextCtrl>(dialog)[0]->GetValue(), "Mill  pond");
  EXPECT_EQ(dialog.properties().label, "Mill  pond");
}

TEST_F(SmallDialogs, TheHeightIsShownInThePlansUnitAndComesBackInMillimetres) {
  const std::tuple<std::int32_t, double, const char*> expected[] = {
      {kMillimetres, 63.5, "Height (above level deck, mm):"},
      {kCentimetres, 6.3, "Height (above level deck, cm):"},
      {kInches, 2.5, "Height (above level deck, in):"}};
  for (const auto& [units, shown, caption] : expected) {
    const ShapePropertiesDialog dialog(frame, kRiver, units);
    const auto spins = all<wxSpinCtrlDouble>(dialog);
    EXPECT_NEAR(spins[0]->GetValue(), shown, 0.051);
    EXPECT_EQ(all<wxStaticText>(dialog).back()->GetLabel(), caption);
    spins[0]->SetValue(2.0);
    EXPECT_NEAR(dialog.properties().height,
                units == kInches ? 50.8 : (units == kCentimetres ? 20.0 : 2.0), 1e-9);
  }
}

TEST_F(SmallDialogs, AHeightOutsideTheSpinsRangeIsKeptWhenItIsNotTouched) {
  ShapeProperties tall = kRiver;
  tall.height = 123456.789;
  EXPECT_EQ(ShapePropertiesDialog(frame, tall, kMillimetres).properties(), tall);
  tall.height = -3.25;
  EXPECT_EQ(ShapePropertiesDialog(frame, tall, kInches).properties(), tall);
}

TEST_F(SmallDialogs, ADecimalCommaIsADecimalPointInEveryNumber) {
  ResizeSceneryDialog resize(frame, {.width = 300.0, .depth = 60.0}, {.x = 1.5, .y = 0.5});
  for (wxSpinCtrlDouble* spin : all<wxSpinCtrlDouble>(resize))
    EXPECT_TRUE(TakesDecimalComma(*spin)) << spin->GetTextValue();
  ShapePropertiesDialog shape(frame, {.label = "Lake", .height = 20.0}, kMillimetres);
  for (wxSpinCtrlDouble* spin : all<wxSpinCtrlDouble>(shape))
    EXPECT_TRUE(TakesDecimalComma(*spin)) << spin->GetTextValue();
  for (wxSpinCtrl* spin : all<wxSpinCtrl>(shape)) EXPECT_TRUE(RefusesFractions(*spin));
}

// Otherwise nobody would see that the number from before was taken.
TEST_F(SmallDialogs, OkOnAFieldThatWasGivenNoNumberStaysOnceAndThenTakesTheOneFromBefore) {
  const auto pressOk = [](wxDialog& dialog) {
    wxCommandEvent click(wxEVT_BUTTON, wxID_OK);
    click.SetEventObject(dialog.FindWindow(wxID_OK));
    dialog.HandleWindowEvent(click);
  };
  const auto okTwice = [&](wxDialog& dialog, wxWindow& field) {
    MarkRefusedEntry(field, "none");
    bool stayed = false;
    dialog.CallAfter([&] {
      pressOk(dialog);
      stayed = dialog.IsModal();
      ClearRefusedEntry(field);  // as the focus does that it now gets
      pressOk(dialog);
    });
    EXPECT_EQ(dialog.ShowModal(), wxID_OK);
    return stayed;
  };
  ResizeSceneryDialog resize(frame, {.width = 300.0, .depth = 60.0}, {.x = 1.5, .y = 0.5});
  EXPECT_TRUE(okTwice(resize, *all<wxSpinCtrlDouble>(resize)[1]));
  EXPECT_EQ(resize.scale(), (SceneryScale{1.5, 0.5}));
  ShapePropertiesDialog shape(frame, {.label = "Lake", .height = 20.0}, kMillimetres);
  EXPECT_TRUE(okTwice(shape, *all<wxSpinCtrlDouble>(shape)[0]));
  EXPECT_EQ(shape.properties().height, 20.0);
}

}  // namespace
}  // namespace vantrel
