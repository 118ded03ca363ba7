#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::Loaded;
using testing::LoadOver;
using testing::ProblemOf;

TEST(LayoutReader, ReadsBackEveryRecordOfARichPlan) {
  Layout expected = testing::RichLayout();
  expected.levels[0].r = 0;  // the flag of the track colour, as always
  expected.levels[1].r = 1;
  expected.pieces[1].heading = 359.9877;
  const Layout layout = Loaded(testing::Saved(testing::RichLayout()));
  EXPECT_EQ(layout.units, kInches);
  EXPECT_EQ(layout.gradeRuns, expected.gradeRuns);
  EXPECT_EQ(layout.pieces, expected.pieces);
  EXPECT_EQ(layout.scenery, expected.scenery);
  EXPECT_EQ(layout.activeLevel, 7);
  EXPECT_EQ(layout.levels, expected.levels);
  EXPECT_EQ(layout.baseboard, expected.baseboard);
  EXPECT_EQ(layout.lastShape, expected.lastShape);
  EXPECT_EQ(layout.labels, expected.labels);
  EXPECT_EQ(layout.shapes, expected.shapes);
  EXPECT_EQ(layout.tunnels, expected.tunnels);
  EXPECT_EQ(layout.helices, expected.helices);
  EXPECT_EQ(layout.nextId, 13);
  EXPECT_EQ(layout.currentGrade,
            (CurrentGrade{.active = true, .deg = -1.25, .anchor = 1, .conn = 0}));
}

TEST(LayoutReader, GivesTheDisplayNameAndUnits) {
  Layout layout;
  layout.units = kInches;
  EXPECT_EQ(LoadOver(layout, "<layout name=\"My plan\" version=\"1\" units=\"1\">\n"), "My plan");
  EXPECT_EQ(layout.units, kCentimetres);
  EXPECT_EQ(LoadOver(layout, "<layout name=\"\">\n"), "");
  EXPECT_EQ(layout.units, kMillimetres) << "without the attribute";
}

TEST(LayoutReader, NeverLooksAtTheVersion) {
  EXPECT_EQ(ProblemOf("<layout name=\"a\" version=\"none\" units=\"0\">\n"), "loads");
}

TEST(LayoutReader, LeavesEntitiesInTextsSoThatTheyGrowAtEverySave) {
  Layout layout;
  layout.labels = {{.id = 1, .text = "A & B"}};
  Layout once = Loaded(testing::Saved(layout));
  EXPECT_EQ(once.labels[0].text, "A &amp; B");
  const Layout twice = Loaded(testing::Saved(once));
  EXPECT_EQ(twice.labels[0].text, "A &amp;amp; B");
  Layout named;
  EXPECT_EQ(LoadOver(named, testing::Saved(layout, "\"M & S\"")), "&quot;M &amp; S&quot;");
}

TEST(LayoutReader, ALayoutWithoutPiecesHasBothPiecesLinesAndReadsBackEmpty) {
  const std::string file = testing::Saved(Layout{});
  EXPECT_NE(file.find("\n  <pieces>\n  </pieces>\n"), std::string::npos);
  Layout layout;
  layout.pieces.resize(3);
  LoadOver(layout, file);
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_EQ(layout.nextId, 1);
}

TEST(LayoutReader, ALevelWithTwoOutlinePointsComesBackWithNone) {
  Layout layout;
  layout.levels = {{.id = 1, .outline = {{0, 0}, {1, 1}}},
                   {.id = 2, .outline = {{0, 0}, {1, 1}, {2, 0}}}};
  const Layout back = Loaded(testing::Saved(layout));
  ASSERT_EQ(back.levels.size(), 2u);
  EXPECT_TRUE(back.levels[0].outline.empty());
  EXPECT_EQ(back.levels[1].outline.size(), 3u);
}

