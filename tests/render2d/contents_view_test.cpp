// What lies outside the visible area is skipped, and nothing else is.
#include <gtest/gtest.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "render2d/contents_drawing.h"
#include "render2d/contents_paint.h"
#include "tests/render2d/contents_fixture.h"

namespace vantrel {
namespace {

using namespace contents_test;

constexpr DeviceSize kWindow{400, 300};

std::vector<DrawCall> PaintedWhole(const Layout& layout, const ViewTransform& view) {
  RecordingDC dc({kWindow.width, kWindow.height});
  RenderContext context;
  PaintContents(context, dc, layout, view, kWindow, DrawArea::Everything());
  return dc.calls();
}

// The pixels a call can touch: its points or box, the recorded text's extent, and half the pen.
struct Bounds {
  int left = std::numeric_limits<int>::max();
  int top = std::numeric_limits<int>::max();
  int right = std::numeric_limits<int>::min();
  int bottom = std::numeric_limits<int>::min();

  void takeIn(int x, int y) {
    left = std::min(left, x);
    top = std::min(top, y);
    right = std::max(right, x);
    bottom = std::max(bottom, y);
  }
  void takeIn(const Bounds& other) {
    takeIn(other.left, other.top);
    takeIn(other.right, other.bottom);
  }
  bool touchesWindow() const {
    return right >= 0 && bottom >= 0 && left <= kWindow.width && top <= kWindow.height;
  }
};

Bounds Extent(const DrawCall& call) {
  Bounds bounds;
  for (const wxPoint& point : call.points) bounds.takeIn(point.x, point.y);
  if (call.op == DrawOp::text) {
    const int characters = static_cast<int>(wxString::FromUTF8(call.text).length());
    bounds.takeIn(call.points[0].x + characters * call.font.pointSize,
                  call.points[0].y + 2 * call.font.pointSize);
    return bounds;
  }
  if (call.points.empty()) {
    bounds.takeIn(call.box.x, call.box.y);
    bounds.takeIn(call.box.x + call.box.width, call.box.y + call.box.height);
  }
  const int pen = call.pen.style == wxPENSTYLE_TRANSPARENT ? 0 : (call.pen.width + 1) / 2;
  return {bounds.left - pen, bounds.top - pen, bounds.right + pen, bounds.bottom + pen};
}

bool IsVisible(const DrawCall& call) {
  return call.op == DrawOp::clear || Extent(call).touchesWindow();
}

std::vector<DrawCall> VisibleOf(const std::vector<DrawCall>& calls) {
  std::vector<DrawCall> visible;
  std::copy_if(calls.begin(), calls.end(), std::back_inserter(visible), IsVisible);
  return visible;
}

// A call as it looks: without the state that its kind of drawing doesn't use.
DrawCall Looks(DrawCall call) {
  const bool text = call.op == DrawOp::text;
  if (!text) {
    call.font = {};
    call.textForeground = {};
  }
  if (!text || call.backgroundMode == wxBRUSHSTYLE_TRANSPARENT) call.textBackground = {};
  if (!text) call.backgroundMode = 0;
  if (text || call.op == DrawOp::clear) call.pen = {};
  if (text || call.op == DrawOp::clear || call.op == DrawOp::line || call.op == DrawOp::lines)
    call.brush = {};
  return call;
}

void ExpectSameInView(const Layout& layout, const ViewTransform& view, const std::string& what) {
  const auto whole = VisibleOf(PaintedWhole(layout, view));
  const auto skipped = VisibleOf(Painted(layout, view, kWindow));
  for (std::size_t i = 0; i < std::min(whole.size(), skipped.size()); ++i)
    ASSERT_EQ(Looks(skipped[i]), Looks(whole[i])) << what << ", call " << i;
  ASSERT_EQ(skipped.size(), whole.size()) << what;
}

class RandomPlan {
 public:
  explicit RandomPlan(unsigned seed) : random_(seed) {}

