#include "palette/scenery_lists.h"

#include <gtest/gtest.h>

namespace vantrel {

void PrintTo(const SceneryListRow& row, std::ostream* out) {
  *out << '"' << row.text << "\" (" << row.key << ')';
}

namespace {

SceneryDef Item(const char* id, std::int32_t category, bool forZ = false) {
  SceneryDef def;
  def.id = id;
  def.name = std::string("The ") + id;
  def.category = category;
  def.forZ = forZ;
  return def;
}

using Rows = std::vector<SceneryListRow>;

TEST(SceneryList, TakesOnlyFiveOfTheElevenCategories) {
  std::vector<SceneryDef> items;
  for (std::int32_t category = -1; category <= 12; ++category)
    items.push_back(Item(std::to_string(category).c_str(), category));
  EXPECT_EQ(sceneryListRows(items), (Rows{{"--- Platforms", ""},
                                          {"The 0", "0"},
                                          {"--- Stations", ""},
                                          {"The 2", "2"},
                                          {"--- Bridges", ""},
                                          {"The 4", "4"},
                                          {"--- Nature", ""},
                                          {"The 7", "7"},
                                          {"--- Other", ""},
                                          {"The 10", "10"}}));
}

TEST(SceneryList, HeadsEachRunOfOneCategoryAlsoAcrossItemsLeftOut) {
  const std::vector<SceneryDef> items = {Item("a", kNature), Item("b", kBuildings),
                                         Item("c", kNature), Item("d", kBridges),
                                         Item("e", kNature)};
  EXPECT_EQ(sceneryListRows(items), (Rows{{"--- Nature", ""},
                                          {"The a", "a"},
                                          {"The c", "c"},
                                          {"--- Bridges", ""},
                                          {"The d", "d"},
                                          {"--- Nature", ""},
                                          {"The e", "e"}}));
}

TEST(SceneryList, IsEmptyWithoutItems) {
  EXPECT_TRUE(sceneryListRows({}).empty());
}

TEST(SignalList, SplitsTheSignalsByScaleAndHasNoHeadings) {
  const std::vector<SceneryDef> items = {Item("a", kSignals), Item("b", kSignals, true),
                                         Item("c", kNature, true), Item("d", kSignals),
                                         Item("e", kSignals, true)};
  EXPECT_EQ(signalListRows(items, false), (Rows{{"The a", "a"}, {"The d", "d"}}));
  EXPECT_EQ(signalListRows(items, true), (Rows{{"The b", "b"}, {"The e", "e"}}));
}

}  // namespace
}  // namespace vantrel
