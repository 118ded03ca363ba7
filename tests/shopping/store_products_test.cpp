#include "shopping/store_products.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace vantrel {
namespace {

// The store's parts in table order, byte by byte ascending.
constexpr const char* kParts =
    "2200 2201 2202 2203 2204 2205 2206 2207 2208 2209 2210 2221 2223 2224 2229 2231 2232 "
    "2233 2234 2235 2239 2241 2251 2257 2258 2259 2260 2262 2263 2265 2266 2268 2269 2270 "
    "22715 22716 2274 2275 2290 2291 2292 2293 2295 2297 2299 24001 24064 24071 24077 24094 "
    "24107 24115 24130 24172 24188 24194 24206 24207 24215 24224 24229 24230 24236 24294 "
    "24315 24330 24360 24430 24530 24611 24612 24624 24630 24640 24649 24671 24672 24711 "
    "24712 24720 24740 24771 24772 24802 24900 24902 24903 24904 24905 24912 24922 24951 "
    "24977 24978 24994 24995 24997 7262 7263 7267 72886 7389 7391 74030 74040 74041 74042 "
    "74043 74044 74046 74101 74103 74104 74105 74106 74110 74121 74131 74132 74133 74141 "
    "74142 74151 74371 74380 74391 74462 74465 74466 74467 74470 74471 74477 74491 74492 "
    "74500 74613 74618 74620 74623 74636 74861 74862 74871 74923 74924 74930 74990 74994 "
    "74995 74997 74999 75491 7569 8500 8503 8504 8505 85051 8506 8507 8510 8520 8521 8529 "
    "8530 8531 8539 8559 8560 8562 8563 8565 8566 8568 8569 8587 8588 8589 8590 8591 8592 "
    "8594 85941 89011 89012 89013 89023 89024 89025 8904 8911 8912 8913 8914 89201 8921 8922 "
    "8923 8924 8925 8926 8927 8931 89390 89391 89392 89393 89394 89395 89401 89402 89403 "
    "8945 8946 8950 8953 8954 89601 89703 89705 89708 89709 8974 8975 89758 89759 8976 89769 "
    "8977 8978 8979 89791 89805 89808 89835 89871 89881 89891 8991 8992 8993 8994 8995 8997 "
    "89971 89982 89983 8999 ";

std::vector<std::string> PartsOfStore() {
  std::istringstream text(kParts);
  std::vector<std::string> parts;
  for (std::string part; text >> part;) parts.push_back(part);
  return parts;
}

TEST(StoreProducts, HaveTwoHundredAndFortyNineRowsWithoutAPartTwice) {
  EXPECT_EQ(storeProducts().rowCount(), 249u);
  const std::vector<std::string> parts = PartsOfStore();
  EXPECT_EQ(parts.size(), 249u);
  EXPECT_EQ(std::set<std::string>(parts.begin(), parts.end()).size(), 249u);
}

TEST(StoreProducts, SellEveryPartOfTheTable) {
  for (const std::string& part : PartsOfStore()) EXPECT_TRUE(IsSold(part)) << part;
}

TEST(StoreProducts, HaveAnIdOfFourteenDigitsOfItsOwnForEachPart) {
  std::set<std::string> ids;
  for (const std::string& part : PartsOfStore()) {
    const std::string id(storeProducts().productId(part));
    EXPECT_EQ(id.size(), 14u) << part;
    EXPECT_EQ(id.find_first_not_of("0123456789"), std::string::npos) << part;
    EXPECT_TRUE(ids.insert(id).second) << part;
  }
}

TEST(StoreProducts, AreNumberedInTableOrderUntilTheStoreGivesItsOwnIds) {
  EXPECT_EQ(storeProducts().productId("2200"), "00000000000001");
  EXPECT_EQ(storeProducts().productId("2201"), "00000000000002");
  EXPECT_EQ(storeProducts().productId("8999"), "00000000000249");
}

TEST(StoreProducts, KnowNothingOfOtherParts) {
  EXPECT_EQ(storeProducts().productId("62188"), "");  // in the catalog, not in the store
  EXPECT_EQ(storeProducts().productId("2200 "), "");
  EXPECT_EQ(storeProducts().productId("02200"), "");
  EXPECT_EQ(storeProducts().productId(""), "");
  EXPECT_FALSE(IsSold("62188"));
}

TEST(StoreProducts, AreBuiltOnce) {
  EXPECT_EQ(&storeProducts(), &storeProducts());
}

}  // namespace
}  // namespace vantrel
