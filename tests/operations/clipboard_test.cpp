#include "canvas/operations/clipboard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "canvas/operations/joining.h"
#include "canvas/operations/selection.h"
#include "doc/undo.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

std::vector<std::int32_t> LayStraights(Layout& layout, int count) {
  std::vector<std::int32_t> ids;
  for (int i = 0; i < count; ++i) {
    ids.push_back(LayPiece(layout, "24188", {188.3 * i, 0.0, 0.0}));
    if (i > 0) joinPieces(layout, ids[ids.size() - 2], 1, ids.back(), 0);
  }
  return ids;
}

Clipboard CopyOf(Layout& layout, std::initializer_list<std::int32_t> pieces) {
  for (const std::int32_t id : pieces) PieceOf(layout, id).sel = true;
  Clipboard clipboard;
  copySelection(layout, clipboard);
  return clipboard;
}

std::int32_t OutlineShape(Layout& layout, std::vector<Vec2> vertices) {
  Shape shape;
  shape.id = TakeId(layout);
  shape.vertices = std::move(vertices);
  layout.shapes.push_back(shape);
  return shape.id;
}

TEST(CopySelection, TakesTheSelectedPiecesAndSceneryAndLeavesThePlanAlone) {
  Layout layout;
  const auto row = LayStraights(layout, 3);
  layout.scenery.push_back({.id = TakeId(layout), .item = "a", .sel = true});
  layout.scenery.push_back({.id = TakeId(layout), .item = "b"});
  const Clipboard clipboard = CopyOf(layout, {row[0], row[2]});
  ASSERT_EQ(clipboard.pieces.size(), 2u);
  EXPECT_EQ(clipboard.pieces[0], layout.pieces[0]);
  EXPECT_EQ(clipboard.pieces[1], layout.pieces[2]);
  ASSERT_EQ(clipboard.scenery.size(), 1u);
  EXPECT_EQ(clipboard.scenery[0].item, "a");
  EXPECT_FALSE(clipboard.hasShape);
  EXPECT_TRUE(layout.undoHistory.empty());
}

TEST(CopySelection, KeepsTheClipboardWhenNoPieceAndNoSceneryIsSelected) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  Clipboard clipboard = CopyOf(layout, {row[0]});
  copyShape(layout, OutlineShape(layout, {{0.0, 0.0}}), clipboard);
  ClearSelection(layout);
  layout.labels.push_back({.id = TakeId(layout), .sel = true});
  layout.shapes[0].sel = true;
  copySelection(layout, clipboard);
  EXPECT_EQ(clipboard.pieces.size(), 1u);
  EXPECT_TRUE(clipboard.hasShape);
}

TEST(CopySelection, DropsTheShapeOfAnEarlierCopy) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  Clipboard clipboard;
  copyShape(layout, OutlineShape(layout, {{0.0, 0.0}}), clipboard);
  ASSERT_TRUE(clipboard.hasShape);
  PieceOf(layout, row[0]).sel = true;
  copySelection(layout, clipboard);
  EXPECT_FALSE(clipboard.hasShape);
}

TEST(CopySelection, ReplacesPiecesByASelectionOfSceneryAlone) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  Clipboard clipboard = CopyOf(layout, {row[0]});
  ClearSelection(layout);
  layout.scenery.push_back({.id = TakeId(layout), .sel = true});
  copySelection(layout, clipboard);
  EXPECT_TRUE(clipboard.pieces.empty());
  EXPECT_EQ(clipboard.scenery.size(), 1u);
}

TEST(CopyShape, LeavesPiecesAndSceneryInTheClipboardSoThatAPasteBringsBoth) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  Clipboard clipboard = CopyOf(layout, {row[0]});
  copyShape(layout, OutlineShape(layout, {{0.0, 0.0}, {10.0, 0.0}, {10.0, 10.0}}), clipboard);
  ASSERT_TRUE(pasteClipboard(layout, clipboard, {0.0, 0.0}));
  EXPECT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.shapes.size(), 2u);
}

