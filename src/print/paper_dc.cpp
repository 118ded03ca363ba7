#include "print/paper_dc.h"

#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/icon.h>
#include <wx/math.h>
#include <wx/pen.h>

namespace vantrel {
namespace {

class PaperDCImpl : public wxDCImpl {
 public:
  PaperDCImpl(wxDC* owner, wxDC& target, PaperColours colours)
      : wxDCImpl(owner), target_(target), colours_(colours) {
    m_ok = target.IsOk();
    m_font = target.GetFont();
    m_textForegroundColour = target.GetTextForeground();
    m_textBackgroundColour = target.GetTextBackground();
  }

  bool CanDrawBitmap() const override { return target_.CanDrawBitmap(); }
  bool CanGetTextExtent() const override { return target_.CanGetTextExtent(); }
  int GetDepth() const override { return target_.GetDepth(); }
  wxSize GetPPI() const override { return target_.GetPPI(); }
  void DoGetSize(int* width, int* height) const override { target_.GetSize(width, height); }
  void DoGetSizeMM(int* width, int* height) const override { target_.GetSizeMM(width, height); }

  void SetFont(const wxFont& font) override {
    m_font = font;
    target_.SetFont(font);
  }
  void SetPen(const wxPen& pen) override {
    m_pen = pen;
    target_.SetPen(penOf(pen));
  }
  void SetBrush(const wxBrush& brush) override {
    m_brush = brush;
    target_.SetBrush(brushOf(brush));
  }
  void SetBackground(const wxBrush& brush) override {
    m_backgroundBrush = brush;
    target_.SetBackground(brushOf(brush));
  }
  void SetBackgroundMode(int mode) override { m_backgroundMode = mode; }
  void SetTextForeground(const wxColour& colour) override {
    m_textForegroundColour = colour;
    target_.SetTextForeground(colourOf(colour));
  }
  void SetTextBackground(const wxColour& colour) override {
    m_textBackgroundColour = colour;
    target_.SetTextBackground(colourOf(colour));
  }
#if wxUSE_PALETTE
  void SetPalette(const wxPalette&) override {}
#endif
  void SetLogicalFunction(wxRasterOperationMode function) override {
    target_.SetLogicalFunction(function);
  }

  wxCoord GetCharHeight() const override {
    return target_.GetCharHeight();
  }
  wxCoord GetCharWidth() const override {
    return target_.GetCharWidth();
  }
  void DoGetTextExtent(const wxString& text, wxCoord* x, wxCoord* y, wxCoord* descent,
                       wxCoord* externalLeading, const wxFont* font) const override {
    target_.GetTextExtent(text, x, y, descent, externalLeading, font);
  }