TEST(LayoutReader, TheRedOfALevelComesBackAsItsTrackColourFlag) {
  Layout layout;
  layout.levels = {{.id = 1, .trackcolor = true, .r = 200, .g = 50, .b = 50},
                   {.id = 2, .trackcolor = false, .r = 200, .g = 50, .b = 50}};
  const Layout back = Loaded(testing::Saved(layout));
  ASSERT_EQ(back.levels.size(), 2u);
  EXPECT_EQ(back.levels[0].r, 1);
  EXPECT_EQ(back.levels[0].g, 50);
  EXPECT_EQ(back.levels[0].b, 50);
  EXPECT_TRUE(back.levels[0].trackcolor);
  EXPECT_EQ(back.levels[1].r, 0);
  EXPECT_FALSE(back.levels[1].trackcolor);
}

TEST(LayoutReader, AnOldLevelLineWithoutTrackColourKeepsItsRed) {
  const Layout layout = Loaded(
      "<levels active=\"3\">\n<level id=\"3\" name=\"Old\" visible=\"1\" height=\"5.0000\" "
      "r=\"200\" "
      "g=\"50\" b=\"60\"/>\n</levels>\n");
  EXPECT_EQ(layout.activeLevel, 3);
  EXPECT_EQ(
      layout.levels,
      (std::vector<Level>{{.id = 3, .name = "Old", .height = 5, .r = 200, .g = 50, .b = 60}}));
}

TEST(LayoutReader, GivesALevelItsDefaultsForMissingAndEmptyAttributes) {
  const Level expected{.id = 4, .name = "", .r = 180, .g = 180, .b = 180};
  EXPECT_EQ(Loaded("<levels >\n<level id=\"4\"/>\n").levels, std::vector<Level>{expected});
  EXPECT_EQ(Loaded("<levels active=\"\">\n<level id=\"4\" name=\"\" visible=\"\" height=\"\" "
                   "trackcolor=\"\" r=\"9\" g=\"\" b=\"\"/>\n")
                .levels,
            std::vector<Level>{expected})
      << "the empty track colour hides the red";
}

TEST(LayoutReader, WithoutAnActiveLevelTheFirstIsActive) {
  Layout layout;
  layout.activeLevel = 9;
  LoadOver(layout, "<levels active=\"\">\n</levels>\n");
  EXPECT_EQ(layout.activeLevel, 1);
}

TEST(LayoutReader, OnlyZeroHidesALevelAndOnlyOneColoursItsTrack) {
  const Layout layout = Loaded(
      "<levels >\n<level id=\"1\" visible=\"0\" trackcolor=\"1\"/>\n"
      "<level id=\"2\" visible=\"00\" trackcolor=\"01\"/>\n"
      "<level id=\"3\" visible=\"2\" trackcolor=\"2\"/>\n");
  ASSERT_EQ(layout.levels.size(), 3u);
  EXPECT_FALSE(layout.levels[0].visible);
  EXPECT_TRUE(layout.levels[0].trackcolor);
  EXPECT_TRUE(layout.levels[1].visible);
  EXPECT_FALSE(layout.levels[1].trackcolor);
  EXPECT_EQ(layout.levels[1].r, 1);  // "01" as a number
  EXPECT_TRUE(layout.levels[2].visible);
  EXPECT_FALSE(layout.levels[2].trackcolor);
  EXPECT_EQ(layout.levels[2].r, 2);
}

TEST(LayoutReader, ReadsLevelsOnlyBetweenTheirTags) {
  const Layout layout = Loaded(
      "<level id=\"1\"/>\n<levels active=\"6\"><level id=\"2\"/>\n<level id=\"3\"/>\n"
      "<level id=\"4\"/></levels>\n<level id=\"5\"/>\n<pt x=\"1\" y=\"1\"/>\n");
  ASSERT_EQ(layout.levels.size(), 2u);
  EXPECT_EQ(layout.levels[0].id, 2) << "the opening line itself counts";
  EXPECT_EQ(layout.levels[1].id, 3) << "the closing line doesn't";
  EXPECT_EQ(layout.activeLevel, 6);
  EXPECT_TRUE(layout.levels[1].outline.empty());
}

