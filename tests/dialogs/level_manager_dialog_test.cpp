#include "dialogs/level_manager_dialog.h"

#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <limits>

#include "canvas/operations/level_edits.h"
#include "tests/dialogs/dialog_fixture.h"

namespace vantrel {
namespace {

constexpr long kRemovalBox = wxOK | wxCANCEL | wxCANCEL_DEFAULT | wxICON_WARNING;
constexpr const char* kRemovalTitle = "Remove Level \xE2\x80\x94 Confirm Deletion";

wxListCtrl& ListOf(wxWindow& dialog) {
  return *FindControl<wxListCtrl>(dialog);
}

std::vector<std::string> Row(wxWindow& dialog, long row) {
  std::vector<std::string> cells;
  for (int column = 0; column < 4; ++column)
    cells.push_back(ListOf(dialog).GetItemText(row, column).utf8_string());
  return cells;
}

std::vector<std::string> Names(wxWindow& dialog) {
  std::vector<std::string> names;
  for (long row = 0; row < ListOf(dialog).GetItemCount(); ++row)
    names.push_back(Row(dialog, row)[0]);
  return names;
}

long SelectedRow(wxWindow& dialog) {
  return ListOf(dialog).GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
}

bool IsBold(wxWindow& dialog, long row) {
  const wxFont font = ListOf(dialog).GetItemFont(row);
  return font.IsOk() && font.GetWeight() == wxFONTWEIGHT_BOLD;
}

// As a click on the row does.
void Select(wxWindow& dialog, long row) {
  ListOf(dialog).SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
}

void Activate(wxWindow& dialog, long row) {
  wxListEvent event(wxEVT_LIST_ITEM_ACTIVATED, ListOf(dialog).GetId());
  event.SetEventObject(&ListOf(dialog));
  event.m_itemIndex = row;
  ListOf(dialog).ProcessWindowEvent(event);
}

std::string RemovalText(const std::string& name, int pieces, int scenery, int helices) {
  return "Remove level \"" + name +
         "\"?\n\nThis will PERMANENTLY DELETE everything on this level:\n    \xE2\x80\xA2 " +
         std::to_string(pieces) + " track piece(s)\n    \xE2\x80\xA2 " + std::to_string(scenery) +
         " scenery item(s)\n    \xE2\x80\xA2 " + std::to_string(helices) +
         " helix/helices\n\nThis cannot be undone from this dialog. Are you sure?";
}

class LevelManager : public DialogTest {
 protected:
  LevelManager() {
    for (const std::int32_t id : {1, 2, 3}) {
      Level level;
      level.id = id;
      level.name = "Deck " + std::to_string(id);
      level.height = 50.0 * (id - 1);
      plan_.levels.push_back(level);
    }
  }
  ~LevelManager() override { delete dialog_; }

  LevelManagerDialog& dialog() {
    if (dialog_ == nullptr) dialog_ = new LevelManagerDialog(parent_, plan_);
    return *dialog_;
  }
  // Answers the question for a new level's name.
  void add(const std::string& name, int answer = wxID_OK) {
    script_.dialog("Add Level", answer, [name](wxDialog& asked) {
      dynamic_cast<wxTextEntryDialog&>(asked).SetValue(wxString::FromUTF8(name));
    });
    Press(dialog(), "Add Level");
  }
  void remove(const std::string& question, int answer) {
    script_.box(kRemovalTitle, question, kRemovalBox, answer);
    Press(dialog(), "Remove Level");
  }

