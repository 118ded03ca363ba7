#include "view3d/view3d_frame.h"

#include <wx/panel.h>
#include <wx/sizer.h>

#include "view3d/track_gl_canvas.h"

namespace vantrel {
namespace {

const wxSize kFrameSize(1000, 700);
constexpr const char* kHelp =
    "Left drag: rotate  |  Right drag: pan  |  Scroll: zoom  |  R: reset view";
constexpr const char* kNoOpenGl =
    "There is nothing to see here: this display offers no OpenGL 2.1 to draw with";

}  // namespace

View3DFrame::View3DFrame(wxWindow* parent, const vantrel::Layout& layout)
    : wxFrame(parent, wxID_ANY, "3D View - Vantrel", wxDefaultPosition, kFrameSize,
              wxDEFAULT_FRAME_STYLE) {
  CreateStatusBar(1);
  canvas_ = TrackGLCanvas::Make(this, layout);
  SetStatusText(canvas_ ? kHelp : kNoOpenGl);
  wxWindow* content = canvas_;
  if (!content) content = new wxPanel(this);
  auto* sizer = new wxBoxSizer(wxHORIZONTAL);
  sizer->Add(content, 1, wxEXPAND);
  SetSizer(sizer);
  Show();
  content->SetFocus();
}

void View3DFrame::Rebuild(const vantrel::Layout& layout) {
  if (canvas_) canvas_->Rebuild(layout);
}

}  // namespace vantrel
