#include "io/block_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::ReadBytes;
using testing::RichLayout;
using testing::TempFolder;
using testing::WriteBytes;

// A block as it was read.
struct ReadBlock {
  std::string name = "left over";
  std::vector<Piece> pieces = {{.id = 77}};
  std::vector<SceneryItem> scenery = {{.id = 78}};

  bool empty() const { return pieces.empty() && scenery.empty(); }
};

ReadBlock Read(std::string_view text) {
  ReadBlock block;
  ReadBlockText(text, "block.vtl", block.name, block.pieces, block.scenery);
  return block;
}

// "reads", or the line and the text of the problem.
std::string BlockProblemOf(std::string_view text) {
  try {
    Read(text);
  } catch (const MalformedFile& malformed) {
    EXPECT_EQ(malformed.path, "block.vtl");
    return std::to_string(malformed.line) + ": " + malformed.what();
  }
  return "reads";
}

// What the writer puts into a file, read back as text.
std::string SavedBlock(const Layout& layout, const std::string& name = "Yard") {
  const TempFolder folder;
  const std::string path = folder.path("block.xml");
  EXPECT_EQ(SaveBlockFile(layout, path, name), "");
  return ReadBytes(path);
}

// Both pieces and both items of the rich plan.
Layout AllSelected() {
  Layout layout = RichLayout();
  for (Piece& piece : layout.pieces) piece.sel = true;
  for (SceneryItem& item : layout.scenery) item.sel = true;
  return layout;
}

TEST(SaveBlock, WritesTheSelectionInDocumentOrderOneDepthLessThanALayout) {
  EXPECT_EQ(SavedBlock(AllSelected()), R"(<?xml version="1.0" encoding="UTF-8"?>
<block name="Yard" version="1">
  <piece id="1" cat="24188" x="100.0000" y="50.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="1">
    <joint conn="1" target="2" tconn="0"/>
  </piece>
  <piece id="2" cat="24188" x="288.0000" y="-0.5000" heading="359.9877" z="30.1250" grade="2.5000" rev="1" free="1" level="7" helix="12" sel="1" color="66051">
    <joint conn="0" target="1" tconn="1"/>
    <joint conn="2" target="-5" tconn="4"/>
  </piece>
  <scenery>
    <sceneryitem id="3" item="tree_oak" x="1.0000" y="2.0000" heading="45.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="4" item="portal" x="3.0000" y="4.0000" heading="90.0000" scalex="1.5000" scaley="0.7500" level="7" sel="0"/>
  </scenery>
</block>
)");
}

// The rich plan has its second piece and its second item selected.
TEST(SaveBlock, LeavesOutWhatIsNotSelectedButKeepsTheJointsToIt) {
  EXPECT_EQ(SavedBlock(RichLayout(), "A & \"B\""), R"(<?xml version="1.0" encoding="UTF-8"?>
<block name="A &amp; &quot;B&quot;" version="1">
  <piece id="2" cat="24188" x="288.0000" y="-0.5000" heading="359.9877" z="30.1250" grade="2.5000" rev="1" free="1" level="7" helix="12" sel="1" color="66051">
    <joint conn="0" target="1" tconn="1"/>
    <joint conn="2" target="-5" tconn="4"/>
  </piece>
  <scenery>
    <sceneryitem id="4" item="portal" x="3.0000" y="4.0000" heading="90.0000" scalex="1.5000" scaley="0.7500" level="7" sel="0"/>
  </scenery>
</block>
)");
}

TEST(SaveBlock, ASelectionOfSceneryOnlyGivesAFileWithNoPieceLine) {
  Layout layout = RichLayout();
  layout.pieces[1].sel = false;
  EXPECT_EQ(SavedBlock(layout), R"(<?xml version="1.0" encoding="UTF-8"?>
<block name="Yard" version="1">
  <scenery>
    <sceneryitem id="4" item="portal" x="3.0000" y="4.0000" heading="90.0000" scalex="1.5000" scaley="0.7500" level="7" sel="0"/>
  </scenery>
</block>
)");
}

TEST(SaveBlock, ASelectionOfTrackOnlyGivesAFileWithNoScenery) {
  Layout layout = AllSelected();
  for (SceneryItem& item : layout.scenery) item.sel = false;
  EXPECT_EQ(SavedBlock(layout).find("scenery"), std::string::npos);
}