  ModalScript script_;
  LevelManagerDialog* dialog_ = nullptr;
};

TEST_F(LevelManager, HasItsTextsColumnsAndSize) {
  EXPECT_EQ(dialog().GetTitle(), "Manage Levels");
  EXPECT_EQ(dialog().GetSize(), wxSize(500, 360));
  EXPECT_TRUE(dialog().HasFlag(wxRESIZE_BORDER));
  EXPECT_EQ(FindControl<wxStaticText>(dialog())->GetLabel(),
            "Check to show a level.  Double-click a row to edit its properties\n(name, height, and "
            "track color).  Single-click sets the active level\nfor new pieces.");
  wxListCtrl& list = ListOf(dialog());
  ASSERT_EQ(list.GetColumnCount(), 4);
  const char* titles[] = {"Level Name", "Height", "Track Color", "ID"};
  const int widths[] = {200, 90, 90, 40};
  for (int i = 0; i < 4; ++i) {
    wxListItem column;
    column.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_FORMAT);
    list.GetColumn(i, column);
    EXPECT_EQ(column.GetText(), titles[i]);
    EXPECT_EQ(column.GetAlign(), i % 2 == 1 ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT);
    EXPECT_EQ(list.GetColumnWidth(i), widths[i]);
  }
  EXPECT_EQ(FindControl<wxButton>(dialog(), "Close")->GetId(), wxID_OK);
}

std::string UnreadableLevel(const std::string& name) {
  return "A layout with a level named \"" + name +
         "\" could not be opened again: the end of the name would be read as a setting.\n\nUse "
         "this name all the same?";
}

TEST_F(LevelManager, ANewLevelsNameThatCouldNotBeReadBackIsAskedForAgain) {
  const auto typed = [](const std::string& name) {
    return [name](wxDialog& asked) { dynamic_cast<wxTextEntryDialog&>(asked).SetValue(name); };
  };
  script_.dialog("Add Level", wxID_OK, typed("Deck height="));
  script_.box("Level Name", UnreadableLevel("Deck height="), kCautiousBox, wxID_NO);
  script_.dialog("Add Level", wxID_OK, typed("Keller="));
  script_.box("Level Name", UnreadableLevel("Keller="), kCautiousBox, wxID_YES);
  Press(dialog(), "Add Level");
  ASSERT_EQ(plan_.levels.size(), 4u);
  EXPECT_EQ(plan_.levels[3].name, "Keller=");
}

TEST_F(LevelManager, ALevelsNewNameThatCouldNotBeReadBackIsAskedForAgain) {
  Select(dialog(), 1);
  script_.dialog("Level Properties: Deck 2", wxID_OK,
                 [](wxDialog& asked) { FindControl<wxTextCtrl>(asked)->SetValue("Ring= "); });
  script_.box("Level Name", UnreadableLevel("Ring="), kCautiousBox, wxID_NO);
  script_.dialog("Level Properties: Deck 2", wxID_OK, [](wxDialog& asked) {
    EXPECT_EQ(FindControl<wxTextCtrl>(asked)->GetValue(), "Ring= ");
    FindControl<wxTextCtrl>(asked)->SetValue("Ring");
  });
  Activate(dialog(), 1);
  EXPECT_EQ(plan_.levels[1].name, "Ring");
}

TEST_F(LevelManager, StandsInTheMiddleOfItsParent) {
  parent_->SetSize(340, 210, 720, 560);
  const wxRect parent = parent_->GetRect();
  const wxRect rect = dialog().GetRect();
  EXPECT_NEAR(rect.x + rect.width / 2, parent.x + parent.width / 2, 1);
  EXPECT_NEAR(rect.y + rect.height / 2, parent.y + parent.height / 2, 1);
}

TEST_F(LevelManager, ListsTheLevelsInTheirOrder) {
  plan_.levels[1].trackcolor = true;
  plan_.levels[2].visible = false;
  plan_.activeLevel = 2;
  EXPECT_EQ(Row(dialog(), 0), (std::vector<std::string>{"Deck 1", "0 mm", "", "1"}));
  EXPECT_EQ(Row(dialog(), 1), (std::vector<std::string>{"Deck 2", "50 mm", "custom", "2"}));
  EXPECT_EQ(Row(dialog(), 2), (std::vector<std::string>{"Deck 3", "100 mm", "", "3"}));
  EXPECT_TRUE(ListOf(dialog()).IsItemChecked(0));
  EXPECT_TRUE(ListOf(dialog()).IsItemChecked(1));
  EXPECT_FALSE(ListOf(dialog()).IsItemChecked(2));
  EXPECT_FALSE(IsBold(dialog(), 0));
  EXPECT_TRUE(IsBold(dialog(), 1));
  EXPECT_FALSE(IsBold(dialog(), 2));
  EXPECT_EQ(SelectedRow(dialog()), -1);
  EXPECT_FALSE(plan_.levels[2].visible) << "filling the list is no check";
}

TEST_F(LevelManager, TheColumnOfIdsHasRoomForTheLongest) {
  for (const std::int32_t id :
       {1000, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
    plan_.levels[0].id = id;
    plan_.activeLevel = id;
    LevelManagerDialog manager(parent_, plan_);
    wxListCtrl& list = ListOf(manager);
    const wxFont bold = list.GetFont().Bold();
    int width = 0;
    int height = 0;
    list.GetTextExtent(std::to_string(id), &width, &height, nullptr, nullptr, &bold);
    EXPECT_GE(list.GetColumnWidth(3), width + 8) << id;
  }
}

TEST_F(LevelManager, AThousandLevelsWithNamesOfAnyLengthAreListedAndChosen) {
  plan_.levels.clear();
  for (std::int32_t id = 1; id <= 1000; ++id) {
    plan_.levels.emplace_back().id = id;
    plan_.levels.back().name = std::string(static_cast<std::size_t>(id) * 10, 'x');
  }
  EXPECT_EQ(ListOf(dialog()).GetItemCount(), 1000);
  EXPECT_EQ(dialog().GetSize(), wxSize(500, 360));
  Select(dialog(), 999);
  EXPECT_EQ(plan_.activeLevel, 1000);
  script_.dialog("Level Properties: " + std::string(10000, 'x'), wxID_OK);
  Activate(dialog(), 999);
  EXPECT_EQ(plan_.levels[999].name.size(), 10000u);
}

// 50 / 25.4 = 1.9685
TEST_F(LevelManager, ShowsAHeightInTheUnit) {
  const char* shown[] = {"50 mm", "5.0 cm", "1.97 in"};
  for (const std::int32_t units : {0, 1, 2}) {
    plan_.units = units;
    LevelManagerDialog manager(parent_, plan_);
    EXPECT_EQ(Row(manager, 1)[1], shown[units]);
  }
}

TEST_F(LevelManager, ACheckShowsAndHidesAtOnceAndNothingElse) {
  const std::vector<Level> before = plan_.levels;
  ListOf(dialog()).CheckItem(1, false);
  EXPECT_FALSE(plan_.levels[1].visible);
  EXPECT_EQ(plan_.activeLevel, 1);
  ListOf(dialog()).CheckItem(1, true);
  EXPECT_EQ(plan_.levels, before);
}

TEST_F(LevelManager, HidingTheActiveLevelLeavesItActive) {
  ListOf(dialog()).CheckItem(0, false);
  EXPECT_FALSE(plan_.levels[0].visible);
  EXPECT_EQ(plan_.activeLevel, 1);
  EXPECT_TRUE(IsBold(dialog(), 0));
}

TEST_F(LevelManager, ASelectedRowIsTheActiveLevelInBold) {
  Select(dialog(), 2);
  EXPECT_EQ(plan_.activeLevel, 3);
  EXPECT_FALSE(IsBold(dialog(), 0));
  EXPECT_TRUE(IsBold(dialog(), 2));
  EXPECT_TRUE(FindControl<wxButton>(dialog(), "Remove Level")->IsEnabled());
}

TEST_F(LevelManager, OnlyWithMoreThanOneLevelCanASelectedOneBeRemoved) {
  plan_.levels.resize(1);
  Select(dialog(), 0);
  EXPECT_FALSE(FindControl<wxButton>(dialog(), "Remove Level")->IsEnabled());
  add("Deck 2");
  EXPECT_TRUE(FindControl<wxButton>(dialog(), "Remove Level")->IsEnabled());
}

TEST_F(LevelManager, AddProposesANameWithTheNextId) {
  script_.dialog("Add Level", wxID_CANCEL, [](wxDialog& asked) {
    EXPECT_EQ(dynamic_cast<wxTextEntryDialog&>(asked).GetValue(), "Level 4");
    EXPECT_EQ(FindControl<wxStaticText>(asked)->GetLabel(), "Name for new level:");
  });
  Press(dialog(), "Add Level");
  EXPECT_EQ(plan_.levels.size(), 3u);
}

TEST_F(LevelManager, AddAppendsALevelAtOnce) {
  add(" Yard ");
  ASSERT_EQ(plan_.levels.size(), 4u);
  EXPECT_EQ(plan_.levels[3], (Level{4, " Yard ", true, 0.0, false, 220, 210, 160, {}}));
  EXPECT_EQ(Row(dialog(), 3), (std::vector<std::string>{" Yard ", "0 mm", "", "4"}));
  EXPECT_TRUE(ListOf(dialog()).IsItemChecked(3));
  EXPECT_EQ(plan_.activeLevel, 1);
}

TEST_F(LevelManager, AddKeepsTheSelectedRow) {
  Select(dialog(), 1);
  add("Yard");
  EXPECT_EQ(SelectedRow(dialog()), 1);
  EXPECT_EQ(plan_.activeLevel, 2);
}

TEST_F(LevelManager, ANewLevelBehindManyComesIntoView) {
  while (plan_.levels.size() < 100) addLevel(plan_, "Deck");
  add("Yard");
  // The list shows about eight rows.
  EXPECT_GT(ListOf(dialog()).GetTopItem(), 80);
}

TEST_F(LevelManager, AddWithoutANameAddsNone) {
  add("");
  add("Yard", wxID_CANCEL);
  EXPECT_EQ(plan_.levels.size(), 3u);
  EXPECT_EQ(ListOf(dialog()).GetItemCount(), 3);
}

TEST_F(LevelManager, TheLastLevelCantBeRemoved) {
  plan_.levels.resize(1);
  script_.box("Remove Level", "A layout must have at least one level.", wxOK | wxICON_INFORMATION,
              wxID_OK);
  Press(dialog(), "Remove Level");
  EXPECT_EQ(plan_.levels.size(), 1u);
}

TEST_F(LevelManager, WithNoRowSelectedRemoveDoesNothing) {
  Press(dialog(), "Remove Level");
  EXPECT_EQ(plan_.levels.size(), 3u);
}

TEST_F(LevelManager, RemoveTellsWhatGoesAndDeletesIt) {
  plan_.pieces.resize(3);
  for (std::size_t i = 0; i < 3; ++i) {
    plan_.pieces[i].id = static_cast<std::int32_t>(i) + 1;
    plan_.pieces[i].level = 2;
  }
  plan_.pieces[2].helix = 20;
  plan_.helices.emplace_back().id = 20;
  plan_.helices[0].bottomR1 = 3;
  plan_.scenery.emplace_back().level = 2;
  plan_.scenery.emplace_back().level = 1;
  Select(dialog(), 1);
  script_.box(kRemovalTitle, RemovalText("Deck 2", 2, 1, 1), kRemovalBox, wxID_CANCEL);
  Press(dialog(), "Remove Level");
  EXPECT_EQ(plan_.levels.size(), 3u);
  EXPECT_EQ(plan_.pieces.size(), 3u);
  remove(RemovalText("Deck 2", 2, 1, 1), wxID_OK);
  EXPECT_TRUE(plan_.pieces.empty());
  EXPECT_TRUE(plan_.helices.empty());
  EXPECT_EQ(plan_.scenery.size(), 1u);
  EXPECT_EQ(Names(dialog()), (std::vector<std::string>{"Deck 1", "Deck 3"}));
  EXPECT_EQ(plan_.activeLevel, 1);
  EXPECT_TRUE(IsBold(dialog(), 0));
  EXPECT_EQ(SelectedRow(dialog()), -1);
}

TEST_F(LevelManager, TheQuestionHasItsOwnTwoAnswers) {
  Select(dialog(), 1);
  script_.dialog(kRemovalTitle, wxID_CANCEL, [](wxDialog& asked) {
    auto& box = dynamic_cast<wxMessageDialog&>(asked);
    EXPECT_EQ(box.GetOKLabel(), "Delete Level & Contents");
    EXPECT_EQ(box.GetCancelLabel(), "Cancel");
  });
  Press(dialog(), "Remove Level");
}

TEST_F(LevelManager, TheQuestionShortensANameThatWouldPushItsButtonsOffTheScreen) {
  std::string name;
  while (name.size() < 200) name += "deck ";
  plan_.levels[1].name = name;
  plan_.levels[2].name = name + "y";
  Select(dialog(), 1);
  remove(RemovalText(name, 0, 0, 0), wxID_CANCEL);
  Select(dialog(), 2);
  remove(RemovalText(name + "\xE2\x80\xA6", 0, 0, 0), wxID_CANCEL);
  EXPECT_EQ(plan_.levels.size(), 3u);
}

TEST_F(LevelManager, TheQuestionBreaksAWordThatIsTooLongForALine) {
  plan_.levels[1].name = std::string(100, 'x');
  Select(dialog(), 1);
  // The quotation mark is the first of the sixty letters of a line.
  remove(RemovalText(std::string(59, 'x') + "\u200b" + std::string(41, 'x'), 0, 0, 0), wxID_CANCEL);
}

TEST_F(LevelManager, AfterARemovalTheNextLevelFollowsTheHighestId) {
  Select(dialog(), 1);
  remove(RemovalText("Deck 2", 0, 0, 0), wxID_OK);
  add("Level 4");
  EXPECT_EQ(Row(dialog(), 2)[3], "4");
}

TEST_F(LevelManager, PropertiesNeedASelectedRow) {
  script_.box("Level Properties", "Select a level first.", wxOK | wxICON_INFORMATION, wxID_OK);
  Activate(dialog(), 0);
}

TEST_F(LevelManager, ADoubleClickOpensThePropertiesAndOkStoresThem) {
  Piece piece;
  piece.id = 1;
  piece.level = 2;
  plan_.pieces = {piece};
  Select(dialog(), 1);
  script_.dialog("Level Properties: Deck 2", wxID_OK, [](wxDialog& asked) {
    EXPECT_EQ(FindControl<wxTextCtrl>(asked)->GetValue(), "Deck 2");
    EXPECT_EQ(FindControl<wxSpinCtrlDouble>(asked)->GetValue(), 50.0);
    FindControl<wxTextCtrl>(asked)->SetValue("  Station ");
    FindControl<wxSpinCtrlDouble>(asked)->SetValue(75.0);
    FindControl<wxCheckBox>(asked)->SetValue(true);
    FindControl<wxColourPickerCtrl>(asked)->SetColour(wxColour(1, 2, 3));
  });
  Activate(dialog(), 1);
  EXPECT_EQ(plan_.levels[1], (Level{2, "Station", true, 75.0, true, 1, 2, 3, {}}));
  EXPECT_EQ(plan_.pieces[0].z, 75.0);
  EXPECT_EQ(Row(dialog(), 1), (std::vector<std::string>{"Station", "75 mm", "custom", "2"}));
  EXPECT_EQ(SelectedRow(dialog()), 1);
}

TEST_F(LevelManager, CancelledPropertiesChangeNothing) {
  const std::vector<Level> before = plan_.levels;
  Select(dialog(), 1);
  script_.dialog("Level Properties: Deck 2", wxID_CANCEL, [](wxDialog& asked) {
    FindControl<wxTextCtrl>(asked)->SetValue("Station");
    FindControl<wxSpinCtrlDouble>(asked)->SetValue(75.0);
  });
  Activate(dialog(), 1);
  EXPECT_EQ(plan_.levels, before);
}

TEST_F(LevelManager, EscapeAndCloseBothCloseIt) {
  script_.shown("Manage Levels", [](wxDialog& shown) { Press(shown, "Close"); });
  EXPECT_EQ(dialog().ShowModal(), wxID_OK);
  EXPECT_EQ(dialog().GetEscapeId(), wxID_ANY);
}

TEST_F(LevelManager, NothingIsCutOff) {
  script_.shown("Manage Levels", [](wxDialog& shown) {
    WaitUntilNothingIsCutOff(shown);
    EXPECT_EQ(CutOffControls(shown), std::vector<std::string>{});
    Press(shown, "Close");
  });
  dialog().ShowModal();
}

}  // namespace
}  // namespace vantrel
