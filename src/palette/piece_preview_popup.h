// A small window for a larger view of one part.
#pragma once

#include <wx/popupwin.h>

#include "catalog/piece_def.h"
#include "render2d/render_context.h"

class wxDC;

namespace vantrel {

// What the popup shows: nothing but its ground without a part.
void paintPreview(const RenderContext& context, wxDC& dc, const PieceDef* def);

// Forgets its part whenever it is hidden, and hides when its parent loses the focus or the window
// around the parent is deactivated. Nothing in the program opens it at present.
class PiecePreviewPopup : public wxPopupWindow {
 public:
  explicit PiecePreviewPopup(wxWindow* parent);

  const PieceDef* def() const { return def_; }
  // Takes the part to show next; doesn't show the window.
  void setDef(const PieceDef* def) { def_ = def; }

  bool Show(bool show = true) override;

 private:
  void onPaint(wxPaintEvent& event);
  void onParentLosesFocus(wxFocusEvent& event);
  void onActivate(wxActivateEvent& event);

  const PieceDef* def_ = nullptr;
  const RenderContext render_;
};

}  // namespace vantrel
