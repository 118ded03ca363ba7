#include "frame/experience_dialog.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/stattext.h>

#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

class Experience : public FrameTest {
 protected:
  void ask() { AskExperience(&frame(), folders_.prefsPath); }
  std::string prefsFile() const { return ReadFileText(folders_.prefsPath); }

  static void click(wxDialog& dialog, const wxString& label) {
    auto* button = FindControl<wxButton>(dialog, label);
    ASSERT_NE(button, nullptr);
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
  }
};

TEST_F(Experience, ClosingByTheTitleBarIsAnAnswerForBusiness) {
  frame();
  WriteFileText(folders_.prefsPath, "playful=1\nasked=0\n");
  Prefs() = {true, false};
  ModalScript script;
  script.shown("Choose Your Experience", [](wxDialog& dialog) { dialog.Close(); });
  ask();
  EXPECT_EQ(prefsFile(), "playful=0\nasked=1\n");
  EXPECT_FALSE(Prefs().playful);
  EXPECT_TRUE(Prefs().asked);
}

TEST_F(Experience, EscapeIsTheSameAnswerAsTheTitleBar) {
  showFrame();
  WriteFileText(folders_.prefsPath, "playful=1\nasked=0\n");
  Prefs() = {true, false};
  ModalScript script;
  bool closed = false;
  script.shown("Choose Your Experience", [&closed](wxDialog& dialog) {
    wxKeyEvent escape(wxEVT_CHAR_HOOK);
    escape.m_keyCode = WXK_ESCAPE;
    escape.SetEventObject(&dialog);
    dialog.ProcessWindowEvent(escape);
    closed = !dialog.IsModal() || !dialog.IsShown();
    if (!closed) dialog.EndModal(kKeepItPlayful);
  });
  ask();
  EXPECT_TRUE(closed);
  EXPECT_EQ(prefsFile(), "playful=0\nasked=1\n");
  EXPECT_FALSE(Prefs().playful);
  EXPECT_TRUE(Prefs().asked);
}

TEST_F(Experience, KeepItPlayfulIsRemembered) {
  Prefs() = {false, false};
  ModalScript script;
  script.shown("Choose Your Experience",
               [](wxDialog& dialog) { click(dialog, "Keep it Playful"); });
  ask();
  EXPECT_EQ(prefsFile(), "playful=1\nasked=1\n");
  EXPECT_TRUE(Prefs().playful);
}

TEST_F(Experience, DownToBusinessIsRemembered) {
  Prefs() = {true, false};
  ModalScript script;
  script.shown("Choose Your Experience",
               [](wxDialog& dialog) { click(dialog, "Down to Business"); });
  ask();
  EXPECT_EQ(prefsFile(), "playful=0\nasked=1\n");
  EXPECT_FALSE(Prefs().playful);
}

TEST_F(Experience, OffersTwoLargeButtonsUnderTheQuestion) {
  ExperienceDialog dialog(&frame());
  const int normal = dialog.GetFont().GetPointSize();
  auto* question = FindControl<wxStaticText>(dialog, "How would you like Vantrel to greet you?");
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(question->GetFont().GetPointSize(), normal + 1);
  EXPECT_EQ(question->GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
  const std::vector<wxButton*> buttons = FindControls<wxButton>(dialog);
  ASSERT_EQ(buttons.size(), 2u);
  EXPECT_EQ(buttons[0]->GetLabel(), "Keep it Playful");
  EXPECT_EQ(buttons[0]->GetId(), 5103);
  EXPECT_EQ(buttons[1]->GetLabel(), "Down to Business");
  EXPECT_EQ(buttons[1]->GetId(), 5104);
  for (wxButton* button : buttons) {
    EXPECT_GE(button->GetSize().x, 160);
    EXPECT_GE(button->GetSize().y, 38);
    EXPECT_EQ(button->GetFont().GetPointSize(), normal + 1);
    EXPECT_GE(button->GetSize().x, button->GetBestSize().x) << "cut off";
  }
}

// On the screen the larger letters are there: before that the toolkit measures the usual ones.
TEST_F(Experience, StandsInTheMiddleOfTheMainWindowAndCutsNothingOff) {
  showFrame();
  ModalScript script;
  script.shown("Choose Your Experience", [this](wxDialog& dialog) {
    // The window manager puts it there in its own time.
    WaitUntil([&] { return dialog.GetPosition().x > frame().GetPosition().x; });
    const wxRect outer = frame().GetRect();
    const wxRect inner = dialog.GetRect();
    EXPECT_NEAR(inner.x + inner.width / 2, outer.x + outer.width / 2, 1);
    // The height of the title bar is a guess until the window manager has put it there.
    EXPECT_NEAR(inner.y + inner.height / 2, outer.y + outer.height / 2, 15);
    for (const wxWindow* child : dialog.GetChildren()) {
      EXPECT_GE(child->GetSize().x, child->GetBestSize().x) << child->GetLabel();
      EXPECT_GE(child->GetSize().y, child->GetBestSize().y) << child->GetLabel();
    }
    dialog.Close();
  });
  ExperienceDialog(&frame()).ShowModal();
  EXPECT_TRUE(script.finished());
}

}  // namespace
}  // namespace vantrel
