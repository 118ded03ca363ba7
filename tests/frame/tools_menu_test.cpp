// The menu Tools: its place, its entries, what they do, and that its keys leave text fields alone.
#include "frame/tools_menu.h"

#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "palette/palette_panel.h"
#include "palette/track_icon_grid.h"
#include "properties/properties_panel.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class ToolsMenu : public FrameTest {
 protected:
  bool enabled(int id) {
    frame().DoMenuUpdates();
    return frame().GetMenuBar()->IsEnabled(id);
  }

  // Runs the window's events until this holds, or for five seconds.
  static bool waitFor(const std::function<bool()>& holds) {
    for (int i = 0; i < 500 && !holds(); ++i) {
      wxTheApp->Yield();
      wxMilliSleep(10);
    }
    return holds();
  }
  // As if the key were pressed on the keyboard.
  static void press(int key, int modifiers = wxMOD_NONE) {
    wxUIActionSimulator().Char(key, modifiers);
    wxTheApp->Yield();
  }
};

TEST_F(ToolsMenu, HoldsOneEntryForEachRowBetweenLayoutAndHelp) {
  wxMenuBar& bar = *frame().GetMenuBar();
  const int at = bar.FindMenu("Tools");
  ASSERT_NE(at, wxNOT_FOUND);
  EXPECT_EQ(bar.GetMenuLabelText(at - 1), "Layout");
  EXPECT_EQ(bar.GetMenuLabelText(at + 1), "Help");
  std::vector<std::string> shown;
  for (const wxMenuItem* item : bar.GetMenu(at)->GetMenuItems())
    if (!item->IsSeparator())
      shown.push_back(std::to_string(item->GetId()) + item->GetItemLabel().utf8_string());
  std::vector<std::string> rows;
  for (const ToolCommand& command : ToolCommands())
    rows.push_back(std::to_string(command.id) + command.label);
  EXPECT_EQ(shown, rows);
}

TEST_F(ToolsMenu, HasNumbersOfItsOwn) {
  std::set<int> ids;
  for (const Command& command : Commands()) ids.insert(command.id);
  for (const ToolCommand& command : ToolCommands())
    EXPECT_TRUE(ids.insert(command.id).second) << command.label;
}

TEST_F(ToolsMenu, TurnsTheSelectionToTheLeftAndToTheRight) {
  addPiece().sel = true;
  const std::pair<int, double> steps[] = {{kCmdTurnRight, 15.0},
                                          {kCmdTurnRightFine, 16.0},
                                          {kCmdTurnLeft, 1.0},
                                          {kCmdTurnLeftFine, 0.0}};
  for (const auto& [id, heading] : steps) {
    command(id);
    EXPECT_NEAR(plan().pieces[0].heading, heading, 1e-9) << id;
  }
  EXPECT_EQ(plan().undoHistory.size(), 4u);
  EXPECT_TRUE(frame().dirty());
}

TEST_F(ToolsMenu, OffersTurnsOnlyWhileSomethingIsSelected) {
  addPiece();
  plan().labels.emplace_back();
  EXPECT_FALSE(enabled(kCmdTurnLeft));
  EXPECT_FALSE(enabled(kCmdTurnRightFine));
  plan().pieces[0].sel = true;
  EXPECT_TRUE(enabled(kCmdTurnLeft));
  EXPECT_TRUE(enabled(kCmdTurnRightFine));
  plan().pieces[0].sel = false;
  plan().labels[0].sel = true;
  EXPECT_TRUE(enabled(kCmdTurnLeft));
  EXPECT_TRUE(enabled(kCmdTurnRightFine));
}

TEST_F(ToolsMenu, TellsThatWhatIsSelectedCannotBeTurned) {
  plan().labels.emplace_back().sel = true;
  for (const int id : {kCmdTurnLeft, kCmdTurnRight, kCmdTurnLeftFine, kCmdTurnRightFine}) {
    ModalScript script;
    script.box("Turn Selection", "Only labels are selected, and they cannot be turned.",
               kInformationBox, wxID_OK);
    command(id);
    EXPECT_TRUE(script.finished()) << id;
  }
  EXPECT_TRUE(plan().undoHistory.empty());
  EXPECT_FALSE(frame().dirty());
}

TEST_F(ToolsMenu, EndsADragBeforeItTurnsWhatWasDragged) {
  Piece& piece = addPiece();
  piece.x = 200.0;
  piece.y = 200.0;
  showFrame();
  dragOnCanvas({160, 140}, {200, 140});
  command(kCmdTurnRight);
  EXPECT_FALSE(frame().canvas().state().selectionDrag.active);
  EXPECT_NEAR(plan().pieces[0].heading, 15.0, 1e-9);
}

TEST_F(ToolsMenu, ItsKeysReachTheCanvas) {
  addPiece().sel = true;
  showFrame();
  frame().canvas().SetFocus();
  ASSERT_TRUE(waitFor([&] { return frame().canvas().HasFocus(); }));
  press(']');
  EXPECT_TRUE(waitFor([&] { return plan().pieces[0].heading == 15.0; }));
  press('[', wxMOD_SHIFT);
  EXPECT_TRUE(waitFor([&] { return plan().pieces[0].heading == 14.0; }));
}

// As it is after each click on a part.
TEST_F(ToolsMenu, ItsKeysTurnTheSelectionWhileTheIconGridHasTheFocus) {
  addPiece().sel = true;
  showFrame();
  auto* grid = FindControl<TrackIconGrid>(frame().palette());
  ASSERT_NE(grid, nullptr);
  grid->SetFocus();
  ASSERT_TRUE(waitFor([&] { return grid->HasFocus(); }));
  EXPECT_TRUE(enabled(kCmdTurnRight));
  press(']');
  EXPECT_TRUE(waitFor([&] { return plan().pieces[0].heading == 15.0; }));
  press(']', wxMOD_SHIFT);
  EXPECT_TRUE(waitFor([&] { return plan().pieces[0].heading == 16.0; }));
  press('[');
  EXPECT_TRUE(waitFor([&] { return plan().pieces[0].heading == 1.0; }));
  press('[', wxMOD_SHIFT);
  EXPECT_TRUE(waitFor([&] { return std::abs(plan().pieces[0].heading) < 1e-9; }));
}

TEST_F(ToolsMenu, ItsKeysAreTypedIntoATextFieldThatHasTheFocus) {
  addPiece().sel = true;
  showFrame();
  auto* field = new wxTextCtrl(&frame().properties(), wxID_ANY);
  field->SetFocus();
  ASSERT_TRUE(waitFor([&] { return field->HasFocus(); }));
  press('[');
  press(']');
  press(']', wxMOD_SHIFT);
  EXPECT_TRUE(waitFor([&] { return field->GetValue() == "[]}"; })) << field->GetValue();
  EXPECT_EQ(plan().pieces[0].heading, 0.0);
}

}  // namespace
}  // namespace vantrel
