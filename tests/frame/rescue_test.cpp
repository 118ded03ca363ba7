#include "frame/rescue.h"

#include <gtest/gtest.h>

#include <regex>
#include <stdexcept>

#include "app/services/app_log.h"
#include "io/layout_file.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

constexpr const char* kIntro = "Vantrel has met a problem and must close.\n\n";

class Rescue : public FrameTest {
 protected:
  ~Rescue() override { CloseAppLog(); }

  // Runs a command as the toolkit does, and reports the exception that leaves its handler.
  void runAndReport(int id) {
    try {
      command(id);
    } catch (...) {
      ReportFatalProblem(std::current_exception(), frame_);
      return;
    }
    ADD_FAILURE() << "the command ended without an exception";
  }

  void putBroken(const std::string& path) {
    WriteFileText(path,
                  "<layout name=\"Broken\" version=\"1\" units=\"0\">\n"
                  "  <pieces>\n"
                  "    <piece id=\"one\" cat=\"24188\" x=\"0\" y=\"0\" heading=\"0\">\n");
  }

  ModalScript::Action clickFirst() {
    return [](wxDialog& dialog) { ClickRow(dialog, 0); };
  }
};

TEST_F(Rescue, ABrokenImportEndsWithTheFileTheLineTheProblemAndTheRescuedWork) {
  OpenAppLog(folders_.data);
  const std::string source = folders_.downloads + "/Broken.vtl";
  putBroken(source);
  addPiece("24172");
  frame().markDirty();
  const std::string line = source + ", line 3: invalid stoi argument";
  ModalScript script;
  script.dialog("Import Layout", wxID_OK, clickFirst());
  script.box(
      "Vantrel",
      kIntro + line + "\n\nYour unsaved work was saved as:\n" + inStore("My Layout (rescued).vtl"),
      kErrorBox, wxID_OK);
  runAndReport(1900);
  EXPECT_NE(ReadFileText(inStore("My Layout (rescued).vtl")).find("cat=\"24172\""),
            std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(inStore("Broken.vtl")));
  EXPECT_TRUE(std::regex_match(ReadFileText(folders_.data + "/vantrel.log"),
                               std::regex(R"(\d\d:\d\d:\d\d\.\d{3} .*Broken\.vtl, line 3: )"
                                          "invalid stoi argument\n")));
}

TEST_F(Rescue, WorkThatTheUserAgreedToDiscardIsNotWritten) {
  putBroken(inStore("Broken.vtl"));
  addPiece();
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_NO);
  script.dialog("Open Layout", wxID_OK, clickFirst());
  script.box("Vantrel", kIntro + inStore("Broken.vtl") + ", line 3: invalid stoi argument",
             kErrorBox, wxID_OK);
  runAndReport(5000);
  EXPECT_FALSE(std::filesystem::exists(inStore("My Layout (rescued).vtl")));
}

TEST_F(Rescue, AnAgreementEndsWithItsFlow) {
  putBroken(folders_.downloads + "/Broken.vtl");
  WriteFileText(inStore("Fine.vtl"), LayoutText("Fine"));
  addPiece();
  frame().markDirty();
  ModalScript script;
  script.box("Unsaved Changes", "You have unsaved changes. Save before continuing?", kUnsavedBox,
             wxID_NO);
  script.dialog("Open Layout", wxID_CANCEL);
  command(5000);
  EXPECT_TRUE(frame().holdsUnsavedWork());
  script.dialog("Import Layout", wxID_OK, clickFirst());
  script.dialog("Vantrel", wxID_OK);
  runAndReport(1900);
  EXPECT_TRUE(std::filesystem::exists(inStore("My Layout (rescued).vtl")));
}

TEST_F(Rescue, AReplacedLayoutWithoutChangesIsNotWritten) {
  putBroken(inStore("Broken.vtl"));
  ModalScript script;
  script.dialog("Open Layout", wxID_OK, clickFirst());
  script.box("Vantrel", kIntro + inStore("Broken.vtl") + ", line 3: invalid stoi argument",
             kErrorBox, wxID_OK);
  runAndReport(5000);
  EXPECT_FALSE(std::filesystem::exists(inStore("Broken (rescued).vtl")));
  EXPECT_FALSE(std::filesystem::exists(inStore("My Layout (rescued).vtl")));
}

