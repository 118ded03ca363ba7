#include "shopping/cart.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/shopping/shopping_support.h"

namespace vantrel {
namespace {

using Parts = std::vector<std::string>;
using Messages = std::vector<CartMessage>;

constexpr const char* kStore = "https://store.example";

// Product ids are the places of the parts in the store's table: 2200 is
// the 1st, 24188 the 55th, 74636 the 141st, 74871 the 144th, 7569 the 154th.
constexpr const char* kArchBridge = "00000000000141";
constexpr const char* kStraight188 = "00000000000055";

Cart CartOf(const std::string& part, int count = 1) {
  Layout layout;
  Place(layout, part, count);
  return FillCart(layout);
}

TEST(Cart, OfAnEmptyPlanIsEmpty) {
  const Cart cart = FillCart(Layout());
  EXPECT_EQ(cart.text, "");
  EXPECT_EQ(cart.unavailable, Parts());
}

TEST(Cart, JoinsItemsInByteOrderOfTheirParts) {
  Layout layout;
  Place(layout, "7569");
  Place(layout, "74871", 3);
  Place(layout, "24188", 12);
  Place(layout, "2200", 100);
  EXPECT_EQ(FillCart(layout).text,
            "00000000000001:100,00000000000055:12,00000000000144:1,00000000000154:1");
}

TEST(Cart, LeavesOutPiecesThatCameWithAnother) {
  Layout layout;
  PlaceFree(layout, "74871", 4);
  PlaceFree(layout, "24612", 2);
  EXPECT_EQ(FillCart(layout).text, "");
}

TEST(Cart, OrdersSpokesInPacksOfThree) {
  EXPECT_EQ(CartOf("74871", 3).text, "00000000000144:1");
  EXPECT_EQ(CartOf("74871", 4).text, "00000000000144:2");
}

TEST(Cart, PacksSpokesOverPiecesAndSceneryTogether) {
  Layout layout;
  Place(layout, "74871", 2);
  PlaceScenery(layout, "74871", 2);
  EXPECT_EQ(FillCart(layout).text, "00000000000144:2");
}

TEST(Cart, OrdersABridgeWithoutItsDeck) {
  EXPECT_EQ(CartOf("74636").text, std::string(kArchBridge) + ":1");
}

TEST(Cart, OfAHelixHoldsOnlyItsStubs) {
  Layout layout;
  PlaceHelix(layout, "proses_2_5_r1r2");
  EXPECT_EQ(FillCart(layout).text, std::string(kStraight188) + ":4");
}

TEST(Cart, TakesSceneryThatTheStoreSells) {
  Layout layout;
  PlaceScenery(layout, "72886", 2);
  PlaceScenery(layout, "bush");
  const Cart cart = FillCart(layout);
  EXPECT_EQ(cart.text, "00000000000101:2");
  EXPECT_EQ(cart.unavailable, Parts());
}

TEST(Cart, LeavesOutPiecesThatTheCatalogLacksEvenIfTheStoreSellsThem) {
  Layout layout;
  Place(layout, "74491");
  Place(layout, "made up");
  const Cart cart = FillCart(layout);
  EXPECT_EQ(cart.text, "");
  EXPECT_EQ(cart.unavailable, Parts());
}

TEST(Cart, ListsWhatTheStoreLacksOnceEachInByteOrder) {
  Layout layout;
  Place(layout, "8501", 2);
  Place(layout, "62188", 3);
  Place(layout, "2200");
  const Cart cart = FillCart(layout);
  EXPECT_EQ(cart.text, "00000000000001:1");
  EXPECT_EQ(cart.unavailable, (Parts{"62188", "8501"}));
}

// The panel speaks of motor 74491, the store wants the order for 74492. Both are right.
TEST(Cart, OrdersTheMotorByItsOtherNumber) {
  // 24611 is the 70th part, 74492 the 135th, 74462 the 127th.
  EXPECT_EQ(CartOf("24611").text, "00000000000070:1,00000000000135:1,00000000000127:1");
}

TEST(Cart, OrdersAccessoriesBehindThePartsInTheirOrder) {
  Layout layout;
  Place(layout, "24720", 2);
  Place(layout, "24630", 3);
  Place(layout, "24624", 4);
  Place(layout, "2265", 5);
  // 2265 is the 30th part, 24624 the 72nd, 24630 the 73rd, 24720 the 80th; 74492 the 135th, 75491
  // the 153rd, 74462 the 127th, 74467 the 130th.
  // Motors for C: 2 + 3 * 2 = 8; for K: 5; decoders: 3 + 4 = 7; big decoders: 2.
  EXPECT_EQ(FillCart(layout).text,
            "00000000000030:5,00000000000072:4,00000000000073:3,00000000000080:2,"
            "00000000000135:8,00000000000153:5,00000000000127:7,00000000000130:2");
}

TEST(Cart, OrdersAccessoriesForTurnoutsThatItCannotOrder) {
  const Cart cart = CartOf("62630");
  EXPECT_EQ(cart.text, "00000000000135:2,00000000000127:1");
  EXPECT_EQ(cart.unavailable, (Parts{"62630"}));
}

TEST(Cart, OrdersADecoderForEachTurnoutThatItFits) {
  for (const char* part : {"24611", "24612", "24630", "24624", "24671", "24672", "24711", "24712",
                           "24771", "24772", "62611", "62612", "62630", "62624", "62671", "62672"})
    EXPECT_NE(CartOf(part, 6).text.find("00000000000127:6"), std::string::npos) << part;
  EXPECT_EQ(CartOf("24720").text.find("00000000000127"), std::string::npos);
}

TEST(Checkout, OfAnEmptyPlanSaysSoAndOpensNothing) {
  const Checkout checkout = PrepareCheckout(Layout(), kStore);
  EXPECT_EQ(checkout.messages,
            (Messages{{"Buy Track", "No purchasable track pieces found in your layout.", false}}));
  EXPECT_EQ(checkout.address, "");
}

TEST(Checkout, WithNothingButUnavailablePartsSaysOnlyThatThereIsNothingToBuy) {
  Layout layout;
  Place(layout, "62188", 3);
  const Checkout checkout = PrepareCheckout(layout, kStore);
  EXPECT_EQ(checkout.messages,
            (Messages{{"Buy Track", "No purchasable track pieces found in your layout.", false}}));
  EXPECT_EQ(checkout.address, "");
}

TEST(Checkout, WarnsOfUnavailablePartsAndOpensTheCartOfTheOthers) {
  Layout layout;
  Place(layout, "24188", 2);
  Place(layout, "8501");
  Place(layout, "62188", 3);
  const Checkout checkout = PrepareCheckout(layout, kStore);
  EXPECT_EQ(checkout.messages,
            (Messages{{"Some pieces not available",
                       "The following pieces are not available in the store and will be skipped:\n"
                       "  62188\n  8501\n",
                       true}}));
  EXPECT_EQ(checkout.address, "https://store.example/cart/00000000000055:2");
}

TEST(Checkout, OpensTheCartWithoutAWordWhenTheStoreHasEverything) {
  Layout layout;
  Place(layout, "2200");
  Place(layout, "24188", 10);
  const Checkout checkout = PrepareCheckout(layout, kStore);
  EXPECT_EQ(checkout.messages, Messages());
  EXPECT_EQ(checkout.address, "https://store.example/cart/00000000000001:1,00000000000055:10");
}

}  // namespace
}  // namespace vantrel
