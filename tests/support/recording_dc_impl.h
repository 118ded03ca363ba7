// The toolkit's side of RecordingDC; tests include recording_dc.h.
#pragma once

#include <wx/dc.h>

#include <vector>

#include "tests/support/recording_dc.h"

namespace vantrel {

class RecordingDCImpl : public wxDCImpl {
 public:
  static constexpr int kDefaultPointSize = 10;
  static constexpr int kPlainPixelsPerInch = 96;

  RecordingDCImpl(wxDC* owner, wxSize size, int pixelsPerInch);

  std::vector<DrawCall> calls;
  mutable int measurements = 0;
  int fontChanges = 0;

  bool CanDrawBitmap() const override { return true; }
  bool CanGetTextExtent() const override { return true; }
  int GetDepth() const override { return 24; }
  wxSize GetPPI() const override { return {pixelsPerInch_, pixelsPerInch_}; }
  int GetResolution() const override { return pixelsPerInch_; }
  void DoGetSize(int* width, int* height) const override {
    if (width != nullptr) *width = size_.x;
    if (height != nullptr) *height = size_.y;
  }
  void DoGetSizeMM(int* width, int* height) const override {
    if (width != nullptr) *width = size_.x * 254 / (10 * pixelsPerInch_);
    if (height != nullptr) *height = size_.y * 254 / (10 * pixelsPerInch_);
  }

  void SetFont(const wxFont& font) override {
    m_font = font;
    ++fontChanges;
  }
  void SetPen(const wxPen& pen) override { m_pen = pen; }
  void SetBrush(const wxBrush& brush) override { m_brush = brush; }
  void SetBackground(const wxBrush& brush) override { m_backgroundBrush = brush; }
  void SetBackgroundMode(int mode) override { m_backgroundMode = mode; }
#if wxUSE_PALETTE
  void SetPalette(const wxPalette&) override {}
#endif
  void SetLogicalFunction(wxRasterOperationMode function) override {
    m_logicalFunction = function;
  }

  wxCoord GetCharHeight() const override {
    return extentOf("M").y;
  }
  wxCoord GetCharWidth() const override {
    return extentOf("M").x;
  }
  void DoGetTextExtent(const wxString& string, wxCoord* x, wxCoord* y, wxCoord* descent,
                       wxCoord* externalLeading, const wxFont* theFont) const override;

  void Clear() override {
    record(DrawOp::clear);
  }
  void DoSetClippingRegion(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override;
  void DoSetDeviceClippingRegion(const wxRegion& region) override;
  void DestroyClippingRegion() override;

  bool DoFloodFill(wxCoord x, wxCoord y, const wxColour&, wxFloodFillStyle) override {
    record(DrawOp::floodFill).points = {wxPoint(x, y)};
    return true;
  }
  void DoGradientFillLinear(const wxRect& rect, const wxColour&, const wxColour&,
                            wxDirection) override {
    record(DrawOp::gradient).box = rect;
  }
  void DoGradientFillConcentric(const wxRect& rect, const wxColour&, const wxColour&,
                                const wxPoint&) override {
    record(DrawOp::gradient).box = rect;
  }
  bool DoGetPixel(wxCoord, wxCoord, wxColour*) const override {
    return false;
  }
  void DoDrawPoint(wxCoord x, wxCoord y) override {
    record(DrawOp::point).points = {wxPoint(x, y)};
  }
  void DoDrawLine(wxCoord x1, wxCoord y1, wxCoord x2, wxCoord y2) override {
    record(DrawOp::line).points = {wxPoint(x1, y1), wxPoint(x2, y2)};
  }
  void DoDrawArc(wxCoord x1, wxCoord y1, wxCoord x2, wxCoord y2, wxCoord xc, wxCoord yc) override {
    record(DrawOp::arc).points = {wxPoint(x1, y1), wxPoint(x2, y2), wxPoint(xc, yc)};
  }
  void DoDrawEllipticArc(wxCoord x, wxCoord y, wxCoord w, wxCoord h, double sa, double ea) override;
  void DoDrawRectangle(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override {
    recordBox(DrawOp::rectangle, x, y, w, h);
  }
  void DoDrawRoundedRectangle(wxCoord x, wxCoord y, wxCoord w, wxCoord h, double radius) override;
  void DoDrawEllipse(wxCoord x, wxCoord y, wxCoord w, wxCoord h) override {
    recordBox(DrawOp::ellipse, x, y, w, h);
  }
  void DoCrossHair(wxCoord x, wxCoord y) override {
    record(DrawOp::crossHair).points = {wxPoint(x, y)};
  }
  void DoDrawIcon(const wxIcon& icon, wxCoord x, wxCoord y) override;
  void DoDrawBitmap(const wxBitmap& bitmap, wxCoord x, wxCoord y, bool useMask) override;
  void DoDrawText(const wxString& text, wxCoord x, wxCoord y) override;
  void DoDrawRotatedText(const wxString& text, wxCoord x, wxCoord y, double angle) override;
  bool DoBlit(wxCoord x, wxCoord y, wxCoord w, wxCoord h, wxDC*, wxCoord, wxCoord,
              wxRasterOperationMode, bool, wxCoord, wxCoord) override {
    recordBox(DrawOp::blit, x, y, w, h);
    return true;
  }
  void DoDrawLines(int n, const wxPoint points[], wxCoord dx, wxCoord dy) override {
    recordPoints(DrawOp::lines, n, points, dx, dy);
  }
  void DoDrawPolygon(int n, const wxPoint points[], wxCoord dx, wxCoord dy,
                     wxPolygonFillMode) override {
    recordPoints(DrawOp::polygon, n, points, dx, dy);
  }
  void DoDrawPolyPolygon(int n, const int count[], const wxPoint points[], wxCoord dx, wxCoord dy,
                         wxPolygonFillMode) override;

 private:
  DrawCall& record(DrawOp op);
  void recordBox(DrawOp op, int x, int y, int width, int height);
  void recordPoints(DrawOp op, int n, const wxPoint points[], int dx = 0, int dy = 0);
  static RecordedBrush recorded(const wxBrush& brush);
  wxSize extentOf(const wxString& text) const {
    wxSize size;
    DoGetTextExtent(text, &size.x, &size.y, nullptr, nullptr, nullptr);
    return size;
  }

  wxSize size_;
  int pixelsPerInch_ = kPlainPixelsPerInch;
};

}  // namespace vantrel
