#include "palette/grid_layout.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

GridRow Header() {
  GridRow row;
  row.isHeader = true;
  return row;
}

GridRow TextRow() {
  GridRow row;
  row.isText = true;
  row.key = "@helix:some";
  return row;
}

GridRow Icon() {
  GridRow row;
  row.key = "24188";
  return row;
}

using Tops = std::vector<std::int32_t>;

std::vector<std::int32_t> ColumnsOf(const std::vector<GridRow>& rows) {
  std::vector<std::int32_t> columns;
  for (const GridRow& row : rows)
    if (row.isIcon()) columns.push_back(row.column);
  return columns;
}

GridLayout LayOutEmpty(int width) {
  return layOutGrid({}, width);
}

TEST(GridLayout, HasOneColumnUpTo155TwoUpTo227AndThreeFrom228) {
  EXPECT_EQ(LayOutEmpty(10).columns, 1);
  EXPECT_EQ(LayOutEmpty(155).columns, 1);
  EXPECT_EQ(LayOutEmpty(156).columns, 2);
  EXPECT_EQ(LayOutEmpty(227).columns, 2);
  EXPECT_EQ(LayOutEmpty(228).columns, 3);
  EXPECT_EQ(LayOutEmpty(2000).columns, 3);
}

TEST(GridLayout, TakesAWidthUnder10As240WithThreeColumns) {
  for (const int width : {-1, 0, 9}) {
    const GridLayout layout = LayOutEmpty(width);
    EXPECT_EQ(layout.width, 240) << width;
    EXPECT_EQ(layout.columns, 3) << width;
    EXPECT_EQ(layout.pitch, 78) << width;  // 234 / 3
  }
  EXPECT_EQ(LayOutEmpty(10).width, 10);
}

TEST(GridLayout, DividesTheWidthLessSixByTheColumnsInWholePixels) {
  EXPECT_EQ(LayOutEmpty(155).pitch, 149);
  EXPECT_EQ(LayOutEmpty(156).pitch, 75);
  EXPECT_EQ(LayOutEmpty(227).pitch, 110);  // 221 / 2 = 110.5
  EXPECT_EQ(LayOutEmpty(228).pitch, 74);
  EXPECT_EQ(LayOutEmpty(230).pitch, 74);  // 224 / 3 = 74.7
  EXPECT_EQ(LayOutEmpty(231).pitch, 75);
}

TEST(GridLayout, WithoutRowsIsTwelveHigh) {
  EXPECT_EQ(LayOutEmpty(200).height, 12);
  EXPECT_EQ(LayOutEmpty(200).width, 200);
  EXPECT_TRUE(LayOutEmpty(200).rowTop.empty());
}

TEST(GridLayout, ClosesALineOfTwoIconsInThreeColumnsSoThatTheNextHeaderIs102BelowTheirTop) {
  std::vector<GridRow> rows = {Header(), Icon(), Icon(), Header()};
  const GridLayout layout = layOutGrid(rows, 240);
  EXPECT_EQ(layout.rowTop, (Tops{6, 28, 28, 130}));
  EXPECT_EQ(layout.height, 158);  // 130 + 22 + 6
  EXPECT_EQ(ColumnsOf(rows), (std::vector<std::int32_t>{0, 1}));
}

TEST(GridLayout, DoesNotCloseAFullLineTwice) {
  std::vector<GridRow> rows = {Icon(), Icon(), Icon(), Header(), Icon()};
  const GridLayout layout = layOutGrid(rows, 240);
  EXPECT_EQ(layout.rowTop, (Tops{6, 6, 6, 108, 130}));
  EXPECT_EQ(layout.height, 238);  // 130 + 102 + 6
  EXPECT_EQ(ColumnsOf(rows), (std::vector<std::int32_t>{0, 1, 2, 0}));
}

TEST(GridLayout, WrapsIconsAfterTheLastColumn) {
  std::vector<GridRow> rows(5, Icon());
  const GridLayout two = layOutGrid(rows, 200);
  EXPECT_EQ(two.rowTop, (Tops{6, 6, 108, 108, 210}));
  EXPECT_EQ(two.height, 318);
  EXPECT_EQ(ColumnsOf(rows), (std::vector<std::int32_t>{0, 1, 0, 1, 0}));

  const GridLayout one = layOutGrid(rows, 150);
  EXPECT_EQ(one.rowTop, (Tops{6, 108, 210, 312, 414}));
  EXPECT_EQ(ColumnsOf(rows), (std::vector<std::int32_t>{0, 0, 0, 0, 0}));
}

TEST(GridLayout, StacksHeadersAndTextRowsEvery22) {
  std::vector<GridRow> rows = {Icon(), TextRow(), TextRow(), Header(), Header()};
  const GridLayout layout = layOutGrid(rows, 240);
  EXPECT_EQ(layout.rowTop, (Tops{6, 108, 130, 152, 174}));
  EXPECT_EQ(layout.height, 202);
}

TEST(GridHit, NeverHitsAHeader) {
  std::vector<GridRow> rows = {Header(), Header()};
  const GridLayout layout = layOutGrid(rows, 240);
  for (int y = 0; y < 60; ++y) EXPECT_EQ(hitGridRow(layout, rows, 20, y), -1) << y;
}

TEST(GridHit, HitsATextRowOverItsWholeWidth) {
  std::vector<GridRow> rows = {TextRow(), TextRow()};  // tops 6 and 28
  const GridLayout layout = layOutGrid(rows, 200);
  EXPECT_EQ(hitGridRow(layout, rows, 0, 6), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 199, 27), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 100, 28), 1);
  EXPECT_EQ(hitGridRow(layout, rows, 100, 49), 1);
  EXPECT_EQ(hitGridRow(layout, rows, 100, 5), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 100, 50), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 200, 10), -1);
  EXPECT_EQ(hitGridRow(layout, rows, -1, 10), -1);
}

TEST(GridHit, HitsAnIconCellFromItsLeftEdgeTo80Wide) {
  std::vector<GridRow> rows = {Icon(), Icon()};
  const GridLayout layout = layOutGrid(rows, 200);  // pitch 97: cells from 6 and from 103
  EXPECT_EQ(hitGridRow(layout, rows, 5, 10), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 6, 10), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 85, 10), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 86, 10), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 102, 10), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 103, 10), 1);
  EXPECT_EQ(hitGridRow(layout, rows, 182, 10), 1);
  EXPECT_EQ(hitGridRow(layout, rows, 183, 10), -1);
}

TEST(GridHit, CountsThePartNumberStripBelowACellAsTheCell) {
  std::vector<GridRow> rows = {Icon(), Header()};  // the cell from 6 to 86, its strip to 108
  const GridLayout layout = layOutGrid(rows, 240);
  EXPECT_EQ(hitGridRow(layout, rows, 40, 5), -1);
  EXPECT_EQ(hitGridRow(layout, rows, 40, 6), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 40, 86), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 40, 107), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 40, 108), -1);
}

TEST(GridHit, PrefersTheFirstOfTwoCellsThatOverlapInANarrowGrid) {
  std::vector<GridRow> rows = {Icon(), Icon()};
  const GridLayout layout = layOutGrid(rows, 228);  // pitch 74: 6 to 86, and 80 to 160
  EXPECT_EQ(hitGridRow(layout, rows, 85, 10), 0);
  EXPECT_EQ(hitGridRow(layout, rows, 86, 10), 1);
}

}  // namespace
}  // namespace vantrel