TEST(LayoutReader, IgnoresAnOutlinePointBeforeTheFirstLevel) {
  const Layout layout =
      Loaded("<levels active=\"1\">\n<pt x=\"oops\"/>\n<level id=\"1\">\n<pt x=\"1\" y=\"2\"/>\n");
  ASSERT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.levels[0].outline, (std::vector<Vec2>{{1, 2}}));
}

TEST(LayoutReader, MakesTheDefaultLevelWhenTheFileHasNone) {
  Layout layout;
  layout.levels = {{.id = 9}};
  layout.activeLevel = 9;
  LoadOver(layout, "<layout name=\"a\">\n");
  EXPECT_EQ(layout.levels,
            (std::vector<Level>{{.id = 1, .name = "Level 1", .r = 180, .g = 200, .b = 220}}));
  EXPECT_EQ(layout.activeLevel, 9) << "no levels line, no new active level";
}

TEST(LayoutReader, LastShapeMatchesWithoutABlankAndInALongerTag) {
  EXPECT_EQ(Loaded("<lastshape\tid=\"3\"/>\n").lastShape.id, 3);
  EXPECT_EQ(Loaded("<lastshapes_of_old id=\"4\"/>\n").lastShape.id, 4);
  EXPECT_EQ(Loaded("<lastshap id=\"4\"/>\n").lastShape.id, 0);
}

TEST(LayoutReader, LastShapeKeepsWhatTheFileDoesNotGive) {
  Layout layout;
  layout.lastShape = {.id = 1, .w_mm = 10, .h_mm = 20, .w2_mm = 30, .h2_mm = 40};
  LoadOver(layout, "<lastshape id=\"\" w_mm=\"5\" h2_mm=\"6\"/>\n");
  EXPECT_EQ(layout.lastShape, (LastShape{.id = 1, .w_mm = 5, .h_mm = 20, .w2_mm = 30, .h2_mm = 6}));
  LoadOver(layout, "");
  EXPECT_EQ(layout.lastShape.w_mm, 5);
}

TEST(LayoutReader, AShapeWithAnEmptyIdIsDroppedAndItsVerticesGoToTheOneBefore) {
  const Layout layout = Loaded(
      "<shape id=\"1\">\n<v x=\"1\" y=\"2\"/>\n</shape>\n"
      "<shape id=\"\" r=\"oops\">\n<v x=\"3\" y=\"4\"/>\n</shape>\n");
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].vertices, (std::vector<Vec2>{{1, 2}, {3, 4}}));
}

TEST(LayoutReader, AShapeClosedInItsOwnLineIsNoShape) {
  const Layout layout =
      Loaded("<shape id=\"1\"></shape>\n<shape id=\"2\"></shapes>\n<shape id=\"3\"/>\n");
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].id, 3);
}

TEST(LayoutReader, AShapeKeepsItsDefaultsForMissingAttributes) {
  const Layout layout = Loaded(
      "<shape id=\"1\" r=\"\" g=\"\" b=\"\" a=\"\" outline=\"\" level=\"\" height=\"\">\n"
      "<shape id=\"2\" outline=\"0\">\n");
  EXPECT_EQ(layout.shapes, (std::vector<Shape>{{.id = 1}, {.id = 2, .outline = false}}));
}

TEST(LayoutReader, AVertexOfAShapeNeedsBothCoordinatesAndAShape) {
  const Layout layout = Loaded(
      "<v x=\"1\" y=\"1\"/>\n<shape id=\"1\">\n<v x=\"1\"/>\n<v y=\"2\"/>\n<v x=\"\" y=\"3\"/>\n"
      "<v x=\"4\" y=\"5\"/>\n");
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].vertices, (std::vector<Vec2>{{4, 5}}));
}

TEST(LayoutReader, LoadingKeepsTheGradeRunsOfTheLayoutBefore) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1, .anchor = 5, .conn = 0}};
  LoadOver(layout, "<run deg=\"2\" anchor=\"6\" conn=\"1\"/>\n");
  EXPECT_EQ(layout.gradeRuns, (std::vector<GradeRun>{{.deg = 1, .anchor = 5, .conn = 0},
                                                     {.deg = 2, .anchor = 6, .conn = 1}}));
  EXPECT_EQ(layout.currentGrade.deg, 2);
  EXPECT_EQ(layout.currentGrade.anchor, 6);
}

