// Which of the pieces, helices and scenery items under the pointer is hit.
#include <gtest/gtest.h>

#include <limits>

#include "canvas/operations/hit_test.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

// A pixel is a millimetre.
constexpr ViewTransform kOnePixelPerMm{.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0};

void AddLevel(Layout& layout, std::int32_t id, double height, bool visible = true) {
  Level level;
  level.id = id;
  level.height = height;
  level.visible = visible;
  layout.levels.push_back(level);
}

std::int32_t LayPieceOn(Layout& layout, std::string_view part, const Pose& pose,
                        std::int32_t level) {
  const std::int32_t id = LayPiece(layout, part, pose);
  layout.pieces.back().level = level;
  return id;
}

std::int32_t SetScenery(Layout& layout, std::string_view key, const Pose& pose,
                        std::int32_t level = 1) {
  SceneryItem item;
  item.id = TakeId(layout);
  item.item = std::string(key);
  item.x = pose.x;
  item.y = pose.y;
  item.heading = pose.heading;
  item.level = level;
  layout.scenery.push_back(item);
  return item.id;
}

Helix& AddHelix(Layout& layout, std::int32_t id) {
  Helix helix;
  helix.id = id;
  helix.cx = 500.0;
  helix.cy = 500.0;
  layout.helices.push_back(helix);
  return layout.helices.back();
}

TEST(HitTestPiece, TakesTheHigherDeckWhateverIsNearer) {
  // The two cross at (100, 100): 50 mm from the origin of the lower, 100 from that of the upper.
  for (const bool upperFirst : {false, true}) {
    Layout layout;
    AddLevel(layout, 1, 0.0);
    AddLevel(layout, 2, 100.0);
    std::int32_t upper = kNone;
    if (upperFirst) upper = LayPieceOn(layout, "24188", {0.0, 100.0, 0.0}, 2);
    LayPieceOn(layout, "24188", {100.0, 50.0, 90.0}, 1);
    if (!upperFirst) upper = LayPieceOn(layout, "24188", {0.0, 100.0, 0.0}, 2);
    EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {100, 100}), upper);
  }
}

TEST(HitTestPiece, TakesTheOriginNearerToThePointerOnOneDeck) {
  for (const bool nearFirst : {false, true}) {
    Layout layout;
    AddLevel(layout, 1, 0.0);
    std::int32_t nearer = kNone;
    if (nearFirst) nearer = LayPiece(layout, "24188", {100.0, 50.0, 90.0});
    LayPiece(layout, "24188", {0.0, 100.0, 0.0});
    if (!nearFirst) nearer = LayPiece(layout, "24188", {100.0, 50.0, 90.0});
    EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {100, 100}), nearer);
  }
}

TEST(HitTestPiece, TakesTheLaterOfTwoThatLieAlike) {
  Layout layout;
  LayPiece(layout, "24188", {});
  const std::int32_t later = LayPiece(layout, "24188", {});
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 0}), later);
}

TEST(HitTestPiece, TakesDecksWithinAThousandthOfAMillimetreForOne) {
  for (const bool upperFirst : {false, true}) {
    for (const double gap : {0.001, 0.0011}) {
      Layout layout;
      AddLevel(layout, 1, 0.0);
      AddLevel(layout, 2, gap);
      std::int32_t upper = kNone;
      if (upperFirst) upper = LayPieceOn(layout, "24188", {0.0, 100.0, 0.0}, 2);
      const std::int32_t nearer = LayPieceOn(layout, "24188", {100.0, 50.0, 90.0}, 1);
      if (!upperFirst) upper = LayPieceOn(layout, "24188", {0.0, 100.0, 0.0}, 2);
      EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {100, 100}), gap > 0.001 ? upper : nearer);
    }
  }
}

// At 0.01 pixels a millimetre the origins 0 and 40 are both pixel 0; the pointer stands at 100 mm.
TEST(HitTestPiece, MeasuresTheDistanceInWholePixels) {
  constexpr ViewTransform far{.scale = 0.01, .offsetX = 0.0, .offsetY = 0.0};
  Layout layout;
  LayPiece(layout, "24188", {40.0, 0.0, 0.0});
  const std::int32_t later = LayPiece(layout, "24188", {});
  EXPECT_EQ(hitTestPiece(layout, far, {1, 0}), later);
}

