#include "app/services/prefs.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace vantrel {
namespace {

class PrefsTest : public testing::Test {
 protected:
  AppPrefs read(const std::string& text, AppPrefs flags) {
    WriteFileText(temp_.at("prefs.cfg"), text);
    LoadPrefs(temp_.at("prefs.cfg"), flags);
    return flags;
  }

  TempFolder temp_;
};

TEST_F(PrefsTest, StartPlayfulAndUnasked) {
  const AppPrefs flags;
  EXPECT_TRUE(flags.playful);
  EXPECT_FALSE(flags.asked);
}

TEST_F(PrefsTest, AreWrittenInTwoLines) {
  SavePrefs(temp_.at("prefs.cfg"), {true, false});
  EXPECT_EQ(ReadFileText(temp_.at("prefs.cfg")), "playful=1\nasked=0\n");
  SavePrefs(temp_.at("prefs.cfg"), {false, true});
  EXPECT_EQ(ReadFileText(temp_.at("prefs.cfg")), "playful=0\nasked=1\n");
}

TEST_F(PrefsTest, ReadWhatTheyWrote) {
  const AppPrefs flags = read("playful=0\nasked=1\n", {true, false});
  EXPECT_FALSE(flags.playful);
  EXPECT_TRUE(flags.asked);
}

TEST_F(PrefsTest, OnlyTheFirstCharacterOfAValueCounts) {
  AppPrefs flags = read("playful=10\nasked=1yes\r\n", {false, false});
  EXPECT_TRUE(flags.playful);
  EXPECT_TRUE(flags.asked);
  flags = read("playful=yes\nasked=\n", {true, true});
  EXPECT_FALSE(flags.playful);
  EXPECT_FALSE(flags.asked) << "an empty value is not 1";
}

TEST_F(PrefsTest, AMissingLineLeavesItsFlagAlone) {
  EXPECT_TRUE(read("playful=0\n", {true, true}).asked);
  EXPECT_FALSE(read("asked=1\n", {false, false}).playful);
}

TEST_F(PrefsTest, OtherLinesAreIgnored) {
  const AppPrefs flags = read("# playful=0\n playful=0\nPLAYFUL=0\nmore=1\n\n", {true, false});
  EXPECT_TRUE(flags.playful);
  EXPECT_FALSE(flags.asked);
}

TEST_F(PrefsTest, AMissingFileChangesNothing) {
  AppPrefs flags{false, true};
  LoadPrefs(temp_.at("nothing.cfg"), flags);
  EXPECT_FALSE(flags.playful);
  EXPECT_TRUE(flags.asked);
}

TEST_F(PrefsTest, AFileThatCannotBeWrittenIsNoTrouble) {
  WriteFileText(temp_.at("file"), "as it was");
  SavePrefs(temp_.at("file/prefs.cfg"), {});
  EXPECT_EQ(ReadFileText(temp_.at("file")), "as it was");
}

}  // namespace
}  // namespace vantrel