TEST(LayoutReader, AKeptGradeRunBecomesTheCurrentGradeWhenTheFileHasNone) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1, .anchor = 5, .conn = 0}};
  LoadOver(layout, "<layout name=\"a\">\n");
  EXPECT_EQ(layout.currentGrade, (CurrentGrade{.active = true, .deg = 1, .anchor = 5, .conn = 0}));
}

TEST(LayoutReader, AfterANewPlanNoGradeRunIsLeftToKeep) {
  Layout layout;
  layout.gradeRuns = {{.deg = 1, .anchor = 5, .conn = 0}};
  ResetGrades(layout);  // what New does
  LoadOver(layout, "<layout name=\"a\">\n");
  EXPECT_TRUE(layout.gradeRuns.empty());
  EXPECT_FALSE(layout.currentGrade.active);
}

TEST(LayoutReader, MeasurementsSurviveALoadAndVanishAtASave) {
  Layout layout;
  layout.measurements = {
      {.id = 50, .startX = 1, .startY = 2, .endX = 3, .endY = 4, .moveX = 5, .sel = true}};
  const std::vector<Measurement> before = layout.measurements;
  const std::string file = testing::Saved(layout);
  LoadOver(layout, file);
  EXPECT_EQ(layout.measurements, before);
  EXPECT_EQ(layout.nextId, 1) << "they count as no record of the file";
  EXPECT_TRUE(Loaded(file).measurements.empty());
}

TEST(LayoutReader, ReplacesEveryOtherListAndLeavesTheRest) {
  Layout layout = testing::RichLayout();
  layout.measurements = {{.id = 50}};
  layout.snapEnabled = layout.gridVisible = layout.labelsVisible = false;
  layout.baseboardVisible = false;
  layout.toolMode = kMeasureTool;
  layout.gridSize = 16;
  layout.undoHistory.emplace_back();
  layout.redoHistory.resize(2);
  const std::vector<Vec2> baseboard = layout.baseboard;
  LoadOver(layout, "<pieces>\n</pieces>\n");
  EXPECT_TRUE(layout.pieces.empty());
  EXPECT_TRUE(layout.scenery.empty());
  EXPECT_TRUE(layout.labels.empty());
  EXPECT_TRUE(layout.shapes.empty());
  EXPECT_TRUE(layout.tunnels.empty());
  EXPECT_TRUE(layout.helices.empty());
  EXPECT_EQ(layout.levels.size(), 1u);
  EXPECT_EQ(layout.nextId, 1);
  EXPECT_EQ(layout.baseboard, baseboard);
  EXPECT_EQ(layout.measurements.size(), 1u);
  EXPECT_FALSE(layout.snapEnabled || layout.gridVisible || layout.labelsVisible ||
               layout.baseboardVisible);
  EXPECT_EQ(layout.toolMode, kMeasureTool);
  EXPECT_EQ(layout.gridSize, 16);
  EXPECT_EQ(layout.undoHistory.size(), 1u);
  EXPECT_EQ(layout.redoHistory.size(), 2u);
}

TEST(LayoutReader, ABaseboardInTheFileReplacesTheOldOne) {
  Layout layout;
  layout.baseboard = {{9, 9}};
  LoadOver(layout,
           "<vertex x=\"8\" y=\"8\"/>\n<baseboard>\n<vertex x=\"1\" y=\"2\"/>\n<vertex x=\"3\" "
           "y=\"4\"/>\n"
           "</baseboard>\n<vertex x=\"5\" y=\"6\"/>\n");
  EXPECT_EQ(layout.baseboard, (std::vector<Vec2>{{1, 2}, {3, 4}}));
  LoadOver(layout, "<baseboard>\n</baseboard>\n");
  EXPECT_TRUE(layout.baseboard.empty());
}

