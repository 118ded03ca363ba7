// The list of the piece tally: descriptions and counts, without a header.
#pragma once

#include <wx/listctrl.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "shopping/tally.h"

namespace vantrel {

class TallyList : public wxListCtrl {
 public:
  explicit TallyList(wxWindow* parent);

  // Keeps the scroll position. Rows as they are shown already leave the list untouched.
  void showRows(std::vector<TallyRow> rows);
  const std::vector<TallyRow>& rows() const { return rows_; }

  // The width at which nearly all descriptions of the catalog are shown whole, in pixels.
  int usualWidth() const;

  // What a tooltip at this point of the list says: the text of a row that is cut off in its column,
  // otherwise nothing.
  wxString tipAt(wxPoint point) const;

 private:
  wxString OnGetItemText(long item, long column) const override;
  wxItemAttr* OnGetItemAttr(long item) const override;

  std::size_t fontFor(const wxString& text) const;
  int widthIn(std::size_t font, const wxString& text) const;
  void fitColumns();
  void onMotion(wxMouseEvent& event);

  std::vector<TallyRow> rows_;
  mutable wxItemAttr heading_;
  // From the list's own size downward: a long description takes the first that lets it fit.
  mutable std::array<wxItemAttr, 3> sizes_;
  long tipRow_ = wxNOT_FOUND;
};

}  // namespace vantrel
