#include "palette/grid_painting.h"
#include "app/services/wx_text.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/font.h>
#include <wx/pen.h>

#include <cstddef>
#include <iterator>

namespace vantrel {
namespace {

const wxColour kBackground(245, 245, 245);
const wxColour kHeaderFill(75, 85, 100);
const wxColour kHeaderText(220, 225, 235);
const wxColour kSelectedFill(200, 220, 255);
const wxColour kHoveredFill(225, 235, 250);
const wxColour kTextRowFill(250, 250, 252);
const wxColour kTextRowEdge(200, 200, 205);
const wxColour kSelectedEdge(200, 30, 30);
const wxColour kHoveredEdge(150, 170, 200);
const wxColour kCellEdge(200, 200, 200);
const wxColour kRowText(40, 40, 40);

constexpr int kRowFontPoints = 9;
constexpr int kPartFontPoints = 8;
constexpr int kHeaderTextX = 2;
constexpr int kTextRowTextX = 4;
constexpr int kRowTextDrop = 4;    // below the row's top
constexpr int kPartTextDrop = 82;  // below the cell's top

enum class RowLook { plain, hovered, selected };

class GridPainter {
 public:
  GridPainter(wxDC& dc, const GridLayout& layout) : dc_(dc), layout_(layout) {}

  void header(const GridRow& row, int top) {
    dc_.SetBrush(wxBrush(kHeaderFill));
    dc_.SetPen(*wxTRANSPARENT_PEN);
    dc_.DrawRectangle(0, top, layout_.width, kTextRowHeight);
    text("  " + row.title, headerFont_, kHeaderText, kHeaderTextX, top + kRowTextDrop);
  }

  void textRow(const GridRow& row, int top, RowLook look) {
    dc_.SetBrush(wxBrush(fill(look, kTextRowFill)));
    dc_.SetPen(wxPen(kTextRowEdge, 1));
    dc_.DrawRectangle(0, top, layout_.width, kTextRowHeight);
    text("  " + row.label, rowFont_, kRowText, kTextRowTextX, top + kRowTextDrop);
  }

  void iconRow(const GridRow& row, int top, RowLook look) {
    const int left = layout_.cellLeft(row);
    dc_.SetBrush(wxBrush(fill(look, *wxWHITE)));
    dc_.SetPen(cellPen(look));
    dc_.DrawRectangle(left, top, kIconSize, kIconSize);
    if (row.icon.IsOk()) dc_.DrawBitmap(row.icon, left, top, false);
    const wxString key = ToWx(row.key);
    dc_.SetFont(partFont_);
    const int width = dc_.GetTextExtent(key).GetWidth();
    text(key, partFont_, kRowText, left + (kIconSize - width) / 2, top + kPartTextDrop);
  }

  // The icon lies over most of its cell's edge, and in a narrow grid the next cell over the rest.
  void frameAgain(const GridRow& row, int top, RowLook look) {
    const int left = layout_.cellLeft(row);
    const int right = left + kIconSize - 1;
    const int bottom = top + kIconSize - 1;
    const wxPoint corners[] = {
        {left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}};
    dc_.SetPen(cellPen(look));
    dc_.DrawLines(static_cast<int>(std::size(corners)), corners);
  }

 private:
  static wxColour fill(RowLook look, const wxColour& plain) {
    if (look == RowLook::selected) return kSelectedFill;
    return look == RowLook::hovered ? kHoveredFill : plain;
  }

  static wxPen cellPen(RowLook look) {
    if (look == RowLook::selected) return wxPen(kSelectedEdge, 2);
    return wxPen(look == RowLook::hovered ? kHoveredEdge : kCellEdge, 1);
  }

  void text(const wxString& words, const wxFont& font, const wxColour& colour, int x, int y) {
    dc_.SetFont(font);
    dc_.SetTextForeground(colour);
    dc_.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    dc_.DrawText(words, x, y);
  }

  wxDC& dc_;
  const GridLayout& layout_;
  const wxFont headerFont_{wxFontInfo(kRowFontPoints).Bold()};
  const wxFont rowFont_{wxFontInfo(kRowFontPoints)};
  const wxFont partFont_{wxFontInfo(kPartFontPoints)};
};

RowLook LookOf(int row, const GridPaintState& state) {
  if (row == state.selectedRow) return RowLook::selected;
  return row == state.hoverRow ? RowLook::hovered : RowLook::plain;
}

bool InBand(const GridRow& row, int top, const GridPaintState& state) {
  const int drawn = row.isIcon() ? kIconRowDrawn : kTextRowHeight;
  return top <= state.bandBottom && top + drawn > state.bandTop;
}

}  // namespace

void paintGrid(wxDC& dc, const GridLayout& layout, std::span<const GridRow> rows,
               const GridPaintState& state) {
  dc.SetBackground(wxBrush(kBackground));
  dc.Clear();
  GridPainter painter(dc, layout);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const GridRow& row = rows[i];
    const int top = layout.rowTop[i];
    if (!InBand(row, top, state)) continue;
    const RowLook look = LookOf(static_cast<int>(i), state);
    if (row.isHeader)
      painter.header(row, top);
    else if (row.isText)
      painter.textRow(row, top, look);
    else
      painter.iconRow(row, top, look);
  }
  const int hovered = state.hoverRow == state.selectedRow ? -1 : state.hoverRow;
  for (const int marked : {hovered, state.selectedRow}) {
    const auto at = static_cast<std::size_t>(marked);
    if (marked < 0 || at >= rows.size() || !rows[at].isIcon()) continue;
    if (InBand(rows[at], layout.rowTop[at], state))
      painter.frameAgain(rows[at], layout.rowTop[at], LookOf(marked, state));
  }
}

}  // namespace vantrel
