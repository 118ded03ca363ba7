// Writing and reading as each other's inverse, as far as the format goes.
#include <gtest/gtest.h>

#include <bit>
#include <random>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

// A plan of random records that the format can hold without loss: numbers with four digits behind
// the point, texts without entities, helices selected whole.
class RandomPlan {
 public:
  explicit RandomPlan(unsigned seed) : random_(seed) {}

  Layout make() {
    Layout layout;
    layout.units = below(3);
    layout.activeLevel = below(5);
    layout.lastShape = {
        .id = below(6), .w_mm = real(), .h_mm = real(), .w2_mm = real(), .h2_mm = real()};
    times(4,
          [&] { layout.gradeRuns.push_back({.deg = real(), .anchor = id(), .conn = below(3)}); });
    times(30, [&] { layout.pieces.push_back(piece()); });
    times(6, [&] { layout.scenery.push_back(item()); });
    times(4, [&] { layout.levels.push_back(level()); });
    if (layout.levels.empty()) layout.levels.push_back(level());
    times(6, [&] { layout.baseboard.push_back(point()); });
    times(5,
          [&] { layout.labels.push_back({.id = id(), .text = text(), .x = real(), .y = real()}); });
    times(4, [&] { layout.shapes.push_back(shape()); });
    times(3, [&] { layout.tunnels.push_back(tunnel()); });
    times(3, [&] { layout.helices.push_back(helix()); });
    return layout;
  }

  // The same with reals of any size and value.
  Layout makeWild() {
    wild_ = true;
    return make();
  }

 private:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
  bool chance() { return below(2) == 0; }
  std::uint8_t byte() { return static_cast<std::uint8_t>(below(256)); }

  template <typename Action>
  void times(int most, Action action) {
    for (int n = below(most + 1); n > 0; --n) action();
  }

  std::int32_t id() { return static_cast<std::int32_t>(random_()) >> below(32); }

  double real() {
    if (wild_) return std::bit_cast<double>(random_());
    const auto tenThousandths = static_cast<std::int64_t>(random_()) >> (10 + below(54));
    return static_cast<double>(tenThousandths) / 10000.0;
  }

  Vec2 point() {
    const double x = real();
    return {x, real()};
  }

  std::string text() {
    static const std::vector<std::string> parts = {
        "a", "Z", "0", " ", "'", "\xC3\xA4", "\xE2\x82\xAC", ";", "/", "."};
    std::string made;
    times(20,
          [&] { made += parts[static_cast<std::size_t>(below(static_cast<int>(parts.size())))]; });
    return made;
  }

  Piece piece() {
    Piece made{.id = id(), .cat = text(), .x = real(), .y = real(), .heading = real()};
    made.z = real();
    made.grade = real();
    made.rev = chance();
    made.free = chance();
    made.level = below(5);
    made.helix = chance() ? kNone : below(6);
    // The even ones are selected, so that each is selected whole.
    made.sel = made.helix == kNone ? chance() : made.helix % 2 == 0;
    made.hasColor = chance();
    if (made.hasColor) {
      made.colorR = byte();
      made.colorG = byte();
      made.colorB = byte();
    }
    times(6, [&] {
      made.joints.push_back(chance() ? Joint{} : Joint{.target = below(1000), .tconn = below(4)});
    });
    while (!made.joints.empty() && made.joints.back().open()) made.joints.pop_back();
    return made;
  }

  SceneryItem item() {
    return {.id = id(),
            .item = text(),
            .x = real(),
            .y = real(),
            .heading = real(),
            .sel = chance(),
            .scalex = real(),
            .scaley = real(),
            .level = below(5)};
  }

  Level level() {
    Level made{
        .id = id(), .name = text(), .visible = chance(), .height = real(), .trackcolor = chance()};
    made.r = made.trackcolor ? 1 : 0;
    made.g = byte();
    made.b = byte();
    if (chance()) made.outline = {point(), point(), point(), point()};
    return made;
  }

  Shape shape() {
    Shape made{.id = id(),
               .vertices = {},
               .r = byte(),
               .g = byte(),
               .b = byte(),
               .a = byte(),
               .outline = chance(),
               .level = below(5),
               .height = real(),
               .label = text()};
    times(5, [&] { made.vertices.push_back(point()); });
    return made;
  }

  Tunnel tunnel() {
    Tunnel made{.id = id(),
                .portalA = id(),
                .portalB = id(),
                .anchorA = id(),
                .anchorB = id(),
                .covers = {}};
    times(5, [&] { made.covers.push_back(id()); });
    return made;
  }

  Helix helix() {
    return {.id = id(),
            .cx = real(),
            .cy = real(),
            .heading = real(),
            .variant = "kit " + text(),
            .bottomR1 = id(),
            .bottomR2 = id(),
            .topR1 = id(),
            .topR2 = id()};
  }

  std::mt19937_64 random_;
  bool wild_ = false;
};

TEST(RoundTrip, ReadingGivesBackWhatWasWritten) {
  std::size_t records = 0;
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    const Layout written = RandomPlan(seed).make();
    const Layout read = testing::Loaded(testing::Saved(written));
    ASSERT_EQ(read.units, written.units);
    ASSERT_EQ(read.activeLevel, written.activeLevel);
    ASSERT_EQ(read.lastShape, written.lastShape);
    ASSERT_EQ(read.gradeRuns, written.gradeRuns);
    ASSERT_EQ(read.pieces, written.pieces);
    ASSERT_EQ(read.scenery, written.scenery);
    ASSERT_EQ(read.levels, written.levels);
    ASSERT_EQ(read.baseboard, written.baseboard);
    ASSERT_EQ(read.labels, written.labels);
    ASSERT_EQ(read.shapes, written.shapes);
    ASSERT_EQ(read.tunnels, written.tunnels);
    ASSERT_EQ(read.helices, written.helices);
    records += written.pieces.size() + written.shapes.size() + written.helices.size();
  }
  EXPECT_GT(records, 3000u);
}

TEST(RoundTrip, WritingWhatWasReadGivesTheSameFile) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    const std::string file = testing::Saved(RandomPlan(seed).make());
    ASSERT_EQ(testing::Saved(testing::Loaded(file)), file) << seed;
  }
}

TEST(RoundTrip, RealsOfAnySizeSettleAtTheFirstSave) {
  for (unsigned seed = 1; seed <= 100; ++seed) {
    const std::string file = testing::Saved(RandomPlan(seed).makeWild());
    ASSERT_EQ(testing::Saved(testing::Loaded(file)), file) << seed;
  }
}

TEST(RoundTrip, OpenSlotsBehindTheLastJointAreLost) {
  Layout layout;
  layout.pieces = {{.id = 1}};
  layout.pieces[0].joints = {{}, {.target = 2, .tconn = 0}, {}, {}};
  EXPECT_EQ(testing::Loaded(testing::Saved(layout)).pieces[0].joints,
            (std::vector<Joint>{{}, {.target = 2, .tconn = 0}}));
}

TEST(RoundTrip, CoordinatesAreRoundedToATenThousandth) {
  Layout layout;
  layout.pieces = {{.id = 1, .x = 1.0 / 3.0, .heading = 22.56789}};
  const Layout read = testing::Loaded(testing::Saved(layout));
  EXPECT_EQ(read.pieces[0].x, 0.3333);
  EXPECT_EQ(read.pieces[0].heading, 22.5679);
}

}  // namespace
}  // namespace vantrel
