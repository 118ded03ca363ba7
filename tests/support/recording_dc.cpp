#include "tests/support/recording_dc.h"

#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/font.h>
#include <wx/icon.h>
#include <wx/pen.h>
#include <wx/region.h>

#include <algorithm>
#include <ostream>
#include <utility>

#include "tests/support/recording_dc_impl.h"

namespace vantrel {

Rgba ToRgba(const wxColour& colour) {
  if (!colour.IsOk()) return {0, 0, 0, 0};
  return {colour.Red(), colour.Green(), colour.Blue(), colour.Alpha()};
}

RecordedPen SolidPen(Rgba colour, int width) {
  return {.colour = colour, .width = width};
}

RecordedBrush SolidBrush(Rgba colour) {
  return {.colour = colour};
}

RecordingDC::RecordingDC(wxSize size, int pixelsPerInch)
    : wxDC(new RecordingDCImpl(this, size, pixelsPerInch)) {}

RecordingDCImpl& RecordingDC::impl() const {
  return *static_cast<RecordingDCImpl*>(m_pimpl);
}

const std::vector<DrawCall>& RecordingDC::calls() const {
  return impl().calls;
}

std::vector<DrawCall> RecordingDC::callsOf(DrawOp op) const {
  std::vector<DrawCall> found;
  std::copy_if(calls().begin(), calls().end(), std::back_inserter(found),
               [op](const DrawCall& call) { return call.op == op; });
  return found;
}

std::size_t RecordingDC::count(DrawOp op) const {
  return callsOf(op).size();
}

std::vector<DrawCall> RecordingDC::texts(const std::string& text) const {
  std::vector<DrawCall> found;
  for (const DrawCall& call : calls())
    if ((call.op == DrawOp::text || call.op == DrawOp::rotatedText) && call.text == text)
      found.push_back(call);
  return found;
}

std::vector<DrawCall> RecordingDC::circles() const {
  std::vector<DrawCall> found;
  std::copy_if(calls().begin(), calls().end(), std::back_inserter(found),
               [](const DrawCall& call) { return call.isCircle(); });
  return found;
}

void RecordingDC::forget() {
  impl().calls.clear();
  impl().measurements = 0;
  impl().fontChanges = 0;
}

int RecordingDC::measurements() const {
  return impl().measurements;
}

int RecordingDC::fontChanges() const {
  return impl().fontChanges;
}

std::ostream& operator<<(std::ostream& out, const Rgba& colour) {
  out << '(' << int{colour.r} << ", " << int{colour.g} << ", " << int{colour.b};
  if (colour.a != 255) out << ", alpha " << int{colour.a};
  return out << ')';
}

std::ostream& operator<<(std::ostream& out, const RecordedPen& pen) {
  return out << pen.colour << " width " << pen.width << " style " << pen.style;
}

std::ostream& operator<<(std::ostream& out, const RecordedBrush& brush) {
  return out << brush.colour << " style " << brush.style;
}

std::ostream& operator<<(std::ostream& out, const RecordedFont& font) {
  return out << font.pointSize << " pt weight " << font.weight << " style " << font.style
             << " family " << font.family << " face '" << font.face << "'";
}

std::ostream& operator<<(std::ostream& out, DrawOp op) {
  static constexpr const char* kNames[] = {"clear",       "clip",
                                           "clipRegion",  "unclip",
                                           "point",       "line",
                                           "lines",       "polygon",
                                           "polyPolygon", "arc",
                                           "ellipticArc", "ellipse",
                                           "rectangle",   "roundedRectangle",
                                           "text",        "rotatedText",
                                           "bitmap",      "icon",
                                           "blit",        "floodFill",
                                           "gradient",    "crossHair"};
  return out << kNames[static_cast<std::size_t>(op)];
}

std::ostream& operator<<(std::ostream& out, const DrawCall& call) {
  out << call.op;
  if (!call.text.empty()) out << " '" << call.text << "' " << call.font;
  for (const wxPoint& point : call.points) out << " [" << point.x << ", " << point.y << ']';
  if (!call.box.IsEmpty() || call.op == DrawOp::rectangle)
    out << " box " << call.box.x << ", " << call.box.y << ", " << call.box.width << " x "
        << call.box.height;
  if (call.startAngle != 0.0 || call.endAngle != 0.0)
    out << " angles " << call.startAngle << " to " << call.endAngle;
  return out << "; pen " << call.pen << "; brush " << call.brush << "; text " << call.textForeground
             << " mode " << call.backgroundMode;
}

RecordingDCImpl::RecordingDCImpl(wxDC* owner, wxSize size, int pixelsPerInch)
    : wxDCImpl(owner), size_(size), pixelsPerInch_(pixelsPerInch) {
  m_ok = true;
  m_pen = *wxBLACK_PEN;
  m_brush = *wxWHITE_BRUSH;
  m_backgroundBrush = *wxWHITE_BRUSH;
  m_font = wxFont(wxFontInfo(kDefaultPointSize));
}

DrawCall& RecordingDCImpl::record(DrawOp op) {
  DrawCall call;
  call.op = op;
  if (m_pen.IsOk())
    call.pen = {ToRgba(m_pen.GetColour()), m_pen.GetWidth(), m_pen.GetStyle()};
  else
    call.pen = {{0, 0, 0, 0}, 0, wxPENSTYLE_INVALID};
  call.brush = recorded(m_brush);
  call.background = recorded(m_backgroundBrush);
  if (m_font.IsOk())
    call.font = {m_font.GetPointSize(), m_font.GetNumericWeight(), m_font.GetStyle(),
                 m_font.GetFamily(), m_font.GetFaceName().utf8_string()};
  call.textForeground = ToRgba(m_textForegroundColour);
  call.textBackground = ToRgba(m_textBackgroundColour);
  call.backgroundMode = m_backgroundMode;
  call.logicalFunction = m_logicalFunction;
  calls.push_back(std::move(call));
  return calls.back();
}

RecordedBrush RecordingDCImpl::recorded(const wxBrush& brush) {
  if (!brush.IsOk()) return {{0, 0, 0, 0}, wxBRUSHSTYLE_INVALID};
  return {ToRgba(brush.GetColour()), brush.GetStyle()};
}

void RecordingDCImpl::recordBox(DrawOp op, int x, int y, int width, int height) {
  record(op).box = wxRect(x, y, width, height);
}

void RecordingDCImpl::recordPoints(DrawOp op, int n, const wxPoint points[], int dx, int dy) {
  DrawCall& call = record(op);
  call.points.reserve(static_cast<std::size_t>(std::max(n, 0)));
  for (int i = 0; i < n; ++i) call.points.emplace_back(points[i].x + dx, points[i].y + dy);
}

void RecordingDCImpl::DoGetTextExtent(const wxString& string, wxCoord* x, wxCoord* y,
                                      wxCoord* descent, wxCoord* externalLeading,
                                      const wxFont* theFont) const {
  ++measurements;
  const wxFont& font = theFont != nullptr && theFont->IsOk() ? *theFont : m_font;
  const int pointSize = font.IsOk() ? font.GetPointSize() : kDefaultPointSize;
  const int unit = pointSize * pixelsPerInch_ / kPlainPixelsPerInch;
  if (x != nullptr) *x = static_cast<int>(string.length()) * unit;
  if (y != nullptr) *y = 2 * unit;
  if (descent != nullptr) *descent = unit / 2;
  if (externalLeading != nullptr) *externalLeading = 0;
}

void RecordingDCImpl::DoDrawPolyPolygon(int n, const int count[], const wxPoint points[],
                                        wxCoord dx, wxCoord dy, wxPolygonFillMode) {
  int total = 0;
  for (int i = 0; i < n; ++i) total += count[i];
  recordPoints(DrawOp::polyPolygon, total, points, dx, dy);
  calls.back().counts.assign(count, count + n);
}

void RecordingDCImpl::DoDrawEllipticArc(wxCoord x, wxCoord y, wxCoord w, wxCoord h, double sa,
                                        double ea) {
  DrawCall& call = record(DrawOp::ellipticArc);
  call.box = wxRect(x, y, w, h);
  call.startAngle = sa;
  call.endAngle = ea;
}

void RecordingDCImpl::DoDrawRoundedRectangle(wxCoord x, wxCoord y, wxCoord w, wxCoord h,
                                             double radius) {
  DrawCall& call = record(DrawOp::roundedRectangle);
  call.box = wxRect(x, y, w, h);
  call.radius = radius;
}

void RecordingDCImpl::DoDrawText(const wxString& text, wxCoord x, wxCoord y) {
  DrawCall& call = record(DrawOp::text);
  call.text = text.utf8_string();
  call.points = {wxPoint(x, y)};
}

void RecordingDCImpl::DoDrawRotatedText(const wxString& text, wxCoord x, wxCoord y, double angle) {
  DrawCall& call = record(DrawOp::rotatedText);
  call.text = text.utf8_string();
  call.points = {wxPoint(x, y)};
  call.startAngle = angle;
}

void RecordingDCImpl::DoDrawIcon(const wxIcon&, wxCoord x, wxCoord y) {
  const wxPoint point(x, y);
  recordPoints(DrawOp::icon, 1, &point);
}

void RecordingDCImpl::DoDrawBitmap(const wxBitmap& bitmap, wxCoord x, wxCoord y, bool) {
  recordBox(DrawOp::bitmap, x, y, bitmap.GetWidth(), bitmap.GetHeight());
}

void RecordingDCImpl::DoSetClippingRegion(wxCoord x, wxCoord y, wxCoord w, wxCoord h) {
  wxDCImpl::DoSetClippingRegion(x, y, w, h);
  recordBox(DrawOp::clip, x, y, w, h);
}

void RecordingDCImpl::DoSetDeviceClippingRegion(const wxRegion& region) {
  const wxRect box = region.GetBox();
  recordBox(DrawOp::clipRegion, box.x, box.y, box.width, box.height);
}

void RecordingDCImpl::DestroyClippingRegion() {
  wxDCImpl::DestroyClippingRegion();
  record(DrawOp::unclip);
}

}  // namespace vantrel