  Layout make() {
    Layout layout;
    layout.gridVisible = chance(0.5);
    layout.labelsVisible = chance(0.7);
    layout.units = whole(0, 2);
    for (int i = 1; i <= 3; ++i) {
      layout.levels.push_back(DeckLevel(i, real(-100, 200), chance(0.8)));
      if (chance(0.7)) layout.levels.back().outline = polygon();
    }
    if (chance(0.8)) layout.baseboard = polygon();
    for (int i = 0; i < 60; ++i) layout.pieces.push_back(piece(i + 1));
    for (int i = 0; i < 25; ++i) layout.scenery.push_back(item(1000 + i));
    for (int i = 0; i < 12; ++i) layout.shapes.push_back(shape(2000 + i));
    for (int i = 0; i < 15; ++i)
      layout.labels.push_back(
          {.id = 3000 + i, .text = text(), .x = place(), .y = place(), .sel = chance(0.3)});
    for (int i = 0; i < 15; ++i) layout.measurements.push_back(tape(4000 + i));
    for (int i = 0; i < 3; ++i) layout.helices.push_back(helix(5000 + i));
    for (int i = 0; i < 6; ++i)
      layout.gradeRuns.push_back({.deg = real(-6, 6), .anchor = whole(1, 60), .conn = 1});
    layout.tunnels.resize(2);
    layout.tunnels[0].portalA = 1003;
    layout.tunnels[1].portalB = 1007;
    for (int i = 0; i < 10; ++i) layout.tunnels[0].covers.push_back(whole(1, 60));
    return layout;
  }

  ViewTransform view() {
    const double scale = std::exp(real(std::log(0.03), std::log(20.0)));
    // Some place of the plan somewhere around the window.
    return {scale, real(-200, 600) - scale * place(), real(-200, 500) - scale * place()};
  }

