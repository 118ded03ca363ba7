#include <gtest/gtest.h>
#include <wx/toolbar.h>

#include "canvas/canvas_panel.h"
#include "canvas/operations/joining.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"
#include "tests/frame/frame_fixture.h"

namespace vantrel {
namespace {

constexpr int kTunnelTool = 2012;
constexpr int kHideLabelsTool = 2011;

class TunnelCommand : public FrameTest {
 protected:
  // Three straights in a row, joined and selected.
  void layChain() {
    for (int i = 0; i < 3; ++i) {
      Piece& piece = addPiece();
      piece.x = 188.3 * i;
      piece.joints.resize(2);
      piece.sel = true;
    }
    joinPieces(plan(), 1, 1, 2, 0);
    joinPieces(plan(), 2, 1, 3, 0);
  }
  wxToolBar& bar() { return *frame().GetToolBar(); }
  // As at every idle moment.
  void updateStates() { bar().UpdateWindowUI(wxUPDATE_UI_FROMIDLE); }
  std::string label() {
    updateStates();
    return bar().FindById(kTunnelTool)->GetLabel().utf8_string();
  }
  bool enabled() {
    updateStates();
    return bar().GetToolEnabled(kTunnelTool);
  }
};

TEST_F(TunnelCommand, StartsDisabled) {
  EXPECT_FALSE(bar().GetToolEnabled(kTunnelTool));
  EXPECT_EQ(label(), "Tunnel");
}

TEST_F(TunnelCommand, IsOfferedForAChainOnly) {
  EXPECT_FALSE(enabled());
  layChain();
  EXPECT_TRUE(enabled());
  EXPECT_EQ(label(), "Tunnel");
  plan().pieces[1].sel = false;
  EXPECT_FALSE(enabled());
}

TEST_F(TunnelCommand, LaysATunnelAndThenOffersToRemoveIt) {
  layChain();
  command(kTunnelTool);
  EXPECT_EQ(plan().tunnels.size(), 1u);
  EXPECT_EQ(plan().scenery.size(), 2u);
  EXPECT_TRUE(frame().dirty());
  EXPECT_TRUE(enabled());
  EXPECT_EQ(label(), "Remove Tunnel");
  command(kTunnelTool);
  EXPECT_TRUE(plan().tunnels.empty());
  EXPECT_TRUE(plan().scenery.empty());
  EXPECT_TRUE(enabled());
  EXPECT_EQ(label(), "Tunnel");
}

TEST_F(TunnelCommand, IsDisabledForAPieceOfATunnelTogetherWithAnother) {
  layChain();
  plan().pieces[2].sel = false;
  command(kTunnelTool);
  ASSERT_EQ(plan().tunnels.size(), 1u);
  EXPECT_EQ(label(), "Remove Tunnel");
  plan().pieces[0].sel = false;
  plan().pieces[2].sel = true;
  EXPECT_FALSE(enabled());
  EXPECT_EQ(label(), "Tunnel");
}

TEST_F(TunnelCommand, ThatComesAnywayDoesNothing) {
  layChain();
  ClearSelection(plan());
  command(kTunnelTool);
  EXPECT_FALSE(frame().dirty());
  EXPECT_TRUE(plan().undoHistory.empty());
  EXPECT_TRUE(plan().tunnels.empty());
}

TEST_F(TunnelCommand, MarksThePlanChangedEvenWhenAnEndHasNoKnownPart) {
  layChain();
  plan().pieces[0].cat = "no such part";
  command(kTunnelTool);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(plan().undoHistory.size(), 1u);
  EXPECT_TRUE(plan().tunnels.empty());
}

TEST_F(TunnelCommand, IsUndoneInOneStep) {
  layChain();
  command(kTunnelTool);
  command(2002);
  EXPECT_TRUE(plan().tunnels.empty());
  EXPECT_TRUE(plan().scenery.empty());
  EXPECT_EQ(label(), "Tunnel");
}

TEST_F(TunnelCommand, ANewLabelKeepsTheStatesOfTheOtherTools) {
  bar().ToggleTool(kHideLabelsTool, true);
  layChain();
  updateStates();
  command(kTunnelTool);
  EXPECT_EQ(label(), "Remove Tunnel");
  EXPECT_TRUE(bar().GetToolState(kHideLabelsTool));
  EXPECT_TRUE(bar().GetToolEnabled(2002)) << "there is something to undo";
  EXPECT_FALSE(bar().GetToolEnabled(2003));
}

class HelixCommand : public FrameTest {};

TEST_F(HelixCommand, PlacesTheKitAsThePaletteAsks) {
  frame().placeHelix("proses_3_5_r2r3", {500.0, 500.0, 0.0});
  ASSERT_EQ(plan().helices.size(), 1u);
  EXPECT_EQ(plan().helices[0].variant, "proses_3_5_r2r3");
  EXPECT_EQ(plan().helices[0].cx, 500.0);
  EXPECT_EQ(plan().pieces.size(), 4u);
  EXPECT_TRUE(frame().dirty());
  EXPECT_EQ(statusText(kStatusPieces), "Pieces: 4");
  EXPECT_FALSE(frame().canvas().state().helixPlacement.active);
}

}  // namespace
}  // namespace vantrel
