#include "print/pages/printed_levels.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

Level LevelOf(std::int32_t id, bool visible) {
  Level level;
  level.id = id;
  level.visible = visible;
  return level;
}

std::vector<bool> Visible(const Layout& plan) {
  std::vector<bool> visible;
  for (const Level& level : plan.levels) visible.push_back(level.visible);
  return visible;
}

class PrintedLevels : public testing::Test {
 protected:
  PrintedLevels() {
    plan_.levels = {LevelOf(1, true), LevelOf(2, false), LevelOf(3, true)};
    plan_.activeLevel = 2;
  }

  Layout plan_;
};

TEST_F(PrintedLevels, AreTheActiveOneAlone) {
  showPrintedLevels(plan_, {});
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{false, true, false}));
}

TEST_F(PrintedLevels, AreAllWhenAllAreWanted) {
  PrintOptions all;
  all.allLevels = 1;
  showPrintedLevels(plan_, all);
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{true, true, true}));
}

TEST_F(PrintedLevels, GetTheirOwnStatesBack) {
  const LevelStates states = levelStates(plan_);
  showPrintedLevels(plan_, {});
  putLevelStatesBack(plan_, states);
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{true, false, true}));
}

TEST_F(PrintedLevels, AreFoundByTheirIdsWhenOneHasGone) {
  const LevelStates states = levelStates(plan_);
  showPrintedLevels(plan_, {});
  plan_.levels.erase(plan_.levels.begin());
  putLevelStatesBack(plan_, states);
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{false, true}));
}

TEST_F(PrintedLevels, OfOneIdGetEachItsOwnStateBack) {
  plan_.levels = {LevelOf(7, true), LevelOf(7, false), LevelOf(7, true)};
  const LevelStates states = levelStates(plan_);
  showPrintedLevels(plan_, {});
  putLevelStatesBack(plan_, states);
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{true, false, true}));
}

TEST_F(PrintedLevels, GridAndBaseboardComeBackAfterThePage) {
  PrintOptions options;
  options.includeGrid = false;
  options.includeBaseboard = false;
  {
    const PrintedGround ground(plan_, options);
    EXPECT_FALSE(plan_.gridVisible);
    EXPECT_FALSE(plan_.baseboardVisible);
  }
  EXPECT_TRUE(plan_.gridVisible);
  EXPECT_TRUE(plan_.baseboardVisible);
}

TEST_F(PrintedLevels, AGridThatIsHiddenOnTheScreenStaysHiddenOnPaper) {
  plan_.gridVisible = false;
  PrintOptions options;
  options.includeGrid = true;
  {
    const PrintedGround ground(plan_, options);
    EXPECT_FALSE(plan_.gridVisible);
    EXPECT_TRUE(plan_.baseboardVisible);
  }
  EXPECT_FALSE(plan_.gridVisible);
  EXPECT_TRUE(plan_.baseboardVisible);
}

TEST_F(PrintedLevels, ABaseboardThatIsHiddenStaysHiddenAfterThePage) {
  plan_.baseboardVisible = false;
  {
    const PrintedGround ground(plan_, PrintOptions{});
    EXPECT_FALSE(plan_.gridVisible);
    EXPECT_FALSE(plan_.baseboardVisible);
  }
  EXPECT_TRUE(plan_.gridVisible);
  EXPECT_FALSE(plan_.baseboardVisible);
}

TEST_F(PrintedLevels, AreNoneWhenTheActiveOneIsMissing) {
  plan_.activeLevel = 99;
  showPrintedLevels(plan_, {});
  EXPECT_EQ(Visible(plan_), (std::vector<bool>{false, false, false}));
}

}  // namespace
}  // namespace vantrel
