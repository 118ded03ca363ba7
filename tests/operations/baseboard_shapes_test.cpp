#include "canvas/operations/baseboard_shapes.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace vantrel {
namespace {

constexpr double kMm = 1.0;
constexpr double kCm = 10.0;
constexpr double kIn = 25.4;

// The outline of a shape from whole numbers of a unit.
std::vector<Vec2> Outline(std::int32_t shape, const BoardWholeNumbers& numbers, double mmPerUnit) {
  return boardVertices(shape, boardDimensions(numbers, mmPerUnit));
}

void ExpectOutline(const std::vector<Vec2>& actual, const std::vector<Vec2>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(actual[i].x, expected[i].x, 1e-9) << "vertex " << i;
    EXPECT_NEAR(actual[i].y, expected[i].y, 1e-9) << "vertex " << i;
  }
}

TEST(BaseboardShapes, ARectangleInMillimetresIsAsTyped) {
  ExpectOutline(Outline(kRectangleBoard, {1500, 800, 1, 1}, kMm),
                {{0, 0}, {1500, 0}, {1500, 800}, {0, 800}});
}

TEST(BaseboardShapes, ARectangleInCentimetresIsTenTimesAsLarge) {
  ExpectOutline(Outline(kRectangleBoard, {150, 80, 1, 1}, kCm),
                {{0, 0}, {1500, 0}, {1500, 800}, {0, 800}});
}

// 60 * 25.4 = 1524, 30 * 25.4 = 762
TEST(BaseboardShapes, ARectangleInInchesIsInMultiplesOfAnInch) {
  ExpectOutline(Outline(kRectangleBoard, {60, 30, 1, 1}, kIn),
                {{0, 0}, {1524, 0}, {1524, 762}, {0, 762}});
}

// The cutout 900 by 700 leaves 2000 - 900 = 1100 and 1600 - 700 = 900.
TEST(BaseboardShapes, AnLLacksItsBottomRightCorner) {
  ExpectOutline(Outline(kLShapeBoard, {2000, 1600, 900, 700}, kMm),
                {{0, 0}, {2000, 0}, {2000, 900}, {1100, 900}, {1100, 1600}, {0, 1600}});
}

TEST(BaseboardShapes, AnLInCentimetresIsTenTimesAsLarge) {
  ExpectOutline(Outline(kLShapeBoard, {200, 160, 90, 70}, kCm),
                {{0, 0}, {2000, 0}, {2000, 900}, {1100, 900}, {1100, 1600}, {0, 1600}});
}

// 100 in = 2540, 80 in = 2032, 40 in = 1016, 30 in = 762; 2032 - 762 = 1270, 2540 - 1016 = 1524
TEST(BaseboardShapes, AnLInInches) {
  ExpectOutline(Outline(kLShapeBoard, {100, 80, 40, 30}, kIn),
                {{0, 0}, {2540, 0}, {2540, 1270}, {1524, 1270}, {1524, 2032}, {0, 2032}});
}

TEST(BaseboardShapes, AnLCutoutWiderThanTheRectangleIsClippedToOneMillimetreLess) {
  ExpectOutline(Outline(kLShapeBoard, {2000, 1600, 5000, 700}, kMm),
                {{0, 0}, {2000, 0}, {2000, 900}, {1, 900}, {1, 1600}, {0, 1600}});
}

TEST(BaseboardShapes, AnLCutoutDeeperThanTheRectangleIsClippedToOneMillimetreLess) {
  ExpectOutline(Outline(kLShapeBoard, {2000, 1600, 900, 1600}, kMm),
                {{0, 0}, {2000, 0}, {2000, 1}, {1100, 1}, {1100, 1600}, {0, 1600}});
}

// The limit is a millimetre in every unit: 10 in = 254 mm, so 253 of 254 and 253 of 254 go.
TEST(BaseboardShapes, AnLCutoutInInchesIsClippedToOneMillimetreLess) {
  ExpectOutline(Outline(kLShapeBoard, {10, 10, 10, 10}, kIn),
                {{0, 0}, {254, 0}, {254, 1}, {1, 1}, {1, 254}, {0, 254}});
}

