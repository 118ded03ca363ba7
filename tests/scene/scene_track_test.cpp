#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "tests/scene/scene_support.h"
#include "view3d/scene/scene_build.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

SceneryItem& AddItem(Layout& layout, std::string id, double x, double y, double heading = 0.0) {
  SceneryItem item;
  item.id = TakeId(layout);
  item.item = std::move(id);
  item.x = x;
  item.y = y;
  item.heading = heading;
  layout.scenery.push_back(item);
  return layout.scenery.back();
}

TEST(Scene, OfAnEmptyLayoutIsEmpty) {
  const Scene scene = BuildScene({});
  EXPECT_TRUE(scene.trackModels.empty());
  EXPECT_TRUE(scene.trackInstances.empty());
  EXPECT_TRUE(scene.sceneryModels.empty());
  EXPECT_TRUE(scene.sceneryInstances.empty());
  EXPECT_TRUE(scene.sceneMesh.positions.empty());
  EXPECT_TRUE(scene.baseMesh.positions.empty());
  EXPECT_TRUE(scene.tunnelMesh.positions.empty());
  EXPECT_TRUE(scene.wireLines.empty());
  EXPECT_FALSE(scene.framed);
}

TEST(SceneTrack, StandsWithYAndHeadingNegated) {
  Layout layout;
  Lay(layout, "24188", {100, 50, 30}, 12);
  layout.pieces[0].grade = 2.5;
  layout.pieces[0].rev = true;
  const Scene scene = BuildScene(layout);
  ASSERT_EQ(scene.trackInstances.size(), 1U);
  const TrackInstance& track = scene.trackInstances[0];
  EXPECT_EQ(track.key, "24188");
  EXPECT_EQ(track.x, 100.0F);
  EXPECT_EQ(track.y, -50.0F);
  EXPECT_EQ(track.z, 12.0F);
  EXPECT_EQ(track.heading, -30.0F);
  EXPECT_EQ(track.grade, 2.5F);
  EXPECT_EQ(track.length, 188.3F);
  EXPECT_TRUE(track.rev);
}

TEST(SceneTrack, KeepsTheOrderOfThePieces) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "24130", {188.3, 0, 0});
  Lay(layout, "24188", {400, 0, 0});
  const Scene scene = BuildScene(layout);
  ASSERT_EQ(scene.trackInstances.size(), 3U);
  EXPECT_EQ(scene.trackInstances[1].key, "24130");
  // The arc of 360 mm over 30 degrees.
  EXPECT_NEAR(scene.trackInstances[1].length, 188.496F, 0.01F);
  EXPECT_EQ(scene.trackInstances[2].x, 400.0F);
}

TEST(SceneTrack, OfUnknownPartsIsLeftOutWithoutAWord) {
  Layout layout;
  Lay(layout, "no such part", {0, 0, 0});
  Lay(layout, "24188", {0, 0, 0});
  const Scene scene = BuildScene(layout);
  EXPECT_EQ(scene.trackInstances.size(), 1U);
  EXPECT_EQ(scene.trackModels.size(), 1U);
}

TEST(SceneTrack, HasTheModelOfItsPart) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "7389", {188.3, 0, 0});
  const Scene scene = BuildScene(layout);
  const Model straight = makeTrackModel(*findPart("24188"));
  EXPECT_EQ(scene.trackModels.at("24188").positions, straight.positions);
  // The end stop stands higher than the rails, whose heads lie at 6.7.
  EXPECT_GT(BoundsOf(scene.trackModels.at("7389")).high.z, 12.0F);
}

// Counts what is made of which part or item.
struct CountingMakers {
  std::map<std::string, int> track;
  std::map<std::string, int> scenery;

  ModelMakers makers() {
    return {.track =
                [this](const PieceDef& def) {
                  ++track[def.partNumber];
                  return Model{};
                },
            .scenery =
                [this](const SceneryDef& def) {
                  ++scenery[def.id];
                  return Model{};
                }};
  }
};

TEST(SceneModels, AreMadeOncePerPartHoweverManyInstancesThereAre) {
  Layout layout;
  for (int i = 0; i < 100; ++i) {
    Lay(layout, "24188", {i * 200.0, 0, 0});
    Lay(layout, "24130", {i * 200.0, 500, 0});
    AddItem(layout, "platform", i * 200.0, 900);
    AddItem(layout, "tree_sm_dec", i * 200.0, 1200);
  }
  // Its inner ring is made of the 24130 that lie about already.
  layout.helices.emplace_back();
  CountingMakers counting;
  const Scene scene = BuildSceneWith(layout, counting.makers());
  EXPECT_EQ(counting.track, (std::map<std::string, int>{{"24130", 1}, {"24188", 1}, {"24230", 1}}));
  EXPECT_EQ(counting.scenery, (std::map<std::string, int>{{"platform", 1}, {"tree_sm_dec", 1}}));
  EXPECT_EQ(scene.trackInstances.size(), 260U);
  EXPECT_EQ(scene.sceneryInstances.size(), 200U);
}