TEST(CopyShape, DoesNothingForAnUnknownId) {
  Layout layout;
  const std::int32_t id = OutlineShape(layout, {{1.0, 2.0}});
  Clipboard clipboard;
  copyShape(layout, 999, clipboard);
  EXPECT_FALSE(clipboard.hasShape);
  copyShape(layout, id, clipboard);
  copyShape(layout, 999, clipboard);
  EXPECT_TRUE(clipboard.hasShape);
  EXPECT_EQ(clipboard.shape.id, id);
}

TEST(PasteClipboard, DoesNothingWhenItIsEmpty) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  PieceOf(layout, row[0]).sel = true;
  EXPECT_FALSE(pasteClipboard(layout, {}, {5.0, 5.0}));
  EXPECT_TRUE(layout.undoHistory.empty());
  EXPECT_TRUE(layout.pieces[0].sel);
}

TEST(PasteClipboard, SetsTheMeanOfAllPositionsAndVerticesOnThePoint) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {0.0, 0.0, 30.0});
  const std::int32_t b = LayPiece(layout, "24188", {100.0, 0.0, 0.0});
  layout.scenery.push_back(
      {.id = TakeId(layout), .x = 50.0, .y = 90.0, .heading = 45.0, .sel = true});
  const std::int32_t shape = OutlineShape(layout, {{-50.0, 30.0}, {50.0, 30.0}, {150.0, 30.0}});
  Clipboard clipboard = CopyOf(layout, {a, b});
  copyShape(layout, shape, clipboard);
  // x: (0 + 100 + 50 - 50 + 50 + 150) / 6 = 50; y: (0 + 0 + 90 + 30 + 30 + 30) / 6 = 30
  ASSERT_TRUE(pasteClipboard(layout, clipboard, {1050.0, 530.0}));
  ExpectPose(layout.pieces[2].pose(), 1000.0, 500.0, 30.0, 1e-9);
  ExpectPose(layout.pieces[3].pose(), 1100.0, 500.0, 0.0, 1e-9);
  ExpectPose(layout.scenery[1].pose(), 1050.0, 590.0, 45.0, 1e-9);
  ASSERT_EQ(layout.shapes[1].vertices.size(), 3u);
  EXPECT_NEAR(layout.shapes[1].vertices[2].x, 1150.0, 1e-9);
  EXPECT_NEAR(layout.shapes[1].vertices[2].y, 530.0, 1e-9);
  // and the originals stay
  ExpectPose(layout.pieces[0].pose(), 0.0, 0.0, 30.0, 0.0);
  EXPECT_EQ(layout.shapes[0].vertices[2].x, 150.0);
}

TEST(PasteClipboard, CountsAPieceByItsPositionAndNotByItsMiddle) {
  Layout layout;
  const std::int32_t piece = LayPiece(layout, "24360", {10.0, 20.0, 0.0});
  ASSERT_TRUE(pasteClipboard(layout, CopyOf(layout, {piece}), {700.0, 800.0}));
  ExpectPose(layout.pieces[1].pose(), 700.0, 800.0, 0.0, 1e-9);
}