// A notch 1000 wide in 3000: from (3000 - 1000) / 2 = 1000 to 2000; 1500 - 600 = 900.
TEST(BaseboardShapes, AUHasANotchInTheMiddleOfItsBottom) {
  ExpectOutline(Outline(kUShapeBoard, {3000, 1500, 1000, 600}, kMm), {{0, 0},
                                                                      {3000, 0},
                                                                      {3000, 1500},
                                                                      {2000, 1500},
                                                                      {2000, 900},
                                                                      {1000, 900},
                                                                      {1000, 1500},
                                                                      {0, 1500}});
}

TEST(BaseboardShapes, AUInCentimetresIsTenTimesAsLarge) {
  ExpectOutline(Outline(kUShapeBoard, {300, 150, 100, 60}, kCm), {{0, 0},
                                                                  {3000, 0},
                                                                  {3000, 1500},
                                                                  {2000, 1500},
                                                                  {2000, 900},
                                                                  {1000, 900},
                                                                  {1000, 1500},
                                                                  {0, 1500}});
}

// 120 in = 3048, 60 in = 1524, 40 in = 1016, 20 in = 508.
// a = (3048 - 1016) / 2 = 1016, b = 2032; 1524 - 508 = 1016
TEST(BaseboardShapes, AUInInches) {
  ExpectOutline(Outline(kUShapeBoard, {120, 60, 40, 20}, kIn), {{0, 0},
                                                                {3048, 0},
                                                                {3048, 1524},
                                                                {2032, 1524},
                                                                {2032, 1016},
                                                                {1016, 1016},
                                                                {1016, 1524},
                                                                {0, 1524}});
}

TEST(BaseboardShapes, AUNotchLeavesBothLegsOneMillimetreWide) {
  ExpectOutline(
      Outline(kUShapeBoard, {1000, 500, 1000, 100}, kMm),
      {{0, 0}, {1000, 0}, {1000, 500}, {999, 500}, {999, 400}, {1, 400}, {1, 500}, {0, 500}});
}

TEST(BaseboardShapes, AUNotchLeavesOneMillimetreAboveIt) {
  ExpectOutline(
      Outline(kUShapeBoard, {1000, 500, 400, 500}, kMm),
      {{0, 0}, {1000, 0}, {1000, 500}, {700, 500}, {700, 1}, {300, 1}, {300, 500}, {0, 500}});
}

// A stem 800 wide under 2000: from (2000 - 800) / 2 = 600 to 1400; 700 + 900 = 1600 deep in all.
TEST(BaseboardShapes, ATHasAStemUnderTheMiddleOfItsBar) {
  ExpectOutline(Outline(kTShapeBoard, {2000, 700, 800, 900}, kMm), {{0, 0},
                                                                    {2000, 0},
                                                                    {2000, 700},
                                                                    {1400, 700},
                                                                    {1400, 1600},
                                                                    {600, 1600},
                                                                    {600, 700},
                                                                    {0, 700}});
}

TEST(BaseboardShapes, ATInCentimetresIsTenTimesAsLarge) {
  ExpectOutline(Outline(kTShapeBoard, {200, 70, 80, 90}, kCm), {{0, 0},
                                                                {2000, 0},
                                                                {2000, 700},
                                                                {1400, 700},
                                                                {1400, 1600},
                                                                {600, 1600},
                                                                {600, 700},
                                                                {0, 700}});
}

// 100 in = 2540, 20 in = 508, 50 in = 1270, 30 in = 762.
// a = (2540 - 1270) / 2 = 635, b = 1905; 508 + 762 = 1270
TEST(BaseboardShapes, ATInInches) {
  ExpectOutline(Outline(kTShapeBoard, {100, 20, 50, 30}, kIn), {{0, 0},
                                                                {2540, 0},
                                                                {2540, 508},
                                                                {1905, 508},
                                                                {1905, 1270},
                                                                {635, 1270},
                                                                {635, 508},
                                                                {0, 508}});
}