TEST(HitTestPiece, TakesThePointThroughTheView) {
  // Pixel (60 + 0.5 * 300, 40 + 0.5 * 200) is (300, 200) mm.
  constexpr ViewTransform view{.scale = 0.5, .offsetX = 60.0, .offsetY = 40.0};
  Layout layout;
  const std::int32_t id = LayPiece(layout, "24188", {300.0, 200.0, 0.0});
  EXPECT_EQ(hitTestPiece(layout, view, {210, 140}), id);
  EXPECT_EQ(hitTestPiece(layout, view, {210, 150}), id) << "20 mm beside it";
  EXPECT_EQ(hitTestPiece(layout, view, {210, 151}), kNone) << "22 mm beside it";
}

TEST(HitTestPiece, PassesOverHiddenLevelsAndFindsWhatLiesBeneath) {
  Layout layout;
  AddLevel(layout, 1, 0.0);
  AddLevel(layout, 2, 100.0, false);
  const std::int32_t below = LayPieceOn(layout, "24188", {}, 1);
  LayPieceOn(layout, "24188", {}, 2);
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 0}), below);
  layout.levels[0].visible = false;
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 0}), kNone);
}

TEST(HitTestPiece, CountsAPieceWithoutALevelAsVisibleAtHeight0) {
  Layout layout;
  AddLevel(layout, 1, -50.0);
  AddLevel(layout, 2, 50.0);
  const std::int32_t stray = LayPieceOn(layout, "24188", {}, 99);
  LayPieceOn(layout, "24188", {}, 1);
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 0}), stray);
  const std::int32_t upper = LayPieceOn(layout, "24188", {}, 2);
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 0}), upper);
}

TEST(HitTestPiece, CantHitAPartThatTheCatalogDoesntKnow) {
  Layout layout;
  LayPiece(layout, "no such part", {});
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {0, 0}), kNone);
}

TEST(HitTestPiece, GivesNoneForAnEmptyPlanAndBesideEverything) {
  Layout layout;
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {0, 0}), kNone);
  LayPiece(layout, "24188", {});
  EXPECT_EQ(hitTestPiece(layout, kOnePixelPerMm, {50, 21}), kNone);
}

// The default kit has rings at 360 and 437.5 mm: 335 to 385 and 412.5 to 462.5.
TEST(HitTestHelix, FindsAHelixOnItsTwoRings) {
  Layout layout;
  AddHelix(layout, 7);
  for (const int d : {335, 360, 385, 413, 437, 462}) {
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500 + d, 500}), 7) << d;
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500, 500 - d}), 7) << d;
  }
  for (const int d : {0, 334, 386, 412, 463}) {
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500 + d, 500}), kNone) << d;
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500, 500 - d}), kNone) << d;
  }
}

// Rings at 579.3 and 643.6 mm: 554.3 to 604.3 and 618.6 to 668.6.
TEST(HitTestHelix, TakesTheRadiiFromTheKit) {
  Layout layout;
  AddHelix(layout, 7).variant = "proses_2_5_r4r5";
  for (const int d : {555, 604, 619, 668})
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500 + d, 500}), 7) << d;
  for (const int d : {360, 554, 605, 618, 669})
    EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {500 + d, 500}), kNone) << d;
  layout.helices[0].variant = "no such kit";
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 7);
}

TEST(HitTestHelix, IsOnTheLevelOfItsFirstPiece) {
  Layout layout;
  AddLevel(layout, 1, 0.0);
  AddLevel(layout, 2, 0.0, false);
  AddHelix(layout, 7);
  LayPieceOn(layout, "24188", {}, 1);
  layout.pieces.back().helix = 7;
  LayPieceOn(layout, "24188", {}, 2);
  layout.pieces.back().helix = 7;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 7);
  std::swap(layout.pieces[0], layout.pieces[1]);
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), kNone);
}

TEST(HitTestHelix, IsOnLevel1WithoutAnyPiece) {
  Layout layout;
  AddLevel(layout, 1, 0.0, false);
  AddHelix(layout, 7);
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), kNone);
  layout.levels[0].visible = true;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 7);
}

TEST(HitTestHelix, TakesTheHigherAndOfEqualsTheEarlier) {
  Layout layout;
  AddLevel(layout, 1, 10.0);
  AddLevel(layout, 2, 10.001);
  AddLevel(layout, 3, -10.0);
  AddHelix(layout, 7);
  AddHelix(layout, 8);
  LayPieceOn(layout, "24188", {}, 1);
  layout.pieces[0].helix = 7;
  LayPieceOn(layout, "24188", {}, 2);
  layout.pieces[1].helix = 8;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 7) << "0.001 mm is no difference";
  layout.levels[1].height = 10.1;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 8);
  // A level that doesn't exist counts as height 0: below 10, above -10.
  layout.pieces[1].level = 99;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 7);
  layout.pieces[0].level = 3;
  EXPECT_EQ(hitTestHelix(layout, kOnePixelPerMm, {860, 500}), 8);
}