TEST(PasteClipboard, KeepsTheTwoInnerJointsOfThreeJoinedPiecesAndNoOthers) {
  Layout layout;
  const auto row = LayStraights(layout, 5);
  ASSERT_TRUE(pasteClipboard(layout, CopyOf(layout, {row[1], row[2], row[3]}), {0.0, 900.0}));
  ASSERT_EQ(layout.pieces.size(), 8u);
  const std::int32_t first = layout.pieces[5].id;
  const std::int32_t second = layout.pieces[6].id;
  const std::int32_t third = layout.pieces[7].id;
  EXPECT_EQ(layout.pieces[5].joints, (std::vector<Joint>{{}, {.target = second, .tconn = 0}}));
  EXPECT_EQ(layout.pieces[6].joints,
            (std::vector<Joint>{{.target = first, .tconn = 1}, {.target = third, .tconn = 0}}));
  EXPECT_EQ(layout.pieces[7].joints, (std::vector<Joint>{{.target = second, .tconn = 1}, {}}));
  EXPECT_EQ(JointOf(layout, row[0], 1).target, row[1]) << "the old neighbours keep their joints";
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PasteClipboard, NumbersPiecesThenSceneryThenTheShape) {
  Layout layout;
  const auto row = LayStraights(layout, 2);
  layout.scenery.push_back({.id = TakeId(layout), .sel = true});
  const std::int32_t shape = OutlineShape(layout, {{0.0, 0.0}});
  Clipboard clipboard = CopyOf(layout, {row[0], row[1]});
  copyShape(layout, shape, clipboard);
  layout.nextId = 100;
  pasteClipboard(layout, clipboard, {});
  EXPECT_EQ(layout.pieces[2].id, 100);
  EXPECT_EQ(layout.pieces[3].id, 101);
  EXPECT_EQ(layout.scenery[1].id, 102);
  EXPECT_EQ(layout.shapes[1].id, 103);
  EXPECT_EQ(layout.nextId, 104);
}

TEST(PasteClipboard, KeepsEveryOtherFieldOfAPiece) {
  Layout layout;
  const std::int32_t id = LayPiece(layout, "24130", {0.0, 0.0, 15.0});
  Piece& piece = PieceOf(layout, id);
  piece.z = 44.0;
  piece.grade = -2.5;
  piece.rev = true;
  piece.hasColor = true;
  piece.colorG = 99;
  piece.level = 7;
  piece.helix = 31;
  piece.free = true;
  Piece expected = piece;
  pasteClipboard(layout, CopyOf(layout, {id}), {10.0, 0.0});
  expected.id = layout.pieces[1].id;
  expected.x = 10.0;
  expected.sel = true;
  EXPECT_EQ(layout.pieces[1], expected);
}

TEST(PasteClipboard, KeepsLevelScaleAndHeadingOfAnItemAndTheFaceOfAShape) {
  Layout layout;
  layout.scenery.push_back({.id = TakeId(layout),
                            .item = "72886",
                            .heading = 12.0,
                            .sel = true,
                            .scalex = 1.5,
                            .scaley = 0.5,
                            .level = 4});
  Clipboard clipboard;
  copySelection(layout, clipboard);
  const std::int32_t shape = OutlineShape(layout, {{0.0, 0.0}});
  layout.shapes[0].height = 30.0;
  layout.shapes[0].label = "Quay";
  layout.shapes[0].level = 2;
  copyShape(layout, shape, clipboard);
  pasteClipboard(layout, clipboard, {});
  SceneryItem item = layout.scenery[0];
  item.id = layout.scenery[1].id;
  item.sel = true;
  EXPECT_EQ(layout.scenery[1], item);
  Shape copy = layout.shapes[0];
  copy.id = layout.shapes[1].id;
  EXPECT_EQ(layout.shapes[1], copy);
}

TEST(PasteClipboard, SelectsTheNewPiecesAndSceneryAloneAndNoShape) {
  Layout layout;
  const auto row = LayStraights(layout, 2);
  layout.scenery.push_back({.id = TakeId(layout), .sel = true});
  const std::int32_t shape = OutlineShape(layout, {{0.0, 0.0}});
  layout.shapes[0].sel = true;
  layout.labels.push_back({.id = TakeId(layout), .sel = true});
  Clipboard clipboard = CopyOf(layout, {row[0], row[1]});
  copyShape(layout, shape, clipboard);
  pasteClipboard(layout, clipboard, {});
  EXPECT_FALSE(layout.pieces[0].sel);
  EXPECT_FALSE(layout.pieces[1].sel);
  EXPECT_TRUE(layout.pieces[2].sel);
  EXPECT_TRUE(layout.pieces[3].sel);
  EXPECT_FALSE(layout.scenery[0].sel);
  EXPECT_TRUE(layout.scenery[1].sel);
  EXPECT_FALSE(layout.shapes[0].sel);
  EXPECT_FALSE(layout.shapes[1].sel);
  EXPECT_FALSE(layout.labels[0].sel);
}

