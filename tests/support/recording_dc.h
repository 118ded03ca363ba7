// A device context that draws nothing and remembers everything: each drawing call with its integer
// points and with the pen, brush, font and text colours in force, so that tests assert on calls
// instead of pixels.
//
// Text extents are made up, the same on every machine: each character is as wide as the font's
// point size, and a line is twice that high, at 96 dots per inch; they grow with the resolution.
#pragma once

#include <wx/dc.h>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

#include "catalog/scenery_def.h"  // Rgba

namespace vantrel {

struct RecordedPen {
  Rgba colour;
  int width = 1;
  int style = wxPENSTYLE_SOLID;  // wxPENSTYLE_INVALID for a pen that was never made

  friend bool operator==(const RecordedPen&, const RecordedPen&) = default;
};

struct RecordedBrush {
  Rgba colour;
  int style = wxBRUSHSTYLE_SOLID;  // wxBRUSHSTYLE_INVALID for a brush that was never made

  friend bool operator==(const RecordedBrush&, const RecordedBrush&) = default;
};

struct RecordedFont {
  int pointSize = 0;
  int weight = wxFONTWEIGHT_NORMAL;
  int style = wxFONTSTYLE_NORMAL;
  int family = wxFONTFAMILY_DEFAULT;
  std::string face;

  friend bool operator==(const RecordedFont&, const RecordedFont&) = default;
};

enum class DrawOp {
  clear,
  clip,        // box
  clipRegion,  // box, of a device region
  unclip,
  point,
  line,   // 2 points
  lines,  // an open polyline
  polygon,
  polyPolygon,       // points of all, one after the other; `counts` tells them apart
  arc,               // start, end, centre
  ellipticArc,       // box, startAngle, endAngle
  ellipse,           // box; a circle is an ellipse whose box is square
  rectangle,         // box
  roundedRectangle,  // box, radius
  text,              // text at points[0], angle 0
  rotatedText,       // text at points[0], startAngle
  bitmap,            // box
  icon,              // points[0]
  blit,              // box
  floodFill,
  gradient,
  crossHair
};

struct DrawCall {
  DrawOp op = DrawOp::clear;
  std::vector<wxPoint> points;
  std::vector<int> counts;
  wxRect box;
  double startAngle = 0.0;
  double endAngle = 0.0;
  double radius = 0.0;
  std::string text;  // UTF-8
  RecordedPen pen;
  RecordedBrush brush;
  RecordedBrush background;
  RecordedFont font;
  Rgba textForeground;
  Rgba textBackground;
  int backgroundMode = wxBRUSHSTYLE_TRANSPARENT;
  int logicalFunction = wxCOPY;

  // For an ellipse with a square box: the arguments that DrawCircle was given.
  wxPoint centre() const { return {box.x + box.width / 2, box.y + box.height / 2}; }
  int circleRadius() const { return box.width / 2; }
  bool isCircle() const { return op == DrawOp::ellipse && box.width == box.height; }

  friend bool operator==(const DrawCall&, const DrawCall&) = default;
};

// How failing assertions print them.
std::ostream& operator<<(std::ostream& out, const Rgba& colour);
std::ostream& operator<<(std::ostream& out, const RecordedPen& pen);
std::ostream& operator<<(std::ostream& out, const RecordedBrush& brush);
std::ostream& operator<<(std::ostream& out, const RecordedFont& font);
std::ostream& operator<<(std::ostream& out, DrawOp op);
std::ostream& operator<<(std::ostream& out, const DrawCall& call);

Rgba ToRgba(const wxColour& colour);  // alpha 0 for an invalid colour
RecordedPen SolidPen(Rgba colour, int width);
RecordedBrush SolidBrush(Rgba colour);

class RecordingDCImpl;

// Starts with a black pen of width 1, a white brush, a 10 point font of normal weight and
// transparent background mode.
class RecordingDC : public wxDC {
 public:
  explicit RecordingDC(wxSize size = {1160, 800}, int pixelsPerInch = 96);

  const std::vector<DrawCall>& calls() const;
  std::vector<DrawCall> callsOf(DrawOp op) const;
  std::size_t count(DrawOp op) const;
  // The calls whose text equals `text`.
  std::vector<DrawCall> texts(const std::string& text) const;
  std::vector<DrawCall> circles() const;
  // Forgets the calls and counters; keeps pen, brush, font and colours.
  void forget();

  // How often a text was measured, and how often a font was set.
  int measurements() const;
  int fontChanges() const;

 private:
  RecordingDCImpl& impl() const;
};

}  // namespace vantrel
