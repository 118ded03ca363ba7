// The "Track" page of the palette: a scrolling list of section headers, text rows and icon cells.
#pragma once

#include <wx/scrolwin.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "palette/grid_layout.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// Whom the grid tells what the user does with its rows. Keys are those of the rows, never empty.
class TrackIconGridListener {
 public:
  virtual ~TrackIconGridListener() = default;

  virtual void rowActivated(const std::string& key) = 0;
  virtual void rowDragged(const std::string& key) = 0;
  virtual void rowPressed() = 0;
  // The pointer is over this row now, or over none (-1). Comes with each motion.
  virtual void rowHovered(int row) = 0;
};

class TrackIconGrid : public wxScrolledWindow {
 public:
  // `listener` must outlive the grid.
  TrackIconGrid(wxWindow* parent, TrackIconGridListener& listener);

  // Removes all rows.
  void Clear();
  void AddHeader(const wxString& title);
  void AddTextRow(const wxString& label, std::string_view key);
  // Appends the part's icon and returns its row; adds nothing and returns -1 for a part that the
  // catalog doesn't have.
  int AddPart(std::string_view partNumber);

  const std::vector<GridRow>& rows() const { return rows_; }
  const GridLayout& gridLayout() const { return layout_; }
  // The icon row of a part, the last one when it was added more than once, or -1.
  int rowOfPart(std::string_view partNumber) const;
  int selectedRow() const { return selectedRow_; }  // -1 for none
  int hoverRow() const { return hoverRow_; }        // -1 for none

  // Paints what the window shows at present on a context whose origin is the window's corner.
  void paintOn(wxDC& dc);

 private:
  void append(GridRow row);
  void layOut();
  int rowAt(const wxPoint& clientPoint) const;
  void hover(int row);

  void onPaint(wxPaintEvent& event);
  void onSize(wxSizeEvent& event);
  void onLeftDown(wxMouseEvent& event);
  void onLeftUp(wxMouseEvent& event);
  void onLeftDoubleClick(wxMouseEvent& event);
  void onMotion(wxMouseEvent& event);
  void onLeave(wxMouseEvent& event);

  TrackIconGridListener& listener_;
  std::vector<GridRow> rows_;
  GridLayout layout_;
  std::unordered_map<std::string, int> rowByPart_;
  int selectedRow_ = -1;
  int hoverRow_ = -1;
  bool suppressDrag_ = false;  // the press now held was a double click
  const RenderContext render_;
};

}  // namespace vantrel
