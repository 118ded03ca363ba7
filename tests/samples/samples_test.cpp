// The plans that are installed beside the program: sound in every joint, and stable on disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "io/layout_file.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> SampleFiles() {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(fs::path(VANTREL_SOURCE_DIR) / "samples"))
    if (entry.path().extension() == ".vtl") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

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

TEST(SampleFolder, HasOnePlanOfAThousandPieces) {
  Layout layout;
  std::string name;
  ASSERT_EQ(
      LoadLayoutFile(layout,
                     (fs::path(VANTREL_SOURCE_DIR) / "samples/Exhibition Yard.vtl").string(), name),
      "");
  EXPECT_EQ(layout.pieces.size(), 1000u);
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
