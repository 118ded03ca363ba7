#include "shopping/tally.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/shopping/shopping_support.h"

namespace vantrel {
namespace {

using Rows = std::vector<TallyRow>;

const TallyRow kWeRecommend{.text = "We Recommend", .count = "", .heading = true};

PieceCounts Counted(const std::string& part, int count = 1) {
  Layout layout;
  Place(layout, part, count);
  return CountForTally(layout);
}

Rows RowsOf(const Layout& layout) {
  return TallyRows(CountForTally(layout));
}

TEST(Tally, OfAnEmptyPlanHasNoRows) {
  EXPECT_EQ(RowsOf(Layout()), Rows());
}

TEST(Tally, ShowsEachPartOnceWithItsDescriptionAndCountInByteOrder) {
  Layout layout;
  Place(layout, "7389");
  Place(layout, "24188", 12);
  Place(layout, "2200", 3);
  Place(layout, "24188");
  Place(layout, "74871");
  EXPECT_EQ(RowsOf(layout), (Rows{{"2200 Straight Track Length 180 mm / 7-3/32\"", "3"},
                                  {"24188 - 188.3mm", "13"},
                                  {"7389 Track Bumper", "1"},
                                  {"74871 Turntable Spoke Extension 57.5mm", "1"}}));
}

TEST(Tally, LeavesOutPiecesThatCameWithAnother) {
  Layout layout;
  Place(layout, "24188", 2);
  PlaceFree(layout, "24188", 5);
  PlaceFree(layout, "24612", 1);
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"24188", 2}}));
}

TEST(Tally, OfATurntableWithItsSpokesHoldsTheTurntableAlone) {
  Layout layout;
  Place(layout, "74861");
  PlaceFree(layout, "74871", 6);
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"74861", 1}}));
}

TEST(Tally, PacksSpokesByThree) {
  EXPECT_EQ(CountForTally(Layout()).count("74871"), 0u);
  EXPECT_EQ(Counted("74871", 1), (PieceCounts{{"74871", 1}}));
  EXPECT_EQ(Counted("74871", 3), (PieceCounts{{"74871", 1}}));
  EXPECT_EQ(Counted("74871", 4), (PieceCounts{{"74871", 2}}));
  EXPECT_EQ(Counted("74871", 6), (PieceCounts{{"74871", 2}}));
  EXPECT_EQ(Counted("74871", 7), (PieceCounts{{"74871", 3}}));
}

TEST(Tally, PacksTheSpokesOfTheTrackBeforeItCountsScenery) {
  Layout layout;
  Place(layout, "74871", 2);
  PlaceScenery(layout, "74871", 2);
  // 2 spokes are 1 pack, and 2 of the scenery; packed together, 4 would be 2.
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"74871", 3}}));
  layout.pieces.clear();
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"74871", 2}}));
}

TEST(Tally, AddsWhatABridgeOrRampCarries) {
  EXPECT_EQ(Counted("74636"), (PieceCounts{{"74636", 1}, {"24360", 1}}));
  EXPECT_EQ(Counted("74620"), (PieceCounts{{"74620", 1}, {"24188", 1}}));
  EXPECT_EQ(Counted("74623"), (PieceCounts{{"74623", 1}, {"24230", 1}}));
  EXPECT_EQ(Counted("74613"), (PieceCounts{{"74613", 1}, {"24130", 1}}));
  EXPECT_EQ(Counted("74618"), (PieceCounts{{"74618", 1}, {"24188", 1}, {"24172", 1}}));
  EXPECT_EQ(Counted("7263"), (PieceCounts{{"7263", 1}, {"2200", 2}}));
  EXPECT_EQ(Counted("7262"), (PieceCounts{{"7262", 1}, {"2200", 1}}));
  EXPECT_EQ(Counted("7569"), (PieceCounts{{"7569", 1}, {"2221", 1}}));
  EXPECT_EQ(Counted("7267"), (PieceCounts{{"7267", 1}, {"2221", 1}}));
  EXPECT_EQ(Counted("62636"), (PieceCounts{{"62636", 1}, {"62188", 1}, {"62172", 1}}));
  EXPECT_EQ(Counted("62620"), (PieceCounts{{"62620", 1}, {"62188", 1}}));
  EXPECT_EQ(Counted("62623"), (PieceCounts{{"62623", 1}, {"62230", 1}}));
  EXPECT_EQ(Counted("62613"), (PieceCounts{{"62613", 1}, {"62130", 1}}));
  EXPECT_EQ(Counted("8975"), (PieceCounts{{"8975", 1}, {"8505", 1}}));
  EXPECT_EQ(Counted("89759"), (PieceCounts{{"89759", 1}, {"8500", 1}}));
  EXPECT_EQ(Counted("8976"), (PieceCounts{{"8976", 1}, {"8500", 1}}));
  EXPECT_EQ(Counted("8977"), (PieceCounts{{"8977", 1}, {"8510", 1}}));
}