TEST(BaseboardShapes, ATStemMayBeAsWideAsTheTopBar) {
  ExpectOutline(
      Outline(kTShapeBoard, {2000, 700, 2000, 900}, kMm),
      {{0, 0}, {2000, 0}, {2000, 700}, {2000, 700}, {2000, 1600}, {0, 1600}, {0, 700}, {0, 700}});
}

TEST(BaseboardShapes, ATStemIsNoWiderThanTheTopBar) {
  EXPECT_EQ(Outline(kTShapeBoard, {2000, 700, 2001, 900}, kMm),
            Outline(kTShapeBoard, {2000, 700, 2000, 900}, kMm));
}

TEST(BaseboardShapes, ATStemIsAtLeastOneMillimetreDeep) {
  const std::vector<Vec2> outline = boardVertices(kTShapeBoard, {2000.0, 700.0, 800.0, 0.25});
  ASSERT_EQ(outline.size(), 8u);
  EXPECT_EQ(outline[4].y, 701.0);
}

TEST(BaseboardShapes, TheOtherChoicesHaveNoVerticesOfTheirOwn) {
  for (const std::int32_t shape : {4, 5, 6, 7, -1, std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_TRUE(Outline(shape, {1, 1, 1, 1}, kMm).empty()) << shape;
    EXPECT_EQ(boardDimensionCount(shape), 0u) << shape;
  }
}

// ---- What a page starts with

TEST(BaseboardPages, StartWithTheirDefaultsWhenAnotherShapeWasTheLast) {
  LastShape last;
  last.id = kCustomBoard;
  last.w_mm = last.h_mm = last.w2_mm = last.h2_mm = 77.0;
  EXPECT_EQ(boardStartNumbers(kRectangleBoard, last, kMm), (BoardWholeNumbers{2400, 1200, 1, 1}));
  EXPECT_EQ(boardStartNumbers(kLShapeBoard, last, kMm),
            (BoardWholeNumbers{2400, 2400, 1200, 1200}));
  EXPECT_EQ(boardStartNumbers(kUShapeBoard, last, kMm),
            (BoardWholeNumbers{3600, 2400, 1200, 1200}));
  EXPECT_EQ(boardStartNumbers(kTShapeBoard, last, kMm),
            (BoardWholeNumbers{3600, 1200, 1200, 1200}));
}

// 2400 / 25.4 = 94.49, 1200 / 25.4 = 47.24, 3600 / 25.4 = 141.73
TEST(BaseboardPages, StartWithWholeNumbersOfTheUnit) {
  LastShape last;
  last.id = kNoBoard;
  EXPECT_EQ(boardStartNumbers(kRectangleBoard, last, kCm), (BoardWholeNumbers{240, 120, 1, 1}));
  EXPECT_EQ(boardStartNumbers(kRectangleBoard, last, kIn), (BoardWholeNumbers{94, 47, 1, 1}));
  EXPECT_EQ(boardStartNumbers(kUShapeBoard, last, kIn), (BoardWholeNumbers{142, 94, 47, 47}));
}

TEST(BaseboardPages, TheLastShapeComesBackWithAllItsValues) {
  LastShape last;
  last.id = kUShapeBoard;
  last.w_mm = 3000.0;
  last.h_mm = 1500.0;
  last.w2_mm = 1004.0;
  last.h2_mm = 605.0;
  EXPECT_EQ(boardStartNumbers(kUShapeBoard, last, kMm), (BoardWholeNumbers{3000, 1500, 1004, 605}));
  // 100.4 and 60.5 cm: halves go up.
  EXPECT_EQ(boardStartNumbers(kUShapeBoard, last, kCm), (BoardWholeNumbers{300, 150, 100, 61}));
}

TEST(BaseboardPages, DimensionsFromInchesAreMultiplesOfAnInchWhateverWasStored) {
  LastShape last;
  last.w_mm = 1000.0;  // 39.37 in
  last.h_mm = 500.0;   // 19.69 in
  const BoardWholeNumbers numbers = boardStartNumbers(kRectangleBoard, last, kIn);
  EXPECT_EQ(numbers[0], 39);
  EXPECT_EQ(numbers[1], 20);
  const BoardDimensions mm = boardDimensions(numbers, kIn);
  EXPECT_NEAR(mm[0], 990.6, 1e-9);  // 39 * 25.4
  EXPECT_NEAR(mm[1], 508.0, 1e-9);  // 20 * 25.4
}

TEST(BaseboardPages, ANumberThatTheFieldCantHoldBecomesOneThatItCan) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  LastShape last;
  last.id = kLShapeBoard;
  last.w_mm = std::numeric_limits<double>::quiet_NaN();
  last.h_mm = kInfinity;
  last.w2_mm = -1e300;
  last.h2_mm = 0.2;
  EXPECT_EQ(boardStartNumbers(kLShapeBoard, last, kMm), (BoardWholeNumbers{2400, 99000, 1, 1}));
}