  void Clear() override {
    target_.Clear();
  }
  void DoSetClippingRegion(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override {
    target_.SetClippingRegion(x, y, w, h);
  }
  void DoSetDeviceClippingRegion(const wxRegion& region) override {
    target_.SetDeviceClippingRegion(region);
  }
  void DestroyClippingRegion() override {
    target_.DestroyClippingRegion();
  }

  bool DoFloodFill(wxCoord x, wxCoord y, const wxColour& colour, wxFloodFillStyle style) override {
    return target_.FloodFill(x, y, colourOf(colour), style);
  }
  void DoGradientFillLinear(const wxRect& rect, const wxColour& from, const wxColour& to,
                            wxDirection direction) override {
    target_.GradientFillLinear(rect, colourOf(from), colourOf(to), direction);
  }
  void DoGradientFillConcentric(const wxRect& rect, const wxColour& from, const wxColour& to,
                                const wxPoint& centre) override {
    target_.GradientFillConcentric(rect, colourOf(from), colourOf(to), centre);
  }
  bool DoGetPixel(wxCoord x, wxCoord y, wxColour* colour) const override {
    return target_.GetPixel(x, y, colour);
  }
  void DoDrawPoint(wxCoord x, wxCoord y) override {
    target_.DrawPoint(x, y);
  }
  void DoDrawLine(wxCoord x1, wxCoord y1, wxCoord x2, wxCoord y2) override {
    target_.DrawLine(x1, y1, x2, y2);
  }
  void DoDrawArc(wxCoord x1, wxCoord y1, wxCoord x2, wxCoord y2, wxCoord xc, wxCoord yc) override {
    target_.DrawArc(x1, y1, x2, y2, xc, yc);
  }
  void DoDrawEllipticArc(wxCoord x, wxCoord y, wxCoord w, wxCoord h, double start,
                         double end) override {
    target_.DrawEllipticArc(x, y, w, h, start, end);
  }
  void DoDrawRectangle(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override {
    target_.DrawRectangle(x, y, w, h);
  }
  void DoDrawRoundedRectangle(wxCoord x, wxCoord y, wxCoord w, wxCoord h, double radius) override {
    target_.DrawRoundedRectangle(x, y, w, h, radius);
  }
  void DoDrawEllipse(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override {
    target_.DrawEllipse(x, y, w, h);
  }
  void DoCrossHair(wxCoord x, wxCoord y) override {
    target_.CrossHair(x, y);
  }
  void DoDrawIcon(const wxIcon& icon, wxCoord x, wxCoord y) override {
    target_.DrawIcon(icon, x, y);
  }
  void DoDrawBitmap(const wxBitmap& bitmap, wxCoord x, wxCoord y, bool useMask) override {
    target_.DrawBitmap(bitmap, x, y, useMask);
  }
  void DoDrawText(const wxString& text, wxCoord x, wxCoord y) override {
    drawGround(text, x, y);
    refreshTextColour();
    target_.DrawText(text, x, y);
    target_.SetBrush(brushOf(m_brush));
  }
  void DoDrawRotatedText(const wxString& text, wxCoord x, wxCoord y, double angle) override {
    refreshTextColour();
    target_.DrawRotatedText(text, x, y, angle);
    target_.SetBrush(brushOf(m_brush));
  }
  bool DoBlit(wxCoord x, wxCoord y, wxCoord w, wxCoord h, wxDC* source, wxCoord fromX,
              wxCoord fromY, wxRasterOperationMode function, bool useMask, wxCoord maskX,
              wxCoord maskY) override {
    return target_.Blit(x, y, w, h, source, fromX, fromY, function, useMask, maskX, maskY);
  }
  void DoDrawLines(int count, const wxPoint points[], wxCoord dx, wxCoord dy) override {
    target_.DrawLines(count, points, dx, dy);
  }
  void DoDrawPolygon(int count, const wxPoint points[], wxCoord dx, wxCoord dy,
                     wxPolygonFillMode mode) override {
    target_.DrawPolygon(count, points, dx, dy, mode);
  }
  void DoDrawPolyPolygon(int count, const int counts[], const wxPoint points[], wxCoord dx,
                         wxCoord dy, wxPolygonFillMode mode) override {
    target_.DrawPolyPolygon(count, counts, points, dx, dy, mode);
  }

 private:
  wxColour colourOf(const wxColour& colour) const {
    return colours_ == PaperColours::grey ? greyOf(colour) : colour;
  }
  wxPen penOf(wxPen pen) const {
    if (pen.IsOk() && pen.GetStyle() != wxPENSTYLE_TRANSPARENT)
      pen.SetColour(colourOf(pen.GetColour()));
    return pen;
  }
  wxBrush brushOf(wxBrush brush) const {
    if (brush.IsOk() && brush.GetStyle() != wxBRUSHSTYLE_TRANSPARENT)
      brush.SetColour(colourOf(brush.GetColour()));
    return brush;
  }
  // The target itself never gets another background mode than the transparent one.
  void drawGround(const wxString& text, wxCoord x, wxCoord y) {
    if (m_backgroundMode != wxBRUSHSTYLE_SOLID) return;
    const wxSize size = target_.GetMultiLineTextExtent(text);
    target_.SetPen(*wxTRANSPARENT_PEN);
    target_.SetBrush(wxBrush(colourOf(m_textBackgroundColour)));
    target_.DrawRectangle(x, y, size.x, size.y);
    target_.SetPen(penOf(m_pen));
    target_.SetBrush(brushOf(m_brush));
  }

  // The toolkit's printer remembers a colour that isn't in force any more, and then writes in that
  // of the last shape. A change of the brush is never skipped.
  void refreshTextColour() {
    const wxColour colour = colourOf(m_textForegroundColour);
    if (!colour.IsOk()) return;
    target_.SetBrush(colour == *wxWHITE ? *wxBLACK_BRUSH : *wxWHITE_BRUSH);
    target_.SetBrush(wxBrush(colour));
  }

  wxDC& target_;
  const PaperColours colours_;
};

}  // namespace

// With the weights of the toolkit's own pictures in grey.
wxColour greyOf(const wxColour& colour) {
  if (!colour.IsOk()) return colour;
  const double lightness = 0.299 * colour.Red() + 0.587 * colour.Green() + 0.114 * colour.Blue();
  const auto grey = static_cast<unsigned char>(wxRound(lightness));
  return wxColour(grey, grey, grey, colour.Alpha());
}

PaperDC::PaperDC(wxDC& target, PaperColours colours)
    : wxDC(new PaperDCImpl(this, target, colours)) {}

}  // namespace vantrel