 private:
  double real(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  bool chance(double share) { return real(0, 1) < share; }
  double place() { return real(-1500, 1500); }

  std::vector<Vec2> polygon() {
    const Vec2 centre{place(), place()};
    const double size = real(5, 900);
    std::vector<Vec2> points;
    for (int i = whole(2, 7); i > 0; --i)
      points.push_back({centre.x + real(-size, size), centre.y + real(-size, size)});
    return points;
  }
  std::string text() {
    static const char* const kTexts[] = {"",
                                         "A",
                                         "Depot 3",
                                         "Böblingen — Gleis 14",
                                         "Caf\xE9",
                                         "北京西站",
                                         "A rather long label for a plan"};
    return kTexts[whole(0, 6)];
  }
  Piece piece(std::int32_t id) {
    const PieceDef& def = *catalog().pieceAt(whole(0, catalog().pieceCount() - 1));
    Piece piece;
    piece.id = id;
    piece.cat = chance(0.95) ? def.partNumber : "unknown";
    piece.x = place();
    piece.y = place();
    piece.heading = real(-400, 400);
    piece.sel = chance(0.2);
    piece.z = chance(0.5) ? 0.0 : real(0, 150);
    piece.level = whole(1, 4);
    piece.helix = chance(0.1) ? whole(5000, 5003) : kNone;
    piece.joints.resize(def.connectors.size());
    for (Joint& joint : piece.joints)
      if (chance(0.5)) joint = {whole(-1, 60), 0};
    return piece;
  }
  SceneryItem item(std::int32_t id) {
    const auto& items = sceneryCatalog();
    SceneryItem item;
    item.id = id;
    item.item = items[static_cast<std::size_t>(whole(0, static_cast<int>(items.size()) - 1))].id;
    item.x = place();
    item.y = place();
    item.heading = real(-400, 400);
    item.sel = chance(0.3);
    item.scalex = real(-1, 4);
    item.scaley = real(0.1, 4);
    item.level = whole(1, 4);
    return item;
  }
  Shape shape(std::int32_t id) {
    Shape shape;
    shape.id = id;
    shape.vertices = polygon();
    shape.label = text();
    shape.outline = chance(0.8);
    shape.sel = chance(0.3);
    shape.level = whole(1, 4);
    return shape;
  }
  Measurement tape(std::int32_t id) {
    Measurement tape;
    tape.id = id;
    tape.startX = place();
    tape.startY = place();
    tape.endX = chance(0.5) ? tape.startX + real(-20, 20) : place();
    tape.endY = chance(0.5) ? tape.startY + real(-20, 20) : place();
    tape.moveX = real(-300, 300);
    tape.moveY = real(-300, 300);
    tape.sel = chance(0.3);
    return tape;
  }
  Helix helix(std::int32_t id) {
    Helix helix;
    helix.id = id;
    helix.cx = place();
    helix.cy = place();
    helix.heading = real(-400, 400);
    helix.variant = kits()[static_cast<std::size_t>(whole(0, 9))].id;
    return helix;
  }

  std::mt19937 random_;
};

TEST(ContentsView, SkippingWhatIsOutOfViewNeverChangesWhatIsSeen) {
  std::size_t drawn = 0;
  std::size_t all = 0;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    RandomPlan random(seed);
    const Layout layout = random.make();
    for (int i = 0; i < 3; ++i) {
      const ViewTransform view = random.view();
      ExpectSameInView(layout, view, "seed " + std::to_string(seed));
      if (HasFatalFailure()) return;
      drawn += Painted(layout, view, kWindow).size();
      all += PaintedWhole(layout, view).size();
    }
  }
  EXPECT_LT(drawn, all / 2);  // or else there would have been nothing to compare
}

TEST(ContentsView, ANameBeyondAsciiIsMeasuredInItsOwnFontWhateverTheDeviceHas) {
  Layout layout = PlainPlan();
  // The first shape leaves the 8 point font of its edge lengths behind. The second one's name, 20
  // characters of 11 points around x = -100, ends 10 units inside the window; in the smaller font
  // it would end before the edge.
  layout.shapes = {Rectangle(100, 100, 300, 200), Shape{}};
  layout.shapes[1].vertices = {{-400, 500}, {-600, 500}, {-500, 700}};
  layout.shapes[1].label = "Böblingen — Gleis 14";
  const ViewTransform view{0.2, 0.0, 0.0};
  EXPECT_EQ(Texts(Painted(layout, view, kWindow), layout.shapes[1].label).size(), 1u);
}

TEST(ContentsView, ALabelOfSeveralLinesIsSeenByItsLastOne) {
  Layout layout = PlainPlan();
  // Four lines of 22 units from y = -75 on.
  layout.labels.push_back({.id = 1, .text = "Gleis 1\nGleis 2\nGleis 3\nGleis 4", .y = -75});
  EXPECT_EQ(Painted(layout, kOneToOne, kWindow).size(), 2u);
  layout.labels[0].y = -300;
  EXPECT_EQ(Painted(layout, kOneToOne, kWindow).size(), 1u);
}

// Pushes what `layout` shows across each side of the window until only its outermost pixel is left
// inside. `x` and `y` move the plan's only thing.
template <typename Move>
void ExpectSeenOnEverySide(double scale, const std::string& what, Move make) {
  const ViewTransform view{scale, 200.0, 150.0};
  Bounds extent;
  const auto inside = PaintedWhole(make(0.0, 0.0), view);
  for (const DrawCall& call : inside)
    if (call.op != DrawOp::clear) extent.takeIn(Extent(call));
  ASSERT_GT(inside.size(), 1u) << what;
  const double shifts[][2] = {{-1.0 * extent.right, 0.0},
                              {1.0 * kWindow.width - extent.left, 0.0},
                              {0.0, -1.0 * extent.bottom},
                              {0.0, 1.0 * kWindow.height - extent.top}};
  for (const auto& [dx, dy] : shifts) {
    ExpectSameInView(make(dx / scale, dy / scale), view, what + " at " + std::to_string(scale));
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST(ContentsView, EveryPartIsDrawnWhileItsOutermostPixelIsInView) {
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const PieceDef& def = *catalog().pieceAt(i);
    for (const auto& [scale, labels] :
         {std::pair{0.03, false}, {0.2, true}, {1.0, true}, {5.0, true}, {5.0, false}}) {
      for (const double heading : {0.0, 45.0, 90.0, 200.0, 333.0}) {
        ExpectSeenOnEverySide(scale, def.partNumber, [&, labels = labels](double x, double y) {
          Layout layout = PlainPlan();
          layout.labelsVisible = labels;
          Piece piece;
          piece.id = 1;
          piece.cat = def.partNumber;
          piece.x = x;
          piece.y = y;
          piece.heading = heading;
          piece.joints.assign(def.connectors.size(), Joint{1, 0});
          layout.pieces.push_back(piece);
          return layout;
        });
        if (HasFatalFailure()) return;
      }
    }
  }
}

TEST(ContentsView, EverySceneryItemIsDrawnWhileItsOutermostPixelIsInView) {
  for (const SceneryDef& def : sceneryCatalog()) {
    for (const double scale : {0.03, 1.0, 5.0}) {
      for (const double heading : {0.0, 45.0, 200.0}) {
        ExpectSeenOnEverySide(scale, def.id, [&](double x, double y) {
          Layout layout = PlainPlan();
          SceneryItem item;
          item.item = def.id;
          item.x = x;
          item.y = y;
          item.heading = heading;
          item.scalex = 0.7;
          item.scaley = 1.6;
          item.sel = true;
          layout.scenery.push_back(item);
          return layout;
        });
        if (HasFatalFailure()) return;
      }
    }
  }
}

TEST(ContentsView, NothingIsDrawnForAPlanFarAway) {
  RandomPlan random(7);
  Layout layout = random.make();
  layout.gridVisible = false;
  EXPECT_GT(PaintedWhole(layout, {1.0, 20'000.0, 0.0}).size(), 500u);
  for (const ViewTransform& view :
       {ViewTransform{1.0, 20'000.0, 0.0}, ViewTransform{1.0, -20'000.0, 0.0},
        ViewTransform{1.0, 0.0, 20'000.0}, ViewTransform{1.0, 0.0, -20'000.0}})
    EXPECT_EQ(Painted(layout, view, kWindow).size(), 1u);
}

TEST(ContentsView, OnlyThePiecesInViewAreDrawn) {
  Layout layout = PlainPlan();
  for (int i = 0; i < 1000; ++i) layout.pieces.push_back(ColouredTrack(i + 1, 350.0 * i, 100, {}));
  // 400 units show the pieces at 0 and 350; the one at 700 begins too far to the right.
  EXPECT_EQ(OfOp(Painted(layout, kOneToOne, kWindow), DrawOp::polygon).size(), 2u);
}

TEST(ContentsView, APartNumberIsMeasuredOnceInAPaint) {
  Layout layout = PlainPlan();
  layout.labelsVisible = true;
  for (int i = 0; i < 200; ++i) layout.pieces.push_back(ColouredTrack(i + 1, 2.0 * i, 100, {}));
  RecordingDC dc({400, 300});
  RenderContext context;
  DrawLayoutContents(context, dc, layout, kOneToOne, kWindow);
  EXPECT_EQ(dc.texts("24188").size(), 200u);
  EXPECT_EQ(dc.measurements(), 1);
  EXPECT_EQ(dc.fontChanges(), 1);
}

// One of everything, each real number of it set to `value`.
Layout AbsurdPlan(double value) {
  Layout layout;
  layout.baseboard = {{0, 0}, {value, 0}, {0, value}, {value, value}, {5, 5}};
  layout.levels = {DeckLevel(1, value), DeckLevel(2, 0), DeckLevel(3, value), DeckLevel(4, 5)};
  for (Level& level : layout.levels) level.outline = layout.baseboard;
  for (int i = 1; i <= 4; ++i) {
    Shape shape;
    shape.vertices = layout.baseboard;
    shape.level = i;
    shape.label = "Pond";
    layout.shapes.push_back(shape);
  }
  const auto field = [&](int i, int k) { return i == k || i == 4 ? value : 10.0; };
  for (int i = 0; i <= 4; ++i) {
    Piece piece = ColouredTrack(i + 1, field(i, 0), field(i, 1), {1, 2, 3});
    piece.heading = field(i, 2);
    piece.z = field(i, 3);
    piece.grade = value;
    piece.helix = i % 2 == 0 ? 50 : kNone;
    layout.pieces.push_back(piece);
    layout.gradeRuns.push_back({.deg = value, .anchor = i + 1, .conn = 0});
    SceneryItem item;
    item.id = 100 + i;
    item.item = sceneryCatalog().front().id;
    item.x = field(i, 0);
    item.heading = field(i, 1);
    item.scalex = field(i, 2);
    item.scaley = field(i, 3);
    item.sel = true;
    layout.scenery.push_back(item);
    layout.labels.push_back({.id = 200 + i, .text = "Depot", .x = field(i, 0), .y = field(i, 1)});
    layout.labels.back().sel = true;
    Measurement tape;
    tape.startX = field(i, 0);
    tape.startY = field(i, 1);
    tape.endX = field(i, 2);
    tape.moveX = field(i, 3);
    layout.measurements.push_back(tape);
    Helix helix;
    helix.id = 50;
    helix.cx = field(i, 0);
    helix.cy = field(i, 1);
    helix.heading = field(i, 2);
    layout.helices.push_back(helix);
  }
  return layout;
}

constexpr double kInf = std::numeric_limits<double>::infinity();
const double kAbsurd[] = {0.0,   1e-300, -1e9, 1e9,   1e17,        1e300,
                          1e308, -1e308, kInf, -kInf, std::nan("")};

TEST(ContentsView, AnyNumbersInAnyViewArePaintedInBoundedWork) {
  for (const double value : kAbsurd) {
    Layout layout = AbsurdPlan(value);
    for (const double scale : {-1.0, 1e-300, 0.05, 0.4, 20.0, 1e17, 1e308, kInf, std::nan("")}) {
      for (const double offset : kAbsurd) {
        for (const double grid : {32.0, value}) {
          layout.gridSize = grid;
          const auto calls = Painted(layout, {scale, offset, -offset}, kWindow);
          // Five helices of 60 curves, three calls each, a grid of at most 120 lines, and the rest.
          EXPECT_LT(calls.size(), 1500u) << value << ' ' << scale << ' ' << offset;
        }
      }
    }
  }
}

TEST(ContentsView, ARealDeviceSurvivesAnyNumbersAtTheScalesOfAWindow) {
  wxBitmap bitmap(kWindow.width, kWindow.height, 24);
  wxMemoryDC dc(bitmap);
  RenderContext context;
  for (const double value : kAbsurd) {
    const Layout layout = AbsurdPlan(value);
    for (const double scale : {0.05, 0.4, 20.0})
      for (const double offset : {60.0, 1e6, -1e9, 1e300, kInf, std::nan("")})
        DrawLayoutContents(context, dc, layout, {scale, offset, -offset}, kWindow);
  }
  // About 200 paints of some milliseconds each: if one of them doesn't end, neither does the test.
  EXPECT_TRUE(dc.IsOk());
}

TEST(ContentsView, APieceWithoutAMeaningfulHeadingIsNotSkipped) {
  // Its points are no numbers, so they are drawn at 0, in the window's corner.
  Layout layout = PlainPlan();
  layout.pieces = {ColouredTrack(1, 90'000, 90'000, {1, 2, 3})};
  layout.pieces[0].heading = std::nan("");
  ExpectSameInView(layout, kOneToOne, "no heading");
}

TEST(ContentsView, ABaseboardOfAMillionVerticesIsPaintedAtOnce) {
  Layout layout = PlainPlan();
  layout.baseboard.reserve(1'000'000);
  for (int i = 0; i < 1'000'000; ++i) {
    const double angle = i * 6.283185307179586 / 1e6;
    layout.baseboard.push_back({5e6 * std::cos(angle), 5e6 * std::sin(angle)});
  }
  // The edges are 31 mm long: all of them have a length, but only those near the window are
  // written.
  const auto calls = Painted(layout, {1.0, 200.0 - 5e6, 150.0}, kWindow);
  EXPECT_EQ(OfOp(calls, DrawOp::polygon).size(), 2u);
  const std::size_t lengths = Texts(calls, "31 mm").size();
  EXPECT_GE(lengths, 9u);
  EXPECT_LE(lengths, 60u);
}

}  // namespace
}  // namespace vantrel