TEST(SaveBlock, ALayoutWithNothingSelectedIsRefusedAndCreatesNoFile) {
  const TempFolder folder;
  Layout layout = RichLayout();
  layout.pieces[1].sel = false;
  layout.scenery[1].sel = false;
  layout.labels[0].sel = true;
  layout.shapes[0].sel = true;
  EXPECT_EQ(SaveBlockFile(layout, folder.path("b.xml"), "b"), "No pieces or scenery selected");
  EXPECT_FALSE(std::filesystem::exists(folder.path("b.xml")));
}

TEST(SaveBlock, ASelectionThatIsRefusedLeavesAnOlderFileAlone) {
  const TempFolder folder;
  WriteBytes(folder.path("b.xml"), "old");
  SaveBlockFile(Layout(), folder.path("b.xml"), "b");
  EXPECT_EQ(ReadBytes(folder.path("b.xml")), "old");
}

TEST(SaveBlock, TheSecondOfTwoSavesUnderOneNameReplacesTheFirstSilently) {
  const TempFolder folder;
  const std::string path = folder.path("b.xml");
  EXPECT_EQ(SaveBlockFile(AllSelected(), path, "b"), "");
  Layout layout = RichLayout();
  layout.pieces[1].sel = false;
  EXPECT_EQ(SaveBlockFile(layout, path, "b"), "");
  EXPECT_EQ(ReadBytes(path), SavedBlock(layout, "b"));
}

TEST(SaveBlock, AFolderThatIsMissingCannotBeOpened) {
  const TempFolder folder;
  const std::string path = folder.path("nowhere/b.xml");
  EXPECT_EQ(SaveBlockFile(AllSelected(), path, "b"), "Cannot open file: " + path);
}

TEST(SaveBlock, AFullDiskIsReported) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  EXPECT_EQ(SaveBlockFile(AllSelected(), "/dev/full", "b"), "Cannot write file: /dev/full");
}

TEST(SaveBlock, WritesPointsUnderALocaleWithACommaAndReadsThem) {
  const testing::CommaLocale comma;
  ASSERT_TRUE(comma.active());
  const std::string text = SavedBlock(RichLayout());
  EXPECT_NE(text.find("y=\"-0.5000\""), std::string::npos);
  EXPECT_DOUBLE_EQ(Read(text).pieces[0].y, -0.5);
}

TEST(ReadBlockFile, APieceComesBackFlatUncolouredUnreversedAndOutsideAnyHelix) {
  const ReadBlock block = Read(SavedBlock(AllSelected()));
  Piece first{.id = 1, .cat = "24188", .x = 100, .y = 50};
  first.joints = {{}, {.target = 2, .tconn = 0}};
  // Selected, z 30.125, grade 2.5, reversed, free, in helix 12 and coloured in the file.
  Piece second{.id = 2, .cat = "24188", .x = 288, .y = -0.5, .heading = 359.9877};
  second.level = 7;
  second.joints = {{.target = 1, .tconn = 1}, {}, {.target = -5, .tconn = 4}};
  EXPECT_EQ(block.pieces, (std::vector<Piece>{first, second}));
}

TEST(ReadBlockFile, SceneryComesBackWholeAndUnselected) {
  const ReadBlock block = Read(
      "<scenery>\n<sceneryitem id=\"4\" item=\"portal\" x=\"3\" y=\"4\" heading=\"90\" "
      "scalex=\"1.5\" scaley=\"0.75\" level=\"7\" sel=\"1\"/>\n"
      "<sceneryitem id=\"5\" item=\"tree\" x=\"1\" y=\"2\" heading=\"3\"/>\n");
  EXPECT_EQ(block.scenery,
            (std::vector<SceneryItem>{{.id = 4,
                                       .item = "portal",
                                       .x = 3,
                                       .y = 4,
                                       .heading = 90,
                                       .scalex = 1.5,
                                       .scaley = 0.75,
                                       .level = 7},
                                      {.id = 5, .item = "tree", .x = 1, .y = 2, .heading = 3}}));
}

TEST(ReadBlockFile, ItsNameComesBackWithItsEntities) {
  EXPECT_EQ(Read(SavedBlock(RichLayout(), "A & B")).name, "A &amp; B");
}

