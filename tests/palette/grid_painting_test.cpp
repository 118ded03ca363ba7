#include "palette/grid_painting.h"

#include <gtest/gtest.h>

#include "tests/support/recording_dc.h"

namespace vantrel {
namespace {

constexpr Rgba kSelectedFill{200, 220, 255};
constexpr Rgba kHoveredFill{225, 235, 250};
constexpr Rgba kRowText{40, 40, 40};

GridRow Header(const char* title) {
  GridRow row;
  row.isHeader = true;
  row.title = title;
  return row;
}

GridRow TextRow(const char* label) {
  GridRow row;
  row.isText = true;
  row.label = label;
  row.key = "@helix:some";
  return row;
}

GridRow Icon(const char* key) {
  GridRow row;
  row.key = key;
  row.icon = wxBitmap(80, 80);
  return row;
}

class GridPainting : public testing::Test {
 protected:
  // Laid out 200 wide: two columns, pitch 97.
  void paint(GridPaintState state = {.bandBottom = 10000}) {
    paintGrid(dc, layOutGrid(rows, 200), rows, state);
  }

  RecordingDC dc;
  std::vector<GridRow> rows;
};

TEST_F(GridPainting, ClearsToLightGrey) {
  paint();
  ASSERT_EQ(dc.calls().size(), 1u);
  EXPECT_EQ(dc.calls()[0].op, DrawOp::clear);
  EXPECT_EQ(dc.calls()[0].background, SolidBrush({245, 245, 245}));
}

TEST_F(GridPainting, PaintsAHeaderAsADarkBandWithABoldTitle) {
  rows = {Header("Curves")};
  paint();
  const std::vector<DrawCall> boxes = dc.callsOf(DrawOp::rectangle);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].box, wxRect(0, 6, 200, 22));
  EXPECT_EQ(boxes[0].brush, SolidBrush({75, 85, 100}));
  EXPECT_EQ(boxes[0].pen.style, wxPENSTYLE_TRANSPARENT);
  const std::vector<DrawCall> texts = dc.texts("  Curves");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].points[0], wxPoint(2, 10));
  EXPECT_EQ(texts[0].font.pointSize, 9);
  EXPECT_EQ(texts[0].font.weight, wxFONTWEIGHT_BOLD);
  EXPECT_EQ(texts[0].textForeground, (Rgba{220, 225, 235}));
}

TEST_F(GridPainting, PaintsATextRowAcrossTheWholeWidth) {
  rows = {TextRow("Kit")};
  paint();
  const std::vector<DrawCall> boxes = dc.callsOf(DrawOp::rectangle);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].box, wxRect(0, 6, 200, 22));
  EXPECT_EQ(boxes[0].brush, SolidBrush({250, 250, 252}));
  EXPECT_EQ(boxes[0].pen, SolidPen({200, 200, 205}, 1));
  const std::vector<DrawCall> texts = dc.texts("  Kit");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].points[0], wxPoint(4, 10));
  EXPECT_EQ(texts[0].font.pointSize, 9);
  EXPECT_EQ(texts[0].font.weight, wxFONTWEIGHT_NORMAL);
  EXPECT_EQ(texts[0].textForeground, kRowText);
  EXPECT_EQ(texts[0].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST_F(GridPainting, FillsATextRowBlueWhenSelectedAndPalerWhenHovered) {
  rows = {TextRow("a"), TextRow("b"), TextRow("c")};
  paint({.selectedRow = 0, .hoverRow = 1, .bandBottom = 1000});
  const std::vector<DrawCall> boxes = dc.callsOf(DrawOp::rectangle);
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[0].brush, SolidBrush(kSelectedFill));
  EXPECT_EQ(boxes[1].brush, SolidBrush(kHoveredFill));
  EXPECT_EQ(boxes[2].brush, SolidBrush({250, 250, 252}));
  for (const DrawCall& box : boxes) EXPECT_EQ(box.pen, SolidPen({200, 200, 205}, 1));
}

TEST_F(GridPainting, PaintsAnIconCellWithItsPartNumberCentredBelow) {
  rows = {Icon("24188"), Icon("8500")};
  paint();
  const std::vector<DrawCall> boxes = dc.callsOf(DrawOp::rectangle);
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].box, wxRect(6, 6, 80, 80));
  EXPECT_EQ(boxes[1].box, wxRect(103, 6, 80, 80));
  EXPECT_EQ(boxes[0].brush, SolidBrush({255, 255, 255}));
  EXPECT_EQ(boxes[0].pen, SolidPen({200, 200, 200}, 1));
  const std::vector<DrawCall> icons = dc.callsOf(DrawOp::bitmap);
  ASSERT_EQ(icons.size(), 2u);
  EXPECT_EQ(icons[0].box, wxRect(6, 6, 80, 80));
  EXPECT_EQ(icons[1].box, wxRect(103, 6, 80, 80));
  // Five characters of 8 make 40, which leaves 20 on each side; four make 32, which leaves 24.
  const std::vector<DrawCall> texts = dc.callsOf(DrawOp::text);
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_EQ(texts[0].text, "24188");
  EXPECT_EQ(texts[0].points[0], wxPoint(26, 88));
  EXPECT_EQ(texts[1].text, "8500");
  EXPECT_EQ(texts[1].points[0], wxPoint(127, 88));
  EXPECT_EQ(texts[0].font.pointSize, 8);
  EXPECT_EQ(texts[0].font.weight, wxFONTWEIGHT_NORMAL);
  EXPECT_EQ(texts[0].textForeground, kRowText);
  EXPECT_EQ(texts[0].backgroundMode, wxBRUSHSTYLE_TRANSPARENT);
}