TEST(HitTestPieceOrHelix, StandsForTheBottomStubOnARingWithoutAPiece) {
  Layout layout;
  AddHelix(layout, 7).bottomR1 = 41;
  EXPECT_EQ(hitTestPieceOrHelix(layout, kOnePixelPerMm, {860, 500}), 41);
  EXPECT_EQ(hitTestPieceOrHelix(layout, kOnePixelPerMm, {500, 500}), kNone);
  const std::int32_t piece = LayPiece(layout, "24188", {850.0, 500.0, 0.0});
  EXPECT_EQ(hitTestPieceOrHelix(layout, kOnePixelPerMm, {860, 500}), piece);
}

// A platform is 230 by 60 mm about its position: 115 + 3 and 30 + 3.
TEST(HitTestScenery, AllowsAnItem3MmAroundItsFootprint) {
  Layout layout;
  const std::int32_t id = SetScenery(layout, "platform", {500.0, 500.0, 0.0});
  for (const DevicePoint point :
       {DevicePoint{618, 500}, {382, 500}, {500, 533}, {500, 467}, {618, 533}})
    EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, point), id) << point.x << ", " << point.y;
  for (const DevicePoint point : {DevicePoint{619, 500}, {381, 500}, {500, 534}, {500, 466}})
    EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, point), kNone) << point.x << ", " << point.y;
}

TEST(HitTestScenery, TurnsAndScalesWithTheItem) {
  Layout layout;
  const std::int32_t id = SetScenery(layout, "platform", {500.0, 500.0, 90.0});
  layout.scenery[0].scalex = 2.0;  // 230 + 3, along world y now
  layout.scenery[0].scaley = 0.5;  // 15 + 3, along world x
  // Not on the last millimetre: the cosine of 90 degrees is not quite 0.
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {517, 732}), id);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {519, 500}), kNone);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {500, 734}), kNone);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {483, 268}), id);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {481, 500}), kNone);
}

TEST(HitTestScenery, TakesTheHigherDeckAndOfEqualsTheLater) {
  Layout layout;
  AddLevel(layout, 1, 0.0);
  AddLevel(layout, 2, 100.0);
  AddLevel(layout, 3, 100.0005);
  SetScenery(layout, "platform", {}, 1);
  const std::int32_t later = SetScenery(layout, "platform", {}, 1);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {0, 0}), later);
  layout.scenery[0].level = 2;
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {0, 0}), layout.scenery[0].id);
  layout.scenery[1].level = 2;
  layout.scenery[0].level = 3;
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {0, 0}), later) << "less than 0.001 mm higher";
}

TEST(HitTestScenery, PassesOverHiddenAndUnknownItems) {
  Layout layout;
  AddLevel(layout, 1, 0.0, false);
  SetScenery(layout, "platform", {}, 1);
  SetScenery(layout, "no such item", {}, 2);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {0, 0}), kNone);
  const std::int32_t stray = SetScenery(layout, "platform", {}, 2);
  EXPECT_EQ(hitTestScenery(layout, kOnePixelPerMm, {0, 0}), stray) << "level 2 doesn't exist";
}

TEST(HitTests, SurviveAnyNumbersInThePlanAndInTheView) {
  const double wild[] = {0.0, -1.0, 1e-300, 1e300, -1e300, kNaN, kInf, -kInf};
  const DevicePoint corners[] = {
      {0, 0},
      {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()},
      {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}};
  for (const double a : wild) {
    for (const double b : wild) {
      Layout layout;
      AddLevel(layout, 1, b);
      AddLevel(layout, 1, a);
      for (const char* part : {"24188", "24130", "2269", "74861"})
        LayPiece(layout, part, {a, b, a});
      layout.pieces[0].helix = 7;
      Helix& helix = AddHelix(layout, 7);
      helix.cx = a;
      helix.cy = b;
      SetScenery(layout, "platform", {b, a, b});
      layout.scenery[0].scalex = a;
      layout.scenery[0].scaley = b;
      const ViewTransform view{.scale = a, .offsetX = b, .offsetY = a};
      for (const DevicePoint point : corners) {
        const std::int32_t piece = hitTestPiece(layout, view, point);
        EXPECT_TRUE(piece == kNone || FindPiece(layout, piece) != nullptr);
        const std::int32_t found = hitTestHelix(layout, view, point);
        EXPECT_TRUE(found == kNone || found == 7);
        const std::int32_t item = hitTestScenery(layout, view, point);
        EXPECT_TRUE(item == kNone || item == layout.scenery[0].id);
        EXPECT_LT(hitTestScaleHandle(layout.scenery[0], view, point), 8);
      }
    }
  }
}

}  // namespace
}  // namespace vantrel