TEST(ReadBlockFile, WhatIsWrittenButNotReadMayBeAnything) {
  const ReadBlock block = Read(
      "<piece id=\"3\" cat=\"a\" x=\"1\" y=\"2\" heading=\"3\" z=\"oops\" grade=\"?\" rev=\"x\" "
      "free=\"x\" helix=\"many\" color=\"red\" sel=\"x\">\n");
  EXPECT_EQ(block.pieces,
            (std::vector<Piece>{{.id = 3, .cat = "a", .x = 1, .y = 2, .heading = 3}}));
}

TEST(ReadBlockFile, SceneryCountsOnlyBetweenItsTwoLines) {
  const auto item = [](int id) {
    return "<sceneryitem id=\"" + std::to_string(id) +
           "\" item=\"a\" x=\"1\" y=\"1\" heading=\"1\"/>";
  };
  const ReadBlock block = Read(item(1) + "\n<scenery>" + item(2) + "\n" + item(3) + "</scenery>\n" +
                               item(4) + "\n<scenery>\n" + item(5) + "\n");
  std::vector<std::int32_t> ids;
  for (const SceneryItem& read : block.scenery) ids.push_back(read.id);
  // The opening line counts already, the closing one no longer.
  EXPECT_EQ(ids, (std::vector<std::int32_t>{2, 5}));
}

TEST(ReadBlockFile, PiecesCountAnywhereAlsoBehindTheEndOfTheBlock) {
  const std::string piece = "<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n";
  EXPECT_EQ(Read(piece + "<scenery>\n" + piece + "</pieces>\n</block>\n</layout>\n" + piece)
                .pieces.size(),
            3u);
}

TEST(ReadBlockFile, AJointBeforeTheFirstPieceIsIgnoredAndOthersGoToTheLastPiece) {
  const ReadBlock block = Read(
      "<joint conn=\"oops\"/>\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">"
      "<joint conn=\"2\" target=\"7\" tconn=\"1\"/></piece>\n"
      "<joint conn=\"0\" target=\"8\" tconn=\"3\"/>\n");
  ASSERT_EQ(block.pieces.size(), 1u);
  EXPECT_EQ(block.pieces[0].joints,
            (std::vector<Joint>{{.target = 8, .tconn = 3}, {}, {.target = 7, .tconn = 1}}));
}

TEST(ReadBlockFile, AFileWithoutARecognisedLineGivesEmptyListsAndNoError) {
  for (const std::string text : {"", "\n\n", "not a block", "<blocks>\n<pieces>\n</pieces>\n"}) {
    const ReadBlock block = Read(text);
    EXPECT_TRUE(block.empty()) << text;
    EXPECT_EQ(block.name, "") << text;
  }
}

TEST(ReadBlockFile, AFileThatCannotBeOpenedIsAnErrorAndEmptiesTheLists) {
  const TempFolder folder;
  for (const std::string& path : {folder.path("missing.vtl"), folder.path("")}) {
    ReadBlock block;
    EXPECT_EQ(LoadBlockFile(path, block.name, block.pieces, block.scenery),
              "Cannot open file: " + path);
    EXPECT_TRUE(block.empty());
    EXPECT_EQ(block.name, "");
  }
}

TEST(ReadBlockFile, AFileIsReadOverWhatTheListsHeld) {
  const TempFolder folder;
  const std::string path = folder.path("b.vtl");
  ASSERT_EQ(SaveBlockFile(RichLayout(), path, "Yard"), "");
  ReadBlock block;
  EXPECT_EQ(LoadBlockFile(path, block.name, block.pieces, block.scenery), "");
  EXPECT_EQ(block.name, "Yard");
  ASSERT_EQ(block.pieces.size(), 1u);
  EXPECT_EQ(block.pieces[0].id, 2);
  ASSERT_EQ(block.scenery.size(), 1u);
  EXPECT_EQ(block.scenery[0].id, 4);
}