TEST(BaseboardPages, AnUnknownLastShapeLeavesEveryPageItsDefaults) {
  LastShape last;
  last.id = -3;
  last.w_mm = 5.0;
  EXPECT_EQ(boardStartNumbers(kRectangleBoard, last, kMm)[0], 2400);
  EXPECT_EQ(boardStartNumbers(-3, last, kMm), (BoardWholeNumbers{1, 1, 1, 1}));
}

// ---- Remembering

TEST(BaseboardMemory, ARectangleLeavesTheSecondDimensionsAlone) {
  LastShape last;
  last.id = kTShapeBoard;
  last.w2_mm = 333.0;
  last.h2_mm = 444.0;
  rememberBoard(last, kRectangleBoard, {1500.0, 800.0, 0.0, 0.0});
  EXPECT_EQ(last, (LastShape{0, 1500.0, 800.0, 333.0, 444.0}));
}

TEST(BaseboardMemory, TheOtherFixedShapesGiveAllFour) {
  LastShape last;
  rememberBoard(last, kUShapeBoard, {1.0, 2.0, 3.0, 4.0});
  EXPECT_EQ(last, (LastShape{2, 1.0, 2.0, 3.0, 4.0}));
}

TEST(BaseboardMemory, ChoicesWithoutDimensionsLeaveThemAllAlone) {
  for (const std::int32_t shape : {kCustomBoard, kFreeFormBoard, kNoBoard}) {
    LastShape last;
    rememberBoard(last, shape, {1.0, 2.0, 3.0, 4.0});
    EXPECT_EQ(last, (LastShape{shape, 2400.0, 1200.0, 1200.0, 1200.0}));
  }
}

// ---- Typed vertices

TEST(BaseboardText, OfNoOutlineIsATable) {
  EXPECT_EQ(boardText({}, kMm), "0,0\n2400,0\n2400,1200\n0,1200\n");
  EXPECT_EQ(boardText({}, kCm), "0,0\n240,0\n240,120\n0,120\n");
  EXPECT_EQ(boardText({}, kIn), "0,0\n94,0\n94,47\n0,47\n");  // 94.49 and 47.24
}

// 1234.567 / 25.4 = 48.6050, 254 / 25.4 = 10
TEST(BaseboardText, OfAnOutlineHasTwoDigitsInTheUnit) {
  const std::vector<Vec2> outline = {{-12.3456, 0.0}, {1234.567, 254.0}};
  EXPECT_EQ(boardText(outline, kMm), "-12.35,0.00\n1234.57,254.00\n");
  EXPECT_EQ(boardText(outline, kCm), "-1.23,0.00\n123.46,25.40\n");
  EXPECT_EQ(boardText(outline, kIn), "-0.49,0.00\n48.61,10.00\n");
}

