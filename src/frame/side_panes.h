// The two splitters of the main window: they keep the widths that the side panes are meant to have.
#pragma once

#include <wx/splitter.h>

#include "frame/pane_widths.h"

namespace vantrel {

// A splitter knows no more than where its sash is, so each size too small drags the sash along, for
// good: those that a window passes through while it comes up, and those that a user makes. Here the
// panes have their widths again as soon as there is room for them.
class SidePanes {
 public:
  // `outer` has the palette left and `inner` right, `inner` the plan left and the properties right;
  // both are split. They must live as long as this does.
  SidePanes(wxSplitterWindow& outer, wxSplitterWindow& inner, PaneWidths wanted);

  const PaneWidths& wanted() const { return wanted_; }

  // The least width of all three panes.
  int smallestWidth() const;

 private:
  void arrange();
  void arrangeInner();
  int room() const;
  PaneWidths smallest() const;
  void takeDragged(PaneWidths dragged);

  wxSplitterWindow& outer_;
  wxSplitterWindow& inner_;
  PaneWidths wanted_;
  PaneWidths fitted_;
  int canvas_;  // what the plan keeps before the side panes have all that is wanted
};

}  // namespace vantrel
