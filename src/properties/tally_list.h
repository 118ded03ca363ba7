// The list of the piece tally: descriptions and counts, without a header.
#pragma once

#include <wx/listctrl.h>

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

  // The width at which most descriptions of the catalog are shown whole, in pixels.
  int usualWidth() const;

  // What a tooltip at this point of the list says: the text of a row that is cut off in its column,
  // otherwise nothing.
  wxString tipAt(wxPoint point) const;

 private:
  wxString OnGetItemText(long item, long column) const override;
  wxItemAttr* OnGetItemAttr(long item) const override;

  void fitColumns();
  void onMotion(wxMouseEvent& event);

  std::vector<TallyRow> rows_;
  mutable wxItemAttr heading_;
  long tipRow_ = wxNOT_FOUND;
};

}  // namespace vantrel
