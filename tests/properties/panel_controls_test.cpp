// How the panel is put together: its controls, their first state, their order and their room.
#include <wx/scrolbar.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/tooltip.h>

#include "properties/tally_panel.h"
#include "tests/properties/panel_fixture.h"

namespace vantrel {
namespace {

const wxColour kRed(200, 40, 40);

// Where a control lies, from the panel's top left corner.
wxRect RectIn(const wxWindow& panel, const wxWindow& control) {
  return {panel.ScreenToClient(control.GetScreenPosition()), control.GetSize()};
}

class PanelControls : public PanelTest {
 protected:
  // Every control that the user reads or uses, but for the foot of the panel.
  std::vector<wxWindow*> allControls() {
    std::vector<wxWindow*> controls;
    for (wxControl* found : FindControls<wxControl>(*panel)) {
      const bool inTally = dynamic_cast<TallyPanel*>(found->GetParent()) != nullptr;
      if (!inTally && dynamic_cast<wxStaticBox*>(found) == nullptr &&
          dynamic_cast<wxScrollBar*>(found) == nullptr)
        controls.push_back(found);
    }
    return controls;
  }

  void expectNothingCutOff() {
    const wxSize size = panel->GetClientSize();
    for (wxWindow* found : allControls()) {
      const wxRect rect = RectIn(*panel, *found);
      const std::string what = (found->GetName() + " " + found->GetLabel()).utf8_string();
      EXPECT_GE(rect.x, 0) << what;
      EXPECT_LE(rect.x + rect.width, size.x) << what;
      EXPECT_GE(rect.height, found->GetBestSize().y) << what;
      // What holds a name of any length, or a text to type, gets the room that is left.
      const bool flexible =
          dynamic_cast<wxChoice*>(found) != nullptr || dynamic_cast<wxTextCtrl*>(found) != nullptr;
      if (!flexible) {
        EXPECT_GE(rect.width, found->GetBestSize().x) << what;
      }
    }
  }

  void expectNoOverlap() {
    const std::vector<wxWindow*> controls = allControls();
    for (std::size_t i = 0; i < controls.size(); ++i)
      for (std::size_t k = i + 1; k < controls.size(); ++k)
        EXPECT_FALSE(RectIn(*panel, *controls[i]).Intersects(RectIn(*panel, *controls[k])))
            << controls[i]->GetLabel() << " and " << controls[k]->GetLabel();
  }

