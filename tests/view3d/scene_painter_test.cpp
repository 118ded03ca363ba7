#include "view3d/scene_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "tests/view3d/view_fixture.h"
#include "view3d/gl_headers.h"

namespace vantrel {
namespace {

// A box of one colour, from the table up, in the view's frame and around (0, 0).
Model Box(float width, float depth, float height, Rgb colour) {
  Model model;
  AddBox(model, {0.0F, 0.0F, 0.0F}, {width, depth, height}, {colour, colour}, {width, depth});
  return model;
}

struct Blob {
  int pixels = 0;
  double x = 0.0;  // the middle of them, from the left and from below
  double y = 0.0;
};

// Paints into the back buffer of a context of its own, and looks at what came out.
class Painter : public testing::Test {
 protected:
  static constexpr PaintSize kSize{400, 300};

  Painter() {
    frame_ = new wxFrame(nullptr, wxID_ANY, "painter");
    frame_->SetClientSize(kSize.width, kSize.height);
    canvas_ = new wxGLCanvas(frame_, attributes());
    context_ = std::make_unique<wxGLContext>(canvas_);
    frame_->Show();
    PumpUntil([this] { return canvas_->IsShownOnScreen(); });
    WaitForPaint(*canvas_);
    ready_ = canvas_->SetCurrent(*context_);
    SetUpPainting();
  }
  ~Painter() override {
    context_.reset();
    delete frame_;
  }

  static wxGLAttributes attributes() {
    wxGLAttributes wanted;
    wanted.PlatformDefaults().RGBA().DoubleBuffer().Depth(24).EndList();
    return wanted;
  }

  // From above, without perspective's tilt: north is up, and the plan is 1:1 at this distance.
  static Camera fromAbove() { return {.pitch = 0.0F, .yaw = 0.0F, .distance = 500.0F}; }

  void paint(const Scene& scene, const Camera& camera, PaintSize size = kSize) {
    PaintScene(scene, camera, size);
    pixels_.resize(static_cast<std::size_t>(kSize.width) * kSize.height * 3);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, kSize.width, kSize.height, GL_RGB, GL_UNSIGNED_BYTE, pixels_.data());
  }

  // The pixels in which one channel (0 red, 1 green, 2 blue) stands out.
  Blob blob(int channel) const {
    Blob found;
    for (int y = 0; y < kSize.height; ++y)
      for (int x = 0; x < kSize.width; ++x) {
        const unsigned char* pixel = &pixels_[(static_cast<std::size_t>(y) * kSize.width + x) * 3];
        const int value = pixel[channel];
        if (value < pixel[(channel + 1) % 3] + 90 || value < pixel[(channel + 2) % 3] + 90)
          continue;
        ++found.pixels;
        found.x += x;
        found.y += y;
      }
    if (found.pixels == 0) return found;
    found.x = found.x / found.pixels - kSize.width / 2.0;
    found.y = found.y / found.pixels - kSize.height / 2.0;
    return found;
  }

  static Scene sceneWith(const Mesh& mesh) {
    Scene scene;
    scene.sceneMesh = mesh;
    return scene;
  }

