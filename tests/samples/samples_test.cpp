// The plans that are installed beside the program: sound in every joint, and stable on disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "tests/samples/sample_files.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

std::string ReadWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

class Samples : public testing::TestWithParam<fs::path> {
 protected:
  void SetUp() override {
    ASSERT_EQ(LoadLayoutFile(layout_, GetParam().string(), name_), "");
    ASSERT_FALSE(layout_.pieces.empty());
  }

  Layout layout_;
  std::string name_;
};

TEST_P(Samples, CarryTheirFileNameAsTheirName) {
  EXPECT_EQ(name_, GetParam().stem().string());
}

TEST_P(Samples, ReadAndWrittenAgainAreTheSameBytes) {
  const fs::path copy = fs::path(testing::TempDir()) / ("again_" + GetParam().filename().string());
  ASSERT_EQ(SaveLayoutFile(layout_, copy.string(), name_), "");
  EXPECT_EQ(ReadWhole(copy), ReadWhole(GetParam()));
  fs::remove(copy);
}

TEST_P(Samples, StoreEveryJointOnBothSides) {
  const PieceIndex index = IndexPieces(layout_);
  std::size_t joints = 0;
  for (const Piece& piece : layout_.pieces) {
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      const Joint& joint = piece.joints[slot];
      if (joint.open()) continue;
      ++joints;
      ASSERT_TRUE(index.contains(joint.target));
      const Piece& far = layout_.pieces[index.at(joint.target)];
      ASSERT_LT(static_cast<std::size_t>(joint.tconn), far.joints.size());
      EXPECT_EQ(far.joints[static_cast<std::size_t>(joint.tconn)],
                (Joint{piece.id, static_cast<std::int32_t>(slot)}))
          << "piece " << piece.id << " slot " << slot;
    }
  }
  EXPECT_GT(joints, layout_.pieces.size());
}

TEST_P(Samples, JoinOnlyConnectorsThatMeet) {
  const PieceIndex index = IndexPieces(layout_);
  for (const Piece& piece : layout_.pieces) {
    const PieceDef* def = findPart(piece.cat);
    ASSERT_NE(def, nullptr) << piece.cat;
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      const Joint& joint = piece.joints[slot];
      if (joint.open()) continue;
      const Piece& far = layout_.pieces[index.at(joint.target)];
      const WorldConnector a = worldConnector(piece, *def, slot);
      const WorldConnector b =
          worldConnector(far, *findPart(far.cat), static_cast<std::size_t>(joint.tconn));
      EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y), 0.05) << piece.id << " to " << far.id;
      EXPECT_LE(std::abs(normalizeDegrees(a.heading - b.heading) - 180.0), 0.05)
          << piece.id << " to " << far.id;
    }
  }
}

TEST_P(Samples, HaveUniqueIdsAndNothingSelected) {
  std::vector<std::int32_t> ids;
  for (const Piece& piece : layout_.pieces) {
    ids.push_back(piece.id);
    EXPECT_FALSE(piece.sel);
  }
  for (const SceneryItem& item : layout_.scenery) {
    ids.push_back(item.id);
    EXPECT_FALSE(item.sel);
  }
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

std::string TestNameOf(const testing::TestParamInfo<fs::path>& sample) {
  std::string name = sample.param.stem().string();
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(SampleFiles()), TestNameOf);

TEST(SampleFolder, HoldsTheSixPlans) {
  EXPECT_EQ(SampleFiles().size(), 6u);
}

Layout ExhibitionYard() {
  Layout layout;
  std::string name;
  EXPECT_EQ(
      LoadLayoutFile(layout,
                     (fs::path(VANTREL_SOURCE_DIR) / "samples/Exhibition Yard.vtl").string(), name),
      "");
  return layout;
}

TEST(SampleFolder, HasOnePlanOfAThousandPieces) {
  EXPECT_EQ(ExhibitionYard().pieces.size(), 1000u);
}

TEST(SampleFolder, TheExhibitionYardHasLaddersSlipsADepotAHiddenYardAndTwoRamps) {
  const Layout layout = ExhibitionYard();
  std::map<std::string, int> parts;
  std::map<std::int32_t, int> turnouts;  // by level
  for (const Piece& piece : layout.pieces) {
    ++parts[piece.cat];
    if (piece.cat == "24611" || piece.cat == "24612") ++turnouts[piece.level];
  }
  // The station has 1 + 5 turnouts on the way to its southern tracks, 1 + 2 to the northern ones,
  // 1 + 4 to the carriages and 2 to the depot; the hidden yard has two ladders of nine and the one
  // to the helix.
  EXPECT_EQ(turnouts[2], 16);
  EXPECT_EQ(turnouts[3], 19);
  EXPECT_EQ(parts["24624"], 3);
  EXPECT_EQ(parts["74861"], 1);
  EXPECT_EQ(parts["74618"], 2 * 28);
  EXPECT_EQ(layout.helices.size(), 1u);
  EXPECT_EQ(std::count_if(layout.scenery.begin(), layout.scenery.end(),
                          [](const SceneryItem& item) { return item.item == "72886"; }),
            1);
}

TEST(SampleFolder, TheExhibitionYardIsOneNetworkInWhichOnlyTheTurntableHasFreeEnds) {
  const Layout layout = ExhibitionYard();
  const PieceIndex index = IndexPieces(layout);
  std::set<std::int32_t> reached;
  std::vector<std::int32_t> next = {layout.pieces.front().id};
  const auto ring = [&](std::int32_t a, std::int32_t b, std::int32_t id) {
    if (id == a) next.push_back(b);
    if (id == b) next.push_back(a);
  };
  while (!next.empty()) {
    const std::int32_t id = next.back();
    next.pop_back();
    if (!reached.insert(id).second) continue;
    const Piece& piece = layout.pieces[index.at(id)];
    std::size_t open = findPart(piece.cat)->connectors.size();
    for (const Joint& joint : piece.joints) {
      if (joint.open()) continue;
      --open;
      next.push_back(joint.target);
    }
    // A stub's other end is the ring's.
    if (piece.cat != "74861") {
      EXPECT_EQ(open, piece.helix == kNone ? 0u : 1u) << id << " " << piece.cat;
    }
    for (const Helix& helix : layout.helices) {
      ring(helix.bottomR1, helix.topR1, id);
      ring(helix.bottomR2, helix.topR2, id);
    }
  }
  EXPECT_EQ(reached.size(), layout.pieces.size());
}

TEST(SampleFolder, TheViaductClimbsToItsBridgesAndComesDownAgain) {
  Layout layout;
  std::string name;
  ASSERT_EQ(LoadLayoutFile(
                layout, (fs::path(VANTREL_SOURCE_DIR) / "samples/TRIX Viaduct.vtl").string(), name),
            "");
  // Six curves climb by the chord of 437.5 mm at 30 degrees, 218.75 mm each, at 3 degrees:
  // 6 * 218.75 * sin 3 = 1312.5 * 0.052336 = 68.69 mm.
  for (const Piece& piece : layout.pieces) {
    if (piece.cat == "62636" || piece.cat == "62620") {
      EXPECT_NEAR(piece.z, 68.69, 0.01);
    }
    EXPECT_GE(piece.z, -0.001);
    EXPECT_LE(piece.z, 68.70);
  }
}

}  // namespace
}  // namespace vantrel
