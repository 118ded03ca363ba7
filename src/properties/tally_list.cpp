#include "properties/tally_list.h"

#include <algorithm>
#include <utility>

#include "app/services/wx_text.h"
#include "catalog/track_catalog.h"

namespace vantrel {
namespace {

// Pixels.
constexpr int kPieceWidth = 110;
constexpr int kCountWidth = 40;
constexpr int kListHeight = 180;
constexpr int kCellPadding = 12;  // what the list keeps free around a text, generously

constexpr int kListBorder = 1;

// A plan may name parts of any length; no tooltip and no screen shows more than this.
constexpr std::size_t kLongestText = 200;

// Longer than this are only some of the K-Track and the electric turnouts of the Z-Track: they end
// with an ellipsis, and a tooltip tells them whole.
constexpr std::size_t kUsualLetters = 46;

enum Column { kPieceColumn = 0, kCountColumn = 1 };

wxString CellText(const std::string& text) {
  const wxString shown = ToWx(text);
  return shown.length() <= kLongestText ? shown : shown.Left(kLongestText) + "...";
}

}  // namespace

// The list asks for its texts instead of holding them: nothing is torn down and built up again when
// a count changes, so nothing flickers and nothing scrolls.
TallyList::TallyList(wxWindow* parent)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxSize(-1, kListHeight),
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_NO_HEADER | wxLC_SINGLE_SEL | wxBORDER_SIMPLE) {
  SetMinSize(wxSize(kPieceWidth + kCountWidth, kListHeight));
  AppendColumn("Piece", wxLIST_FORMAT_LEFT, kPieceWidth);
  AppendColumn("Count", wxLIST_FORMAT_RIGHT, kCountWidth);
  SetFont(GetFont().Smaller());  // those of usual curves are too long for the panel otherwise
  heading_.SetFont(GetFont().Bold());
  heading_.SetTextColour(wxColour(60, 60, 160));
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    tipRow_ = wxNOT_FOUND;
    fitColumns();
  });
  Bind(wxEVT_MOTION, &TallyList::onMotion, this);
}

void TallyList::showRows(std::vector<TallyRow> rows) {
  if (rows == rows_) return;
  Freeze();
  const long selected = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
  const auto at = static_cast<std::size_t>(selected);
  // A selection stays with its text, not with its place in the list.
  if (selected != wxNOT_FOUND && (at >= rows.size() || rows[at].text != rows_[at].text))
    SetItemState(selected, 0, wxLIST_STATE_SELECTED);
  rows_ = std::move(rows);
  tipRow_ = wxNOT_FOUND;
  SetItemCount(static_cast<long>(rows_.size()));
  fitColumns();
  Refresh();
  Thaw();
}

wxString TallyList::tipAt(wxPoint point) const {
  int flags = 0;
  const long row = const_cast<TallyList*>(this)->HitTest(point, flags);
  if (row < 0 || static_cast<std::size_t>(row) >= rows_.size()) return {};
  const wxString text = CellText(rows_[static_cast<std::size_t>(row)].text);
  const bool fits = GetTextExtent(text).x + kCellPadding <= GetColumnWidth(kPieceColumn);
  return fits ? wxString() : text;
}

int TallyList::usualWidth() const {
  int widest = 0;
  for (std::int32_t i = 0; i < catalog().pieceCount(); ++i) {
    const wxString text = ToWx(catalog().pieceAt(i)->description);
    if (text.length() <= kUsualLetters) widest = std::max(widest, GetTextExtent(text).x);
  }
  return widest + kCellPadding + kCountWidth + 2 * kListBorder;
}

wxString TallyList::OnGetItemText(long item, long column) const {
  const auto at = static_cast<std::size_t>(item);
  if (item < 0 || at >= rows_.size()) return {};
  return CellText(column == kPieceColumn ? rows_[at].text : rows_[at].count);
}

wxItemAttr* TallyList::OnGetItemAttr(long item) const {
  const auto at = static_cast<std::size_t>(item);
  if (item < 0 || at >= rows_.size()) return nullptr;
  return rows_[at].heading ? &heading_ : nullptr;
}

// The counts are as wide as they need, the descriptions take the room that is left.
void TallyList::fitColumns() {
  std::string longest;  // digits are all alike: measuring one text per change is enough
  for (const TallyRow& row : rows_)
    if (row.count.size() > longest.size()) longest = row.count;
  const int count = std::max(kCountWidth, GetTextExtent(longest).x + kCellPadding);
  const int piece = std::max(kPieceWidth, GetClientSize().x - count);
  if (GetColumnWidth(kCountColumn) != count) SetColumnWidth(kCountColumn, count);
  if (GetColumnWidth(kPieceColumn) != piece) SetColumnWidth(kPieceColumn, piece);
}

void TallyList::onMotion(wxMouseEvent& event) {
  event.Skip();
  int flags = 0;
  const long row = HitTest(event.GetPosition(), flags);
  if (row == tipRow_) return;
  tipRow_ = row;
  const wxString tip = tipAt(event.GetPosition());
  if (tip.empty())
    UnsetToolTip();
  else
    SetToolTip(tip);
}

}  // namespace vantrel
