// That each step of a gesture that shows something asks for a repaint: without one nothing of it is
// seen until something else repaints.
#include <gtest/gtest.h>
#include <wx/defs.h>

#include "catalog/scenery_catalog.h"
#include "tests/gestures/editing_driver.h"

namespace vantrel {
namespace {

class Repaints : public EditingTest {
 protected:
  // How many repaints a step asks for.
  template <typename Step>
  int during(Step step) {
    const int before = host.repaints;
    step();
    return host.repaints - before;
  }
  // Two motions of a drag that has begun ask for one each.
  void expectOneForEachMotion(int x, int y) {
    EXPECT_EQ(during([&] { move(x, y); }), 1);
    EXPECT_EQ(during([&] { move(x + 7, y + 3); }), 1);
  }
};

TEST_F(Repaints, OfTheTape) {
  layout.toolMode = kMeasureTool;
  EXPECT_EQ(during([&] { move(90, 80); }), 0) << "nothing is drawn yet";
  EXPECT_EQ(during([&] { clickLeft(120, 80); }), 1);
  expectOneForEachMotion(300, 210);
  EXPECT_EQ(during([&] { clickLeft(310, 215); }), 1);
  layout.toolMode = kMeasureTool;
  clickLeft(120, 80);
  EXPECT_EQ(during([&] { key(WXK_ESCAPE); }), 1);
}

TEST_F(Repaints, OfThePolygon) {
  layout.toolMode = kPolygonTool;
  EXPECT_EQ(during([&] { move(90, 80); }), 0) << "nothing is drawn yet";
  EXPECT_EQ(during([&] { clickLeft(120, 80); }), 1);
  expectOneForEachMotion(300, 210);
  clickLeft(310, 215);
  EXPECT_EQ(during([&] { key(WXK_BACK); }), 1);
  clickLeft(310, 215);
  clickLeft(150, 300);
  EXPECT_EQ(during([&] { key(WXK_RETURN); }), 1);
  layout.toolMode = kPolygonTool;
  clickLeft(700, 80);
  EXPECT_EQ(during([&] { key(WXK_ESCAPE); }), 1);
}

TEST_F(Repaints, OfADragOfTheSelection) {
  lay("24188", {100.0, 140.0, 0.0});
  pressLeft(150, 140);
  EXPECT_EQ(during([&] { move(152, 141); }), 0) << "a press is no drag yet";
  expectOneForEachMotion(200, 170);
  EXPECT_EQ(during([&] { releaseLeft(207, 173); }), 1);
}

TEST_F(Repaints, OfAScaleHandle) {
  // The handle of its right edge, wherever the catalog puts that.
  layScenery("platform", {500.0, 360.0, 0.0});
  layout.scenery[0].sel = true;
  const SceneryDef& def = *findScenery("platform");
  const int right = static_cast<int>(500.0 + def.width / 2.0);
  pressLeft(right, 360);
  ASSERT_TRUE(state.sceneryResize.active);
  expectOneForEachMotion(right + 20, 350);
  EXPECT_EQ(during([&] { releaseLeft(right + 27, 353); }), 1);
}

TEST_F(Repaints, OfATapeThatIsMoved) {
  Measurement tape;
  tape.id = layout.nextId++;
  tape.startX = 100.0;
  tape.startY = 130.0;
  tape.endX = 500.0;
  tape.endY = 130.0;
  layout.measurements.push_back(tape);
  EXPECT_GE(during([&] { pressLeft(150, 132); }), 1) << "it shows as selected";
  ASSERT_TRUE(state.measureMove.active);
  expectOneForEachMotion(170, 190);
}

TEST_F(Repaints, OfAShapeThatIsMoved) {
  layShape({100.0, 240.0}, 120.0);
  EXPECT_GE(during([&] { pressLeft(150, 300); }), 1) << "it shows as selected";
  ASSERT_TRUE(state.shapeMove.active);
  expectOneForEachMotion(170, 390);
}

TEST_F(Repaints, OfADeckThatIsMoved) {
  Level deck;
  deck.id = 2;
  deck.outline = {{100.0, 140.0}, {600.0, 140.0}, {600.0, 400.0}, {100.0, 400.0}};
  layout.levels.push_back(deck);
  held.mods.shift = true;
  pressLeft(300, 140);
  ASSERT_TRUE(state.deckDrag.active);
  expectOneForEachMotion(320, 190);
}

TEST_F(Repaints, OfALabelThatIsSelectedAndMoved) {
  Label label;
  label.id = layout.nextId++;
  label.x = 300.0;
  label.y = 170.0;
  layout.labels.push_back(label);
  EXPECT_GE(during([&] { pressLeft(300, 170); }), 1) << "it shows as selected";
  ASSERT_TRUE(state.labelDrag.active);
  expectOneForEachMotion(320, 190);
  releaseLeft(327, 193);
  EXPECT_GE(during([&] { pressLeft(900, 600); }), 1) << "it shows as selected no more";
}

TEST_F(Repaints, OfTheBandOfThePansAndOfATurn) {
  const std::int32_t id = lay("24188", {400.0, 310.0, 0.0});
  pressLeft(700, 600);
  expectOneForEachMotion(750, 620);
  EXPECT_GE(during([&] { releaseLeft(757, 623); }), 1);
  pressMiddle(700, 600);
  expectOneForEachMotion(750, 620);
  releaseMiddle(757, 623);
  held.leftDown = held.spaceDown = true;
  move(700, 600);
  expectOneForEachMotion(750, 620);
  held.leftDown = held.spaceDown = false;
  onLeftRelease(context, at(757, 623));
  select({id});
  held.mods.alt = true;
  pressLeft(600, 330);
  expectOneForEachMotion(590, 420);
  EXPECT_EQ(during([&] { releaseLeft(597, 423); }), 1);
}

}  // namespace
}  // namespace vantrel