TEST(PasteClipboard, OfAHelixStubYieldsAPieceOfTheOldHelix) {
  Layout layout;
  const std::int32_t stub = LayPiece(layout, "24188", {});
  const std::int32_t other = LayPiece(layout, "24188", {0.0, 77.5, 0.0});
  PieceOf(layout, stub).helix = 40;
  PieceOf(layout, other).helix = 40;
  layout.helices.push_back({.id = 40, .bottomR1 = stub, .bottomR2 = other});
  pasteClipboard(layout, CopyOf(layout, {stub}), {900.0, 0.0});
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.pieces[2].helix, 40);
  EXPECT_EQ(layout.helices.size(), 1u) << "the helix itself isn't copied";
  ClearSelection(layout);
  clickPiece(layout, layout.pieces[2].id);
  EXPECT_TRUE(layout.pieces[0].sel);
  EXPECT_TRUE(layout.pieces[1].sel);
}

TEST(PasteClipboard, CopiesNoTunnel) {
  Layout layout;
  const auto row = LayStraights(layout, 1);
  layout.tunnels.push_back({.id = TakeId(layout), .anchorA = row[0], .covers = {row[0]}});
  pasteClipboard(layout, CopyOf(layout, {row[0]}), {});
  EXPECT_EQ(layout.tunnels.size(), 1u);
  EXPECT_EQ(layout.tunnels[0].covers, (std::vector<std::int32_t>{row[0]}));
}

TEST(PasteClipboard, CanBeDoneManyTimesWithOneCopy) {
  Layout layout;
  const auto row = LayStraights(layout, 2);
  const Clipboard clipboard = CopyOf(layout, {row[0], row[1]});
  pasteClipboard(layout, clipboard, {0.0, 500.0});
  pasteClipboard(layout, clipboard, {0.0, 1000.0});
  ASSERT_EQ(layout.pieces.size(), 6u);
  std::set<std::int32_t> ids;
  for (const Piece& piece : layout.pieces) ids.insert(piece.id);
  EXPECT_EQ(ids.size(), 6u);
  EXPECT_EQ(layout.pieces[4].y, 1000.0);
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PasteClipboard, WorksInAnotherPlanThanTheCopyCameFrom) {
  Layout source;
  source.nextId = 500;
  const auto row = LayStraights(source, 3);
  const Clipboard clipboard = CopyOf(source, {row[0], row[1]});
  Layout layout;
  ASSERT_TRUE(pasteClipboard(layout, clipboard, {}));
  ASSERT_EQ(layout.pieces.size(), 2u);
  EXPECT_EQ(layout.pieces[0].id, 1);
  EXPECT_EQ(layout.pieces[1].id, 2);
  EXPECT_EQ(BrokenJoint(layout), "");
}

TEST(PasteClipboard, IsOneUndoStep) {
  Layout layout;
  const auto row = LayStraights(layout, 2);
  const Clipboard clipboard = CopyOf(layout, {row[0]});
  const std::vector<Piece> before = layout.pieces;
  pasteClipboard(layout, clipboard, {});
  ASSERT_EQ(layout.undoHistory.size(), 1u);
  Undo(layout);
  EXPECT_EQ(layout.pieces, before);
}

TEST(PasteClipboard, KeepsAJointThatIsHeldOnOneSideOnlyAsItIs) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {});
  const std::int32_t b = LayPiece(layout, "24188", {});
  PieceOf(layout, a).joints[1] = {.target = b, .tconn = 9};
  pasteClipboard(layout, CopyOf(layout, {a, b}), {});
  EXPECT_EQ(layout.pieces[2].joints[1], (Joint{.target = layout.pieces[3].id, .tconn = 9}));
  EXPECT_TRUE(layout.pieces[3].joints[0].open());
}

