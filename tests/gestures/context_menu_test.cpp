// The right press, its menus, copy and paste.
#include "canvas/gestures/context_menu.h"

#include <gtest/gtest.h>

#include "tests/gestures/editing_driver.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

class ContextMenu : public EditingTest {
 protected:
  std::vector<std::string> menuLabels() const {
    std::vector<std::string> labels;
    if (!host.menus.empty())
      for (const MenuEntry& entry : host.menus.back()) labels.push_back(entry.label);
    return labels;
  }
};

using Labels = std::vector<std::string>;

TEST_F(ContextMenu, ARightPressOnAPieceSelectsItAndOffersCopy) {
  const std::int32_t a = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t b = lay("24188", {100.0, 300.0, 0.0});
  select({b});
  EXPECT_TRUE(pressRight(150, 100));
  EXPECT_EQ(selected(), Ids{a});
  EXPECT_EQ(menuLabels(), Labels{"Copy"});
  EXPECT_EQ(host.menus[0][0].id, 5032);
  EXPECT_EQ(host.menuAt, (DevicePoint{150, 100}));
  EXPECT_EQ(host.selectionChanges, 1);
  EXPECT_TRUE(state.clipboard.empty());
}

TEST_F(ContextMenu, OnASelectedPieceTheSelectionStays) {
  const Ids chain = layChain(3, 100.0, 100.0);
  select({chain[0], chain[1], chain[2]});
  pressRight(150, 100);
  EXPECT_EQ(selected(), chain);
  EXPECT_EQ(menuLabels(), Labels{"Copy"});
}

TEST_F(ContextMenu, OnAHelixRingItsStubsAreSelected) {
  layHelix({600.0, 600.0});
  pressRight(240, 600);
  EXPECT_EQ(selected().size(), 4u);
  EXPECT_EQ(menuLabels(), Labels{"Copy"});
}

TEST_F(ContextMenu, ExactlyTwoPiecesOfferAutofillFirst) {
  const Ids chain = layChain(2, 100.0, 100.0);
  select({chain[0], chain[1]});
  pressRight(150, 100);
  EXPECT_EQ(menuLabels(), (Labels{"Autofill Gap...", "Copy"}));
  EXPECT_EQ(host.menus[0][0].id, 6001);
}

TEST_F(ContextMenu, AutofillFillsTheGapBetweenTheTwo) {
  const std::int32_t a = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t b = lay("24188", {476.6, 100.0, 0.0});
  select({a, b});
  host.choice = kMenuAutofill;
  host.chosenFill = 0;
  pressRight(150, 100);
  ASSERT_EQ(layout.pieces.size(), 3u);
  EXPECT_EQ(layout.pieces[2].cat, "24188");
  EXPECT_EQ(JointOf(layout, b, 0), (Joint{layout.pieces[2].id, 1}));
}

TEST_F(ContextMenu, AShapeUnderAPieceComesFirstAndLeavesPiecesSelected) {
  const std::int32_t track = lay("24188", {100.0, 100.0, 0.0});
  const std::int32_t under = layShape({0.0, 0.0}, 400.0);
  const std::int32_t other = layShape({600.0, 600.0}, 50.0);
  layout.shapes[1].sel = true;
  select({track});
  host.choice = kMenuCopy;
  pressRight(150, 100);
  EXPECT_EQ(menuLabels(), Labels{"Copy"});
  EXPECT_TRUE(layout.shapes[0].sel);
  EXPECT_FALSE(layout.shapes[1].sel);
  EXPECT_EQ(selected(), Ids{track});
  ASSERT_TRUE(state.clipboard.hasShape);
  EXPECT_EQ(state.clipboard.shape.id, under);
  EXPECT_NE(state.clipboard.shape.id, other);
  EXPECT_TRUE(state.clipboard.pieces.empty());
}