TEST(LayoutReader, AVertexOutsideABaseboardIsNotLookedAt) {
  Layout layout;
  layout.baseboard = {{9, 9}};
  LoadOver(layout, "<vertex x=\"8\" y=\"8\"/>\n<vertex x=\"oops\"/>\n");
  EXPECT_EQ(layout.baseboard, (std::vector<Vec2>{{9, 9}}));
}

TEST(LayoutReader, ReadsSceneryOnlyBetweenItsTags) {
  const std::string item = "<sceneryitem id=\"5\" item=\"oak\" x=\"1\" y=\"2\" heading=\"3\"/>\n";
  EXPECT_TRUE(Loaded(item).scenery.empty());
  EXPECT_TRUE(Loaded("<scenery>\n</scenery>\n" + item).scenery.empty());
  const Layout layout = Loaded("<scenery>\n" + item);
  EXPECT_EQ(layout.scenery,
            (std::vector<SceneryItem>{{.id = 5, .item = "oak", .x = 1, .y = 2, .heading = 3}}));
  EXPECT_EQ(layout.nextId, 6);
}

TEST(LayoutReader, TakesTheLabelTextAsItIs) {
  EXPECT_EQ(Loaded("<label id=\"4\" x=\"1\" y=\"2\"/>\n").labels,
            (std::vector<Label>{{.id = 4, .text = "", .x = 1, .y = 2}}));
  EXPECT_EQ(Loaded("<label id=\"4\" x=\"1\" y=\"2\" text=\" <v \"/>\n").labels[0].text, " <v ");
}

TEST(LayoutReader, ReadsTunnelsAndWhatTheyCover) {
  const Layout layout = Loaded(
      "<covers piece=\"oops\"/>\n<tunnel id=\"4\" portalA=\"5\" portalB=\"6\">\n<covers "
      "piece=\"7\"/>\n"
      "<covers piece=\"8\"/>\n</tunnel>\n<tunnel id=\"9\" portalA=\"1\" portalB=\"2\" "
      "anchorA=\"3\" anchorB=\"4\">\n");
  EXPECT_EQ(layout.tunnels, (std::vector<Tunnel>{
                                {.id = 4, .portalA = 5, .portalB = 6, .covers = {7, 8}},
                                {.id = 9, .portalA = 1, .portalB = 2, .anchorA = 3, .anchorB = 4}}))
      << "what is covered before the first tunnel is not looked at";
}

TEST(LayoutReader, GivesAnOldHelixTheKitOfItsTime) {
  const std::string ends = "bottomR1=\"1\" bottomR2=\"2\" topR1=\"3\" topR2=\"4\"/>\n";
  Layout layout = Loaded("<helix id=\"6\" cx=\"1\" cy=\"2\" heading=\"3\" " + ends);
  const Helix expected{.id = 6,
                       .cx = 1,
                       .cy = 2,
                       .heading = 3,
                       .variant = "proses_2_5_r1r2",
                       .bottomR1 = 1,
                       .bottomR2 = 2,
                       .topR1 = 3,
                       .topR2 = 4};
  EXPECT_EQ(layout.helices, std::vector<Helix>{expected});
  layout = Loaded("<helix id=\"6\" cx=\"1\" cy=\"2\" heading=\"3\" variant=\"other\" " + ends);
  EXPECT_EQ(layout.helices[0].variant, "other");
}

TEST(LayoutReader, ColoursOfLevelsAndShapesWrapAsBytes) {
  const Layout layout = Loaded(
      "<levels >\n<level id=\"1\" r=\"256\" g=\"-1\" b=\"511\"/>\n</levels>\n"
      "<shape id=\"2\" r=\"300\" g=\"-200\" b=\"65535\" a=\"2147483647\">\n");
  const Level& level = layout.levels[0];
  EXPECT_EQ((std::vector<int>{level.r, level.g, level.b}), (std::vector<int>{0, 255, 255}));
  const Shape& shape = layout.shapes[0];
  EXPECT_EQ((std::vector<int>{shape.r, shape.g, shape.b, shape.a}),
            (std::vector<int>{44, 56, 255, 255}));
}

