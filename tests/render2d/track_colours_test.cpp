#include "render2d/track_colours.h"

#include <gtest/gtest.h>

#include <limits>

#include "catalog/track_catalog.h"
#include "tests/render2d/track_test_support.h"

namespace vantrel {
namespace {

struct Look {
  Rgba fill;
  Rgba outline;

  friend bool operator==(const Look&, const Look&) = default;
};

std::ostream& operator<<(std::ostream& out, const Look& look) {
  return out << "fill " << look.fill << " outline " << look.outline;
}

struct State {
  bool selected = false;
  bool inTunnel = false;
};

// The colours of the piece's first bed.
Look LookOf(const RenderContext& context, const Piece& piece, const PieceDef& def,
            State state = {}) {
  RecordingDC dc;
  DrawTrackPiece(context, dc, piece, def, kPlainView, state.selected, false, state.inTunnel);
  return {dc.calls().at(0).brush.colour, dc.calls().at(0).pen.colour};
}

class TrackColours : public testing::Test {
 protected:
  TrackColours() {
    layout.levels.push_back({.id = 1});
    layout.levels.push_back({.id = 7, .trackcolor = true, .r = 11, .g = 22, .b = 33});
    context.layout = &layout;
  }

  Look look(State state = {}) { return LookOf(context, piece, *def, state); }
  Look lookAt(double z) {
    piece.z = z;
    return look();
  }

