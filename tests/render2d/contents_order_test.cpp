#include <gtest/gtest.h>

#include "catalog/scenery_catalog.h"
#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;

const Rgba kBoardEdge{120, 90, 50};

SceneryItem Item(std::int32_t id, double x, double y) {
  SceneryItem item;
  item.id = id;
  item.item = sceneryCatalog().front().id;
  item.x = x;
  item.y = y;
  return item;
}

// True for any call all of whose points lie within 90 units of (x, y): the scenery below stands
// apart, so that its drawing is known by its place.
Matches Near(double x, double y) {
  return [x, y](const DrawCall& call) {
    if (call.points.empty()) return false;
    for (const wxPoint& point : call.points)
      if (std::abs(point.x - x) > 90 || std::abs(point.y - y) > 90) return false;
    return true;
  };
}

// At this scale the first one stays well within 90 units.
constexpr double kScale = 0.25;

TEST(ContentsOrder, EveryThingHasItsPlaceFromTheWhiteGroundToTheTapes) {
  Layout layout = PlainPlan();
  layout.gridVisible = true;
  layout.baseboard = Outline(40, 40, 4000, 2800);
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 100)};
  layout.levels[0].outline = Outline(100, 100, 3000, 2500);
  layout.levels[1].outline = Outline(100, 100, 2000, 2000);
  layout.shapes = {Rectangle(200, 200, 900, 900)};
  layout.shapes[0].label = "Pond";
  // Scenery at four places, the portals 3 and 4; one of each two is selected.
  layout.scenery = {Item(3, 800, 2400), Item(1, 2000, 2400), Item(4, 3200, 2400),
                    Item(2, 3200, 800)};
  layout.scenery[0].sel = true;
  layout.scenery[1].sel = true;
  layout.tunnels.resize(1);
  layout.tunnels[0].portalA = 3;
  layout.tunnels[0].portalB = 4;
  layout.helices.resize(1);
  layout.helices[0].id = 50;
  layout.helices[0].cx = 2000;
  layout.helices[0].cy = 1000;
  // 11 the helix's lower stub, 12 track on it, 13 its upper stub, 14 a spoke extension, 15 and 16
  // ordinary track.
  for (const int id : {16, 15, 14, 13, 12, 11})
    layout.pieces.push_back(
        ColouredTrack(id, 200, 1000 + 100 * (id - 10), {static_cast<std::uint8_t>(id), 0, 0}));
  layout.pieces[5].helix = 50;
  layout.pieces[3].helix = 50;
  layout.pieces[3].z = 260.0;
  layout.pieces[2].cat = "74871";
  layout.pieces[0].sel = true;  // 16
  Join(layout, 11, 1, 12, 0);
  layout.gradeRuns.push_back({.deg = 2.0, .anchor = 15, .conn = 1});
  layout.labels.push_back({.id = 60, .text = "Depot", .x = 300, .y = 300});
  layout.measurements.resize(1);
  layout.measurements[0] = {.id = 70, .startX = 400, .startY = 400, .endX = 1400, .endY = 400};

  const auto calls = Painted(layout, {kScale, 0.0, 0.0});
  const auto transparentBoard = [](const DrawCall& call) {
    return call.op == DrawOp::polygon && call.brush.style == wxBRUSHSTYLE_TRANSPARENT &&
           call.pen.colour == kBoardEdge;
  };
  const auto deck = IsFilled({235, 220, 190});
  const auto ring = [](const DrawCall& call) {
    return call.op == DrawOp::polygon && call.points.size() == 42;
  };
  struct Step {
    const char* what;
    Matches matches;
  };
  const Step steps[] = {
      {"baseboard fill", IsFilled(kBoardFill)},
      {"decks", deck},
      {"grid", HasPen({220, 220, 215})},
      {"origin cross", HasPen({180, 180, 220})},
      {"baseboard outline", transparentBoard},
      {"baseboard edge lengths", IsText("3960 mm")},
      {"shape", IsFilled({120, 170, 110, 140})},
      {"shape's name", IsText("Pond")},
      {"shape's edge lengths", IsText("700 mm")},
      {"unselected scenery", Near(3200 * kScale, 800 * kScale)},
      {"selected scenery", Near(2000 * kScale, 2400 * kScale)},
      {"low track, plan order", IsFilled({12, 0, 0})},
      {"lower stub", IsFilled({11, 0, 0})},
      {"rings", ring},
      {"other track, unselected", IsFilled({15, 0, 0})},
      {"upper stub", IsFilled({13, 0, 0})},
      {"other track, selected", IsFilled(kSelectedFill)},
  };
  EXPECT_EQ(calls.front().op, DrawOp::clear);
  std::size_t last = 0;
  for (const Step& step : steps) {
    const std::size_t first = FirstPlace(calls, step.matches);
    ASSERT_NE(first, kNowhere) << step.what;
    EXPECT_GT(first, last) << step.what;
    last = LastPlace(calls, step.matches);
  }
  // The spoke extension comes with the other track and again after it.
  const std::size_t spokeFirst = FirstPlace(calls, IsFilled({14, 0, 0}));
  const std::size_t spokeAgain = LastPlace(calls, IsFilled({14, 0, 0}));
  EXPECT_GT(spokeFirst, FirstPlace(calls, IsFilled({15, 0, 0})));
  EXPECT_LT(spokeFirst, last);
  EXPECT_GT(spokeAgain, last);
  const Step top[] = {
      {"unselected portal", Near(3200 * kScale, 2400 * kScale)},
      {"selected portal", Near(800 * kScale, 2400 * kScale)},
      {"grade arrow", HasPen({220, 100, 20})},
      {"label", IsText("Depot")},
      {"tape", HasPen({60, 60, 60})},
      {"tape's length", IsText("1000 mm")},
  };
  last = spokeAgain;
  for (const Step& step : top) {
    const std::size_t first = FirstPlace(calls, step.matches);
    ASSERT_NE(first, kNowhere) << step.what;
    EXPECT_GT(first, last) << step.what;
    last = first;
  }
  EXPECT_EQ(last, calls.size() - 1);
}

