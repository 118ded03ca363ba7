// Where the rows of the palette's icon grid lie: columns, row tops and the hit test. No window is
// needed for any of it. All figures are pixels of the scrolled area.
#pragma once

#include <wx/bitmap.h>
#include <wx/string.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vantrel {

inline constexpr int kGridMargin = 6;       // above the first row, below the last, left of a column
inline constexpr int kTextRowHeight = 22;   // headers and text rows
inline constexpr int kIconSize = 80;        // an icon cell is square
inline constexpr int kIconRowHeight = 102;  // the cell, its part number and the gap below
inline constexpr int kIconRowDrawn = 96;    // the part of it that anything is drawn on

// One row of the grid: a section header, a full-width text row, or an icon cell.
struct GridRow {
  bool isHeader = false;
  bool isText = false;
  wxString title;           // of a header
  wxString label;           // of a text row
  std::string key;          // UTF-8, empty for a header
  wxBitmap icon;            // only icon rows have one
  std::int32_t column = 0;  // of an icon row

  bool isIcon() const { return !isHeader && !isText; }
};

struct GridLayout {
  int width = 0;                     // the row width that was laid out for
  int columns = 1;                   // 1 to 3
  int pitch = 0;                     // from column to column
  std::vector<std::int32_t> rowTop;  // y of each row
  int height = 0;                    // of the whole scrolled area

  int cellLeft(const GridRow& row) const { return pitch * row.column + kGridMargin; }
};

// Lays the rows out for a client width and sets the column of the icon rows. A window that has no
// width yet is laid out as if it were 240 wide.
GridLayout layOutGrid(std::span<GridRow> rows, int clientWidth);

// The row at a point, or -1. Headers are never hit; the strip with the part number below an icon
// belongs to its cell. `layout` is that of `rows`.
int hitGridRow(const GridLayout& layout, std::span<const GridRow> rows, int x, int y);

}  // namespace vantrel
