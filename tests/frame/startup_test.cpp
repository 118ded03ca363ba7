#include "frame/startup.h"

#include <gtest/gtest.h>

#include <regex>
#include <stdexcept>

#include "app/services/app_log.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

// The log's lines without their time stamps; a line that doesn't begin with one stays as it is.
std::string LogTexts(const std::string& path) {
  return std::regex_replace(ReadFileText(path), std::regex(R"(\d\d:\d\d:\d\d\.\d{3} )"), "");
}

class StartUpTest : public FrameTest {
 protected:
  ~StartUpTest() override { CloseAppLog(); }

  void start() { frame_ = StartUp(folders_); }
  // As a new process, with nothing but the files left.
  void startAgain() {
    delete frame_;
    Prefs() = {};
    start();
  }
  std::string log() const { return LogTexts(folders_.data + "/vantrel.log"); }
};

TEST_F(StartUpTest, LogsItsStepsInOrder) {
  start();
  EXPECT_EQ(log(),
            "=== Vantrel starting ===\n"
            "Built-in catalog loaded - 167 pieces\n"
            "Creating MainFrame...\n"
            "MainFrame created OK\n"
            "Show OK\n");
}

TEST_F(StartUpTest, ShowsTheFrameWithADefaultLevel) {
  start();
  ASSERT_NE(frame_, nullptr);
  EXPECT_TRUE(frame_->IsShown());
  ASSERT_EQ(plan().levels.size(), 1u);
  EXPECT_EQ(plan().levels[0].name, "Level 1");
  EXPECT_FALSE(frame_->dirty());
}

TEST_F(StartUpTest, WithoutPreferencesShowsTheSplashAndThenAsksForTheExperience) {
  std::filesystem::remove(folders_.prefsPath);
  bool askedEarly = true;
  ModalScript script;
  script.dialog("Vantrel v1.5 by Kelmor", wxID_OK, [&](wxDialog&) {
    // As the splash's own event loop would.
    wxTheApp->ProcessPendingEvents();
    askedEarly = Prefs().asked;
  });
  start();
  EXPECT_TRUE(script.finished());
  EXPECT_FALSE(askedEarly) << "the question came while the splash was up";
  script.dialog("Choose Your Experience", 5103, [&](wxDialog& dialog) {
    EXPECT_EQ(dialog.GetParent(), frame_);
    EXPECT_TRUE(frame_->IsShown());
  });
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
  wxTheApp->ProcessPendingEvents();  // and only once
  EXPECT_EQ(ReadFileText(folders_.prefsPath), "playful=1\nasked=1\n");
}

TEST_F(StartUpTest, TheFirstQuestionClosedByItsTitleBarMakesLaterStartsBareAndSilent) {
  std::filesystem::remove(folders_.prefsPath);
  ModalScript script;
  script.dialog("Vantrel v1.5 by Kelmor", wxID_OK);
  start();
  script.shown("Choose Your Experience", [](wxDialog& dialog) { dialog.Close(); });
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
  EXPECT_EQ(ReadFileText(folders_.prefsPath), "playful=0\nasked=1\n");
  startAgain();
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(frame_->IsShown());
  EXPECT_FALSE(Prefs().playful);
}

TEST_F(StartUpTest, AfterKeepItPlayfulLaterStartsGreetAndAskNothing) {
  std::filesystem::remove(folders_.prefsPath);
  ModalScript script;
  script.dialog("Vantrel v1.5 by Kelmor", wxID_OK);
  start();
  script.dialog("Choose Your Experience", 5103);
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
  script.dialog("Vantrel v1.5 by Kelmor", wxID_OK);
  startAgain();
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
  EXPECT_TRUE(Prefs().playful);
}

TEST_F(StartUpTest, WithPlayful0ComesUpBareAndWithAsked1AsksNothing) {
  WriteFileText(folders_.prefsPath, "playful=0\nasked=1\n");
  ModalScript none;
  start();
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(none.boxTexts().empty());
  EXPECT_TRUE(frame_->IsShown());
}

TEST_F(StartUpTest, WithPlayful0AndNoAnswerYetSkipsOnlyTheSplash) {
  WriteFileText(folders_.prefsPath, "playful=0\nasked=0\n");
  ModalScript script;
  start();
  script.dialog("Choose Your Experience", 5104);
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
}

TEST_F(StartUpTest, WithPlayful1AndAsked1ShowsOnlyTheSplash) {
  WriteFileText(folders_.prefsPath, "playful=1\nasked=1\n");
  ModalScript script;
  script.dialog("Vantrel v1.5 by Kelmor", wxID_OK);
  start();
  wxTheApp->ProcessPendingEvents();
  EXPECT_TRUE(script.finished());
}

TEST_F(StartUpTest, InAReadOnlyProgramFolderTheAnswerLastsForTheRunAndTheQuestionReturns) {
  makeStoreUnwritable();
  for (int run = 0; run < 2; ++run) {
    Prefs() = {};  // a new process
    ModalScript script;
    script.dialog("Vantrel v1.5 by Kelmor", wxID_OK);
    start();
    script.dialog("Choose Your Experience", 5104);
    wxTheApp->ProcessPendingEvents();
    EXPECT_TRUE(script.finished()) << "run " << run;
    EXPECT_TRUE(Prefs().asked);
    EXPECT_FALSE(Prefs().playful);
    delete frame_;
    frame_ = nullptr;
  }
}

TEST_F(StartUpTest, ASecondStartLeavesOneRunInBothLogs) {
  start();
  const std::string firstTrace = ReadFileText(folders_.data + "/mainframe.log");
  const std::string firstLog = log();
  AppLog("OnExit");
  CloseAppLog();
  delete frame_;
  frame_ = nullptr;
  start();
  EXPECT_EQ(ReadFileText(folders_.data + "/mainframe.log"), firstTrace);
  EXPECT_EQ(log(), firstLog);
}

TEST_F(StartUpTest, LogsTheTextOfAnExceptionOutOfTheFrameAndEnds) {
  ModalScript none;
  EXPECT_EQ(StartUp(folders_,
                    [](const ProgramFolders&) -> MainFrame* {
                      throw std::runtime_error("no room for a window");
                    }),
            nullptr);
  EXPECT_EQ(log(),
            "=== Vantrel starting ===\n"
            "Built-in catalog loaded - 167 pieces\n"
            "Creating MainFrame...\n"
            "EXCEPTION: no room for a window\n");
}

TEST_F(StartUpTest, LogsAnUnknownExceptionOutOfTheFrameAndEnds) {
  ModalScript none;
  EXPECT_EQ(StartUp(folders_, [](const ProgramFolders&) -> MainFrame* { throw 7; }), nullptr);
  EXPECT_EQ(log(),
            "=== Vantrel starting ===\n"
            "Built-in catalog loaded - 167 pieces\n"
            "Creating MainFrame...\n"
            "UNKNOWN EXCEPTION in MainFrame\n");
}

}  // namespace
}  // namespace vantrel
