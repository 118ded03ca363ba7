#include <gtest/gtest.h>

#include <map>
#include <string>

#include "catalog/track_catalog.h"
#include "tests/scene/mesh_support.h"
#include "tests/scene/track_colours.h"
#include "view3d/scene/structures.h"
#include "view3d/scene/track_models.h"

namespace vantrel {
namespace {

constexpr Rgb kBow{0.7F, 0.72F, 0.74F};
constexpr Rgb kChord{0.55F, 0.58F, 0.62F};
constexpr Rgb kBracing{0.62F, 0.65F, 0.68F};
constexpr Rgb kDeckTop{0.38F, 0.4F, 0.44F};
constexpr Rgb kSlabSide{0.42F, 0.44F, 0.48F};
constexpr Rgb kSlabTop{0.5F, 0.53F, 0.55F};

// Bars and straight boxes are 12 triangles each, in order; each must be closed and right side out.
void ExpectClosedSolids(const Mesh& mesh, std::size_t firstTriangle) {
  const auto triangles = TrianglesOf(mesh);
  ASSERT_EQ((triangles.size() - firstTriangle) % 12, 0U);
  for (std::size_t i = firstTriangle; i < triangles.size(); i += 12) {
    Mesh solid;
    for (std::size_t j = i; j < i + 12; ++j)
      AddTriangle(solid, triangles[j].corners, triangles[j].turn(), {});
    EXPECT_EQ(OpenEdges(solid), 0U) << "solid at triangle " << i;
    EXPECT_GT(SignedVolume(solid), 0.0) << "solid at triangle " << i;
  }
}

// Of the corners within `reach` of a point.
Bounds BoundsNear(const Mesh& mesh, Vec3f point, float reach) {
  Bounds bounds;
  for (const Vec3f& corner : mesh.positions)
    if (Length(corner - point) <= reach) bounds.takeIn(corner);
  return bounds;
}

Mesh Arch(float length) {
  Mesh mesh;
  AddArchBridge(mesh, length);
  return mesh;
}

Mesh Truss(float length) {
  Mesh mesh;
  AddTrussBridge(mesh, length);
  return mesh;
}

std::string StructureOf(const Model& model) {
  if (!PartIn(model, kDeckTop).empty()) return "arch";
  if (!PartIn(model, kSlabTop).empty()) return "ramp";
  return PartIn(model, kChord).empty() ? "none" : "truss";
}

TEST(ArchBridge, IsBuiltOfClosedSolids) {
  const Mesh mesh = Arch(360);
  ExpectClosed(mesh);
  ExpectClosedSolids(mesh, 0);
  // The deck; on each side a chord, 14 pieces of bow, 7 hangers and 16 bars of lattice; 8 braces.
  EXPECT_EQ(TriangleCount(mesh), (1U + 2 * (1 + 14 + 7 + 16) + 8) * 12);
}

TEST(ArchBridge, HasADeckUnderTheTrackBetweenTwoChords) {
  const Mesh mesh = Arch(360);
  ExpectBounds(PartIn(mesh, kDeckTop), {0, -24, 0}, {360, 24, 0});
  ExpectBounds(PartIn(mesh, kChord), {0, -32, -13}, {360, 32, -3});
}

TEST(ArchBridge, Rises99OverTheMiddleOfTheTrack) {
  for (const float length : {360.0F, 220.0F}) {
    const Mesh bow = PartIn(Arch(length), kBow);
    for (const float y : {27.0F, -27.0F}) {
      // Two bars meet there, each 8 thick: around the point at half of the length and z 99.
      const Bounds crown = BoundsNear(bow, {length / 2, y, 99}, 7.0F);
      EXPECT_NEAR((crown.low.x + crown.high.x) / 2, length / 2, 0.01F);
      EXPECT_NEAR((crown.low.y + crown.high.y) / 2, y, 0.01F);
      EXPECT_NEAR((crown.low.z + crown.high.z) / 2, 99.0F, 0.5F);
      EXPECT_NEAR(crown.high.z - crown.low.z, 8.0F, 1.0F);
      // Each foot, 8 thick around x 0 and z 0, stands in the chord whose top lies at z -3.
      for (const float x : {0.0F, length}) {
        const Bounds foot = BoundsNear(bow, {x, y, 0}, 8.0F);
        EXPECT_LT(foot.high.z, -3.0F);
        EXPECT_GT(foot.low.z, -13.0F);
        EXPECT_NEAR((foot.low.x + foot.high.x) / 2, x, 1.0F);
      }
    }
  }
}

TEST(ArchBridge, FollowsTheCosineWithItsBow) {
  // The fourth of fourteen pieces ends at t = 4/14, 51.43 degrees: x = (1 - cos 51.43) x 180
  // = 67.77, z = 99 sin 51.43 degrees = 77.40.
  const Mesh bow = PartIn(Arch(360), kBow);
  const Bounds joint = BoundsNear(bow, {67.77F, 27, 77.40F}, 7.0F);
  ASSERT_LT(joint.low.x, joint.high.x);
  EXPECT_NEAR((joint.low.x + joint.high.x) / 2, 67.77F, 0.6F);
  EXPECT_NEAR((joint.low.z + joint.high.z) / 2, 77.40F, 0.6F);
}

TEST(ArchBridge, HangsItsDeckFromTheBow) {
  // The middle one of seven, 3.6 thick: from z 2 to z 95.
  const Mesh upright = PartOf(Arch(360), [](const Triangle& t) {
    Bounds bounds;
    for (const Vec3f& corner : t.corners) bounds.takeIn(corner);
    return t.colour == kBracing && bounds.high.z - bounds.low.z > 90.0F;
  });
  EXPECT_EQ(TriangleCount(upright), 16U);
  ExpectBounds(upright, {178.2F, -28.8F, 2}, {181.8F, 28.8F, 95});
}

TEST(ArchBridge, LacesEightPanelsOnEachSide) {
  // The first panel ends at t = 1/8, the second has its middle at t = 3/16: x = (1 - cos 33.75
  // degrees) x 180 = 30.336, z = half of 99 sin 33.75 degrees = 27.501. Two bars meet there, 3
  // thick.
  const Mesh bracing = PartIn(Arch(360), kBracing);
  for (const float y : {27.0F, -27.0F}) {
    const Bounds joint = BoundsNear(bracing, {30.336F, y, 27.501F}, 2.2F);
    EXPECT_NEAR((joint.low.x + joint.high.x) / 2, 30.336F, 0.4F);
    EXPECT_NEAR((joint.low.y + joint.high.y) / 2, y, 0.01F);
  }
}

TEST(ArchBridge, BracesItsBowsAcrossEightTimes) {
  const Mesh across = PartOf(Arch(360), [](const Triangle& t) {
    Bounds bounds;
    for (const Vec3f& corner : t.corners) bounds.takeIn(corner);
    return t.colour == kBracing && bounds.high.y - bounds.low.y > 50.0F;
  });
  // Four long sides of two triangles each.
  EXPECT_EQ(TriangleCount(across), 8U * 8U);
  // From the first at x 0, z 0 to the last at x 360; half thickness 2.5. The highest are those at
  // t = 3/7 and 4/7: 99 sin 77.14 degrees = 96.52.
  ExpectBounds(across, {-2.5F, -27, -2.5F}, {362.5F, 27, 99.02F}, 0.01F);
}

TEST(TrussBridge, IsBuiltOfClosedSolids) {
  const Mesh mesh = Truss(180);
  ExpectClosed(mesh);
  ExpectClosedSolids(mesh, 0);
  // Two chords, two posts and 24 diagonals on each side.
  EXPECT_EQ(TriangleCount(mesh), 2U * 28 * 12);
  ExpectBounds(mesh, {-2.5F, -29.5F, -3.5F}, {182.5F, 29.5F, 44.5F});
}

TEST(TrussBridge, HasItsTopChordAt41AndItsBottomChordAt0) {
  const Mesh mesh = Truss(180);
  ExpectBounds(PartIn(mesh, kBow), {0, -29.5F, 37.5F}, {180, 29.5F, 44.5F});
  // With the end posts, half thickness 2.5, from 0 to 41.
  ExpectBounds(PartIn(mesh, kChord), {-2.5F, -29.5F, -3.5F}, {182.5F, 29.5F, 41});
}

TEST(TrussBridge, StandsOnAPostAtEachOfItsFourCorners) {
  const Mesh mesh = PartIn(Truss(180), kChord);
  for (const float x : {0.0F, 180.0F}) {
    for (const float y : {26.0F, -26.0F}) {
      const Bounds head = BoundsNear(mesh, {x, y, 41}, 4.0F);
      ExpectPoint(head.low, {x - 2.5F, y - 2.5F, 41});
      ExpectPoint(head.high, {x + 2.5F, y + 2.5F, 41});
    }
  }
}

TEST(TrussBridge, CrossesFourDiagonalsInEachOfSixPanels) {
  const Mesh bracing = PartIn(Truss(180), kBracing);
  EXPECT_EQ(TriangleCount(bracing), 2U * 24 * 12);
  for (int panel = 0; panel < 6; ++panel) {
    // Panels of 30 mm.
    const Vec3f middle{15.0F + 30.0F * static_cast<float>(panel), 26, 20.5F};
    const auto near = [&](Vec3f point) {
      return std::count_if(bracing.positions.begin(), bracing.positions.end(),
                           [&](Vec3f corner) { return Length(corner - point) < 2.6F; });
    };
    // Each bar has 4 corners at an end, and each corner belongs to 3 faces of 1 or 2 triangles: 18.
    EXPECT_EQ(near(middle), 4 * 18);
    EXPECT_GE(near(middle + Vec3f{-15, 0, -17.5F}), 18);
    EXPECT_GE(near(middle + Vec3f{15, 0, 17.5F}), 18);
  }
}

TEST(Ramp, IsASlabOf52UnderTheTrack) {
  Mesh mesh;
  AddRamp(mesh, StraightPath(0, 0, 110, 0, 5));
  ExpectClosed(mesh);
  ExpectBounds(PartIn(mesh, kSlabTop), {0, -26, 0}, {110, 26, 0});
  ExpectBounds(PartIn(mesh, kSlabSide), {0, -26, -3}, {110, 26, 0});
  // Four faces for each of five segments, and two ends; 14 posts and 12 bars of rail.
  EXPECT_EQ(TriangleCount(mesh), 44U + (14 + 12) * 12);
  ExpectClosedSolids(mesh, 44);
}

TEST(Ramp, HasSevenPostsOf3AlongEachSide) {
  Mesh mesh;
  AddRamp(mesh, StraightPath(0, 0, 120, 0, 6));
  const Mesh posts = PartIn(mesh, kChord);
  EXPECT_EQ(TriangleCount(posts), 14U * 12);
  ExpectBounds(posts, {-1.5F, -27.5F, 0}, {121.5F, 27.5F, 8});
  for (int i = 0; i <= 6; ++i) {
    for (const float y : {26.0F, -26.0F}) {
      // Stations of 20 mm.
      const Bounds post = BoundsNear(posts, {20.0F * static_cast<float>(i), y, 4}, 5.0F);
      ExpectPoint(post.low, {20.0F * static_cast<float>(i) - 1.5F, y - 1.5F, 0});
      ExpectPoint(post.high, {20.0F * static_cast<float>(i) + 1.5F, y + 1.5F, 8});
    }
  }
  // The rail is 2.1 thick and ends flush with the posts.
  ExpectBounds(PartIn(mesh, kBow), {0, -27.05F, 5.9F}, {120, 27.05F, 8});
}

TEST(Ramp, FollowsTheArc) {
  Mesh mesh;
  AddRamp(mesh, ArcPath(0, 360, 360, -90, 30, 12));
  ExpectClosed(mesh);
  ExpectClosedSolids(mesh, 12 * 8 + 4);
  const auto fromCircle = [](Vec3f point) {
    return Length(Vec3f{point.x, point.y - 360.0F, 0.0F}) - 360.0F;
  };
  for (const Vec3f& corner : PartIn(mesh, kSlabTop).positions)
    EXPECT_NEAR(std::abs(fromCircle(corner)), 26.0F, 0.01F);
  for (const Vec3f& corner : PartIn(mesh, kChord).positions)
    EXPECT_NEAR(std::abs(std::abs(fromCircle(corner)) - 26.0F), 1.5F, 0.1F);
}

TEST(Ramp, IsNothingWithoutAPath) {
  Mesh mesh;
  AddRamp(mesh, {});
  AddRamp(mesh, {PathPoint{}});
  EXPECT_TRUE(mesh.positions.empty());
}

TEST(BridgeParts, HaveTheStructureOfTheirPartNumber) {
  const std::map<std::string, std::string> expected{
      {"74636", "arch"},  {"7263", "arch"},  {"62636", "arch"},  {"8975", "arch"},
      {"74620", "truss"}, {"7262", "truss"}, {"62620", "truss"}, {"89759", "truss"},
      {"74623", "ramp"},  {"74613", "ramp"}, {"74618", "ramp"},  {"7569", "ramp"},
      {"7267", "ramp"},   {"62623", "ramp"}, {"62613", "ramp"},  {"8976", "ramp"},
      {"8977", "ramp"}};  // by its kind
  std::map<std::string, std::string> found;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    const std::string structure = StructureOf(makeTrackModel(def));
    if (def.isBridge || structure != "none") found[def.partNumber] = structure;
  }
  EXPECT_EQ(found, expected);
}

TEST(BridgeParts, OfKindCurveAlwaysGetTheRamp) {
  for (const char* part : {"74620", "74636", "unheard-of"}) {
    PieceDef def = *findPart("24130");
    def.partNumber = part;
    def.isBridge = true;
    EXPECT_EQ(StructureOf(makeTrackModel(def)), "ramp") << part;
  }
}

TEST(BridgeParts, AreArchesUnlessNamedOtherwise) {
  PieceDef def = *findPart("24188");
  def.isBridge = true;
  EXPECT_EQ(StructureOf(makeTrackModel(def)), "arch");
}

TEST(BridgeParts, HaveNoStructureOnOtherKindsOrWithoutTheFlag) {
  PieceDef turnout = *findPart("24611");
  turnout.isBridge = true;
  EXPECT_EQ(StructureOf(makeTrackModel(turnout)), "none");
  PieceDef plain = *findPart("74620");
  plain.isBridge = false;
  EXPECT_EQ(StructureOf(makeTrackModel(plain)), "none");
}

TEST(BridgeParts, CarryOneTrackStrip) {
  // 360 mm: 18 segments, 28 sleepers: 112 + 280 + 216 triangles; the arch has 85 solids of 12.
  EXPECT_EQ(TriangleCount(makeTrackModel(*findPart("74636"))), 608U + 85 * 12);
  // 188.3 mm: 306 triangles; the truss has 56 bars.
  EXPECT_EQ(TriangleCount(makeTrackModel(*findPart("74620"))), 306U + 56 * 12);
}

}  // namespace
}  // namespace vantrel