TEST_F(GridPainting, OutlinesAnIconCellThickRedWhenSelectedAndBlueWhenHovered) {
  rows = {Icon("1"), Icon("2")};
  paint({.selectedRow = 0, .hoverRow = 1, .bandBottom = 1000});
  const std::vector<DrawCall> boxes = dc.callsOf(DrawOp::rectangle);
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].pen, SolidPen({200, 30, 30}, 2));
  EXPECT_EQ(boxes[0].brush, SolidBrush(kSelectedFill));
  EXPECT_EQ(boxes[1].pen, SolidPen({150, 170, 200}, 1));
  EXPECT_EQ(boxes[1].brush, SolidBrush(kHoveredFill));
}

TEST_F(GridPainting, StrokesTheFramesOfMarkedCellsAgainAboveAllIcons) {
  rows = {Icon("1"), Icon("2"), Icon("3")};
  paint({.selectedRow = 0, .hoverRow = 1, .bandBottom = 1000});
  const std::vector<DrawCall>& calls = dc.calls();
  std::vector<DrawCall> frames = dc.callsOf(DrawOp::lines);
  ASSERT_EQ(frames.size(), 2u) << "none for a cell that is neither";
  // Cells of 80 at 6 and at 103: their last pixels are 85 and 182.
  EXPECT_EQ(frames[0].pen, SolidPen({150, 170, 200}, 1));
  EXPECT_EQ(frames[0].points,
            (std::vector<wxPoint>{wxPoint(103, 6), wxPoint(182, 6), wxPoint(182, 85),
                                  wxPoint(103, 85), wxPoint(103, 6)}));
  EXPECT_EQ(frames[1].pen, SolidPen({200, 30, 30}, 2));
  EXPECT_EQ(frames[1].points, (std::vector<wxPoint>{wxPoint(6, 6), wxPoint(85, 6), wxPoint(85, 85),
                                                    wxPoint(6, 85), wxPoint(6, 6)}));
  // The last of all that is drawn: nothing lies over them, not even the next cell in a narrow grid.
  ASSERT_GE(calls.size(), 2u);
  EXPECT_EQ(calls[calls.size() - 2].op, DrawOp::lines);
  EXPECT_EQ(calls[calls.size() - 1].op, DrawOp::lines);
}

TEST_F(GridPainting, StrokesNoFrameOfACellOutOfViewOrOfARowThatIsNone) {
  rows = {TextRow("a"), Icon("1"), Icon("2")};  // tops 6, 28, 28
  paint({.selectedRow = 0, .hoverRow = -1, .bandBottom = 1000});
  EXPECT_EQ(dc.count(DrawOp::lines), 0u);
  dc.forget();
  paint({.selectedRow = 1, .hoverRow = 2, .bandTop = 124, .bandBottom = 1000});
  EXPECT_EQ(dc.count(DrawOp::lines), 0u);  // an icon row is drawn on 96 pixels: 28 to 123
  dc.forget();
  paint({.selectedRow = 1, .hoverRow = 1, .bandTop = 123, .bandBottom = 1000});
  ASSERT_EQ(dc.count(DrawOp::lines), 1u);
  EXPECT_EQ(dc.callsOf(DrawOp::lines)[0].pen, SolidPen({200, 30, 30}, 2));
}

TEST_F(GridPainting, LetsTheSelectionWinOverTheHover) {
  rows = {Icon("1")};
  paint({.selectedRow = 0, .hoverRow = 0, .bandBottom = 1000});
  EXPECT_EQ(dc.callsOf(DrawOp::rectangle)[0].pen, SolidPen({200, 30, 30}, 2));
}

TEST_F(GridPainting, DrawsACellWithoutAnIconAllTheSame) {
  rows = {Icon("1")};
  rows[0].icon = wxBitmap();
  paint();
  EXPECT_EQ(dc.count(DrawOp::bitmap), 0u);
  EXPECT_EQ(dc.count(DrawOp::rectangle), 1u);
  EXPECT_EQ(dc.texts("1").size(), 1u);
}

TEST_F(GridPainting, SkipsRowsOutsideTheVisibleBand) {
  // Tops 6, 28, 28, 130 (header), 152 (text): the header covers 130 to 151.
  rows = {Header("A"), Icon("1"), Icon("2"), Header("B"), TextRow("C")};
  paint({.bandTop = 130, .bandBottom = 151});
  EXPECT_EQ(dc.texts("  B").size(), 1u);
  EXPECT_EQ(dc.count(DrawOp::text), 1u);

  dc.forget();
  paint({.bandTop = 27, .bandBottom = 27});
  EXPECT_EQ(dc.texts("  A").size(), 1u);
  EXPECT_EQ(dc.count(DrawOp::text), 1u);

  dc.forget();
  paint({.bandTop = 152, .bandBottom = 400});
  EXPECT_EQ(dc.texts("  C").size(), 1u);
  EXPECT_EQ(dc.count(DrawOp::text), 1u);
}

TEST_F(GridPainting, CountsAnIconRowAs96HighForTheBand) {
  rows = {Icon("1")};  // 6 to 101
  paint({.bandTop = 101, .bandBottom = 400});
  EXPECT_EQ(dc.texts("1").size(), 1u);
  dc.forget();
  paint({.bandTop = 102, .bandBottom = 400});
  EXPECT_EQ(dc.texts("1").size(), 0u);
}

}  // namespace
}  // namespace vantrel
