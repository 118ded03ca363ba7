#include "palette/track_icon_grid.h"

#include <wx/dcbuffer.h>

#include <cstddef>
#include <utility>

#include "app/services/left_presses.h"
#include "catalog/track_catalog.h"
#include "palette/grid_painting.h"
#include "palette/part_icon.h"

namespace vantrel {
namespace {

constexpr int kScrollStep = 10;  // pixels

}  // namespace

TrackIconGrid::TrackIconGrid(wxWindow* parent, TrackIconGridListener& listener)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxVSCROLL),
      listener_(listener) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetScrollRate(0, kScrollStep);
  Bind(wxEVT_PAINT, &TrackIconGrid::onPaint, this);
  Bind(wxEVT_SIZE, &TrackIconGrid::onSize, this);
  Bind(wxEVT_LEFT_UP, &TrackIconGrid::onLeftUp, this);
  Bind(wxEVT_MOTION, &TrackIconGrid::onMotion, this);
  Bind(wxEVT_LEAVE_WINDOW, &TrackIconGrid::onLeave, this);
  BindLeftPresses(
      *this, [this](wxMouseEvent& event) { onLeftDown(event); },
      [this](wxMouseEvent& event) { onLeftDoubleClick(event); });
  layOut();
}

void TrackIconGrid::Clear() {
  rows_.clear();
  rowByPart_.clear();
  selectedRow_ = -1;
  layOut();
}

void TrackIconGrid::AddHeader(const wxString& title) {
  GridRow row;
  row.isHeader = true;
  row.title = title;
  append(std::move(row));
}

void TrackIconGrid::AddTextRow(const wxString& label, std::string_view key) {
  GridRow row;
  row.isText = true;
  row.label = label;
  row.key = key;
  append(std::move(row));
}

int TrackIconGrid::AddPart(std::string_view partNumber) {
  const PieceDef* def = findPart(partNumber);
  if (def == nullptr) return -1;
  GridRow row;
  row.key = partNumber;
  row.icon = renderPartIcon(render_, def);
  const int index = static_cast<int>(rows_.size());
  rowByPart_.insert_or_assign(row.key, index);
  append(std::move(row));
  return index;
}

int TrackIconGrid::rowOfPart(std::string_view partNumber) const {
  const auto found = rowByPart_.find(std::string(partNumber));
  return found == rowByPart_.end() ? -1 : found->second;
}

void TrackIconGrid::append(GridRow row) {
  rows_.push_back(std::move(row));
  layOut();
}

void TrackIconGrid::layOut() {
  layout_ = layOutGrid(rows_, GetClientSize().GetWidth());
  SetVirtualSize(layout_.width, layout_.height);
  Refresh();
}

int TrackIconGrid::rowAt(const wxPoint& clientPoint) const {
  const wxPoint point = CalcUnscrolledPosition(clientPoint);
  return hitGridRow(layout_, rows_, point.x, point.y);
}

void TrackIconGrid::hover(int row) {
  if (row != hoverRow_) {
    hoverRow_ = row;
    Refresh();
  }
  listener_.rowHovered(row);
}

void TrackIconGrid::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  paintOn(dc);
}

void TrackIconGrid::paintOn(wxDC& dc) {
  DoPrepareDC(dc);
  const int bandTop = GetViewStart().y * kScrollStep;
  paintGrid(dc, layout_, rows_,
            {.selectedRow = selectedRow_,
             .hoverRow = hoverRow_,
             .bandTop = bandTop,
             .bandBottom = bandTop + GetClientSize().GetHeight() - 1});
}

void TrackIconGrid::onSize(wxSizeEvent& event) {
  layOut();
  event.Skip();
}

void TrackIconGrid::onLeftDown(wxMouseEvent& event) {
  SetFocus();
  const int row = rowAt(event.GetPosition());
  if (row >= 0) {
    selectedRow_ = row;
    listener_.rowPressed();
    Refresh();
  }
  event.Skip();
}

void TrackIconGrid::onLeftUp(wxMouseEvent&) {
  suppressDrag_ = false;
}

void TrackIconGrid::onLeftDoubleClick(wxMouseEvent& event) {
  const int row = rowAt(event.GetPosition());
  if (row < 0) return;
  selectedRow_ = row;
  suppressDrag_ = true;
  Refresh();
  listener_.rowActivated(std::string(rows_[static_cast<std::size_t>(row)].key));
}

void TrackIconGrid::onMotion(wxMouseEvent& event) {
  hover(rowAt(event.GetPosition()));
  if (!event.LeftIsDown()) {
    suppressDrag_ = false;
    return;
  }
  // The row dragged is the one that was pressed, wherever the pointer is by now.
  if (event.Dragging() && !suppressDrag_ && selectedRow_ >= 0)
    listener_.rowDragged(std::string(rows_[static_cast<std::size_t>(selectedRow_)].key));
}

void TrackIconGrid::onLeave(wxMouseEvent&) {
  hover(-1);
}

}  // namespace vantrel