TEST_F(ContextMenu, CopiedThenClickedOnEmptyCanvasTheClipboardIsEmptyAndNoMenuShows) {
  lay("24188", {100.0, 100.0, 0.0});
  host.choice = kMenuCopy;
  pressRight(150, 100);
  EXPECT_EQ(state.clipboard.pieces.size(), 1u);
  clickLeft(700, 700);
  EXPECT_TRUE(state.clipboard.empty());
  host.menus.clear();
  pressRight(700, 700);
  EXPECT_TRUE(host.menus.empty());
}

TEST_F(ContextMenu, OnEmptyCanvasWithAFilledClipboardTheSelectionStaysAndPasteIsOffered) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  host.choice = kMenuCopy;
  pressRight(150, 100);
  host.choice = 0;
  pressRight(700, 700);
  EXPECT_EQ(menuLabels(), Labels{"Paste"});
  EXPECT_EQ(host.menus.back()[0].id, 5033);
  EXPECT_EQ(selected(), Ids{id});
  EXPECT_EQ(layout.pieces.size(), 1u);
}

TEST_F(ContextMenu, WithAnEmptyClipboardARightPressOnNothingDeselectsButNotWithShift) {
  const std::int32_t id = lay("24188", {100.0, 100.0, 0.0});
  select({id});
  held.mods.shift = true;
  pressRight(700, 700);
  EXPECT_EQ(selected(), Ids{id});
  held.mods = {};
  pressRight(700, 700);
  EXPECT_EQ(selected(), Ids{});
  EXPECT_TRUE(host.menus.empty());
}

TEST_F(ContextMenu, APastedGroupLandsCentredOnThePressWithItsInnerJointsOnly) {
  const Ids chain = layChain(4, 100.0, 100.0);
  select({chain[0], chain[1], chain[2]});
  host.choice = kMenuCopy;
  pressRight(150, 100);
  host.choice = kMenuPaste;
  pressRight(900, 600);
  ASSERT_EQ(layout.pieces.size(), 7u);
  const Ids pasted{layout.pieces[4].id, layout.pieces[5].id, layout.pieces[6].id};
  EXPECT_EQ(selected(), pasted);
  // The mean position of the three is that of the middle one: it lands on the press.
  EXPECT_NEAR(layout.pieces[5].x, 900.0, 1e-9);
  EXPECT_NEAR(layout.pieces[5].y, 600.0, 1e-9);
  EXPECT_EQ(JointOf(layout, pasted[0], 1), (Joint{pasted[1], 0}));
  EXPECT_EQ(JointOf(layout, pasted[1], 1), (Joint{pasted[2], 0}));
  EXPECT_TRUE(JointOf(layout, pasted[2], 1).open());
  EXPECT_EQ(BrokenJoint(layout), "");
  EXPECT_EQ(host.status(kStatusPieces), "Pieces: 7");
  EXPECT_EQ(host.dirtyMarks, 1);
  // Once copied, pasted many times.
  pressRight(900, 900);
  EXPECT_EQ(layout.pieces.size(), 10u);
}

TEST_F(ContextMenu, APastedStubIsSelectedWithTheOldHelix) {
  const Helix helix = layHelix({600.0, 600.0});
  state.clipboard.pieces = {piece(helix.bottomR1)};
  host.choice = kMenuPaste;
  pressRight(2000, 100);
  ASSERT_EQ(layout.pieces.size(), 5u);
  EXPECT_EQ(layout.pieces[4].helix, helix.id);
  ClearSelection(layout);
  clickLeft(2050, 100);
  EXPECT_EQ(selected().size(), 5u);
}

TEST_F(ContextMenu, TheClipboardOutlivesTheLayout) {
  lay("24188", {100.0, 100.0, 0.0});
  host.choice = kMenuCopy;
  pressRight(150, 100);
  layout = {};
  host.choice = kMenuPaste;
  pressRight(300, 300);
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].cat, "24188");
}

}  // namespace
}  // namespace vantrel
