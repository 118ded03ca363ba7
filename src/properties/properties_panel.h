// The right-hand panel of the main window.
#pragma once

#include <wx/panel.h>

#include "doc/vec2.h"
#include "workspace/workspace.h"

namespace vantrel {

class PropertiesPanel : public wxPanel {
 public:
  PropertiesPanel(wxWindow* parent, Workspace& workspace);

  // Shows what is selected, and recounts.
  void RefreshSelection();
  // Recounts the pieces that the plan needs.
  void RefreshTally();
  // Where the next label goes, in world mm.
  void SetPendingLabelPosition(double x, double y);

  bool hasPendingLabelPos() const { return hasPendingLabelPos_; }
  Vec2 pendingLabelPos() const { return pendingLabelPos_; }

 private:
  bool hasPendingLabelPos_ = false;
  Vec2 pendingLabelPos_;
};

}  // namespace vantrel
