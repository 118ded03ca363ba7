// Which presses end a double click, by their times and places and by what the toolkit says of them.
#include "app/services/press_pairs.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>
#include <utility>

namespace vantrel {
namespace {

constexpr int kLeft = 1;
constexpr int kRight = 3;

class PressPairsTest : public testing::Test {
 protected:
  bool press(std::uint32_t timeMs, bool saidDouble = false, int x = 100, int y = 100,
             int button = kLeft) {
    return pairs.endsPair(
        {.button = button, .timeMs = timeMs, .x = x, .y = y, .saidDouble = saidDouble}, reach);
  }

  // One letter for each press at these times: D for one that ends a double click, s for any other.
  // The toolkit says the same letters of `said`.
  std::string run(std::initializer_list<std::uint32_t> times, const std::string& said) {
    std::string counted;
    for (const std::uint32_t time : times)
      counted += press(time, said.at(counted.size()) == 'D') ? 'D' : 's';
    return counted;
  }

  PressReach reach{.withinMs = 400, .dx = 5, .dy = 5};
  PressPairs pairs;
};

TEST_F(PressPairsTest, TwoQuickPressesAreOneDoubleClick) {
  EXPECT_EQ(run({1000, 1060}, "sD"), "sD");
}

TEST_F(PressPairsTest, ASinglePressIsNone) {
  EXPECT_EQ(run({1000}, "s"), "s");
}

TEST_F(PressPairsTest, AThirdQuickPressBeginsANewPair) {
  EXPECT_EQ(run({1000, 1100, 1200}, "sDs"), "sDs");
  EXPECT_EQ(run({9000, 9100, 9200}, "sDD"), "sDs");
}

// The toolkit takes the third for a triple click and leaves the fourth alone.
TEST_F(PressPairsTest, FourQuickPressesAreTwoDoubleClicks) {
  EXPECT_EQ(run({1000, 1100, 1200, 1300}, "sDss"), "sDsD");
}

// As the toolkit tells them: after the triple click it counts anew, so that its double clicks are
// those of two neighbouring pairs, 240 ms apart.
TEST_F(PressPairsTest, DoubleClicksInQuickSuccessionAreCountedOneByOne) {
  EXPECT_EQ(run({1000, 1060, 1300, 1360, 1600, 1660, 1900, 1960}, "sDssDssD"), "sDsDsDsD");
}

// Here the pairs are too far apart for one double click, but not for a triple click.
TEST_F(PressPairsTest, DoubleClicksInModerateSuccessionAreCountedOneByOne) {
  EXPECT_EQ(run({1000, 1060, 1600, 1660, 2200, 2260, 2800, 2860}, "sDsssDss"), "sDsDsDsD");
}

TEST_F(PressPairsTest, SlowPressesAreSingleOnes) {
  EXPECT_EQ(run({1000, 1400, 1800}, "sss"), "sss");
}

TEST_F(PressPairsTest, APressIsQuickWhenLessThanTheDoubleClickTimeHasPassed) {
  EXPECT_EQ(run({1000, 1399}, "ss"), "sD");
  EXPECT_EQ(run({9000, 9400}, "ss"), "ss");
}

TEST_F(PressPairsTest, AfterALatePressTheCountBeginsAnew) {
  EXPECT_EQ(run({1000, 1500, 1600, 1700}, "ssDs"), "ssDs");
}

TEST_F(PressPairsTest, PressesMovedApartAreSingleOnes) {
  for (const auto& [x, y] : {std::pair{106, 100}, {94, 100}, {100, 106}, {100, 94}}) {
    pairs = {};
    press(1000);
    EXPECT_FALSE(press(1100, false, x, y)) << x << " " << y;
  }
}

TEST_F(PressPairsTest, APressFivePixelsAwayIsStillNear) {
  for (const auto& [x, y] : {std::pair{105, 95}, {95, 105}}) {
    pairs = {};
    press(1000);
    EXPECT_TRUE(press(1100, false, x, y)) << x << " " << y;
  }
}

TEST_F(PressPairsTest, APressMovedApartBeginsAPairOfItsOwn) {
  press(1000);
  EXPECT_FALSE(press(1100, false, 150, 100));
  EXPECT_TRUE(press(1200, false, 150, 100));
}

TEST_F(PressPairsTest, AnotherButtonInBetweenPartsAPair) {
  press(1000);
  EXPECT_FALSE(press(1050, false, 100, 100, kRight));
  EXPECT_FALSE(press(1100));
  EXPECT_TRUE(press(1150));
}

TEST_F(PressPairsTest, ADoubleClickWhoseFirstPressWentElsewhereIsBelieved) {
  EXPECT_TRUE(press(1000, true));
  EXPECT_FALSE(press(1100));
  EXPECT_TRUE(press(1200));
}

TEST_F(PressPairsTest, WithoutTimesTheToolkitIsBelieved) {
  EXPECT_EQ(run({0, 0, 0, 0, 0}, "sDDss"), "sDDss");
}

TEST_F(PressPairsTest, WithoutAKnownReachTheToolkitIsBelieved) {
  for (const PressReach& unknown : {PressReach{.withinMs = -1, .dx = 5, .dy = 5},
                                    PressReach{.withinMs = 400, .dx = -1, .dy = 5},
                                    PressReach{.withinMs = 400, .dx = 5, .dy = -1}}) {
    pairs = {};
    reach = unknown;
    EXPECT_EQ(run({1000, 1060, 1120, 1180}, "sDss"), "sDss");
  }
}

// The clock of the events has 32 bits: 50 ms before and 50 ms after it begins anew.
TEST_F(PressPairsTest, APairAcrossTheClocksTurnIsADoubleClick) {
  const std::uint32_t last = std::numeric_limits<std::uint32_t>::max();
  EXPECT_EQ(run({last - 49, 50}, "ss"), "sD");
}

TEST_F(PressPairsTest, AnEarlierTimeThanBeforeIsFarAway) {
  EXPECT_EQ(run({5000, 4900}, "ss"), "ss");
}

}  // namespace
}  // namespace vantrel
