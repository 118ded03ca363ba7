#include "palette/grid_layout.h"

#include <cstddef>

namespace vantrel {
namespace {

constexpr int kSmallestWidth = 10;
constexpr int kAssumedWidth = 240;
constexpr int kAssumedColumns = 3;
constexpr int kTwoColumnsWidth = 156;
constexpr int kThreeColumnsWidth = 228;

int ColumnsFor(int width) {
  if (width < kTwoColumnsWidth) return 1;
  return width < kThreeColumnsWidth ? 2 : 3;
}

bool Within(int value, int start, int extent) {
  return value >= start && value < start + extent;
}

}  // namespace

GridLayout layOutGrid(std::span<GridRow> rows, int clientWidth) {
  GridLayout layout;
  const bool sized = clientWidth >= kSmallestWidth;
  layout.width = sized ? clientWidth : kAssumedWidth;
  layout.columns = sized ? ColumnsFor(clientWidth) : kAssumedColumns;
  layout.pitch = (layout.width - kGridMargin) / layout.columns;
  layout.rowTop.reserve(rows.size());

  int y = kGridMargin;
  int column = 0;
  const auto closeLine = [&] {
    if (column > 0) y += kIconRowHeight;
    column = 0;
  };
  for (GridRow& row : rows) {
    if (!row.isIcon()) closeLine();
    layout.rowTop.push_back(y);
    if (row.isIcon()) {
      row.column = column++;
      if (column == layout.columns) closeLine();
    } else {
      y += kTextRowHeight;
    }
  }
  closeLine();
  layout.height = y + kGridMargin;
  return layout;
}

int hitGridRow(const GridLayout& layout, std::span<const GridRow> rows, int x, int y) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const GridRow& row = rows[i];
    if (row.isHeader) continue;
    const bool hit = row.isText
                         ? Within(x, 0, layout.width) && Within(y, layout.rowTop[i], kTextRowHeight)
                         : Within(x, layout.cellLeft(row), kIconSize) &&
                               Within(y, layout.rowTop[i], kIconRowHeight);
    if (hit) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace vantrel
