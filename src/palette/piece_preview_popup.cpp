#include "palette/piece_preview_popup.h"
#include "app/services/wx_text.h"

#include <wx/dcbuffer.h>
#include <wx/font.h>
#include <wx/toplevel.h>

#include "palette/part_icon.h"

namespace vantrel {
namespace {

constexpr int kPopupWidth = 80;
constexpr int kPopupHeight = 55;
constexpr int kPartFontPoints = 7;
constexpr int kPartTextY = 2;

const wxColour kGround(255, 255, 240);
const wxColour kEdge(180, 180, 180);
const wxColour kPartText(60, 60, 60);

}  // namespace

void paintPreview(const RenderContext& context, wxDC& dc, const PieceDef* def) {
  dc.SetBackground(wxBrush(kGround));
  dc.Clear();
  if (def == nullptr) return;
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.SetPen(wxPen(kEdge, 1));
  dc.DrawRectangle(0, 0, kPopupWidth, kPopupHeight);
  dc.SetFont(wxFont(wxFontInfo(kPartFontPoints).Bold()));
  dc.SetTextForeground(kPartText);
  const wxString part = ToWx(def->partNumber);
  const int width = dc.GetTextExtent(part).GetWidth();
  dc.DrawText(part, (kPopupWidth - width) / 2, kPartTextY);
  drawLoosePart(context, dc, *def, previewView(*def));
}

PiecePreviewPopup::PiecePreviewPopup(wxWindow* parent) : wxPopupWindow(parent, wxBORDER_SIMPLE) {
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetSize(kPopupWidth, kPopupHeight);
  Bind(wxEVT_PAINT, &PiecePreviewPopup::onPaint, this);
  parent->Bind(wxEVT_KILL_FOCUS, &PiecePreviewPopup::onParentLosesFocus, this);
  // Only top-level windows are activated and deactivated.
  wxGetTopLevelParent(parent)->Bind(wxEVT_ACTIVATE, &PiecePreviewPopup::onActivate, this);
}

bool PiecePreviewPopup::Show(bool show) {
  if (!show) def_ = nullptr;
  return wxPopupWindow::Show(show);
}

void PiecePreviewPopup::onPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  paintPreview(render_, dc, def_);
}

void PiecePreviewPopup::onParentLosesFocus(wxFocusEvent& event) {
  Hide();
  event.Skip();
}

void PiecePreviewPopup::onActivate(wxActivateEvent& event) {
  if (!event.GetActive()) Hide();
  event.Skip();
}

}  // namespace vantrel