TEST(Tally, AddsDeckTrackToTheTrackThatLiesThereAnyhow) {
  Layout layout;
  Place(layout, "7263", 3);
  Place(layout, "2200", 4);
  PlaceFree(layout, "7262", 2);
  // 4 pieces and 3 decks of 2; the free bridges carry none.
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"2200", 10}, {"7263", 3}}));
}

TEST(Tally, ShowsAnArchBridgeWithItsDeck) {
  Layout layout;
  Place(layout, "74636");
  EXPECT_EQ(RowsOf(layout), (Rows{{"24360 - 360mm", "1"}, {"74636 Arch Bridge 360mm", "1"}}));
}

TEST(Tally, AddsNoDeckForSceneryOfABridgesNumber) {
  Layout layout;
  PlaceScenery(layout, "74636");
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"74636", 1}}));
}

TEST(Tally, OfADefaultHelixHasFourStubsAndThirtyCurvesOfEachRing) {
  Layout layout;
  PlaceHelix(layout, "proses_2_5_r1r2");
  // 2.5 turns of 12 curves.
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"24130", 30}, {"24188", 4}, {"24230", 30}}));
}

TEST(Tally, OfAHelixOfAnUnknownKitIsThatOfTheDefaultKit) {
  Layout layout;
  PlaceHelix(layout, "no such kit");
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"24130", 30}, {"24188", 4}, {"24230", 30}}));
}

TEST(Tally, SumsTheRingsOfSeveralHelices) {
  Layout layout;
  PlaceHelix(layout, "proses_3_5_r2r3");
  PlaceHelix(layout, "proses_4_5_r3r4");
  Place(layout, "24330");
  // 3.5 turns are 42 curves, 4.5 are 54; the ring that both have: 42 + 54, and one that lies there.
  EXPECT_EQ(CountForTally(layout),
            (PieceCounts{{"24188", 8}, {"24230", 42}, {"24330", 97}, {"24430", 54}}));
}

TEST(Tally, CountsSceneryThatTheStoreSellsAndNoOther) {
  Layout layout;
  PlaceScenery(layout, "72886", 2);
  PlaceScenery(layout, "bush", 9);
  PlaceScenery(layout, "62188");  // a part of the catalog that the store lacks
  EXPECT_EQ(RowsOf(layout), (Rows{{"Roundhouse 72886 (3-stall)", "2"}}));
}

TEST(Tally, AddsATurntableOfTheSceneryToThoseOfTheTrack) {
  Layout layout;
  Place(layout, "74861");
  PlaceScenery(layout, "74861");
  EXPECT_EQ(CountForTally(layout), (PieceCounts{{"74861", 2}}));
}

TEST(Tally, ShowsPartsThatNobodyKnowsByTheirNumber) {
  Layout layout;
  Place(layout, "made up", 2);
  Place(layout, "bush");  // as a piece: the catalog of scenery has a name for it
  Place(layout, "");
  EXPECT_EQ(RowsOf(layout), (Rows{{"", "1"}, {"Bush / shrub", "1"}, {"made up", "2"}}));
}