TEST(PasteClipboard, DoesNotJoinOpenEndsToAPieceWithTheIdOfNone) {
  Layout layout;
  LayPiece(layout, "24188", {});
  LayPiece(layout, "24188", {});
  layout.pieces[1].id = -1;
  Clipboard clipboard;
  layout.pieces[0].sel = layout.pieces[1].sel = true;
  copySelection(layout, clipboard);
  pasteClipboard(layout, clipboard, {});
  EXPECT_TRUE(layout.pieces[2].joints[0].open());
  EXPECT_TRUE(layout.pieces[2].joints[1].open());
}

TEST(PasteClipboard, JoinsToTheFirstOfTwoPiecesWithOneId) {
  Layout layout;
  const auto row = LayStraights(layout, 3);
  layout.pieces[2].id = row[0];
  for (Piece& piece : layout.pieces) piece.sel = true;
  Clipboard clipboard;
  copySelection(layout, clipboard);
  pasteClipboard(layout, clipboard, {});
  EXPECT_EQ(layout.pieces[4].joints[0].target, layout.pieces[3].id);
  EXPECT_NE(layout.pieces[3].id, layout.pieces[5].id);
}

TEST(PasteClipboard, LetsNoPieceFromNowhereTakeTheOthersAlong) {
  Layout layout;
  const std::int32_t sound = LayPiece(layout, "24188", {100.0, 100.0, 0.0});
  const std::int32_t lost = LayPiece(layout, "24188", {std::nan(""), 0.0, 0.0});
  const std::int32_t far = LayPiece(layout, "24188", {0.0, -HUGE_VAL, 0.0});
  pasteClipboard(layout, CopyOf(layout, {sound, lost, far}), {400.0, 300.0});
  ExpectPose(layout.pieces[3].pose(), 400.0, 300.0, 0.0, 1e-9);
}

TEST(PasteClipboard, LeavesTheCopiesInPlaceWhenNoNumberSaysTheWay) {
  Layout layout;
  const std::int32_t a = LayPiece(layout, "24188", {1.7e308, 0.0, 0.0});
  const std::int32_t b = LayPiece(layout, "24188", {1.7e308, 50.0, 0.0});
  pasteClipboard(layout, CopyOf(layout, {a, b}), {0.0, 0.0});
  EXPECT_EQ(layout.pieces[3].x, 1.7e308);
  EXPECT_EQ(layout.pieces[3].y, 50.0);
}

TEST(PasteClipboard, OfAShapeWithoutVerticesIsHarmless) {
  Layout layout;
  Clipboard clipboard;
  copyShape(layout, OutlineShape(layout, {}), clipboard);
  EXPECT_TRUE(pasteClipboard(layout, clipboard, {10.0, 10.0}));
  ASSERT_EQ(layout.shapes.size(), 2u);
  EXPECT_TRUE(layout.shapes[1].vertices.empty());
}

TEST(PasteClipboard, FindsFreeIdsForAllWhenTheCounterIsAtItsEnd) {
  Layout layout;
  const auto row = LayStraights(layout, 4);
  layout.scenery.push_back({.id = TakeId(layout), .sel = true});
  const std::int32_t shape = OutlineShape(layout, {{0.0, 0.0}});
  Clipboard clipboard = CopyOf(layout, {row[0], row[1], row[2], row[3]});
  copyShape(layout, shape, clipboard);
  layout.nextId = kLargestId - 2;
  pasteClipboard(layout, clipboard, {});
  // Ids 1 to 6 are in use; two are left above, then the lowest free ones.
  EXPECT_EQ(layout.pieces[4].id, kLargestId - 2);
  EXPECT_EQ(layout.pieces[5].id, kLargestId - 1);
  EXPECT_EQ(layout.pieces[6].id, 7);
  EXPECT_EQ(layout.pieces[7].id, 8);
  EXPECT_EQ(layout.scenery[1].id, 9);
  EXPECT_EQ(layout.shapes[1].id, 10);
  EXPECT_EQ(BrokenJoint(layout), "");
}

}  // namespace
}  // namespace vantrel