// A deck, a shape, a scenery item, a piece with a grade run, a helix with its stub, all on level 2;
// a label and a tape.
Layout OneOfEachOnLevel2() {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 100)};
  layout.levels[1].outline = Outline(0, 0, 500, 500);
  layout.shapes = {Rectangle(100, 100, 400, 400)};
  layout.shapes[0].level = 2;
  layout.scenery = {Item(1, 1500, 1500)};
  layout.scenery[0].level = 2;
  layout.pieces = {ColouredTrack(11, 200, 1000, {11, 0, 0}),
                   ColouredTrack(12, 200, 1200, {12, 0, 0})};
  for (Piece& piece : layout.pieces) piece.level = 2;
  layout.pieces[1].helix = 50;
  layout.helices.resize(1);
  layout.helices[0].id = 50;
  layout.helices[0].cx = 2000;
  layout.helices[0].cy = 1000;
  layout.gradeRuns.push_back({.deg = 2.0, .anchor = 11, .conn = 1});
  layout.labels.push_back({.id = 60, .text = "Depot", .x = 300, .y = 300});
  layout.measurements.resize(1);
  layout.measurements[0] = {.id = 70, .startX = 400, .startY = 400, .endX = 1400, .endY = 400};
  return layout;
}

TEST(ContentsOrder, AHiddenLevelHidesAllButGradeArrowsLabelsAndMeasurements) {
  Layout layout = OneOfEachOnLevel2();
  const ViewTransform view{kScale, 0.0, 0.0};
  const auto shown = Painted(layout, view);
  EXPECT_EQ(Filled(shown, {235, 220, 190}).size(), 1u);
  EXPECT_EQ(Filled(shown, {120, 170, 110, 140}).size(), 1u);
  EXPECT_NE(FirstPlace(shown, Near(1500 * kScale, 1500 * kScale)), kNowhere);
  EXPECT_EQ(Filled(shown, {11, 0, 0}).size(), 1u);
  EXPECT_EQ(Filled(shown, {210, 210, 205}).size(), 60u);

  layout.levels[1].visible = false;
  const auto hidden = Painted(layout, view);
  EXPECT_EQ(Filled(hidden, {235, 220, 190}).size(), 0u);
  EXPECT_EQ(Filled(hidden, {120, 170, 110, 140}).size(), 0u);
  EXPECT_EQ(FirstPlace(hidden, Near(1500 * kScale, 1500 * kScale)), kNowhere);
  EXPECT_EQ(Filled(hidden, {11, 0, 0}).size(), 0u);
  EXPECT_EQ(Filled(hidden, {210, 210, 205}).size(), 0u);
  // What is left: the cleared sheet, the arrow's line, head and slope, the label, and the tape's
  // line, two heads, plate and length.
  ASSERT_EQ(hidden.size(), 10u);
  EXPECT_EQ(hidden[3].text, "+2.0 deg");
  EXPECT_EQ(hidden[4].text, "Depot");
  EXPECT_EQ(hidden[9].text, "1000 mm");
}