  Layout layout;
  RenderContext context;
  const PieceDef* def = findPart("24188");
  Piece piece = PieceOf(*def);
};

constexpr Look kPlain{kDefaultFill, kDefaultOutline};
constexpr Look kPicked{kPickedFill, kPickedOutline};
constexpr Look kHalfHigh{{255, 220, 60}, {195, 160, 30}};

TEST_F(TrackColours, KTrackIsBrownishAndEveryOtherSystemGrey) {
  EXPECT_EQ(look(), kPlain);
  PieceDef other = *def;
  for (const TrackSystem system : {TrackSystem::MarklinZ, TrackSystem::TrixC, TrackSystem{9}}) {
    other.system = system;
    EXPECT_EQ(LookOf(context, piece, other), kPlain);
  }
  other.system = TrackSystem::MarklinK;
  EXPECT_EQ(LookOf(context, piece, other), (Look{{215, 200, 175}, kDefaultOutline}));
}

TEST_F(TrackColours, BedsHaveASolidPenOneDeviceUnitWideAtAnyScale) {
  for (const double scale : {0.05, 1.0, 40.0}) {
    const std::vector<DrawCall> calls = PlainCalls(*def, {}, {scale, 0.0, 0.0});
    EXPECT_EQ(calls.at(0).pen, SolidPen(kDefaultOutline, 1));
    EXPECT_EQ(calls.at(0).brush, SolidBrush(kDefaultFill));
  }
}

TEST_F(TrackColours, ALevelLendsItsColourOnlyWhenItsTrackColourIsOn) {
  piece.level = 7;
  EXPECT_EQ(look(), (Look{{11, 22, 33}, kDefaultOutline}));
  layout.levels[1].trackcolor = false;
  EXPECT_EQ(look(), kPlain);
}

TEST_F(TrackColours, AMissingLevelOrNoLayoutAtAllLendsNone) {
  piece.level = 8;
  EXPECT_EQ(look(), kPlain);
  piece.level = 7;
  context.layout = nullptr;
  EXPECT_EQ(look(), kPlain);
}

TEST_F(TrackColours, APiecesOwnColourBeatsTheLevels) {
  piece.level = 7;
  piece.hasColor = true;
  piece.colorR = 1;
  piece.colorG = 2;
  piece.colorB = 3;
  EXPECT_EQ(look(), (Look{{1, 2, 3}, kDefaultOutline}));
  piece.hasColor = false;
  EXPECT_EQ(look(), (Look{{11, 22, 33}, kDefaultOutline}));
}

TEST_F(TrackColours, ASelectedPieceShowsNothingElse) {
  EXPECT_EQ(look({.selected = true}), kPicked);
  piece.level = 7;
  piece.hasColor = true;
  piece.z = 60.0;
  EXPECT_EQ(look({.selected = true}), kPicked);
}

TEST_F(TrackColours, TheSelectionIsTheCallersNotThePieces) {
  piece.sel = true;
  EXPECT_EQ(look(), kPlain);
}

TEST_F(TrackColours, AboveHalfAMillimetreTheHeightShows) {
  EXPECT_EQ(lookAt(0.5), kPlain);
  EXPECT_EQ(lookAt(-60.0), kPlain);
  // t = 0.005, u = 0.01: (210.45, 210.1, 203.55) truncated, less (60, 60, 30).
  EXPECT_EQ(lookAt(0.6), (Look{{210, 210, 203}, {150, 150, 173}}));
  // t = 0.25, u = 0.5: (232.5, 215, 132.5)
  EXPECT_EQ(lookAt(30.0), (Look{{232, 215, 132}, {172, 155, 102}}));
  // t = 0.49167, u = 0.98333: (254.25, 219.83, 62.42)
  EXPECT_EQ(lookAt(59.0), (Look{{254, 219, 62}, {194, 159, 32}}));
}

TEST_F(TrackColours, TheHeightRunsThroughYellowAt60MmToBrownAt120) {
  EXPECT_EQ(lookAt(60.0), kHalfHigh);
  // t = 0.75, u = 0.5: (217.5, 165, 30)
  EXPECT_EQ(lookAt(90.0), (Look{{217, 165, 30}, {157, 105, 0}}));
  const Look brown{{180, 110, 0}, {120, 50, 0}};
  EXPECT_EQ(lookAt(120.0), brown);
  EXPECT_EQ(lookAt(5000.0), brown);
  EXPECT_EQ(lookAt(std::numeric_limits<double>::infinity()), brown);
}

TEST_F(TrackColours, AnOutlineChannelOfOneIsKept) {
  // t = 0.7375, u = 0.475: (219.375, 167.75, 31.5)
  EXPECT_EQ(lookAt(88.5), (Look{{219, 167, 31}, {159, 107, 1}}));
}

TEST_F(TrackColours, AHeightThatIsNoNumberIsNoHeight) {
  EXPECT_EQ(lookAt(std::numeric_limits<double>::quiet_NaN()), kPlain);
}

TEST_F(TrackColours, TheHeightBeatsTheLevelsAndThePiecesOwnColour) {
  piece.level = 7;
  EXPECT_EQ(lookAt(60.0), kHalfHigh);
  piece.hasColor = true;
  EXPECT_EQ(lookAt(60.0), kHalfHigh);
}

TEST_F(TrackColours, ALeftTurnoutKeepsItsLevelsColourOnlyUpToHalfAMillimetre) {
  def = findPart("24611");
  ASSERT_EQ(def->kind, PieceKind::LeftTurnout);
  piece = PieceOf(*def);
  piece.level = 7;
  EXPECT_EQ(lookAt(0.5), (Look{{11, 22, 33}, kDefaultOutline}));
  // t = 0.00425, u = 0.0085: (210.38, 210.09, 203.77) truncated, less (60, 60, 30).
  EXPECT_EQ(lookAt(0.51), (Look{{210, 210, 203}, {150, 150, 173}}));
  EXPECT_EQ(lookAt(60.0), kHalfHigh);
}

TEST_F(TrackColours, AFlatPieceJoinedToAHelixStubKeepsItsColoursAndAGradedOneShowsItsHeight) {
  piece.id = 5;
  piece.level = 7;
  context.helixLinked = {4, 5};
  EXPECT_EQ(lookAt(60.0), (Look{{11, 22, 33}, kDefaultOutline}));
  piece.grade = 2.0;
  EXPECT_EQ(look(), kHalfHigh);
  piece.grade = 0.0;
  context.helixLinked = {4};
  EXPECT_EQ(look(), kHalfHigh);
}

TEST_F(TrackColours, AGradeBelowAThousandthOfADegreeIsFlat) {
  context.helixLinked = {piece.id};
  piece.z = 60.0;
  for (const double flat : {0.0009, -0.0009}) {
    piece.grade = flat;
    EXPECT_EQ(look(), kPlain) << flat;
  }
  for (const double graded : {0.001, -0.001, std::numeric_limits<double>::quiet_NaN()}) {
    piece.grade = graded;
    EXPECT_EQ(look(), kHalfHigh) << graded;
  }
}

TEST_F(TrackColours, AFlatHelixPieceKeepsItsColours) {
  piece.helix = 0;  // an id like any other: only -1 means none
  EXPECT_EQ(lookAt(60.0), kPlain);
  piece.grade = -1.0;
  EXPECT_EQ(look(), kHalfHigh);
}

TEST_F(TrackColours, ATunnelFadesFillAndOutline) {
  // 0.4 * 210 + 132 = 216, 0.4 * 205 + 132 = 214; 0.4 * 120 + 132 = 180, 0.4 * 115 + 132 = 178.
  EXPECT_EQ(look({.inTunnel = true}), (Look{{216, 216, 214}, {180, 180, 178}}));
  // 132.4, 133.6 and 234, truncated.
  piece.hasColor = true;
  piece.colorR = 1;
  piece.colorG = 4;
  piece.colorB = 255;
  EXPECT_EQ(look({.inTunnel = true}).fill, (Rgba{132, 133, 234}));
}

TEST_F(TrackColours, ATunnelFadesTheColoursOfHeight) {
  // (255, 220, 60) and (195, 160, 30), each times 0.4 plus 132.
  piece.z = 60.0;
  EXPECT_EQ(look({.inTunnel = true}), (Look{{234, 220, 156}, {210, 196, 144}}));
}

TEST_F(TrackColours, ASelectedPieceInATunnelIsNotFaded) {
  EXPECT_EQ(look({.selected = true, .inTunnel = true}), kPicked);
}

TEST_F(TrackColours, DarkFillsWrapAroundInTheBranchOfATurnout) {
  def = findPart("24612");
  piece = PieceOf(*def);
  piece.hasColor = true;
  piece.colorR = 14;
  piece.colorG = 0;
  piece.colorB = 9;
  RecordingDC dc;
  DrawTrackPiece(context, dc, piece, *def, kPlainView, false, false, false);
  // 14 - 15 = -1, 0 - 15 = -15, 9 - 10 = -1, each plus 256.
  EXPECT_EQ(FillsOf(dc.calls()), (std::vector<Rgba>{{14, 0, 9}, {255, 241, 255}}));
}

TEST(SlipColour, StopsAt255OnAPlacedPieceOnly) {
  EXPECT_EQ(slipColour({250, 245, 237}, false), (Rgb8{255, 255, 255}));
  EXPECT_EQ(slipColour({250, 246, 238}, true), (Rgb8{4, 0, 0}));
}

}  // namespace
}  // namespace vantrel
