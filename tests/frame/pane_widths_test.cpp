#include "frame/pane_widths.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr PaneWidths kWanted{.palette = 320, .properties = 340};
constexpr PaneWidths kSmallest{.palette = 150, .properties = 200};

PaneWidths Fit(int room) {
  return FitPanes(room, kWanted, kSmallest, 280);
}

TEST(PaneWidths, AreAsWantedWhereThePlanHasEnough) {
  EXPECT_EQ(Fit(1390), kWanted);
  EXPECT_EQ(Fit(940), kWanted);  // 320 + 340 + 280
}

TEST(PaneWidths, GiveWayTogetherEachByItsShareOfWhatItHasToSpare) {
  // 170 and 140 to spare, 310 in all. 31 missing are a tenth of either: 17 and 14.
  EXPECT_EQ(Fit(940 - 31), (PaneWidths{.palette = 303, .properties = 326}));
  // 155 missing are half of either: 85 and 70.
  EXPECT_EQ(Fit(940 - 155), (PaneWidths{.palette = 235, .properties = 270}));
  // No pixel is lost in a division: of 1 the palette gives 170 / 310, in whole pixels none.
  EXPECT_EQ(Fit(939), (PaneWidths{.palette = 320, .properties = 339}));
}

TEST(PaneWidths, StopAtTheSmallest) {
  EXPECT_EQ(Fit(940 - 310), kSmallest);
  EXPECT_EQ(Fit(400), kSmallest);
  EXPECT_EQ(Fit(2), kSmallest);
}

TEST(PaneWidths, SmallerThanTheSmallestStayAsWanted) {
  constexpr PaneWidths narrow{.palette = 100, .properties = 120};
  EXPECT_EQ(FitPanes(200, narrow, kSmallest, 280), narrow);
  // Only the properties have something to spare then.
  EXPECT_EQ(FitPanes(600, {.palette = 100, .properties = 260}, kSmallest, 280),
            (PaneWidths{.palette = 100, .properties = 220}));
}

TEST(OpeningRect, IsTheUsualSizeInTheMiddleOfALargeScreen) {
  // 1920 - 1400 = 520 and 1053 - 900 = 153 beside it, behind a panel of 27 at the top.
  EXPECT_EQ(OpeningRect({1400, 900}, {0, 27, 1920, 1053}), wxRect(260, 27 + 76, 1400, 900));
}

TEST(OpeningRect, IsTheFreeAreaOfASmallScreen) {
  EXPECT_EQ(OpeningRect({1400, 900}, {0, 0, 1280, 720}), wxRect(0, 0, 1280, 720));
  EXPECT_EQ(OpeningRect({1400, 900}, {0, 28, 1366, 740}), wxRect(0, 28, 1366, 740));
  EXPECT_EQ(OpeningRect({1400, 900}, {1920, 40, 800, 560}), wxRect(1920, 40, 800, 560));
}

TEST(OpeningRect, IsLimitedInTheOneDirectionThatIsTooSmall) {
  EXPECT_EQ(OpeningRect({1400, 900}, {0, 0, 1600, 768}), wxRect(100, 0, 1400, 768));
}

}  // namespace
}  // namespace vantrel