TEST(LayoutReader, ALineCanMatchSeveralTestsInTheirOrder) {
  const Layout layout = Loaded(
      "<scenery><sceneryitem id=\"5\" item=\"oak\" x=\"1\" y=\"2\" heading=\"3\"/><label "
      "<tunnel portalA=\"7\" portalB=\"8\"><covers piece=\"9\"><shape ><v >\n");
  EXPECT_EQ(layout.scenery.size(), 1u);
  ASSERT_EQ(layout.labels.size(), 1u);
  EXPECT_EQ(layout.labels[0].id, 5);
  ASSERT_EQ(layout.shapes.size(), 1u);
  EXPECT_EQ(layout.shapes[0].vertices, (std::vector<Vec2>{{1, 2}}));
  ASSERT_EQ(layout.tunnels.size(), 1u);
  EXPECT_EQ(layout.tunnels[0].covers, (std::vector<std::int32_t>{9}));
}

TEST(LayoutReader, OpeningTagsWithABlankDoNotMatchLongerTags) {
  const Layout layout = Loaded(
      "<layouts name=\"a\" units=\"2\">\n<runs deg=\"1\" anchor=\"1\" conn=\"1\"/>\n<labels "
      "id=\"1\" x=\"1\" y=\"1\">\n"
      "<shapes id=\"1\">\n<tunnels id=\"1\" portalA=\"1\" portalB=\"1\">\n<helices "
      "id=\"1\">\n<levels\tactive=\"4\">\n"
      "<pieces >\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n");
  EXPECT_EQ(layout.units, 0);
  EXPECT_EQ(layout.activeLevel, 1);
  EXPECT_TRUE(layout.gradeRuns.empty() && layout.labels.empty() && layout.shapes.empty() &&
              layout.tunnels.empty() && layout.helices.empty() && layout.pieces.empty());
}

TEST(LayoutReader, TheNextIdFollowsTheHighestOfEveryKindButLevels) {
  EXPECT_EQ(Loaded("<pieces>\n<piece id=\"20\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n").nextId,
            21);
  EXPECT_EQ(Loaded("<pieces>\n<piece id=\"20\" cat=\"a\" x=\"0.0000\" y=\"0.0000\" "
                   "heading=\"0.0000\" z=\"0.0000\" "
                   "grade=\"0.0000\" level=\"1\" sel=\"0\">\n")
                .nextId,
            21);
  EXPECT_EQ(Loaded("<scenery>\n<sceneryitem id=\"30\" item=\"a\" x=\"0\" y=\"0\" heading=\"0\"/>\n")
                .nextId,
            31);
  EXPECT_EQ(
      Loaded("<label id=\"40\" x=\"0\" y=\"0\"/>\n<label id=\"4\" x=\"0\" y=\"0\"/>\n").nextId, 41);
  EXPECT_EQ(Loaded("<shape id=\"50\">\n").nextId, 51);
  EXPECT_EQ(Loaded("<tunnel id=\"60\" portalA=\"600\" portalB=\"600\">\n").nextId, 61);
  EXPECT_EQ(Loaded("<helix id=\"70\" cx=\"0\" cy=\"0\" heading=\"0\" bottomR1=\"700\" "
                   "bottomR2=\"1\" topR1=\"1\" topR2=\"1\"/>\n")
                .nextId,
            71);
  EXPECT_EQ(Loaded("<levels active=\"80\">\n<level id=\"80\"/>\n").nextId, 1);
  EXPECT_EQ(Loaded("<lastshape id=\"90\"/>\n").nextId, 1) << "a choice in a dialog, not a record";
}