TEST(BaseboardText, IsReadInTheUnit) {
  const std::string text = "0,0\n100,0\n100,50.5\n";
  EXPECT_EQ(boardFromText(text, kMm), (std::vector<Vec2>{{0, 0}, {100, 0}, {100, 50.5}}));
  EXPECT_EQ(boardFromText(text, kCm), (std::vector<Vec2>{{0, 0}, {1000, 0}, {1000, 505}}));
  const auto inches = boardFromText(text, kIn);
  ASSERT_TRUE(inches);
  ExpectOutline(*inches, {{0, 0}, {2540, 0}, {2540, 1282.7}});  // 50.5 * 25.4
}

TEST(BaseboardText, LinesThatAreEmptyOrWithoutACommaArePassedOver) {
  EXPECT_EQ(boardFromText("\n  \nthe left side\n 1,2 \r\n\t3 , +4\t\n5 6\n-7.5,8e2", kMm),
            (std::vector<Vec2>{{1, 2}, {3, 4}, {-7.5, 800}}));
}

TEST(BaseboardText, LeftEmptyGivesAnEmptyOutline) {
  EXPECT_EQ(boardFromText("", kMm), std::vector<Vec2>{});
  EXPECT_EQ(boardFromText(" \n\n", kMm), std::vector<Vec2>{});
}

TEST(BaseboardText, MayHaveFewerThanThreeVertices) {
  EXPECT_EQ(boardFromText("1,2", kMm), (std::vector<Vec2>{{1, 2}}));
}

TEST(BaseboardText, ANumberThatCantBeReadRefusesTheWholeText) {
  for (const char* line :
       {"10 mm,0", "0,10 mm", "10,", ",10", ",", "a,b", "1,2,3", "0x10,0", "nan,0", "0,inf",
        "1e999,0", "1.2.3,0", "--1,0", "+-1,0", "1 0,0", "0,0  /  2400,0"}) {
    EXPECT_FALSE(boardFromText("0,0\n" + std::string(line) + "\n5,5\n", kMm)) << line;
  }
}

// 1e308 mm can be held; 1e308 in would be 2.54e309 mm, which can't.
TEST(BaseboardText, ANumberThatOnlyTheUnitMakesTooLargeIsRefused) {
  EXPECT_TRUE(boardFromText("1e308,0", kMm));
  EXPECT_FALSE(boardFromText("1e308,0", kIn));
}

TEST(BaseboardText, IsTheSameUnderALocaleWithADecimalComma) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  // Where the machine lacks such a locale, this is the plain test once more.
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"})
    if (std::setlocale(LC_NUMERIC, name) != nullptr) break;
  const std::string text = boardText({{1.5, 2.25}}, kMm);
  const auto outline = boardFromText("1.5,2.25", kMm);
  std::setlocale(LC_NUMERIC, before.c_str());
  EXPECT_EQ(text, "1.50,2.25\n");
  EXPECT_EQ(outline, (std::vector<Vec2>{{1.5, 2.25}}));
}

TEST(BaseboardText, OfAnyOutlineThatAFileCouldHoldIsBuiltAndReadWithoutHarm) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const std::string text = boardText({{kNan, 0.0}, {1e300, -1e300}}, kMm);
  EXPECT_FALSE(boardFromText(text, kMm)) << "not a number stays none";
  EXPECT_EQ(boardFromText(boardText({{1e300, -1e300}}, kMm), kMm),
            (std::vector<Vec2>{{1e300, -1e300}}));
}

