#include "frame/store_folder.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace vantrel {
namespace {

using Names = std::vector<std::string>;

class StoreFolder : public testing::Test {
 protected:
  void put(const std::string& name) { WriteFileText(temp_.at(name), name); }

  TempFolder temp_;
};

TEST_F(StoreFolder, ListsLayoutFilesInAscendingOrderTheOlderKindLast) {
  for (const char* name : {"b.vtl", "Z.vtl", "a.xml", "Ä.vtl", "A.xml", "prefs.cfg", "c.vtlx"})
    put(name);
  EXPECT_EQ(LayoutFileNames(temp_.path()), (Names{"Z.vtl", "b.vtl", "Ä.vtl", "A.xml", "a.xml"}));
}

TEST_F(StoreFolder, ListsNeitherFoldersNorWhatLiesInThem) {
  std::filesystem::create_directory(temp_.at("library"));
  std::filesystem::create_directory(temp_.at("folder.vtl"));
  put("library/block.vtl");
  put(".hidden.vtl");
  EXPECT_EQ(LayoutFileNames(temp_.path()), Names{});
}

TEST_F(StoreFolder, AFolderThatDoesNotExistHoldsNothing) {
  EXPECT_EQ(LayoutFileNames(temp_.at("nowhere")), Names{});
  EXPECT_EQ(LayoutFileNames(""), Names{});
}

TEST_F(StoreFolder, GivesFullPathsWithThePlatformsSeparator) {
  put("a.vtl");
  EXPECT_EQ(LayoutFiles(temp_.path()), (Names{temp_.path() + "/a.vtl"}));
  EXPECT_EQ(LayoutPath("/store", "My Plan v1.5"), "/store/My Plan v1.5.vtl");
}

TEST_F(StoreFolder, ABaseNameLosesFolderAndLastExtensionOnly) {
  EXPECT_EQ(BaseName("/store/My Plan v1.5.vtl"), "My Plan v1.5");
  EXPECT_EQ(BaseName(""), "");
}

TEST_F(StoreFolder, TwoFilesOfOneNameGiveTwoRowsAndBothMeanTheFirst) {
  const Names files = {"/s/b.vtl", "/s/same.vtl", "/s/a.xml", "/s/same.xml"};
  EXPECT_EQ(SortedBaseNames(files), (Names{"a", "b", "same", "same"}));
  EXPECT_EQ(FileWithBaseName(files, "same"), "/s/same.vtl");
}

TEST_F(StoreFolder, NamesAreComparedLetterByLetter) {
  const Names files = {"/s/Yard.vtl"};
  EXPECT_EQ(FileWithBaseName(files, "yard"), "");
}

TEST_F(StoreFolder, CopiesOverAnExistingFile) {
  put("a.vtl");
  WriteFileText(temp_.at("b.vtl"), "much longer than the source");
  EXPECT_TRUE(CopyLayoutFile(temp_.at("a.vtl"), temp_.at("b.vtl")));
  EXPECT_EQ(ReadFileText(temp_.at("b.vtl")), "a.vtl");
}

TEST_F(StoreFolder, CopyingAFileOntoItselfLosesNothing) {
  put("a.vtl");
  EXPECT_TRUE(CopyLayoutFile(temp_.at("a.vtl"), temp_.at("a.vtl")));
  EXPECT_TRUE(CopyLayoutFile(temp_.at("a.vtl"), temp_.path() + "/./a.vtl"));
  EXPECT_EQ(ReadFileText(temp_.at("a.vtl")), "a.vtl");
}

TEST_F(StoreFolder, TellsOfACopyOrRemovalThatFailed) {
  put("a.vtl");
  EXPECT_FALSE(CopyLayoutFile(temp_.at("a.vtl"), temp_.at("a.vtl/b.vtl")));
  EXPECT_FALSE(CopyLayoutFile(temp_.at("nothing.vtl"), temp_.at("nothing.vtl")));
  EXPECT_FALSE(RemoveFile(temp_.at("nothing.vtl")));
  EXPECT_TRUE(RemoveFile(temp_.at("a.vtl")));
  EXPECT_FALSE(FileExists(temp_.at("a.vtl")));
}

TEST_F(StoreFolder, AFolderIsNoFile) {
  EXPECT_FALSE(FileExists(temp_.path()));
  EXPECT_TRUE(FolderExists(temp_.path()));
  put("a");
  EXPECT_TRUE(FileExists(temp_.at("a")));
  EXPECT_FALSE(FolderExists(temp_.at("a")));
}

}  // namespace
}  // namespace vantrel