  wxFrame* frame_ = nullptr;
  wxGLCanvas* canvas_ = nullptr;
  std::unique_ptr<wxGLContext> context_;
  bool ready_ = false;
  std::vector<unsigned char> pixels_;
};

constexpr Rgb kRed{1.0F, 0.0F, 0.0F};
constexpr Rgb kGreen{0.0F, 1.0F, 0.0F};
constexpr Rgb kBlue{0.0F, 0.0F, 1.0F};

TEST_F(Painter, ClearsToItsOwnDark) {
  paint({}, fromAbove());
  ASSERT_TRUE(ready_);
  // Beside the lines of the grid.
  const unsigned char* corner = &pixels_[(5 * kSize.width + 5) * 3];
  EXPECT_EQ(corner[0], 36);
  EXPECT_EQ(corner[1], 41);
  EXPECT_EQ(corner[2], 48);
}

TEST_F(Painter, PutsTheCentreOfTheSceneInTheMiddle) {
  Mesh mesh = Box(60.0F, 60.0F, 10.0F, kRed);
  for (Vec3f& point : mesh.positions) point = {point.x + 900.0F, point.y - 400.0F, point.z};
  Camera camera = fromAbove();
  camera.centreX = 900.0F;
  camera.centreY = -400.0F;
  paint(sceneWith(mesh), camera);
  EXPECT_GT(blob(0).pixels, 400);
  EXPECT_NEAR(blob(0).x, 0.0, 1.0);
  EXPECT_NEAR(blob(0).y, 0.0, 1.0);
}

TEST_F(Painter, LooksThroughFortyDegrees) {
  // Half the height, 150 pixels, is 500 times the tangent of 20 degrees: 182 mm. So 61 mm are
  // about 50 pixels, seen 500 mm away.
  Mesh mesh;
  AddQuad(mesh,
          {Vec3f{-30.5F, -30.5F, 0}, Vec3f{30.5F, -30.5F, 0}, Vec3f{30.5F, 30.5F, 0},
           Vec3f{-30.5F, 30.5F, 0}},
          {0, 0, 1}, kRed);
  paint(sceneWith(mesh), fromAbove());
  EXPECT_NEAR(blob(0).pixels, 2500, 120);
}

TEST_F(Painter, StandingThingsPointUpAtTheStartingPitch) {
  Mesh mesh = Box(30.0F, 30.0F, 60.0F, kRed);
  const Mesh top = Box(30.0F, 30.0F, 60.0F, kGreen);
  // The green box floats above the red one.
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (std::size_t i = 0; i < top.positions.size(); ++i) {
    mesh.positions.push_back({top.positions[i].x, top.positions[i].y, top.positions[i].z + 60.0F});
    mesh.normals.push_back(top.normals[i]);
    mesh.colors.push_back(top.colors[i]);
  }
  for (const std::uint32_t index : top.indices) mesh.indices.push_back(first + index);
  paint(sceneWith(mesh), Camera{.distance = 500.0F});
  ASSERT_GT(blob(0).pixels, 100);
  ASSERT_GT(blob(1).pixels, 100);
  EXPECT_GT(blob(1).y, blob(0).y + 15.0);
}

TEST_F(Painter, ThePlansFarSideIsUpAndItsRightIsRight) {
  Mesh mesh;
  AddBox(mesh, {0, 0, 0}, {30, 30, 5}, {kRed, kRed}, {30, -170});    // item y 0: view y -85
  AddBox(mesh, {0, 0, 0}, {30, 30, 5}, {kBlue, kBlue}, {-170, 30});  // item x 0: view x 85
  paint(sceneWith(mesh), Camera{.pitch = 35.0F, .yaw = 0.0F, .distance = 500.0F});
  EXPECT_LT(blob(0).y, -30.0);
  EXPECT_GT(blob(2).x, 30.0);
}

TEST_F(Painter, YawTurnsThePlanCounterclockwise) {
  Mesh mesh;
  AddBox(mesh, {0, 0, 0}, {30, 30, 5}, {kBlue, kBlue}, {-170, 30});
  Camera camera = fromAbove();
  camera.yaw = 90.0F;
  paint(sceneWith(mesh), camera);
  EXPECT_NEAR(blob(2).x, 0.0, 2.0);
  EXPECT_GT(blob(2).y, 60.0);
}

TEST_F(Painter, PanMovesThePlan) {
  Camera camera = fromAbove();
  camera.panX = 50.0F;
  camera.panY = 30.0F;
  paint(sceneWith(Box(20.0F, 20.0F, 1.0F, kRed)), camera);
  // 150 / 182 pixels per mm.
  EXPECT_NEAR(blob(0).x, 41.2, 1.5);
  EXPECT_NEAR(blob(0).y, 24.7, 1.5);
}

TEST_F(Painter, WithoutAClientAreaTheProjectionStaysAndThePaintRuns) {
  paint({}, fromAbove());
  std::array<int, 4> viewport{};
  std::array<float, 16> projection{};
  glGetIntegerv(GL_VIEWPORT, viewport.data());
  glGetFloatv(GL_PROJECTION_MATRIX, projection.data());
  glClearColor(1.0F, 0.0F, 0.0F, 1.0F);
  for (const PaintSize size : {PaintSize{0, 300}, PaintSize{400, 0}, PaintSize{0, 0}}) {
    Camera camera = fromAbove();
    camera.distance = 9999.0F;
    PaintScene({}, camera, size);
    std::array<int, 4> viewportAfter{};
    std::array<float, 16> projectionAfter{};
    glGetIntegerv(GL_VIEWPORT, viewportAfter.data());
    glGetFloatv(GL_PROJECTION_MATRIX, projectionAfter.data());
    EXPECT_EQ(viewportAfter, viewport);
    EXPECT_EQ(projectionAfter, projection);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  }
  // It has cleared to the colour that came in between.
  std::array<unsigned char, 3> corner{};
  glReadPixels(5, 5, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, corner.data());
  EXPECT_EQ(corner[0], 255);
}

TEST_F(Painter, TrackModelsAreMirroredTurnedAndTilted) {
  Scene scene;
  // In the piece's frame the box lies ahead of the origin and to y 40, down on the canvas.
  Mesh& model = scene.trackModels["part"];
  AddBox(model, {0, 0, 0}, {20, 20, 5}, {kRed, kRed}, {-180, 100});  // at (100, 40)
  const float x = 100.0F;
  Vec3f low{1e9F, 1e9F, 0};
  for (const Vec3f& p : model.positions) low = {std::min(low.x, p.x), std::min(low.y, p.y), 0};
  ASSERT_EQ(low.x, x - 10.0F);
  ASSERT_EQ(low.y, 30.0F);
  scene.trackInstances.push_back({.key = "part"});
  paint(scene, fromAbove());
  EXPECT_NEAR(blob(0).x, 82.4, 2.0);
  EXPECT_NEAR(blob(0).y, -33.0, 2.0);
  scene.trackInstances[0].heading = 90.0F;  // (100, -40) becomes (40, 100)
  paint(scene, fromAbove());
  EXPECT_NEAR(blob(0).x, 33.0, 2.0);
  EXPECT_NEAR(blob(0).y, 82.4, 2.0);
}

TEST_F(Painter, AGradeRaisesTheFarEndAndRevTheNearOne) {
  Scene scene;
  AddBox(scene.trackModels["part"], {0, 0, 0}, {20, 20, 5}, {kRed, kRed}, {-180, 20});  // at x 100
  scene.trackInstances.push_back({.key = "part", .grade = 30.0F});
  // From the side: what is higher is farther up.
  const Camera side{.pitch = 89.0F, .yaw = 0.0F, .distance = 500.0F};
  paint(scene, side);
  EXPECT_NEAR(blob(0).y, 43.0, 4.0);  // 50 mm and half of the box's height
  scene.trackInstances[0].rev = true;
  paint(scene, side);
  EXPECT_NEAR(blob(0).y, -39.0, 4.0);
}

// A row of 15 straights across the view, 2824.5 mm, with the camera on its middle; far away from
// the floor's grid and axes.
struct LongRow {
  Scene scene;
  Camera camera;
};

LongRow RowSeenFrom(float distance) {
  Layout layout;
  for (int i = 0; i < 15; ++i) {
    Piece piece;
    piece.id = i + 1;
    piece.cat = "24188";
    piece.x = 6000.0 + 188.3 * i;
    piece.y = -6000.0;
    layout.pieces.push_back(piece);
  }
  LongRow row{BuildScene(layout), {.pitch = 35.0F, .yaw = 20.0F, .distance = distance}};
  row.camera.centreX = 7412.25F;
  row.camera.centreY = 6000.0F;
  return row;
}

TEST_F(Painter, FarSleepersDontShimmer) {
  // At 3500 mm a pixel is 3500 times 2 tan 20 degrees / 300 = 8.5 mm: sleepers lie 1.5 pixels
  // apart, and the row is at most 333 pixels long, with an edge on either side. Each turn moves its
  // ends, 167 pixels from the middle, by 167 times 0.000599 = 0.1 pixels. An edge that moves 0.1
  // pixels at its ends, 0.05 on the average, changes that share of its pixels: 2 x 333 x 0.05 = 33,
  // beside those of the two ends, 2 x 4. Whatever else changes much shimmers.
  LongRow row = RowSeenFrom(3500.0F);
  constexpr int kTurns = 10;
  constexpr float kTurnDegrees = 0.0343F;
  int jumps = 0;
  paint(row.scene, row.camera);
  ASSERT_TRUE(ready_);
  for (int turn = 0; turn < kTurns; ++turn) {
    const std::vector<unsigned char> before = pixels_;
    row.camera.yaw += kTurnDegrees;
    paint(row.scene, row.camera);
    for (std::size_t i = 0; i < pixels_.size(); i += 3) {
      int most = 0;
      for (std::size_t channel = i; channel < i + 3; ++channel)
        most = std::max(most, std::abs(pixels_[channel] - before[channel]));
      jumps += most > 64 ? 1 : 0;
    }
  }
  EXPECT_LE(jumps, kTurns * 41);
}

TEST_F(Painter, NearSleepersAreThere) {
  // At 700 mm sleepers lie 7.6 pixels apart. Nothing but a sleeper is as dark and as brown.
  const LongRow row = RowSeenFrom(700.0F);
  const auto brown = [this] {
    int count = 0;
    for (std::size_t i = 0; i < pixels_.size(); i += 3)
      count += pixels_[i] > pixels_[i + 2] + 40 && pixels_[i] < 180 ? 1 : 0;
    return count;
  };
  paint(row.scene, row.camera);
  EXPECT_GT(brown(), 500);
  paint(row.scene, RowSeenFrom(3500.0F).camera);
  EXPECT_EQ(brown(), 0);
}

TEST_F(Painter, InstancesWithoutAModelAreSkipped) {
  Scene scene;
  scene.trackModels["empty"] = {};
  scene.trackInstances = {{.key = "unknown"}, {.key = "empty"}};
  scene.sceneryInstances = {{.key = "unknown"}};
  paint(scene, fromAbove());
  EXPECT_EQ(blob(0).pixels, 0);
  EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(Painter, SceneryIsTurnedAndScaled) {
  Scene scene;
  scene.sceneryModels["house"] = Box(40.0F, 20.0F, 1.0F, kRed);
  scene.sceneryInstances.push_back({.key = "house", .x = 60.0F, .y = 50.0F});
  paint(scene, fromAbove());
  const Blob plain = blob(0);
  EXPECT_NEAR(plain.x, 49.4, 2.0);
  EXPECT_NEAR(plain.y, 41.2, 2.0);
  scene.sceneryInstances[0].scaleX = 2.0F;
  scene.sceneryInstances[0].scaleY = 0.5F;
  paint(scene, fromAbove());
  EXPECT_NEAR(blob(0).pixels, plain.pixels, 0.15 * plain.pixels);
  scene.sceneryInstances[0].scaleX = 1.0F;
  paint(scene, fromAbove());
  EXPECT_NEAR(blob(0).pixels, plain.pixels / 2, 0.15 * plain.pixels);
}

TEST_F(Painter, AScaledItemKeepsItsHeight) {
  // Lying a millimetre low, a box shows above a deck at the table's height when it is taller than
  // that: one of 0.5 would at four times its height, and one of 1.5 would not at half of it.
  Scene scene;
  AddBox(scene.sceneMesh, {0, 0, -0.2F}, {300, 300, 0.2F}, {kBlue, kBlue}, {300, 300});
  const auto seen = [&](float height, float scaleX, float scaleY) {
    scene.sceneryModels = {{"house", Box(60.0F, 60.0F, height, kRed)}};
    scene.sceneryInstances = {{.key = "house", .scaleX = scaleX, .scaleY = scaleY}};
    paint(scene, fromAbove());
    return blob(0).pixels > 100;
  };
  EXPECT_FALSE(seen(0.5F, 4.0F, 1.0F));
  EXPECT_FALSE(seen(0.5F, 1.0F, 4.0F));
  EXPECT_TRUE(seen(1.5F, 0.5F, 1.0F));
  EXPECT_TRUE(seen(1.5F, 1.0F, 0.5F));
}

TEST_F(Painter, SceneryLiesAMillimetreLowAndItsBridgesLower) {
  // A deck 18 mm thick at the table's height hides what lies below it.
  Scene scene;
  AddBox(scene.sceneMesh, {0, 0, -0.2F}, {300, 300, 0.2F}, {kBlue, kBlue}, {300, 300});
  const auto seen = [&](const std::string& id, float height) {
    scene.sceneryModels = {{id, Box(60.0F, 60.0F, height, kRed)}};
    scene.sceneryInstances = {{.key = id}};
    paint(scene, fromAbove());
    return blob(0).pixels > 100;
  };
  EXPECT_FALSE(seen("house", 0.5F));
  EXPECT_TRUE(seen("house", 1.5F));
  EXPECT_FALSE(seen("bridge_arch", 17.0F));
  EXPECT_TRUE(seen("bridge_arch", 19.0F));
  EXPECT_FALSE(seen("bridge_truss", 3.0F));
  EXPECT_TRUE(seen("bridge_truss", 5.0F));
}

TEST_F(Painter, TrackShowsAboveABoardOfTheSameHeight) {
  Scene scene;
  AddQuad(scene.baseMesh,
          {Vec3f{-150, -150, 0}, Vec3f{150, -150, 0}, Vec3f{150, 150, 0}, Vec3f{-150, 150, 0}},
          {0, 0, 1}, kBlue);
  AddQuad(scene.sceneMesh,
          {Vec3f{-150, -150, 0}, Vec3f{150, -150, 0}, Vec3f{150, 150, 0}, Vec3f{-150, 150, 0}},
          {0, 0, 1}, kGreen);
  AddQuad(scene.trackModels["part"],
          {Vec3f{-60, -20, 0}, Vec3f{60, -20, 0}, Vec3f{60, 20, 0}, Vec3f{-60, 20, 0}}, {0, 0, 1},
          kRed);
  scene.trackInstances.push_back({.key = "part", .heading = 33.0F});
  paint(scene, Camera{.distance = 900.0F});
  const int alone = [&] {
    const int together = blob(0).pixels;
    scene.baseMesh = {};
    scene.sceneMesh = {};
    paint(scene, Camera{.distance = 900.0F});
    return blob(0).pixels - together;
  }();
  EXPECT_EQ(alone, 0) << "pixels of the track lost in the board";
}

TEST_F(Painter, WiresAreDrawnUnlitInTheirColour) {
  Scene scene;
  scene.wireLines = {{{-80, 20, 0}, {80, 20, 0}, kRed}, {{-80, -20, 0}, {80, -20, 0}, kBlue}};
  paint(scene, fromAbove());
  // 160 mm are 132 pixels, 2 wide.
  EXPECT_NEAR(blob(0).pixels, 264, 12);
  EXPECT_NEAR(blob(2).pixels, 264, 12);
  EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
}

TEST_F(Painter, LeavesTheStateAsTheNextFrameNeedsIt) {
  Scene scene;
  scene.sceneMesh = Box(40, 40, 40, kRed);
  scene.wireLines = {{{-80, 20, 0}, {80, 20, 0}, kBlue}};
  paint(scene, fromAbove());
  const std::vector<unsigned char> first = pixels_;
  paint(scene, fromAbove());
  EXPECT_EQ(pixels_, first);
  int depth = 0;
  glGetIntegerv(GL_MODELVIEW_STACK_DEPTH, &depth);
  EXPECT_EQ(depth, 1);
  EXPECT_FALSE(glIsEnabled(GL_POLYGON_OFFSET_FILL));
}

TEST_F(Painter, TheSunStaysWithTheEye) {
  // The top of a box turned about the vertical keeps its brightness, seen from above.
  Scene scene = sceneWith(Box(60, 60, 1, kRed));
  Camera camera = fromAbove();
  const auto middle = [this] { return pixels_[(150 * kSize.width + 200) * 3]; };
  paint(scene, camera);
  const int before = middle();
  EXPECT_GT(before, 150);
  camera.yaw = 140.0F;
  paint(scene, camera);
  EXPECT_NEAR(middle(), before, 1);
}

}  // namespace
}  // namespace vantrel
