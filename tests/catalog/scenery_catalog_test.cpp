// The scenery list itself: which rows there are, in which order, and how they are found.
#include "catalog/scenery_catalog.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace vantrel {
namespace {

constexpr int kLoop = -1;  // the number of primitives follows from a loop

struct Row {
  const char* id;
  const char* name;
  int category;
  double width;
  double depth;
  int primitives;
};

constexpr Row kRows[] = {
    {"platform", "Platform", 0, 230, 60, 7},
    {"platform_island", "Island platform 460mm", 0, 460, 120, kLoop},
    {"station_small", "Station Gueglingen", 2, 308, 140, 23},
    {"station_large", "Station Schwarzburg", 2, 550, 185, 32},
    {"signal_box", "Signal box", 1, 60, 50, 7},
    {"shed_1road", "Engine shed (1 road)", 1, 300, 80, 5},
    {"shed_2road", "Engine shed (2 roads)", 1, 300, 160, kLoop},
    {"goods_shed", "Goods shed", 1, 200, 80, 6},
    {"warehouse", "Warehouse", 1, 400, 200, kLoop},
    {"signal_semaphore_stop", "Semaphore (Stop)", 3, 20, 20, 3},
    {"signal_semaphore_clear", "Semaphore (Clear)", 3, 20, 20, 3},
    {"signal_color_stop", "Color light (Stop)", 3, 20, 20, 5},
    {"signal_color_clear", "Color light (Clear)", 3, 20, 20, 5},
    {"signal_z_semaphore_stop", "Semaphore Z (Stop)", 3, 12, 12, 3},
    {"signal_z_semaphore_clear", "Semaphore Z (Clear)", 3, 12, 12, 3},
    {"signal_z_color_stop", "Color light Z (Stop)", 3, 12, 12, 5},
    {"signal_z_color_clear", "Color light Z (Clear)", 3, 12, 12, 5},
    {"bridge_truss_scenery", "Truss bridge (scenery)", 4, 188, 64, kLoop},
    {"bridge_arch_scenery", "Arch bridge (scenery)", 4, 360, 64, kLoop},
    {"crossing_1track", "Level crossing (1 track)", 6, 120, 80, 4},
    {"crossing_2track", "Level crossing (2 tracks)", 6, 120, 160, 6},
    {"road_straight", "Road straight 188mm", 6, 188, 60, kLoop},
    {"74861", "Turntable 74861 (pit 278mm)", 9, 278, 278, kLoop},
    {"72886", "Roundhouse 72886 (3-stall)", 10, 386, 343, kLoop},
    {"water_tower", "Water tower", 9, 50, 50, 6},
    {"coaling_tower", "Coaling tower", 9, 80, 80, 4},
    {"tree_sm_dec", "Deciduous tree (small)", 7, 34, 34, 5},
    {"tree_lg_dec", "Deciduous tree (large)", 7, 57, 57, 5},
    {"tree_conifer", "Conifer tree", 7, 23, 40, kLoop},
    {"tree_group", "Tree group (3 mixed)", 7, 115, 80, 10},
    {"bush", "Bush / shrub", 7, 23, 17, 4},
    {"car", "Car", 8, 50, 20, 9},
    {"truck", "Truck", 8, 80, 25, 9},
    {"parking_lot", "Parking lot (10 spaces)", 9, 250, 120, kLoop},
    {"ped_zone", "Pedestrian zone", 9, 115, 57, 7},
    {"bridge_truss", "Steel truss bridge (1 track)", 9, 188, 80, kLoop},
    {"viaduct_pier", "Viaduct pier (concrete)", 9, 40, 60, 5},
    {"tunnel_portal_single", "Tunnel portal (1 track)", 5, 40, 80, kLoop},
    {"retaining_wall", "Retaining wall 188mm", 9, 188, 30, kLoop},
};

TEST(SceneryCatalog, HasItsThirtyNineRowsInOrder) {
  const std::vector<SceneryDef>& rows = sceneryCatalog();
  ASSERT_EQ(rows.size(), 39u);
  ASSERT_EQ(std::size(kRows), 39u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(kRows[i].id);
    EXPECT_EQ(rows[i].id, kRows[i].id);
    EXPECT_EQ(rows[i].name, kRows[i].name);
    EXPECT_EQ(rows[i].category, kRows[i].category);
    EXPECT_EQ(rows[i].width, kRows[i].width);
    EXPECT_EQ(rows[i].depth, kRows[i].depth);
  }
}

TEST(SceneryCatalog, RowsOfAFixedDrawingHaveTheirNumberOfPrimitives) {
  for (const Row& row : kRows) {
    if (row.primitives == kLoop) continue;
    const SceneryDef* def = findScenery(row.id);
    ASSERT_NE(def, nullptr) << row.id;
    EXPECT_EQ(def->primitives.size(), static_cast<std::size_t>(row.primitives)) << row.id;
  }
}

TEST(SceneryCatalog, RowsDrawnInLoopsRepeatADetail) {
  for (const Row& row : kRows) {
    if (row.primitives != kLoop) continue;
    const SceneryDef* def = findScenery(row.id);
    ASSERT_NE(def, nullptr) << row.id;
    EXPECT_GT(def->primitives.size(), 8u) << row.id;
  }
}

TEST(SceneryCatalog, FindsEveryRowByItsId) {
  for (const SceneryDef& def : sceneryCatalog()) EXPECT_EQ(findScenery(def.id), &def) << def.id;
}

TEST(SceneryCatalog, FindsNothingUnderAnUnknownId) {
  EXPECT_EQ(findScenery("no_such_thing"), nullptr);
  EXPECT_EQ(findScenery(""), nullptr);
  EXPECT_EQ(findScenery("Platform"), nullptr);   // the name is no key, and case matters
  EXPECT_EQ(findScenery("platform "), nullptr);  // nor is anything trimmed
  // Known to the 3D view alone.
  EXPECT_EQ(findScenery("bridge_arch"), nullptr);
  EXPECT_EQ(findScenery("tunnel_portal"), nullptr);
  EXPECT_EQ(findScenery("tunnel_portal_2"), nullptr);
}

TEST(SceneryCatalog, IsBuiltOnceAndStays) {
  EXPECT_EQ(&sceneryCatalog(), &sceneryCatalog());
  EXPECT_EQ(findScenery("car"), findScenery(std::string("car")));
  EXPECT_EQ(findScenery("platform"), &sceneryCatalog()[0]) << "the row itself and not a copy";
  EXPECT_EQ(findScenery("retaining_wall"), &sceneryCatalog()[38]);
}

TEST(SceneryCatalog, NamesItsCategories) {
  const char* names[] = {"Platforms", "Buildings", "Stations", "Signals", "Bridges", "Tunnels",
                         "Roads",     "Nature",    "Vehicles", "Special", "Other"};
  for (std::int32_t i = 0; i <= 10; ++i) EXPECT_EQ(SceneryCategoryName(i), names[i]) << i;
}

TEST(SceneryCatalog, AnyOtherCategoryIsOther) {
  EXPECT_EQ(SceneryCategoryName(11), "Other");
  EXPECT_EQ(SceneryCategoryName(-1), "Other");
  EXPECT_EQ(SceneryCategoryName(std::numeric_limits<std::int32_t>::min()), "Other");
  EXPECT_EQ(SceneryCategoryName(std::numeric_limits<std::int32_t>::max()), "Other");
}

TEST(SceneryCatalog, TheRoundhouseHasCategory10UnderTheHeadingOther) {
  const SceneryDef* def = findScenery("72886");
  ASSERT_NE(def, nullptr);
  EXPECT_EQ(def->category, 10);
  EXPECT_EQ(SceneryCategoryName(def->category), "Other");
}

TEST(SceneryCatalog, TheSignalBoxIsFoundThoughThePaletteDoesNotListBuildings) {
  const SceneryDef* def = findScenery("signal_box");
  ASSERT_NE(def, nullptr);
  // The palette lists the categories whose bit is set in 1173: 0, 2, 4, 7 and 10.
  EXPECT_EQ(1173 >> def->category & 1, 0);
}

TEST(SceneryCatalog, OnlyTheFourSignalsForZCarryTheFlagAndAFootprintOf12) {
  std::vector<std::string> forZ;
  for (const SceneryDef& def : sceneryCatalog()) {
    if (!def.forZ) continue;
    forZ.push_back(def.id);
    EXPECT_EQ(def.category, 3) << def.id;
    EXPECT_EQ(def.width, 12.0) << def.id;
    EXPECT_EQ(def.depth, 12.0) << def.id;
  }
  EXPECT_EQ(forZ, (std::vector<std::string>{"signal_z_semaphore_stop", "signal_z_semaphore_clear",
                                            "signal_z_color_stop", "signal_z_color_clear"}));
}

TEST(SceneryCatalog, EverythingStandsOnTheGround) {
  for (const SceneryDef& def : sceneryCatalog()) EXPECT_TRUE(def.standsOnGround) << def.id;
}

}  // namespace
}  // namespace vantrel