TEST_F(Rescue, TakesTheNameOfTheLayout) {
  WriteFileText(inStore("File.vtl"), LayoutText("Harbour"));
  frame().LoadIntoFrame(inStore("File.vtl"));
  frame().markDirty();
  ModalScript script;
  script.box("Vantrel",
             std::string(kIntro) + "out of paper\n\nYour unsaved work was saved as:\n" +
                 inStore("Harbour (rescued).vtl"),
             kErrorBox, wxID_OK);
  ReportFatalProblem(std::make_exception_ptr(std::runtime_error("out of paper")), &frame());
  EXPECT_NE(ReadFileText(inStore("Harbour (rescued).vtl")).find("name=\"Harbour (rescued)\""),
            std::string::npos);
}

TEST_F(Rescue, NeverOverwritesAnOlderRescue) {
  const std::string first = RescueLayout(plan(), "Plan", folders_);
  addPiece();
  const std::string second = RescueLayout(plan(), "Plan", folders_);
  const std::string third = RescueLayout(plan(), "Plan", folders_);
  EXPECT_EQ(first, inStore("Plan (rescued).vtl"));
  EXPECT_EQ(second, inStore("Plan (rescued 2).vtl"));
  EXPECT_EQ(third, inStore("Plan (rescued 3).vtl"));
  EXPECT_EQ(ReadFileText(first).find("24188"), std::string::npos);
  EXPECT_NE(ReadFileText(second).find("24188"), std::string::npos);
}

TEST_F(Rescue, GoesToTheDataFolderWhenTheStoreCannotBeWritten) {
  makeStoreUnwritable();
  EXPECT_EQ(RescueLayout(Layout{}, "Plan", folders_), folders_.data + "/Plan (rescued).vtl");
  EXPECT_TRUE(std::filesystem::exists(folders_.data + "/Plan (rescued).vtl"));
}

TEST_F(Rescue, MakesANameThatTheFileSystemTakes) {
  EXPECT_EQ(RescueLayout(Layout{}, "north/south", folders_), inStore("north-south (rescued).vtl"));
  EXPECT_EQ(RescueLayout(Layout{}, "", folders_), inStore("My Layout (rescued).vtl"));
  // 150 times two bytes, cut at 200 bytes, in front of a letter.
  std::string umlauts;
  std::string hundred;
  for (int i = 0; i < 150; ++i) umlauts += "ä";
  for (int i = 0; i < 100; ++i) hundred += "ä";
  EXPECT_EQ(RescueLayout(Layout{}, umlauts, folders_), inStore(hundred + " (rescued).vtl"));
  // One byte more in front: the hundredth letter would be cut in half, so it goes.
  EXPECT_EQ(RescueLayout(Layout{}, "x" + umlauts, folders_),
            inStore("x" + hundred.substr(2) + " (rescued).vtl"));
}

TEST_F(Rescue, SaysWhenNothingCouldBeSaved) {
  folders_.store = folders_.data = "/proc";  // nobody creates files there
  frame().markDirty();
  ModalScript script;
  script.box("Vantrel",
             std::string(kIntro) + "out of luck\n\nYour unsaved work could not be saved.",
             kErrorBox, wxID_OK);
  ReportFatalProblem(std::make_exception_ptr(std::runtime_error("out of luck")), &frame());
}

TEST_F(Rescue, ReportsWithoutAFrame) {
  ModalScript script;
  script.box("Vantrel", std::string(kIntro) + "too early", kErrorBox, wxID_OK);
  ReportFatalProblem(std::make_exception_ptr(std::runtime_error("too early")), nullptr);
}

TEST_F(Rescue, TellsAnyProblemInOneLine) {
  EXPECT_EQ(ProblemLine(std::make_exception_ptr(
                MalformedFile("stod argument out of range", "/plans/a.vtl", 17))),
            "/plans/a.vtl, line 17: stod argument out of range");
  EXPECT_EQ(ProblemLine(std::make_exception_ptr(std::logic_error("odd"))), "odd");
  EXPECT_EQ(ProblemLine(std::make_exception_ptr(42)), "Unknown problem");
  EXPECT_EQ(ProblemLine(nullptr), "Unknown problem");
}

}  // namespace
}  // namespace vantrel
