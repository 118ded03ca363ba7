#include "frame/store_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

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
  EXPECT_EQ(LayoutFileNames(temp_.path()), Names{});
}

TEST_F(StoreFolder, ListsANameThatBeginsWithADotLikeAnyOther) {
  for (const char* name : {".491.vtl", "Yard.vtl", "..vtl", ".old.xml", ".vtl", ".xml"}) put(name);
  EXPECT_EQ(LayoutFileNames(temp_.path()), (Names{"..vtl", ".491.vtl", "Yard.vtl", ".old.xml"}))
      << "an extension alone is no name";
  EXPECT_EQ(SortedBaseNames(LayoutFiles(temp_.path())), (Names{".", ".491", ".old", "Yard"}));
  EXPECT_EQ(FileWithBaseName(LayoutFiles(temp_.path()), ".491"), temp_.path() + "/.491.vtl");
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

TEST_F(StoreFolder, ACopyThatFailsTellsWhy) {
  put("a.vtl");
  const auto why = [this](const std::string& to) {
    std::string reason;
    EXPECT_FALSE(CopyLayoutFile(temp_.at("a.vtl"), to, &reason)) << to;
    return reason;
  };
  EXPECT_EQ(why(temp_.at("nowhere/a.vtl")), "There is no such folder.");
  EXPECT_EQ(why(temp_.path()), "A folder has that name.");
  EXPECT_EQ(why(temp_.at(std::string(300, 'n'))), "The name is too long.");
  ASSERT_EQ(mkfifo(temp_.at("pipe.vtl").c_str(), 0600), 0);
  EXPECT_EQ(why(temp_.at("pipe.vtl")), "What has that name is no file, but a pipe or a device.");
}

TEST_F(StoreFolder, AFolderIsNoFile) {
  EXPECT_FALSE(FileExists(temp_.path()));
  EXPECT_TRUE(FolderExists(temp_.path()));
  put("a");
  EXPECT_TRUE(FileExists(temp_.at("a")));
  EXPECT_FALSE(FolderExists(temp_.at("a")));
}

TEST(ExportFileName, KeepsADotThatBelongsToTheName) {
  for (const char* name : {"Anlage Nr. 491", "Yard v1.5", "Bhf.Nord", "Dr. Oe", "2.0", "U.S.A",
                           "Nord.", "Halle.Ö", "a.b c", ".vtl"})
    EXPECT_EQ(ExportFileName(name, "Yard"), std::string(name) + ".vtl");
}

TEST(ExportFileName, DropsTheExtensionThatTheUserTyped) {
  for (const char* typed : {"Anlage Nr. 491.vtl", "Anlage Nr. 491.xml", "Anlage Nr. 491.VTL",
                            "Anlage Nr. 491.txt", "Anlage Nr. 491.html"})
    EXPECT_EQ(ExportFileName(typed, "Yard"), "Anlage Nr. 491.vtl") << typed;
  EXPECT_EQ(ExportFileName("Yard.xml.vtl", "Yard"), "Yard.xml.vtl") << "one, not all";
}

TEST(ExportFileName, KeepsTheLayoutsOwnNameWhole) {
  EXPECT_EQ(ExportFileName("Plan.alt", "Plan.alt"), "Plan.alt.vtl");
  EXPECT_EQ(ExportFileName("Plan.alt", "Plan"), "Plan.vtl");
}

}  // namespace
}  // namespace vantrel