TEST(ReadBlockFile, AMissingOrBadNumberIsNamedWithItsLine) {
  EXPECT_EQ(BlockProblemOf("<block name=\"a\">\n<piece cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n"),
            "2: invalid stoi argument");
  EXPECT_EQ(BlockProblemOf("<piece id=\"1\" cat=\"a\" y=\"1\" heading=\"1\">\n"),
            "1: invalid stod argument");
  EXPECT_EQ(BlockProblemOf("<piece id=\"1\" cat=\"a\" x=\"1e999\" y=\"1\" heading=\"1\">\n"),
            "1: stod argument out of range");
  EXPECT_EQ(
      BlockProblemOf("<piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\" level=\"x\">\n"),
      "1: invalid stoi argument");
  const std::string piece = "<piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\">\n";
  EXPECT_EQ(BlockProblemOf(piece + "<joint conn=\"0\" target=\"1\"/>\n"),
            "2: invalid stoi argument");
  EXPECT_EQ(BlockProblemOf(piece + "<joint conn=\"2000000000\" target=\"1\" tconn=\"0\"/>\n"),
            "2: stoi argument out of range");
  EXPECT_EQ(BlockProblemOf(piece + "<joint conn=\"-1\" target=\"1\" tconn=\"0\"/>\n"),
            "2: stoi argument out of range");
  EXPECT_EQ(BlockProblemOf("<scenery>\n<sceneryitem id=\"1\" item=\"a\" x=\"1\" y=\"1\"/>\n"),
            "2: invalid stod argument");
}

void Judge(const std::string& text, int& read, int& refused) {
  static const std::set<std::string> problems = {"invalid stoi argument", "invalid stod argument",
                                                 "stoi argument out of range",
                                                 "stod argument out of range"};
  const std::string problem = BlockProblemOf(text);
  if (problem == "reads") {
    ++read;
    return;
  }
  ++refused;
  EXPECT_TRUE(problems.contains(problem.substr(problem.find(' ') + 1))) << problem;
}

TEST(BrokenBlock, CutOffAtAnyByteItReadsOrIsRefused) {
  const std::string file = SavedBlock(AllSelected());
  int read = 0;
  int refused = 0;
  for (std::size_t size = 0; size < file.size(); ++size) Judge(file.substr(0, size), read, refused);
  EXPECT_GT(read, 300);
  EXPECT_GT(refused, 100);
}

TEST(BrokenBlock, WithBytesFlippedItReadsOrIsRefused) {
  const std::string file = SavedBlock(AllSelected());
  std::mt19937 random(1203);
  int read = 0;
  int refused = 0;
  for (int i = 0; i < 3000; ++i) {
    std::string broken = file;
    for (auto n = 1 + random() % 12; n > 0; --n)
      broken[random() % file.size()] = static_cast<char>(random());
    Judge(broken, read, refused);
  }
  EXPECT_GT(read, 300);
  EXPECT_GT(refused, 300);
}

TEST(BrokenBlock, WithAnyValueReplacedItReadsOrIsRefused) {
  const std::string file = SavedBlock(AllSelected());
  const std::vector<std::string> values = {"1e308",      "nan",         "-inf", "99999999999",
                                           "2147483647", "-2147483648", "",     std::string(1, 0),
                                           "abc",        "1e-320",      "-1"};
  int read = 0;
  int refused = 0;
  for (std::size_t at = file.find("=\""); at != std::string::npos; at = file.find("=\"", at + 2)) {
    const std::size_t end = file.find('"', at + 2);
    for (const std::string& value : values)
      Judge(file.substr(0, at + 2) + value + file.substr(end), read, refused);
  }
  EXPECT_GT(read, 200);
  EXPECT_GT(refused, 100);
}

TEST(BrokenBlock, BinaryNoiseIsAnEmptyBlock) {
  std::mt19937 random(5);
  std::string noise;
  while (noise.size() < 1'000'000) noise += static_cast<char>(random());
  EXPECT_TRUE(Read(noise).empty());
}

TEST(BrokenBlock, AHugeLineIsWalkedInOneGo) {
  const std::string head =
      "<block ><scenery><piece id=\"1\" cat=\"a\" x=\"1\" y=\"1\" heading=\"1\"";
  for (const std::string unit :
       {"<", "<joint conn=\"0\" target=\"1\" tconn=\"1\"", "=\"", "q=\""}) {
    std::string file = head;
    while (file.size() < 5'000'000) file += unit;
    EXPECT_EQ(Read(file).pieces.size(), 1u) << unit;
  }
}

TEST(BrokenBlock, ALayoutFileReadsAsABlockOfItsTrackAndScenery) {
  const ReadBlock block = Read(testing::Saved(RichLayout()));
  EXPECT_EQ(block.pieces.size(), 2u);
  EXPECT_EQ(block.scenery.size(), 2u);
  EXPECT_EQ(block.name, "");
}

}  // namespace
}  // namespace vantrel