TEST(Tally, SortsByUnsignedBytes) {
  Layout layout;
  Place(layout, "\xC3\xA4");  // a letter beyond ASCII sorts behind all digits
  Place(layout, "99");
  EXPECT_EQ(RowsOf(layout), (Rows{{"99", "1"}, {"\xC3\xA4", "1"}}));
}

TEST(Tally, RecommendsNothingWithoutTurnoutsThatMotorsOrDecodersFit) {
  Layout layout;
  Place(layout, "24188", 5);
  Place(layout, "24951");
  Place(layout, "2262");  // turnouts that no motor or decoder of the store fits
  Place(layout, "8562");
  for (const TallyRow& row : RowsOf(layout)) EXPECT_FALSE(row.heading) << row.text;
  EXPECT_FALSE(AccessoriesFor(CountForTally(layout)).any());
}

TEST(Tally, RecommendsAMotorAndADecoderForATurnout) {
  Layout layout;
  Place(layout, "24611");
  const Rows rows = RowsOf(layout);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[0].count, "1");
  EXPECT_EQ(rows[1], kWeRecommend);
  EXPECT_EQ(rows[2], (TallyRow{"74491 Turnout Motor", "1"}));
  EXPECT_EQ(rows[3], (TallyRow{"74462 Decoder", "1"}));
}

TEST(Tally, RecommendsTwoMotorsAndOneDecoderForAThreeWayTurnout) {
  EXPECT_EQ(AccessoriesFor(Counted("24630")), (Accessories{.motorsC = 2, .decoders = 1}));
  EXPECT_EQ(AccessoriesFor(Counted("62630")), (Accessories{.motorsC = 2, .decoders = 1}));
}

TEST(Tally, RecommendsEachKindInItsOrder) {
  Layout layout;
  Place(layout, "24720", 2);
  Place(layout, "24630", 3);
  Place(layout, "2265", 4);
  const Rows rows = RowsOf(layout);
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_EQ(rows[3], kWeRecommend);
  EXPECT_EQ(rows[4], (TallyRow{"74491 Turnout Motor", "8"}));  // 2 and three times 2
  EXPECT_EQ(rows[5], (TallyRow{"75491 K-Track Motor", "4"}));
  EXPECT_EQ(rows[6], (TallyRow{"74462 Decoder", "3"}));
  EXPECT_EQ(rows[7], (TallyRow{"74467 Decoder (24720)", "2"}));
}

TEST(Tally, RecommendsADecoderAloneForTheDoubleSlip) {
  Layout layout;
  Place(layout, "24624");
  const Rows rows = RowsOf(layout);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[1], kWeRecommend);
  EXPECT_EQ(rows[2], (TallyRow{"74462 Decoder", "1"}));
}

TEST(Tally, KnowsWhatEveryTurnoutNeeds) {
  const Accessories usual{.motorsC = 1, .decoders = 1};
  for (const char* part : {"24611", "24612", "24671", "24672", "24711", "24712", "24771", "24772",
                           "62611", "62612", "62671", "62672"})
    EXPECT_EQ(AccessoriesFor(Counted(part)), usual) << part;
  for (const char* part : {"24624", "62624"})
    EXPECT_EQ(AccessoriesFor(Counted(part)), Accessories{.decoders = 1}) << part;
  EXPECT_EQ(AccessoriesFor(Counted("24720")), (Accessories{.motorsC = 1, .bigDecoders = 1}));
  for (const char* part : {"2261", "2263", "2264", "2265", "2266", "2267", "2268", "2269", "2271",
                           "2272", "2276", "2277"})
    EXPECT_EQ(AccessoriesFor(Counted(part)), Accessories{.motorsK = 1}) << part;
  for (const char* part : {"2260", "2262", "2270", "2275", "8562", "24640"})
    EXPECT_EQ(AccessoriesFor(Counted(part)), Accessories{}) << part;
}

}  // namespace
}  // namespace vantrel
