#include "io/file_problem.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "io/block_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::ReadBytes;
using testing::TempFolder;
using testing::WriteBytes;

std::string Why(std::errc error) {
  return WhyNotWritten(std::make_error_code(error));
}

TEST(FileProblem, SaysInTheUsersWordsWhyAFileWasNotWritten) {
  EXPECT_EQ(Why(std::errc::no_space_on_device), "The disk is full.");
  EXPECT_EQ(Why(std::errc::read_only_file_system), "The disk can only be read.");
  EXPECT_EQ(Why(std::errc::permission_denied), "You may not write there.");
  EXPECT_EQ(Why(std::errc::no_such_file_or_directory), "There is no such folder.");
  EXPECT_EQ(Why(std::errc::not_a_directory), "There is no such folder.");
  EXPECT_EQ(Why(std::errc::is_a_directory), "A folder has that name.");
  EXPECT_EQ(Why(std::errc::filename_too_long), "The name is too long.");
}

TEST(FileProblem, RepeatsWhatTheSystemSaysOfAnyOtherProblem) {
  EXPECT_EQ(Why(std::errc::io_error), std::make_error_code(std::errc::io_error).message() + ".");
  EXPECT_EQ(WhyNotWritten({}), "");
}

TEST(FileProblem, ASaveIntoAFolderThatIsNotThereSaysSo) {
  const TempFolder folder;
  const std::string path = folder.path("no/plan.vtl");
  const FileProblem problem = WriteLayoutFile({}, path, "Plan");
  EXPECT_EQ(problem.what, "Cannot open file: " + path);
  EXPECT_EQ(problem.why, "There is no such folder.");
}

TEST(FileProblem, ASaveUnderANameTooLongSaysSo) {
  const TempFolder folder;
  const FileProblem problem = WriteLayoutFile({}, folder.path(std::string(300, 'n')), "Plan");
  EXPECT_EQ(problem.why, "The name is too long.");
}

TEST(FileProblem, ASaveOntoAFolderSaysSo) {
  const TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  std::filesystem::create_directory(path);
  const FileProblem problem = WriteLayoutFile({}, path, "Plan");
  EXPECT_EQ(problem.what, "Cannot open file: " + path);
  EXPECT_EQ(problem.why, "A folder has that name.");
}

TEST(FileProblem, ASaveOntoAPipeIsRefusedAndNotWaitedFor) {
  const TempFolder folder;
  const std::string pipe = folder.path("pipe.vtl");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const FileProblem problem = WriteLayoutFile({}, pipe, "Plan");
  EXPECT_EQ(problem.what, "Cannot write file: " + pipe);
  EXPECT_EQ(problem.why, "What has that name is no file, but a pipe or a device.");
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(FileProblem, ASaveOntoADeviceIsRefusedAlsoThroughALink) {
  const TempFolder folder;
  const std::string link = folder.path("null.vtl");
  std::filesystem::create_symlink("/dev/null", link);
  const FileProblem problem = WriteLayoutFile({}, link, "Plan");
  EXPECT_EQ(problem.what, "Cannot write file: " + link);
  EXPECT_EQ(problem.why, "What has that name is no file, but a pipe or a device.");
}

TEST(FileProblem, ABlockIsRefusedInTheSameWay) {
  const TempFolder folder;
  Layout layout;
  EXPECT_EQ(WriteBlockFile(layout, folder.path("b.xml"), "b").what,
            "No pieces or scenery selected");
  layout.pieces = {{.id = 1, .sel = true}};
  EXPECT_TRUE(WriteBlockFile(layout, folder.path("b.xml"), "b").none());
  const FileProblem problem = WriteBlockFile(layout, "/dev/null", "b");
  EXPECT_EQ(problem.what, "Cannot write file: /dev/null");
  EXPECT_EQ(problem.why, "What has that name is no file, but a pipe or a device.");
}

TEST(FileProblem, AWriteThatBreaksOffSaysWhatTheDiskSaid) {
  Layout layout;
  layout.labels.assign(5000, {.id = 3, .text = "a label like many others"});
  const TempFolder folder;
  const std::string path = folder.path("plan.vtl");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  rlimit narrow = before;
  narrow.rlim_cur = 12'345;
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &narrow), 0);
  const FileProblem problem = WriteLayoutFile(layout, path, "Plan");
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(problem.what, "Cannot write file: " + path);
  EXPECT_EQ(problem.why, "The disk doesn't take so large a file.");
}

TEST(FileProblem, ASaveThroughALinkToAFileGoesToTheFile) {
  const TempFolder folder;
  WriteBytes(folder.path("real.vtl"), "old");
  std::filesystem::create_symlink(folder.path("real.vtl"), folder.path("link.vtl"));
  EXPECT_TRUE(WriteLayoutFile({}, folder.path("link.vtl"), "Plan").none());
  EXPECT_TRUE(ReadBytes(folder.path("real.vtl")).starts_with("<?xml"));
}

}  // namespace
}  // namespace vantrel
