#include <gtest/gtest.h>

#include <regex>

#include "app/services/app_log.h"
#include "app/services/frame_log.h"
#include "app/services/program_folders.h"
#include "tests/support/temp_folder.h"

namespace vantrel {
namespace {

TEST(AppLog, StampsEachLineWithTheTimeAndEndsItWithALineFeed) {
  TempFolder temp;
  OpenAppLog(temp.path());
  AppLog("Zwölf Züge");
  AppLog("100%");
  // Read while the log is open: each line is flushed at once.
  EXPECT_TRUE(std::regex_match(
      ReadFileText(temp.at("vantrel.log")),
      std::regex(R"(\d\d:\d\d:\d\d\.\d{3} Zwölf Züge\n\d\d:\d\d:\d\d\.\d{3} 100%\n)")));
  CloseAppLog();
}

TEST(AppLog, HoldsOneRunOnly) {
  TempFolder temp;
  OpenAppLog(temp.path());
  AppLog("first");
  CloseAppLog();
  OpenAppLog(temp.path());
  AppLog("second");
  CloseAppLog();
  const std::string text = ReadFileText(temp.at("vantrel.log"));
  EXPECT_EQ(text.find("first"), std::string::npos);
  EXPECT_NE(text.find("second"), std::string::npos);
}

TEST(AppLog, CreatesItsFolderWithAllParents) {
  TempFolder temp;
  OpenAppLog(temp.at("a/b/c"));
  CloseAppLog();
  EXPECT_TRUE(std::filesystem::exists(temp.at("a/b/c/vantrel.log")));
}

TEST(AppLog, WritesNothingWhenItIsClosedOrCouldNotBeOpened) {
  TempFolder temp;
  CloseAppLog();
  AppLog("nobody listens");
  std::filesystem::create_directory(temp.at("vantrel.log"));  // in the way of the file
  OpenAppLog(temp.path());
  AppLog("still nobody");
  CloseAppLog();
  EXPECT_TRUE(std::filesystem::is_empty(temp.at("vantrel.log")));
}

TEST(FrameLog, EndsLinesLikeATraceAndStampsNothing) {
  TempFolder temp;
  StartFrameLog(temp.path());
  FrameLog("A");
  FrameLog("B: ü");
  EXPECT_EQ(ReadFileText(temp.at("mainframe.log")), "A\r\nB: ü\r\n");
}

TEST(FrameLog, DeletesTheOldTraceWithTheFirstLineOfARun) {
  TempFolder temp;
  WriteFileText(temp.at("mainframe.log"), "an older run\r\n");
  StartFrameLog(temp.path());
  EXPECT_EQ(ReadFileText(temp.at("mainframe.log")), "an older run\r\n");
  FrameLog("new");
  EXPECT_EQ(ReadFileText(temp.at("mainframe.log")), "new\r\n");
}

TEST(FrameLog, ClosesItsFileAfterEachLine) {
  TempFolder temp;
  StartFrameLog(temp.path());
  FrameLog("one");
  std::filesystem::rename(temp.at("mainframe.log"), temp.at("taken away"));
  FrameLog("two");
  EXPECT_EQ(ReadFileText(temp.at("taken away")), "one\r\n");
  EXPECT_EQ(ReadFileText(temp.at("mainframe.log")), "two\r\n");
}

TEST(LogFolder, FallsBackToTheTemporaryFolder) {
  TempFolder temp;
  WriteFileText(temp.at("file"), "");
  EXPECT_EQ(LogFolder(temp.at("made")), temp.at("made"));
  const std::string fallback = LogFolder(temp.at("file/never"));
  EXPECT_TRUE(std::filesystem::equivalent(fallback, std::filesystem::temp_directory_path()))
      << fallback;
}

TEST(ProgramFolders, KeepStoreAndPreferencesBesideTheProgram) {
  const ProgramFolders folders = DefaultFolders();
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
  EXPECT_EQ(folders.store, program.parent_path().string());
  EXPECT_EQ(folders.prefsPath, (program.parent_path() / "prefs.cfg").string());
}

TEST(ProgramFolders, ExchangeFilesThroughDownloadsOrHome) {
  TempFolder temp;
  ProgramFolders folders;
  folders.downloads = temp.at("Downloads");
  folders.home = temp.path();
  EXPECT_EQ(ExchangeFolder(folders), temp.path());
  std::filesystem::create_directory(folders.downloads);
  EXPECT_EQ(ExchangeFolder(folders), temp.at("Downloads"));
}

}  // namespace
}  // namespace vantrel
