#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/scene/scene_support.h"

namespace vantrel {
namespace {

const std::vector<Vec2> kSquare{{0, 0}, {100, 0}, {100, 100}, {0, 100}};
// A notch of 100 by 100 is cut out of its bottom side between x 100 and 200.
const std::vector<Vec2> kNotched{{0, 0},     {300, 0},   {300, 200}, {200, 200},
                                 {200, 100}, {100, 100}, {100, 200}, {0, 200}};

std::vector<Vec2> Reversed(std::vector<Vec2> vertices) {
  std::reverse(vertices.begin(), vertices.end());
  return vertices;
}

bool IsUpward(const Triangle& triangle) {
  return triangle.normals[0].z > 0.5F;
}

// Whether the shape in a plan with one covered piece at this place becomes a wire frame.
bool IsWired(const std::vector<Vec2>& vertices, Vec2 covered, std::int32_t pieceLevel = 1) {
  Layout layout;
  Cover(layout, {Lay(layout, "24188", {covered.x, covered.y, 0}, 0, pieceLevel)});
  AddShape(layout, vertices, 50);
  const Scene scene = BuildScene(layout);
  EXPECT_NE(scene.wireLines.empty(), scene.sceneMesh.positions.empty());
  return !scene.wireLines.empty();
}

TEST(SceneShape, IsAFanFromItsMiddleAtItsTop) {
  Layout layout;
  AddLevel(layout, 1, 30.0);
  Shape& shape = AddShape(layout, kSquare, 0.0);
  shape.r = 255;
  shape.g = 51;
  shape.b = 102;
  shape.a = 10;
  const Mesh mesh = BuildScene(layout).sceneMesh;
  ExpectSound(mesh);
  ASSERT_EQ(mesh.positions.size(), 5U);
  EXPECT_EQ(TriangleCount(mesh), 4U);
  EXPECT_EQ(mesh.positions[0], (Vec3f{50, -50, 30}));
  EXPECT_EQ(mesh.positions[2], (Vec3f{100, 0, 30}));
  EXPECT_EQ(mesh.positions[3], (Vec3f{100, -100, 30}));
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(mesh.normals[i], (Vec3f{0, 0, 1}));
    // 51 / 255 and 102 / 255; it isn't translucent.
    EXPECT_EQ(mesh.colors[i], (Rgb{1.0F, 0.2F, 0.4F}));
  }
  EXPECT_NEAR(AreaOf(mesh), 10'000.0, 1.0);
}

TEST(SceneShape, FanStartsAtTheMeanOfItsVertices) {
  Layout layout;
  AddShape(layout, {{0, 0}, {90, 0}, {0, 60}}, 0.0);
  EXPECT_EQ(BuildScene(layout).sceneMesh.positions[0], (Vec3f{30, -20, 0}));
}

TEST(SceneShape, OfHeightOneHalfHasNoWallsAndOneOf051HasThem) {
  Layout layout;
  AddShape(layout, kSquare, 0.5);
  EXPECT_EQ(TriangleCount(BuildScene(layout).sceneMesh), 4U);
  layout.shapes[0].height = 0.51;
  EXPECT_EQ(TriangleCount(BuildScene(layout).sceneMesh), 12U);
}

TEST(SceneShape, StandsOnItsLevelWithDarkerWalls) {
  Layout layout;
  AddLevel(layout, 1, 30.0);
  Shape& shape = AddShape(layout, kSquare, 50.0);
  shape.r = 255;
  shape.g = 51;
  shape.b = 0;
  const Mesh mesh = BuildScene(layout).sceneMesh;
  ExpectBounds(mesh, {0, -100, 30}, {100, 0, 80});
  const Mesh walls = PartOf(mesh, [](const Triangle& t) { return !IsUpward(t); });
  EXPECT_EQ(TriangleCount(walls), 8U);
  ExpectBounds(walls, {0, -100, 30}, {100, 0, 80});
  EXPECT_NEAR(AreaOf(walls), 4 * 100.0 * 50.0, 1.0);
  for (const Rgb& colour : walls.colors) {
    EXPECT_NEAR(colour.r, 0.7F, 1e-5F);
    EXPECT_NEAR(colour.g, 0.14F, 1e-5F);
    EXPECT_EQ(colour.b, 0.0F);
  }
  const Mesh lid = PartOf(mesh, IsUpward);
  EXPECT_EQ(BoundsOf(lid).low.z, 80.0F);
}

TEST(SceneShape, HasWallsThatFaceOutwardWhicheverWayItIsDrawn) {
  for (const std::vector<Vec2>& vertices : {kSquare, Reversed(kSquare)}) {
    Layout layout;
    AddShape(layout, vertices, 50.0);
    const Mesh mesh = BuildScene(layout).sceneMesh;
    ExpectSound(mesh);
    for (const Triangle& triangle : TrianglesOf(mesh)) {
      if (IsUpward(triangle)) continue;
      const Vec3f middle =
          (triangle.corners[0] + triangle.corners[1] + triangle.corners[2]) * (1.0F / 3.0F);
      EXPECT_GT(Dot(triangle.normals[0], middle - Vec3f{50, -50, middle.z}), 0.0F);
    }
  }
}

TEST(SceneShape, WithANotchHasWallsThatFaceIntoTheNotch) {
  for (const std::vector<Vec2>& vertices : {kNotched, Reversed(kNotched)}) {
    Layout layout;
    AddShape(layout, vertices, 50.0);
    const Mesh mesh = BuildScene(layout).sceneMesh;
    int inNotch = 0;
    for (const Triangle& triangle : TrianglesOf(mesh)) {
      const Vec3f middle =
          (triangle.corners[0] + triangle.corners[1] + triangle.corners[2]) * (1.0F / 3.0F);
      if (IsUpward(triangle) || middle.x < 99 || middle.x > 201 || middle.y > -99) continue;
      ++inNotch;
      // The notch's own middle is at (150, -150); its head's wall looks along minus y.
      EXPECT_GT(Dot(triangle.normals[0], Vec3f{150, -150, middle.z} - middle), 0.0F);
    }
    EXPECT_EQ(inNotch, 6);
  }
}

TEST(SceneShape, EdgeOfNoLengthHasAWallThatFacesNowhere) {
  Layout layout;
  AddShape(layout, {{0, 0}, {0, 0}, {100, 0}, {0, 100}}, 50.0);
  const Scene scene = BuildScene(layout);
  ExpectFinite(scene);
  // A centre and four corners, then four walls of four; the first lies between the equal corners.
  ASSERT_EQ(scene.sceneMesh.positions.size(), 21U);
  EXPECT_EQ(Length(scene.sceneMesh.normals[5]), 0.0F);
  EXPECT_NEAR(Length(scene.sceneMesh.normals[9]), 1.0F, 1e-6F);
}

TEST(SceneShape, OfFewerThanThreeVerticesIsLeftOut) {
  Layout layout;
  AddShape(layout, {{0, 0}, {100, 0}}, 50.0);
  AddShape(layout, {}, 50.0);
  EXPECT_TRUE(BuildScene(layout).sceneMesh.positions.empty());
}

TEST(SceneShape, OverATunnelsPieceOnItsLevelIsAWireFrame) {
  EXPECT_TRUE(IsWired(kSquare, {50, 50}));
  EXPECT_FALSE(IsWired(kSquare, {150, 50}));
}

TEST(SceneShape, OverATunnelsPieceOnAnotherLevelStaysFilled) {
  EXPECT_FALSE(IsWired(kSquare, {50, 50}, 2));
}

TEST(SceneShape, OverAPieceThatNoTunnelCoversStaysFilled) {
  Layout layout;
  Lay(layout, "24188", {50, 50, 0});
  Cover(layout, {Lay(layout, "24188", {500, 50, 0})});
  AddShape(layout, kSquare, 50);
  EXPECT_TRUE(BuildScene(layout).wireLines.empty());
}

TEST(SceneShape, IsWiredByWhatLiesInsideByTheEvenOddRule) {
  // In the notch, and beside it.
  EXPECT_FALSE(IsWired(kNotched, {150, 150}));
  EXPECT_TRUE(IsWired(kNotched, {50, 150}));
  EXPECT_TRUE(IsWired(kNotched, {250, 150}));
  EXPECT_TRUE(IsWired(kNotched, {150, 50}));
  // The middle of a star drawn in one stroke is outside, its points are inside.
  const std::vector<Vec2> star{{0, -100}, {59, 81}, {-95, -31}, {95, -31}, {-59, 81}};
  EXPECT_FALSE(IsWired(star, {0, 0}));
  EXPECT_TRUE(IsWired(star, {0, -80}));
}

TEST(SceneShape, IsWiredByAnyOfManyCoveredPieces) {
  Layout layout;
  std::vector<std::int32_t> covered;
  for (int i = 0; i < 200; ++i)
    covered.push_back(Lay(layout, "24188", {(i % 20) * 500.0, (i / 20) * 500.0, 0}));
  Cover(layout, covered);
  AddShape(layout, {{1450, 2450}, {1550, 2450}, {1550, 2550}, {1450, 2550}}, 50);
  AddShape(layout, {{1600, 2600}, {1900, 2600}, {1900, 2900}, {1600, 2900}}, 50);
  const Scene scene = BuildScene(layout);
  // The first lies over the piece at (1500, 2500), the second between four pieces.
  EXPECT_EQ(scene.wireLines.size(), 12U);
  EXPECT_EQ(scene.sceneMesh.positions.size(), 5U + 16);
}

TEST(SceneShape, AsAWireFrameHasItsEdgesAboveAndBelowAndItsVerticals) {
  Layout layout;
  AddLevel(layout, 1, 20.0);
  Cover(layout, {Lay(layout, "24188", {50, 50, 0})});
  Shape& shape = AddShape(layout, kSquare, 30.0);
  shape.r = 255;
  shape.g = 51;
  shape.b = 0;
  const Scene scene = BuildScene(layout);
  EXPECT_TRUE(scene.sceneMesh.positions.empty());
  ASSERT_EQ(scene.wireLines.size(), 12U);
  int above = 0;
  int below = 0;
  int upright = 0;
  for (const WireLine& line : scene.wireLines) {
    EXPECT_EQ(line.colour, (Rgb{1.0F, 0.2F, 0.0F}));
    if (line.from.z == 50.0F && line.to.z == 50.0F) ++above;
    if (line.from.z == 20.0F && line.to.z == 20.0F) ++below;
    if (line.from.z != line.to.z && line.from.x == line.to.x && line.from.y == line.to.y) ++upright;
    // An edge of the square is 100 long, a vertical 30.
    const float length = Length(line.to - line.from);
    EXPECT_TRUE(length == 100.0F || length == 30.0F);
  }
  EXPECT_EQ(above, 4);
  EXPECT_EQ(below, 4);
  EXPECT_EQ(upright, 4);
}

TEST(SceneShape, AsAFlatWireFrameHasOnlyItsOutline) {
  Layout layout;
  Cover(layout, {Lay(layout, "24188", {50, 50, 0})});
  AddShape(layout, kSquare, 0.5);
  const Scene scene = BuildScene(layout);
  ASSERT_EQ(scene.wireLines.size(), 4U);
  for (const WireLine& line : scene.wireLines) EXPECT_EQ(line.from.z, 0.5F);
  layout.shapes[0].height = 0.51;
  EXPECT_EQ(BuildScene(layout).wireLines.size(), 12U);
}

TEST(SceneShape, LosesTheCornersWithoutAPlace) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Layout layout;
  AddShape(layout, {{0, 0}, {nan, 5}, {100, 0}, {1e300, 0}, {100, 100}, {0, 100}}, 0.0);
  AddShape(layout, {{0, 0}, {nan, 5}, {100, 0}, {1, -1e300}}, 20.0);
  const Mesh mesh = BuildScene(layout).sceneMesh;
  ExpectSound(mesh);
  EXPECT_EQ(mesh.positions.size(), 5U);
  EXPECT_NEAR(AreaOf(mesh), 10'000.0, 1.0);
}

TEST(SceneShape, WithAHeightThatIsNoneIsFlat) {
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    Layout layout;
    AddShape(layout, kSquare, bad);
    const Mesh mesh = BuildScene(layout).sceneMesh;
    EXPECT_EQ(TriangleCount(mesh), 4U);
    EXPECT_EQ(BoundsOf(mesh).high.z, 0.0F);
  }
}

TEST(SceneShape, OnALevelWithoutAHeightStandsAt0) {
  Layout layout;
  AddLevel(layout, 1, std::numeric_limits<double>::infinity());
  AddShape(layout, kSquare, 10.0);
  ExpectBounds(BuildScene(layout).sceneMesh, {0, -100, 0}, {100, 0, 10});
}

}  // namespace
}  // namespace vantrel
