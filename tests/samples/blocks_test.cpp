// The blocks that are installed in the library: they load, lie in the folder of their own system,
// and place as one sound piece of track.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "canvas/operations/block_placing.h"
#include "catalog/connector_geometry.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "io/block_file.h"

namespace vantrel {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> BlockFiles() {
  std::vector<fs::path> files;
  const fs::path library = fs::path(VANTREL_SOURCE_DIR) / "samples" / "library";
  if (!fs::exists(library)) return files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(library))
    if (entry.is_regular_file()) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

TrackSystem SystemOfFolder(const std::string& folder) {
  if (folder == "Marklin_C-Track") return TrackSystem::MarklinC;
  if (folder == "Marklin_K-Track") return TrackSystem::MarklinK;
  if (folder == "TRIX_C-Track") return TrackSystem::TrixC;
  EXPECT_EQ(folder, "Marklin_Z-Track");
  return TrackSystem::MarklinZ;
}

class SampleBlocks : public testing::TestWithParam<fs::path> {
 protected:
  // Into a plan that holds a piece already, whose ids the block's own ones would meet.
  void SetUp() override {
    EnsureDefaultLevel(layout_);
    layout_.pieces = {{.id = 1, .cat = "24188", .x = -500.0, .y = -500.0}};
    layout_.nextId = 2;
    Block block;
    ASSERT_EQ(LoadBlockFile(GetParam().string(), name_, block.pieces, block.scenery), "");
    pieces_ = block.pieces.size();
    scenery_ = block.scenery.size();
    ASSERT_TRUE(placeBlock(layout_, std::move(block)));
  }

  Layout layout_;
  std::string name_;
  std::size_t pieces_ = 0;
  std::size_t scenery_ = 0;
};

TEST_P(SampleBlocks, CarryTheirFileNameAndAnExtensionThatTheLibraryShows) {
  EXPECT_EQ(name_, GetParam().stem().string());
  EXPECT_EQ(GetParam().extension(), ".vtl");
}

TEST_P(SampleBlocks, ArePlacedWholeAtTheWorldsOriginOnTheLevelThatEveryPlanHas) {
  EXPECT_GE(pieces_, 8u);
  ASSERT_EQ(layout_.pieces.size(), 1 + pieces_);
  EXPECT_EQ(layout_.scenery.size(), scenery_);
  double left = 1e9;
  double top = 1e9;
  for (std::size_t i = 1; i < layout_.pieces.size(); ++i) {
    left = std::min(left, layout_.pieces[i].x);
    top = std::min(top, layout_.pieces[i].y);
  }
  for (const SceneryItem& item : layout_.scenery) {
    EXPECT_NE(findScenery(item.item), nullptr) << item.item;
    left = std::min(left, item.x);
    top = std::min(top, item.y);
  }
  EXPECT_NEAR(left, 0.0, 1e-9);
  EXPECT_NEAR(top, 0.0, 1e-9);
  EXPECT_EQ(layout_.levels.size(), 1u);
}

TEST_P(SampleBlocks, HoldOnlyTrackOfTheSystemWhoseFolderTheyLieIn) {
  const TrackSystem system = SystemOfFolder(GetParam().parent_path().filename().string());
  for (std::size_t i = 1; i < layout_.pieces.size(); ++i) {
    const PieceDef* def = findPart(layout_.pieces[i].cat);
    ASSERT_NE(def, nullptr) << layout_.pieces[i].cat;
    EXPECT_EQ(def->system, system) << layout_.pieces[i].cat;
  }
}

TEST_P(SampleBlocks, AreOneChainOfJointsThatMeetAndAreStoredOnBothSides) {
  const PieceIndex index = IndexPieces(layout_);
  std::set<std::int32_t> reached;
  std::vector<std::int32_t> next = {layout_.pieces[1].id};
  while (!next.empty()) {
    const std::int32_t id = next.back();
    next.pop_back();
    if (!reached.insert(id).second) continue;
    const Piece& piece = layout_.pieces[index.at(id)];
    const PieceDef& def = *findPart(piece.cat);
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      const Joint& joint = piece.joints[slot];
      if (joint.open()) continue;
      const Piece& far = layout_.pieces[index.at(joint.target)];
      ASSERT_LT(static_cast<std::size_t>(joint.tconn), far.joints.size());
      EXPECT_EQ(far.joints[static_cast<std::size_t>(joint.tconn)],
                (Joint{piece.id, static_cast<std::int32_t>(slot)}));
      const WorldConnector a = worldConnector(piece, def, slot);
      const WorldConnector b =
          worldConnector(far, *findPart(far.cat), static_cast<std::size_t>(joint.tconn));
      EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y), 0.05) << piece.id << " to " << far.id;
      EXPECT_LE(std::abs(normalizeDegrees(a.heading - b.heading) - 180.0), 0.05);
      next.push_back(far.id);
    }
  }
  EXPECT_EQ(reached.size(), pieces_);
}

std::string BlockNameOf(const testing::TestParamInfo<fs::path>& block) {
  std::string name = block.param.stem().string();
  std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, SampleBlocks, testing::ValuesIn(BlockFiles()), BlockNameOf);

int OpenEnds(const std::string& file) {
  std::string name;
  std::vector<Piece> pieces;
  std::vector<SceneryItem> scenery;
  EXPECT_EQ(LoadBlockFile((fs::path(VANTREL_SOURCE_DIR) / "samples/library" / file).string(), name,
                          pieces, scenery),
            "");
  // A slot that is missing is an open connector, too.
  int open = 0;
  for (const Piece& piece : pieces) {
    open += static_cast<int>(findPart(piece.cat)->connectors.size());
    for (const Joint& joint : piece.joints) open -= joint.open() ? 0 : 1;
  }
  return open;
}

TEST(SampleBlockFolder, HoldsFiveBlocksForFourSystems) {
  std::set<fs::path> folders;
  for (const fs::path& file : BlockFiles()) folders.insert(file.parent_path());
  EXPECT_EQ(BlockFiles().size(), 5u);
  EXPECT_EQ(folders.size(), 4u);
}

TEST(SampleBlockFolder, ThePassingLoopIsOpenAtItsTwoEndsAndTheYardThroatAtItsFoot) {
  EXPECT_EQ(OpenEnds("Marklin_C-Track/Passing Loop.vtl"), 2);
  EXPECT_EQ(OpenEnds("Marklin_C-Track/Yard Throat.vtl"), 1);
}

TEST(SampleBlockFolder, TheCrossoverHasTwoTracksAndTheOvalNoOpenEnd) {
  EXPECT_EQ(OpenEnds("TRIX_C-Track/Crossover.vtl"), 4);
  EXPECT_EQ(OpenEnds("Marklin_Z-Track/Oval with Siding.vtl"), 0);
}

TEST(SampleBlockFolder, TheStationThroatHasTwoLinesAndFourTracks) {
  EXPECT_EQ(OpenEnds("Marklin_K-Track/Station Throat.vtl"), 6);
}

}  // namespace
}  // namespace vantrel
