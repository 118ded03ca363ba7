// The list of the plan's levels, to show, hide, choose, add, change and remove them. It works on
// the plan itself: each change is there at once, and Close only closes.
#pragma once

#include <wx/dialog.h>

#include <cstddef>
#include <optional>

#include "doc/layout.h"

class wxButton;
class wxListEvent;
class wxListView;

namespace vantrel {

class LevelManagerDialog : public wxDialog {
 public:
  // The plan has at least one level.
  LevelManagerDialog(wxWindow* parent, vantrel::Layout& layout);

 private:
  void build();
  wxSizer* buildButtons();
  void bindEvents();
  void fill();
  void showRow(std::size_t row);
  void markActive();
  void makeRoomForIds();
  std::optional<std::size_t> selectedRow() const;
  void selectRow(std::size_t row);
  bool takeListKey(int key);
  void onChecked(wxListEvent& event, bool checked);
  void onSelected(wxListEvent& event);
  void onAdd();
  void onRemove();
  void onProperties();

  vantrel::Layout& layout_;  // the name alone is a function of every window
  wxListView* list_ = nullptr;
  wxButton* remove_ = nullptr;
  bool filling_ = false;  // the list's events are our own doing
};

}  // namespace vantrel