TEST(SceneModels, AreNotMadeForWhatIsHidden) {
  Layout layout;
  AddLevel(layout, 1, 0.0, false);
  Lay(layout, "24188", {0, 0, 0});
  AddItem(layout, "platform", 0, 0);
  CountingMakers counting;
  BuildSceneWith(layout, counting.makers());
  EXPECT_TRUE(counting.track.empty());
  EXPECT_TRUE(counting.scenery.empty());
}

TEST(SceneLevels, AHiddenLevelHidesItsTrackSceneryShapesHelicesAndPiers) {
  Layout layout;
  AddLevel(layout, 1, 0.0, false);
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "74636", {0, 300, 0}, 90);
  AddItem(layout, "platform", 0, 0);
  AddShape(layout, {{0, 0}, {100, 0}, {0, 100}}, 20);
  Helix helix;
  helix.bottomR1 = layout.pieces[0].id;
  layout.helices.push_back(helix);
  const Scene hidden = BuildScene(layout);
  EXPECT_TRUE(hidden.trackInstances.empty());
  EXPECT_TRUE(hidden.sceneryInstances.empty());
  EXPECT_TRUE(hidden.sceneMesh.positions.empty());
  EXPECT_TRUE(hidden.trackModels.empty());
  EXPECT_FALSE(hidden.framed);

  layout.levels[0].visible = true;
  const Scene shown = BuildScene(layout);
  EXPECT_EQ(shown.trackInstances.size(), 62U);
  EXPECT_EQ(shown.sceneryInstances.size(), 1U);
  // Two piers of 54 vertices, 13 posts of 20, a lid of 4 and three walls of 4.
  EXPECT_EQ(shown.sceneMesh.positions.size(), 2U * 54 + 13 * 20 + 4 + 3 * 4);
}

TEST(SceneLevels, ALevelThatCannotBeFoundIsVisibleAtHeight0) {
  Layout layout;
  AddLevel(layout, 1, 50.0, false);
  Lay(layout, "74636", {0, 0, 0}, 90, 77);
  AddItem(layout, "platform", 0, 0).level = 77;
  AddShape(layout, {{0, 0}, {100, 0}, {0, 100}}, 0.0, 77);
  const Scene scene = BuildScene(layout);
  EXPECT_EQ(scene.trackInstances.size(), 1U);
  ASSERT_EQ(scene.sceneryInstances.size(), 1U);
  EXPECT_EQ(scene.sceneryInstances[0].z, 0.0F);
  EXPECT_EQ(BoundsOf(scene.sceneMesh).low.z, 0.0F);
}

TEST(SceneScenery, StandsOnItsLevelWithYAndHeadingNegated) {
  Layout layout;
  AddLevel(layout, 1, 0.0);
  AddLevel(layout, 2, 80.0);
  SceneryItem& item = AddItem(layout, "platform", 100, 50, 45);
  item.level = 2;
  item.scalex = 2.0;
  item.scaley = 0.5;
  const Scene scene = BuildScene(layout);
  ASSERT_EQ(scene.sceneryInstances.size(), 1U);
  const SceneryInstance& platform = scene.sceneryInstances[0];
  EXPECT_EQ(platform.key, "platform");
  EXPECT_EQ(platform.x, 100.0F);
  EXPECT_EQ(platform.y, -50.0F);
  EXPECT_EQ(platform.z, 80.0F);
  EXPECT_EQ(platform.heading, -45.0F);
  // A platform is 230 by 60.
  EXPECT_EQ(platform.halfWidth, 115.0F);
  EXPECT_EQ(platform.halfDepth, 30.0F);
  EXPECT_EQ(platform.scaleX, 2.0F);
  EXPECT_EQ(platform.scaleY, 0.5F);
  // The model is made in the item's own size; the instance scales it.
  const Bounds bounds = BoundsOf(scene.sceneryModels.at("platform"));
  EXPECT_EQ(bounds.low.x, -115.0F);
  EXPECT_EQ(bounds.high.x, 115.0F);
  EXPECT_EQ(bounds.low.y, -30.0F);
  EXPECT_EQ(bounds.high.y, 30.0F);
}

TEST(SceneScenery, ThatIsUnknownIsLeftOutWithoutAWord) {
  Layout layout;
  AddItem(layout, "no such thing", 0, 0);
  const Scene scene = BuildScene(layout);
  EXPECT_TRUE(scene.sceneryInstances.empty());
  EXPECT_TRUE(scene.sceneryModels.empty());
  EXPECT_FALSE(scene.framed);
}