TEST(ContentsOrder, ALevelThatDoesNotExistHidesNothing) {
  Layout layout = OneOfEachOnLevel2();
  const ViewTransform view{kScale, 0.0, 0.0};
  const std::size_t all = Painted(layout, view).size();
  layout.levels.clear();
  EXPECT_EQ(Painted(layout, view).size(), all - 1);  // only the deck itself is gone
}

Layout WithPortals() {
  Layout layout = PlainPlan();
  layout.levels = {DeckLevel(1, 0), DeckLevel(2, 100, false)};
  layout.scenery = {Item(1, 800, 800), Item(2, 2000, 800)};
  layout.pieces = {ColouredTrack(11, 200, 2000, {11, 0, 0})};
  layout.tunnels.resize(1);
  layout.tunnels[0].portalA = 1;
  layout.tunnels[0].portalB = 2;
  return layout;
}

TEST(ContentsOrder, PortalsAreDrawnOnceAndOverTheTrack) {
  const auto calls = Painted(WithPortals(), {kScale, 0.0, 0.0});
  const std::size_t track = FirstPlace(calls, IsFilled({11, 0, 0}));
  ASSERT_NE(track, kNowhere);
  EXPECT_GT(FirstPlace(calls, Near(800 * kScale, 800 * kScale)), track);
  EXPECT_GT(FirstPlace(calls, Near(2000 * kScale, 800 * kScale)), track);
  Layout ordinary = WithPortals();
  ordinary.tunnels.clear();
  const auto before = Painted(ordinary, {kScale, 0.0, 0.0});
  EXPECT_EQ(before.size(), calls.size());
  EXPECT_LT(LastPlace(before, Near(800 * kScale, 800 * kScale)),
            FirstPlace(before, IsFilled({11, 0, 0})));
}

TEST(ContentsOrder, APortalOnAHiddenLevelStaysHidden) {
  Layout layout = WithPortals();
  layout.scenery[0].level = 2;
  const auto calls = Painted(layout, {kScale, 0.0, 0.0});
  EXPECT_EQ(FirstPlace(calls, Near(800 * kScale, 800 * kScale)), kNowhere);
  EXPECT_NE(FirstPlace(calls, Near(2000 * kScale, 800 * kScale)), kNowhere);
}

TEST(ContentsOrder, ATunnelThatHasLostItsPortalsMakesAPortalOfNothing) {
  Layout layout = WithPortals();
  layout.tunnels[0].portalA = kNone;
  layout.tunnels[0].portalB = kNone;
  layout.scenery[0].id = kNone;
  const auto calls = Painted(layout, {kScale, 0.0, 0.0});
  EXPECT_LT(LastPlace(calls, Near(800 * kScale, 800 * kScale)),
            FirstPlace(calls, IsFilled({11, 0, 0})));
}

TEST(ContentsOrder, UnknownSceneryIsSkipped) {
  Layout layout = WithPortals();
  for (SceneryItem& item : layout.scenery) item.item = "no such item";
  EXPECT_EQ(Painted(layout, {kScale, 0.0, 0.0}).size(), 2u);  // the sheet and the track
}

TEST(ContentsOrder, SceneryIsDrawnAtItsOwnSize) {
  // Half as wide and twice as deep: 0.5 and 2 times the extents of the same item at its own size.
  const auto extent = [](double scalex, double scaley) {
    Layout layout = PlainPlan();
    layout.scenery = {Item(1, 2000, 1600)};
    layout.scenery[0].scalex = scalex;
    layout.scenery[0].scaley = scaley;
    layout.scenery[0].sel = true;
    const auto frame = Painted(layout, {kScale, 0.0, 0.0}).back();  // the dotted footprint
    return wxSize(frame.points[2].x - frame.points[0].x, frame.points[2].y - frame.points[0].y);
  };
  const wxSize natural = extent(1.0, 1.0);
  EXPECT_GT(natural.x, 0);
  EXPECT_NEAR(extent(0.5, 1.0).x, natural.x / 2.0, 1.0);
  EXPECT_NEAR(extent(1.0, 2.0).y, natural.y * 2.0, 2.0);
}

TEST(ContentsOrder, TheContextHoldsThePlanThatIsPainted) {
  RenderContext context;
  const Layout layout = PlainPlan();
  PaintedWith(context, layout);
  EXPECT_EQ(context.layout, &layout);
  EXPECT_EQ(context.textExtents, nullptr);
}

}  // namespace
}  // namespace vantrel
