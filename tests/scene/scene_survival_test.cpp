// Whatever a file may hold, and what is installed beside the program.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <random>
#include <set>

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "io/layout_file.h"
#include "tests/scene/scene_support.h"

namespace vantrel {
namespace {

// A plan in which any number may be anything.
class WildPlan {
 public:
  explicit WildPlan(unsigned seed) : random_(seed) {}

  Layout make() {
    Layout layout;
    for (int i = 0; i < 4; ++i) layout.levels.push_back(level());
    for (int i = 0; i < 60; ++i) layout.pieces.push_back(piece());
    for (int i = 0; i < 20; ++i) layout.scenery.push_back(item());
    for (int i = 0; i < 10; ++i) layout.shapes.push_back(shape());
    for (int i = 0; i < 5; ++i) layout.helices.push_back(helix());
    for (int i = 0; i < 5; ++i) layout.tunnels.push_back(tunnel());
    layout.baseboard = outline();
    return layout;
  }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }
  double number() {
    constexpr double kOdd[] = {0.0,    -0.0,   1e300, -1e300, 1e9,      -1e9,
                               1e-300, 5e-324, 3e38,  4e38,   1.79e308, 9.99999999e8};
    switch (below(8)) {
      case 0:
        return kOdd[below(std::size(kOdd))];
      case 1:
        return std::numeric_limits<double>::quiet_NaN();
      case 2:
        return below(2) == 0 ? std::numeric_limits<double>::infinity()
                             : -std::numeric_limits<double>::infinity();
      default:
        return std::uniform_real_distribution<double>(-500, 500)(random_);
    }
  }
  std::int32_t id() {
    constexpr std::int32_t kOdd[] = {-1, 0, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()};
    return below(6) == 0 ? kOdd[below(4)] : static_cast<std::int32_t>(below(50));
  }
  std::vector<Vec2> outline() {
    std::vector<Vec2> points(below(40));
    for (Vec2& point : points) point = {number(), number()};
    if (points.size() > 5) points[3] = points[1];
    return points;
  }
  Level level() {
    Level level;
    level.id = static_cast<std::int32_t>(below(4));
    level.visible = below(5) != 0;
    level.height = number();
    return level;
  }
  Piece piece() {
    Piece piece;
    piece.id = id();
    piece.cat = below(10) == 0 ? "?"
                               : catalog()
                                     .pieceAt(static_cast<std::int32_t>(
                                         below(static_cast<std::size_t>(catalog().pieceCount()))))
                                     ->partNumber;
    if (below(4) == 0) piece.cat = "74636";
    piece.x = number();
    piece.y = number();
    piece.z = number();
    piece.heading = number();
    piece.grade = number();
    piece.level = static_cast<std::int32_t>(below(6));
    piece.joints.resize(below(5));
    for (Joint& joint : piece.joints) joint = {id(), id()};
    return piece;
  }
  SceneryItem item() {
    SceneryItem item;
    item.item = sceneryCatalog()[below(sceneryCatalog().size())].id;
    item.x = number();
    item.y = number();
    item.heading = number();
    item.scalex = number();
    item.scaley = number();
    item.level = static_cast<std::int32_t>(below(6));
    return item;
  }
  Shape shape() {
    Shape shape;
    shape.vertices = outline();
    shape.height = number();
    shape.level = static_cast<std::int32_t>(below(6));
    return shape;
  }
  Helix helix() {
    Helix helix;
    helix.cx = number();
    helix.cy = number();
    helix.heading = number();
    helix.variant = kits()[below(kits().size())].id;
    helix.bottomR1 = id();
    return helix;
  }
  Tunnel tunnel() {
    Tunnel tunnel;
    tunnel.covers.resize(below(30));
    for (std::int32_t& covered : tunnel.covers) covered = id();
    return tunnel;
  }

  std::mt19937 random_;
};

TEST(SceneSurvival, EveryCoordinateIsFiniteWhateverTheLayoutHolds) {
  bool sawTunnel = false;
  bool sawWires = false;
  for (unsigned seed = 0; seed < 150; ++seed) {
    SCOPED_TRACE(seed);
    const Scene scene = BuildScene(WildPlan(seed).make());
    ExpectFinite(scene);
    sawTunnel = sawTunnel || !scene.tunnelMesh.indices.empty();
    sawWires = sawWires || !scene.wireLines.empty();
    if (HasFatalFailure()) return;
  }
  EXPECT_TRUE(sawTunnel);
  EXPECT_TRUE(sawWires);
}

TEST(SceneSurvival, EverySampleIsWholeInItsScene) {
  int samples = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(VANTREL_SOURCE_DIR) / "samples")) {
    if (entry.path().extension() != ".vtl") continue;
    SCOPED_TRACE(entry.path().filename().string());
    ++samples;
    Layout layout;
    std::string name;
    ASSERT_EQ(LoadLayoutFile(layout, entry.path().string(), name), "");
    const Scene scene = BuildScene(layout);
    ExpectFinite(scene);
    std::size_t ringSteps = 0;
    std::set<std::string> parts;
    for (const Helix& helix : layout.helices) {
      const HelixKit& kit = kitOrDefault(helix.variant);
      ringSteps += 2 * static_cast<std::size_t>(kit.turns * 12);
      parts.insert({std::string(kit.innerCurvePart), std::string(kit.outerCurvePart)});
    }
    for (const Piece& piece : layout.pieces) parts.insert(piece.cat);
    EXPECT_EQ(scene.trackInstances.size(), layout.pieces.size() + ringSteps);
    EXPECT_EQ(scene.trackModels.size(), parts.size());
    // A sample may come with a deck that is switched off, such as the cover of a hidden yard.
    std::set<std::int32_t> hidden;
    for (const Level& level : layout.levels)
      if (!level.visible) hidden.insert(level.id);
    const auto shown = std::ranges::count_if(
        layout.scenery, [&](const SceneryItem& item) { return !hidden.contains(item.level); });
    EXPECT_EQ(scene.sceneryInstances.size(), static_cast<std::size_t>(shown));
    EXPECT_TRUE(scene.framed);
  }
  EXPECT_GE(samples, 6);
}

}  // namespace
}  // namespace vantrel