  wxString boxAround(const wxWindow& found) const { return found.GetParent()->GetLabel(); }
  TallyPanel* tally() const { return FindControl<TallyPanel>(*panel); }
};

TEST_F(PanelControls, BeginWithNothingSelected) {
  EXPECT_EQ(text("titleLabel").GetLabelText(), "No selection");
  EXPECT_EQ(text("titleLabel").GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
  EXPECT_EQ(text("infoLabel").GetLabelText(), "");
  EXPECT_EQ(labelField().GetValue(), "");
  EXPECT_EQ(text("heightCaption").GetLabelText(), "Height (mm):");
  EXPECT_EQ(heightField().GetValue(), "0");
  EXPECT_FALSE(heightField().IsEnabled());
  EXPECT_FALSE(levelChoice().IsEnabled());
  EXPECT_EQ(text("gradeValue").GetLabelText(), "-");
  EXPECT_EQ(text("gradeWarning").GetLabelText(), "");
  EXPECT_EQ(text("gradeWarning").GetForegroundColour(), kRed);
  EXPECT_EQ(text("hint").GetLabelText(), "Set height above baseboard.\nMax grade: 6 deg.");
  EXPECT_TRUE(up().GetValue());
  EXPECT_FALSE(down().GetValue());
  for (const int id : {4102, 4104, 4106}) EXPECT_FALSE(button(id).IsEnabled());
}

TEST_F(PanelControls, HaveTheirTextsAndStandInTheirBoxes) {
  EXPECT_EQ(button(4108).GetLabel(), "OK");
  EXPECT_EQ(button(4110).GetLabel(), "Apply");
  EXPECT_EQ(button(4102).GetLabel(), "Start Grade");
  EXPECT_EQ(button(4104).GetLabel(), "End Grade");
  EXPECT_EQ(button(4106).GetLabel(), "Recalc");
  EXPECT_EQ(button(4106).GetToolTipText(), "Recalculate elevation chain from this piece forward");
  for (const char* label : {"Level:", "Grade:", "deg", "Piece Count"})
    EXPECT_NE(FindControl<wxStaticText>(*panel, label), nullptr) << label;
  EXPECT_EQ(boxAround(labelField()), "Add Label");
  EXPECT_EQ(boxAround(button(4108)), "Add Label");
  EXPECT_EQ(boxAround(colourChoice()), "Color");
  EXPECT_EQ(boxAround(button(4110)), "Color");
  EXPECT_EQ(boxAround(heightField()), "Set Grade");
  EXPECT_EQ(boxAround(spin()), "Set Grade");
  EXPECT_EQ(boxAround(button(4106)), "Set Grade");
}

TEST_F(PanelControls, TheFieldsTakeTheReturnKey) {
  EXPECT_TRUE(labelField().HasFlag(wxTE_PROCESS_ENTER));
  EXPECT_TRUE(heightField().HasFlag(wxTE_PROCESS_ENTER));
}

TEST_F(PanelControls, TheSpinGoesFromZeroToSixInHalfDegrees) {
  EXPECT_EQ(spin().GetMin(), 0.0);
  EXPECT_EQ(spin().GetMax(), 6.0);
  EXPECT_EQ(spin().GetIncrement(), 0.5);
  EXPECT_EQ(spin().GetDigits(), 1u);
  EXPECT_EQ(spin().GetValue(), 0.0);
  EXPECT_TRUE(spin().HasFlag(wxSP_ARROW_KEYS));
}

TEST_F(PanelControls, TheColourListHasNineNames) {
  const char* const names[] = {"Default", "Red",    "Orange", "Yellow", "Green",
                               "Blue",    "Purple", "Pink",   "White"};
  ASSERT_EQ(colourChoice().GetCount(), 9u);
  for (unsigned row = 0; row < 9; ++row) EXPECT_EQ(colourChoice().GetString(row), names[row]);
}

TEST_F(PanelControls, StandFromTheTopDownwardInTheirOrder) {
  show();
  int above = -1;
  for (const wxWindow* found : std::vector<const wxWindow*>{
           &labelField(), &text("titleLabel"), &text("infoLabel"), &levelChoice(), &colourChoice(),
           &heightField(), &text("gradeValue"), &text("gradeWarning"), &text("hint"), &spin(),
           &button(4102), tally()}) {
    const int top = RectIn(*panel, *found).y;
    EXPECT_GT(top, above) << found->GetName();
    above = top;
  }
}

TEST_F(PanelControls, TabGoesThroughThemInReadingOrder) {
  selectPiece();
  plan().currentGrade.active = true;
  panel->RefreshSelection();
  show();
  labelField().SetFocus();
  settle();
  // The two directions are one stop, at the one that is on.
  for (const wxWindow* next : std::vector<const wxWindow*>{
           &button(4108), &levelChoice(), &colourChoice(), &button(4110), &heightField(), &up(),
           &spin(), &button(4102), &button(4104), &button(4106)}) {
    panel->Navigate();
    settle();
    // The toolkit doesn't know the focus of a choice, whose inner button has it.
    const wxWindow* const focus = wxWindow::FindFocus();
    if (focus == nullptr && dynamic_cast<const wxChoice*>(next) != nullptr) continue;
    ASSERT_EQ(focus, next) << next->GetLabel() << " " << next->GetName();
  }
}

TEST_F(PanelControls, NothingIsCutOffOnAnyPage) {
  show();
  plan().levels[1].name = "The upper level of the great exhibition plan, with its long name";
  plan().units = kInches;
  const std::int32_t helix = LayHelix(plan(), "proses_4_5_r4r5", 2);
  const std::int32_t steep = LayPiece(plan(), "24224", {});
  piece(steep).grade = -12.25;
  piece(steep).level = 2;
  PlaceScenery(plan(), "platform_island", false);
  Shape& shape = DrawShape(plan(), {{0, 0}, {1e9, 1e12}}, false);
  shape.label = "Lake with\na shore, and a very long name that no single line of the panel holds";
  const auto selectOnly = [&](auto&& choose) {
    ClearSelection(plan());
    choose();
    panel->RefreshSelection();
    settle();
    expectNothingCutOff();
    expectNoOverlap();
    EXPECT_EQ(panel->GetVirtualSize().y, panel->GetClientSize().y) << "all of it fits";
    EXPECT_LE(RectIn(*panel, *tally()).GetBottom(), panel->GetClientSize().y);
  };
  selectOnly([] {});
  EXPECT_EQ(panel->page().kind, PageKind::none);
  selectOnly([&] { PieceOf(plan(), steep).sel = true; });
  EXPECT_EQ(panel->page().kind, PageKind::piece);
  EXPECT_NE(panel->page().grade.warning, "");
  selectOnly([&] {
    for (Piece& stub : plan().pieces) stub.sel = stub.helix == helix;
  });
  EXPECT_EQ(panel->page().kind, PageKind::helix);
  selectOnly([&] { plan().scenery[0].sel = true; });
  EXPECT_EQ(panel->page().kind, PageKind::scenery);
  selectOnly([&] { plan().shapes[0].sel = true; });
  EXPECT_EQ(panel->page().kind, PageKind::polygon);
  selectOnly([&] {
    for (int i = 0; i < 40; ++i) {
      const std::int32_t before = plan().pieces.back().id;
      const std::int32_t id = LaySelected(plan(), "24188");
      if (i > 0) Join(plan(), before, 1, id, 0);
    }
  });
  EXPECT_EQ(panel->page().kind, PageKind::run);
}

TEST_F(PanelControls, NothingIsCutOffInThePanesSmallestWidth) {
  show();
  selectPiece("24224");
  piece(plan().pieces[0].id).grade = 7.0;
  panel->RefreshSelection();
  resize(195, 900);
  expectNothingCutOff();
  expectNoOverlap();
  // Rows that became columns are rows again.
  resize(kPanelWidth);
  EXPECT_EQ(RectIn(*panel, button(4102)).y, RectIn(*panel, button(4106)).y);
  expectNothingCutOff();
}

TEST_F(PanelControls, TheButtonsOfTheGradeShareOneRow) {
  show();
  const int row = RectIn(*panel, button(4102)).y;
  EXPECT_EQ(RectIn(*panel, button(4104)).y, row);
  EXPECT_EQ(RectIn(*panel, button(4106)).y, row);
}

TEST_F(PanelControls, APageOfUsualTextsLeavesTheControlsWhereTheyAre) {
  show();
  const wxRect before = RectIn(*panel, levelChoice());
  selectPiece("24188");
  settle();
  EXPECT_EQ(RectIn(*panel, levelChoice()), before);
  plan().pieces[0].cat = "24224";  // a title of two lines
  panel->RefreshSelection();
  settle();
  EXPECT_TRUE(text("titleLabel").GetLabelText().Contains("\n"));
  EXPECT_EQ(RectIn(*panel, levelChoice()), before);
}

// A text that grows makes what stands behind it or below it give way.
TEST_F(PanelControls, ATextThatGrowsPushesItsNeighboursAside) {
  show();
  const std::int32_t id = selectPiece("24188");
  settle();
  const int field = RectIn(*panel, heightField()).x;
  const int hint = RectIn(*panel, text("hint")).y;
  const int foot = RectIn(*panel, *tally()).y;
  piece(id).grade = -7.0;  // the warning was empty
  panel->RefreshSelection();
  settle();
  const wxRect warning = RectIn(*panel, text("gradeWarning"));
  EXPECT_GE(warning.height, text("gradeWarning").GetBestSize().y);
  EXPECT_GE(RectIn(*panel, text("hint")).y, warning.y + warning.height);
  EXPECT_GT(RectIn(*panel, text("hint")).y, hint);
  EXPECT_GT(RectIn(*panel, *tally()).y, foot);
  EXPECT_GE(text("gradeValue").GetSize().x, text("gradeValue").GetBestSize().x);
  expectNothingCutOff();
  expectNoOverlap();

  Helix helix;
  helix.id = 77;
  helix.bottomR1 = id;
  plan().helices.push_back(helix);
  piece(id).helix = 77;  // "Height (mm):" becomes a longer caption
  panel->RefreshSelection();
  settle();
  ASSERT_EQ(panel->page().kind, PageKind::helix);
  const wxRect caption = RectIn(*panel, text("heightCaption"));
  EXPECT_GE(caption.width, text("heightCaption").GetBestSize().x);
  EXPECT_GT(RectIn(*panel, heightField()).x, caption.x + caption.width);
  EXPECT_GT(RectIn(*panel, heightField()).x, field);
  expectNoOverlap();
}

TEST_F(PanelControls, ATitleTakesFewerLinesInAWiderPanel) {
  show();
  selectPiece("24224");
  settle();
  EXPECT_EQ(text("titleLabel").GetLabelText().Freq('\n'), 1);
  resize(195);
  EXPECT_EQ(text("titleLabel").GetLabelText().Freq('\n'), 1);
  resize(450);
  EXPECT_EQ(text("titleLabel").GetLabelText(),
            wxString::FromUTF8("24224 (24.3°) R2 - 437.5mm (17-1/4)"));
  resize(kPanelWidth);
  EXPECT_EQ(text("titleLabel").GetLabelText().Freq('\n'), 1);
}

TEST_F(PanelControls, AWindowTooLowScrollsAndStaysWhereItWasScrolledTo) {
  show();
  selectPiece();
  resize(kPanelWidth, 450);
  ASSERT_GT(panel->GetVirtualSize().y, panel->GetClientSize().y);
  EXPECT_EQ(panel->GetVirtualSize().x, panel->GetClientSize().x);
  panel->Scroll(0, 12);
  settle();
  const wxPoint scrolled = panel->GetViewStart();
  ASSERT_EQ(scrolled, wxPoint(0, 12));
  plan().pieces[0].z = 40.0;
  plan().pieces[0].grade = 2.0;
  panel->RefreshSelection();
  settle();
  EXPECT_EQ(panel->GetViewStart(), scrolled);
  EXPECT_EQ(heightField().GetValue(), "40.0");
}

}  // namespace
}  // namespace vantrel
