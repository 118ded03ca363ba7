// The drawings of the scenery: what is fixed to the millimetre, and what holds for all of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "catalog/scenery_catalog.h"

namespace vantrel {
namespace {

constexpr Rgba kNone{0, 0, 0, 0};

const std::vector<ScenePrimitive>& ArtOf(const char* id) {
  const SceneryDef* def = findScenery(id);
  static const std::vector<ScenePrimitive> nothing;
  EXPECT_NE(def, nullptr) << id;
  return def == nullptr ? nothing : def->primitives;
}

void ExpectBox(const ScenePrimitive& primitive, PrimitiveKind kind, std::array<double, 4> box) {
  EXPECT_EQ(primitive.kind, kind);
  EXPECT_NEAR(primitive.x, box[0], 1e-9);
  EXPECT_NEAR(primitive.y, box[1], 1e-9);
  EXPECT_NEAR(primitive.w, box[2], 1e-9);
  EXPECT_NEAR(primitive.h, box[3], 1e-9);
}

void ExpectColours(const ScenePrimitive& primitive, Rgba fill, Rgba stroke, int strokeWidth) {
  EXPECT_EQ(primitive.fill, fill);
  EXPECT_EQ(primitive.stroke, stroke);
  EXPECT_EQ(primitive.strokeWidth, strokeWidth);
}

TEST(SceneryArt, APlatformIsASlabWithAnEdgeStripeAndFiveJoints) {
  const std::vector<ScenePrimitive>& art = ArtOf("platform");
  ASSERT_EQ(art.size(), 7u);
  ExpectBox(art[0], PrimitiveKind::filledRectangle, {0, 0, 230, 60});
  ExpectColours(art[0], {180, 175, 170}, {120, 115, 110}, 1);
  ExpectBox(art[1], PrimitiveKind::filledRectangle, {0, 52, 230, 8});
  ExpectColours(art[1], {220, 200, 100}, kNone, 0);
  const double joints[] = {40, 80, 120, 160, 190};
  for (std::size_t i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    ExpectBox(art[2 + i], PrimitiveKind::line, {joints[i], 0, joints[i], 60});
    EXPECT_EQ(art[2 + i].fill, (Rgba{150, 140, 140, 80}));
    EXPECT_EQ(art[2 + i].strokeWidth, 1);
  }
}

TEST(SceneryArt, AnIslandPlatformHasTwoStripesABandJointsAndAShelter) {
  const std::vector<ScenePrimitive>& art = ArtOf("platform_island");
  ASSERT_GE(art.size(), 7u);
  ExpectBox(art[0], PrimitiveKind::filledRectangle, {0, 0, 460, 120});
  ExpectColours(art[0], {180, 175, 170}, {120, 115, 110}, 1);
  ExpectBox(art[1], PrimitiveKind::filledRectangle, {0, 0, 460, 8});
  ExpectColours(art[1], {220, 200, 100}, kNone, 0);
  ExpectBox(art[2], PrimitiveKind::filledRectangle, {0, 112, 460, 8});
  ExpectColours(art[2], {220, 200, 100}, kNone, 0);
  ExpectBox(art[3], PrimitiveKind::filledRectangle, {0, 54, 460, 12});
  // Joints every 40 mm, from 40 to 440.
  ASSERT_EQ(art.size(), 4u + 11u + 1u);
  for (std::size_t i = 4; i + 1 < art.size(); ++i) {
    const double x = 40.0 * static_cast<double>(i - 3);
    ExpectBox(art[i], PrimitiveKind::line, {x, 0, x, 120});
  }
  ExpectBox(art.back(), PrimitiveKind::outlinedRectangle, {115, 20, 230, 80});
  EXPECT_EQ(art.back().strokeWidth, 2);
  EXPECT_NE(art.back().stroke.a, 0);
}

constexpr Rgba kInk{20, 20, 20};
constexpr Rgba kWhite{255, 255, 255};
constexpr Rgba kGreen{60, 200, 80};
constexpr Rgba kRed{220, 40, 40};

// Size 20: 0.16 * 20 = 3.2 and 0.74 * 20 = 14.8; size 12: 1.92 and 8.88.
void ExpectDiscs(const std::vector<ScenePrimitive>& art, double size, double inset, double inner,
                 Rgba light) {
  ExpectBox(art[0], PrimitiveKind::filledEllipse, {0, 0, size, size});
  ExpectColours(art[0], kWhite, kInk, 1);
  ExpectBox(art[1], PrimitiveKind::filledEllipse, {inset, inset, inner, inner});
  ExpectColours(art[1], light, kInk, 1);
}

void ExpectLetters(const ScenePrimitive& text, const char* letters, double x, double y) {
  EXPECT_EQ(text.kind, PrimitiveKind::text);
  EXPECT_EQ(text.text, letters);
  EXPECT_NEAR(text.x, x, 1e-9);
  EXPECT_NEAR(text.y, y, 1e-9);
  EXPECT_EQ(text.h, 10.0);
  EXPECT_EQ(text.fill, kInk);
}

TEST(SceneryArt, ASemaphoreIsTwoDiscsAndSS) {
  for (const auto& [id, light] :
       {std::pair{"signal_semaphore_stop", kRed}, std::pair{"signal_semaphore_clear", kGreen}}) {
    SCOPED_TRACE(id);
    const std::vector<ScenePrimitive>& art = ArtOf(id);
    ASSERT_EQ(art.size(), 3u);
    ExpectDiscs(art, 20, 3.2, 14.8, light);
    ExpectLetters(art[2], "SS", 10, 8.4);
  }
}

TEST(SceneryArt, AColourLightAddsAPointerAndReadsSL) {
  for (const auto& [id, light] :
       {std::pair{"signal_color_stop", kRed}, std::pair{"signal_color_clear", kGreen}}) {
    SCOPED_TRACE(id);
    const std::vector<ScenePrimitive>& art = ArtOf(id);
    ASSERT_EQ(art.size(), 5u);
    ExpectDiscs(art, 20, 3.2, 14.8, light);
    EXPECT_EQ(art[2].kind, PrimitiveKind::polygon);
    ExpectColours(art[2], kInk, kInk, 1);
    ASSERT_EQ(art[2].points.size(), 3u);
    EXPECT_NEAR(art[2].points[0].x, 2.0, 1e-9);
    EXPECT_NEAR(art[2].points[0].y, 15.6, 1e-9);
    EXPECT_NEAR(art[2].points[1].x, 6.4, 1e-9);
    EXPECT_NEAR(art[2].points[1].y, 14.0, 1e-9);
    EXPECT_NEAR(art[2].points[2].x, 6.4, 1e-9);
    EXPECT_NEAR(art[2].points[2].y, 17.2, 1e-9);
    ExpectBox(art[3], PrimitiveKind::line, {6.4, 15.6, 11.0, 15.6});
    EXPECT_EQ(art[3].fill, kInk);
    EXPECT_EQ(art[3].strokeWidth, 1);
    ExpectLetters(art[4], "SL", 10, 8.4);
  }
}

TEST(SceneryArt, ASemaphoreForZIsDrawnAtSize12WithTheSameLetters) {
  for (const auto& [id, light] : {std::pair{"signal_z_semaphore_stop", kRed},
                                  std::pair{"signal_z_semaphore_clear", kGreen}}) {
    SCOPED_TRACE(id);
    const std::vector<ScenePrimitive>& art = ArtOf(id);
    ASSERT_EQ(art.size(), 3u);
    ExpectDiscs(art, 12, 1.92, 8.88, light);
    ExpectLetters(art[2], "SS", 6, 5.04);
  }
}

TEST(SceneryArt, AColourLightForZIsDrawnAtSize12WithTheSameLetters) {
  for (const auto& [id, light] :
       {std::pair{"signal_z_color_stop", kRed}, std::pair{"signal_z_color_clear", kGreen}}) {
    SCOPED_TRACE(id);
    const std::vector<ScenePrimitive>& art = ArtOf(id);
    ASSERT_EQ(art.size(), 5u);
    ExpectDiscs(art, 12, 1.92, 8.88, light);
    ASSERT_EQ(art[2].points.size(), 3u);
    EXPECT_NEAR(art[2].points[0].x, 1.2, 1e-9);
    EXPECT_NEAR(art[2].points[0].y, 9.36, 1e-9);
    EXPECT_NEAR(art[2].points[1].x, 3.84, 1e-9);
    EXPECT_NEAR(art[2].points[1].y, 8.4, 1e-9);
    EXPECT_NEAR(art[2].points[2].x, 3.84, 1e-9);
    EXPECT_NEAR(art[2].points[2].y, 10.32, 1e-9);
    ExpectBox(art[3], PrimitiveKind::line, {3.84, 9.36, 6.6, 9.36});
    ExpectLetters(art[4], "SL", 6, 5.04);
  }
}

// The points that span a primitive. A text counts by its centre: how wide it is depends on fonts.
std::vector<Vec2> Extremes(const ScenePrimitive& primitive) {
  switch (primitive.kind) {
    case PrimitiveKind::polygon:
      return primitive.points;
    case PrimitiveKind::line:
      return {{primitive.x, primitive.y}, {primitive.w, primitive.h}};
    case PrimitiveKind::text:
      return {{primitive.x, primitive.y}};
    default:
      return {{primitive.x, primitive.y}, {primitive.x + primitive.w, primitive.y + primitive.h}};
  }
}

TEST(SceneryArt, NothingLeavesItsFootprint) {
  constexpr double kRounding = 1e-9;
  for (const SceneryDef& def : sceneryCatalog()) {
    for (std::size_t i = 0; i < def.primitives.size(); ++i) {
      for (const Vec2& point : Extremes(def.primitives[i])) {
        EXPECT_GE(point.x, -kRounding) << def.id << " primitive " << i;
        EXPECT_LE(point.x, def.width + kRounding) << def.id << " primitive " << i;
        EXPECT_GE(point.y, -kRounding) << def.id << " primitive " << i;
        EXPECT_LE(point.y, def.depth + kRounding) << def.id << " primitive " << i;
      }
    }
  }
}

TEST(SceneryArt, EveryDrawingReachesAllFourSidesOfItsFootprint) {
  // What is selected and moved by its footprint should fill it; a tenth of the side may be
  // missing where roofs and crowns are irregular.
  for (const SceneryDef& def : sceneryCatalog()) {
    double left = def.width;
    double top = def.depth;
    double right = 0.0;
    double bottom = 0.0;
    for (const ScenePrimitive& primitive : def.primitives) {
      for (const Vec2& point : Extremes(primitive)) {
        left = std::min(left, point.x);
        top = std::min(top, point.y);
        right = std::max(right, point.x);
        bottom = std::max(bottom, point.y);
      }
    }
    EXPECT_LE(left, 0.1 * def.width) << def.id;
    EXPECT_LE(top, 0.1 * def.depth) << def.id;
    EXPECT_GE(right, 0.9 * def.width) << def.id;
    EXPECT_GE(bottom, 0.9 * def.depth) << def.id;
  }
}

bool InPalette(Rgba colour) {
  static constexpr Rgba kPalette[] = {
      {180, 175, 170}, {120, 115, 110}, {220, 200, 100}, {220, 200, 170}, {140, 80, 60},
      {100, 80, 60},   {160, 190, 220}, {100, 70, 40},   {100, 100, 100}, {240, 220, 0},
      {240, 240, 240}, {100, 160, 60},  {60, 130, 50},   {40, 100, 35},   {30, 90, 40},
      {200, 50, 40},   {160, 160, 160}, {180, 210, 230}, {150, 150, 155}, {0, 0, 0},
      {60, 60, 60},    {130, 130, 135}, {80, 100, 140},  {150, 110, 60},  {170, 165, 160}};
  return std::count(std::begin(kPalette), std::end(kPalette), colour) == 1;
}

bool IsOwnColour(const SceneryDef& def, Rgba colour) {
  if (def.category == kSignals)
    return colour == kInk || colour == kWhite || colour == kGreen || colour == kRed;
  if (def.category == kPlatforms) return colour == Rgba{150, 140, 140, 80};
  return false;
}

TEST(SceneryArt, EveryColourIsOneOfThePaletteOrTheItemsOwn) {
  for (const SceneryDef& def : sceneryCatalog()) {
    for (std::size_t i = 0; i < def.primitives.size(); ++i) {
      for (const Rgba& colour : {def.primitives[i].fill, def.primitives[i].stroke}) {
        if (colour == kNone) continue;
        EXPECT_TRUE(InPalette(colour) || IsOwnColour(def, colour))
            << def.id << " primitive " << i << ": " << int(colour.r) << ", " << int(colour.g)
            << ", " << int(colour.b) << ", " << int(colour.a);
      }
    }
  }
}

TEST(SceneryArt, EveryPrimitiveCanBeSeen) {
  for (const SceneryDef& def : sceneryCatalog()) {
    for (std::size_t i = 0; i < def.primitives.size(); ++i) {
      SCOPED_TRACE(def.id + " primitive " + std::to_string(i));
      const ScenePrimitive& primitive = def.primitives[i];
      const bool stroked = primitive.stroke.a != 0 && primitive.strokeWidth > 0;
      switch (primitive.kind) {
        case PrimitiveKind::filledRectangle:
        case PrimitiveKind::filledEllipse:
          EXPECT_NE(primitive.fill.a, 0);
          EXPECT_GT(primitive.w, 0.0);
          EXPECT_GT(primitive.h, 0.0);
          break;
        case PrimitiveKind::polygon:
          EXPECT_NE(primitive.fill.a, 0);
          EXPECT_GE(primitive.points.size(), 3u);
          break;
        case PrimitiveKind::outlinedRectangle:
        case PrimitiveKind::outlinedEllipse:
          EXPECT_TRUE(stroked);
          break;
        case PrimitiveKind::line:
          EXPECT_NE(primitive.fill.a, 0);
          EXPECT_GT(primitive.strokeWidth, 0);
          break;
        case PrimitiveKind::text:
          EXPECT_FALSE(primitive.text.empty());
          EXPECT_GT(primitive.h, 0.0);
          break;
      }
    }
  }
}

}  // namespace
}  // namespace vantrel