// Two records of one kind, the one with the highest id first or last.
TEST(LayoutReader, TheNextIdFollowsTheHighestOfAKindWhereverItStands) {
  const auto nextIdOf = [](const std::string& before, const std::string& id,
                           const std::string& other, const std::string& after) {
    return Loaded(before + id + after + before + other + after).nextId;
  };
  const struct {
    const char* before;  // up to the id
    const char* after;
  } kinds[] = {
      {"<pieces>\n<piece id=\"", "\" cat=\"a\" x=\"1\" y=\"2\" heading=\"3\">\n</pieces>\n"},
      {"<pieces>\n    <piece id=\"",
       "\" cat=\"a\" x=\"1.0000\" y=\"2.0000\" heading=\"3.0000\" z=\"4.0000\" "
       "grade=\"5.0000\" level=\"1\" sel=\"0\">\n    </piece>\n  </pieces>\n"},
      {"<scenery>\n<sceneryitem id=\"",
       "\" item=\"a\" x=\"1\" y=\"2\" heading=\"3\"/>\n</scenery>\n"},
      {"<label id=\"", "\" x=\"1\" y=\"2\" text=\"a\"/>\n"},
      {"<shape id=\"", "\">\n<v x=\"1\" y=\"2\"/>\n</shape>\n"},
      {"<tunnel id=\"", "\" portalA=\"1\" portalB=\"2\">\n</tunnel>\n"},
      {"<helix id=\"",
       "\" cx=\"1\" cy=\"2\" heading=\"3\" bottomR1=\"4\" bottomR2=\"5\" topR1=\"6\" "
       "topR2=\"7\"/>\n"}};
  for (const auto& kind : kinds) {
    EXPECT_EQ(nextIdOf(kind.before, "17", "311", kind.after), 312) << kind.before;
    EXPECT_EQ(nextIdOf(kind.before, "311", "17", kind.after), 312) << kind.before;
  }
}

TEST(LayoutReader, TheNextIdOfNegativeIdsAloneIsOne) {
  EXPECT_EQ(Loaded("<label id=\"-7\" x=\"0\" y=\"0\"/>\n").nextId, 1);
}

TEST(LayoutReader, TheNextIdDoesNotOverflow) {
  Layout layout = Loaded("<label id=\"2147483647\" x=\"0\" y=\"0\"/>\n");
  EXPECT_EQ(layout.nextId, 2147483647);
  EXPECT_EQ(TakeId(layout), 1) << "the lowest free id";
}

TEST(LayoutReader, TakesEitherLineEnd) {
  const std::string file = testing::Saved(testing::RichLayout());
  std::string withReturns;
  for (const char c : file) withReturns += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(testing::Saved(Loaded(withReturns)), testing::Saved(Loaded(file)));
  EXPECT_EQ(Loaded(withReturns).pieces.size(), 2u);
}

TEST(LayoutReader, TakesALastLineWithoutAnEnd) {
  EXPECT_EQ(
      Loaded("<label id=\"1\" x=\"0\" y=\"0\"/>\n<label id=\"2\" x=\"0\" y=\"0\"/>").labels.size(),
      2u);
}

TEST(LayoutReader, AFileWithNothingItKnowsGivesAnEmptyLayout) {
  for (const char* text : {"", "\n", "hello", "<html>\n<body>\n"}) {
    Layout layout = testing::RichLayout();
    EXPECT_EQ(LoadOver(layout, text), "");
    EXPECT_TRUE(layout.pieces.empty());
    EXPECT_EQ(layout.nextId, 1);
    EXPECT_EQ(layout.levels.size(), 1u);
  }
}

TEST(LayoutReader, ReadsTheSameUnderACommaLocale) {
  const std::string file = testing::Saved(testing::RichLayout());
  const Layout plain = Loaded(file);
  const testing::CommaLocale locale;
  ASSERT_TRUE(locale.active()) << "this machine takes no locale with a decimal comma";
  const Layout layout = Loaded(file);
  EXPECT_EQ(layout.pieces, plain.pieces);
  EXPECT_EQ(layout.pieces[1].z, 30.125);
  EXPECT_EQ(layout.scenery, plain.scenery);
  EXPECT_EQ(layout.gradeRuns, plain.gradeRuns);
}

}  // namespace
}  // namespace vantrel