TEST(SceneFrame, OfASmallLayoutIsSeenFrom400) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 0});
  const Scene scene = BuildScene(layout);
  EXPECT_TRUE(scene.framed);
  // 188.3 x 1.8 = 338.94 would be nearer.
  EXPECT_EQ(scene.distance, 400.0F);
  EXPECT_NEAR(scene.centreX, 94.15F, 1e-3F);
  EXPECT_EQ(scene.centreY, 0.0F);
}

TEST(SceneFrame, TakesInEachPieceAndThePointItsLengthAhead) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "24188", {1000, 500, 90});
  const Scene scene = BuildScene(layout);
  // x from 0 to 1000, y from 0 down to -(500 + 188.3).
  EXPECT_NEAR(scene.centreX, 500.0F, 1e-3F);
  EXPECT_NEAR(scene.centreY, -344.15F, 1e-3F);
  EXPECT_NEAR(scene.distance, 1800.0F, 1e-2F);
}

TEST(SceneFrame, LooksAheadOfACurveAlongItsHeading) {
  Layout layout;
  Lay(layout, "24130", {0, 0, 0});
  // The far end lies at (180, 48.2), the arc's length of 188.496 straight ahead.
  EXPECT_NEAR(BuildScene(layout).centreX, 94.248F, 1e-3F);
  EXPECT_EQ(BuildScene(layout).centreY, 0.0F);
}

TEST(SceneFrame, TakesInSceneryFromItsPlaceByItsWidthAndDepth) {
  Layout layout;
  AddItem(layout, "platform", 1000, 400);
  const Scene scene = BuildScene(layout);
  EXPECT_TRUE(scene.framed);
  // x from 1000 to 1230, y from -400 to -340.
  EXPECT_EQ(scene.centreX, 1115.0F);
  EXPECT_EQ(scene.centreY, -370.0F);
  // 230 x 1.8 = 414.
  EXPECT_NEAR(scene.distance, 414.0F, 1e-3F);
}

TEST(SceneFrame, DoesNotSeeWhatIsHiddenNorShapesNorTheBaseboard) {
  Layout layout;
  AddLevel(layout, 2, 0.0, false);
  Lay(layout, "24188", {0, 0, 0});
  Lay(layout, "24188", {9000, 9000, 0}, 0, 2);
  AddShape(layout, {{-5000, 0}, {0, 0}, {0, 5000}}, 10);
  layout.baseboard = {{-5000, -5000}, {5000, -5000}, {5000, 5000}};
  EXPECT_EQ(BuildScene(layout).distance, 400.0F);
  layout.pieces.clear();
  EXPECT_FALSE(BuildScene(layout).framed);
}

TEST(SceneTrack, WithoutAPlaceIsLeftOut) {
  const double inf = std::numeric_limits<double>::infinity();
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), inf, -inf, 1e300, -2e9}) {
    Layout layout;
    Lay(layout, "74636", {bad, 0, 0}, 90);
    Lay(layout, "74636", {0, bad, 0}, 90);
    Lay(layout, "74636", {0, 0, 0}, bad);
    AddItem(layout, "platform", bad, 0);
    AddItem(layout, "platform", 0, bad);
    const Scene scene = BuildScene(layout);
    EXPECT_TRUE(scene.trackInstances.empty());
    EXPECT_TRUE(scene.sceneryInstances.empty());
    EXPECT_TRUE(scene.sceneMesh.positions.empty());
    EXPECT_FALSE(scene.framed);
  }
}

TEST(SceneTrack, WithAnAngleThatMeansNothingStandsAtAngle0) {
  const double inf = std::numeric_limits<double>::infinity();
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), inf, -inf, 1e300}) {
    Layout layout;
    Lay(layout, "74636", {0, 0, bad}, 90);
    layout.pieces[0].grade = bad;
    AddItem(layout, "platform", 0, 0, bad);
    const Scene scene = BuildScene(layout);
    ExpectFinite(scene);
    ASSERT_EQ(scene.trackInstances.size(), 1U);
    EXPECT_EQ(scene.trackInstances[0].heading, 0.0F);
    EXPECT_EQ(scene.trackInstances[0].grade, 0.0F);
    ASSERT_EQ(scene.sceneryInstances.size(), 1U);
    EXPECT_EQ(scene.sceneryInstances[0].heading, 0.0F);
  }
}

TEST(SceneTrack, KeepsAnAngleOfMoreThanATurn) {
  Layout layout;
  Lay(layout, "24188", {0, 0, 750});
  EXPECT_EQ(BuildScene(layout).trackInstances[0].heading, -750.0F);
}

TEST(SceneScenery, WithAScaleThatMeansNothingKeepsItsSize) {
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    Layout layout;
    SceneryItem& item = AddItem(layout, "platform", 0, 0);
    item.scalex = bad;
    item.scaley = bad;
    const Scene scene = BuildScene(layout);
    EXPECT_EQ(scene.sceneryInstances[0].scaleX, 1.0F);
    EXPECT_EQ(scene.sceneryInstances[0].scaleY, 1.0F);
  }
}

}  // namespace
}  // namespace vantrel