TEST(BoardToStartFrom, IsTheLastChoiceWhenTheTableIsOfIt) {
  const LastShape last{kLShapeBoard, 3000.0, 2000.0, 1000.0, 800.0};
  EXPECT_EQ(
      boardToStartFrom({{0, 0}, {3000, 0}, {3000, 1200}, {2000, 1200}, {2000, 2000}, {0, 2000}},
                       last, kMm),
      last);
  // Made in millimetres, looked at in inches.
  const LastShape rectangle{kRectangleBoard, 1500.0, 800.0, 7.0, 8.0};
  EXPECT_EQ(boardToStartFrom({{0, 0}, {1500, 0}, {1500, 800}, {0, 800}}, rectangle, kIn),
            rectangle);
  for (const std::int32_t any : {kCustomBoard, kFreeFormBoard}) {
    const LastShape own{any, 1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(boardToStartFrom({{0, 0}, {1500, 0}, {1500, 800}, {0, 800}}, own, kMm), own);
  }
}

TEST(BoardToStartFrom, IsTheLastChoiceWhenThereIsNoTable) {
  const LastShape last{kTShapeBoard, 3000.0, 2000.0, 1000.0, 800.0};
  EXPECT_EQ(boardToStartFrom({}, last, kMm), last);
  EXPECT_EQ(boardToStartFrom({{0, 0}, {5, 5}}, last, kMm), last);
}

TEST(BoardToStartFrom, RecognisesEachFixedShapeThatTheLastChoiceDoesntGive) {
  const LastShape first{kRectangleBoard, 2400.0, 1200.0, 7.0, 8.0};
  EXPECT_EQ(boardToStartFrom({{0, 0}, {1800, 0}, {1800, 900}, {0, 900}}, first, kCm),
            (LastShape{kRectangleBoard, 1800.0, 900.0, 7.0, 8.0}));
  // 3000 by 2000 without 1000 by 800 in the corner.
  EXPECT_EQ(
      boardToStartFrom({{0, 0}, {3000, 0}, {3000, 1200}, {2000, 1200}, {2000, 2000}, {0, 2000}},
                       first, kMm),
      (LastShape{kLShapeBoard, 3000.0, 2000.0, 1000.0, 800.0}));
  // 3000 by 2000 with a notch of 1600 by 900 from x 700 to x 2300.
  EXPECT_EQ(boardToStartFrom({{0, 0},
                              {3000, 0},
                              {3000, 2000},
                              {2300, 2000},
                              {2300, 1100},
                              {700, 1100},
                              {700, 2000},
                              {0, 2000}},
                             first, kMm),
            (LastShape{kUShapeBoard, 3000.0, 2000.0, 1600.0, 900.0}));
  // A bar of 3000 by 700 on a stem of 1600 by 900.
  EXPECT_EQ(boardToStartFrom({{0, 0},
                              {3000, 0},
                              {3000, 700},
                              {2300, 700},
                              {2300, 1600},
                              {700, 1600},
                              {700, 700},
                              {0, 700}},
                             first, kMm),
            (LastShape{kTShapeBoard, 3000.0, 700.0, 1600.0, 900.0}));
}

TEST(BoardToStartFrom, IsTheListOfVerticesForAnyOtherTable) {
  const LastShape last{kRectangleBoard, 2400.0, 1200.0, 7.0, 8.0};
  LastShape vertices = last;
  vertices.id = kCustomBoard;
  // A rectangle beside the corner, one whose sides are no whole centimetres, and a triangle.
  EXPECT_EQ(boardToStartFrom({{10, 0}, {1810, 0}, {1810, 900}, {10, 900}}, last, kMm), vertices);
  EXPECT_EQ(boardToStartFrom({{0, 0}, {1805, 0}, {1805, 900}, {0, 900}}, last, kCm), vertices);
  EXPECT_EQ(boardToStartFrom({{0, 0}, {1800, 0}, {0, 900}}, last, kMm), vertices);
  // The table was cleared last, and another has come since.
  EXPECT_EQ(
      boardToStartFrom({{0, 0}, {1800, 0}, {0, 900}}, {kNoBoard, 2400.0, 1200.0, 7.0, 8.0}, kMm),
      vertices);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(boardToStartFrom({{nan, nan}, {nan, nan}, {nan, nan}, {nan, nan}}, last, kMm),
            vertices);
}

}  // namespace
}  // namespace vantrel
