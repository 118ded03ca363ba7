#include "render2d/scenery_drawing.h"

#include <wx/brush.h>
#include <wx/dc.h>
#include <wx/font.h>
#include <wx/gdicmn.h>
#include <wx/pen.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "catalog/piece_builders.h"
#include "render2d/contents_text.h"
#include "render2d/text_extent.h"

namespace vantrel {
namespace {

constexpr int kFewestEllipsePoints = 12;
constexpr int kMostEllipsePoints = 64;
constexpr int kSmallestFontPoints = 8;
// The toolkit walks every dot of a dotted line, seen or not, up to a tenth of a second per item. No
// sound plan comes near this length; a footprint beyond it is framed by a plain line.
constexpr int kLongestDottedSide = 200'000;  // device units

constexpr Rgba kSelectedFrame{40, 100, 200, 255};
constexpr Rgba kGhostFrame{80, 150, 80, 255};
constexpr Rgba kTransparent{0, 0, 0, 0};

Rgba SelectedTint(Rgba fill) {
  const auto channel = [](std::uint8_t value, double shift) {
    return static_cast<std::uint8_t>(0.7 * value + shift);
  };
  return {channel(fill.r, 30.0), channel(fill.g, 48.0), channel(fill.b, 66.0), fill.a};
}

wxColour ToColour(Rgba colour) {
  return {colour.r, colour.g, colour.b, colour.a};
}

// From an item's own frames to the device.
class ItemFrame {
 public:
  ItemFrame(const SceneryDef& def, const Pose& pose, const ViewTransform& view, double scalex,
            double scaley)
      : pose_(pose),
        view_(view),
        scalex_(scalex),
        scaley_(scaley),
        halfWidth_(scalex * def.width / 2.0),
        halfDepth_(scaley * def.depth / 2.0),
        cos_(std::cos(Radians(pose.heading))),
        sin_(std::sin(Radians(pose.heading))) {}

  // Of a point of the definition, whose origin is the corner of the footprint.
  wxPoint point(double x, double y) const {
    return local(x * scalex_ - halfWidth_, y * scaley_ - halfDepth_);
  }
  std::array<wxPoint, 4> footprint() const {
    return {local(-halfWidth_, -halfDepth_), local(halfWidth_, -halfDepth_),
            local(halfWidth_, halfDepth_), local(-halfWidth_, halfDepth_)};
  }
  const ViewTransform& view() const { return view_; }

 private:
  // Of a point around the middle of the footprint.
  wxPoint local(double x, double y) const {
    const DevicePoint device =
        view_.toDevice({pose_.x + x * cos_ - y * sin_, pose_.y + x * sin_ + y * cos_});
    return {device.x, device.y};
  }

  const Pose& pose_;
  const ViewTransform& view_;
  double scalex_;
  double scaley_;
  double halfWidth_;
  double halfDepth_;
  double cos_;
  double sin_;
};

struct PenKey {
  Rgba colour;
  int width = 0;  // pixels
  bool visible = false;

  friend bool operator==(const PenKey&, const PenKey&) = default;
};

// Draws the primitives of one item. It remembers what it set last, since a drawing mostly repeats
// the same few pens and brushes and each search in the toolkit's lists costs more than a line.
class ItemPainter {
 public:
  ItemPainter(const RenderContext& context, wxDC& dc, const ItemFrame& frame)
      : context_(context), dc_(dc), frame_(frame) {}

  void draw(const ScenePrimitive& primitive, bool selected) {
    const Rgba fill = selected ? SelectedTint(primitive.fill) : primitive.fill;
    switch (primitive.kind) {
      case PrimitiveKind::filledRectangle:
      case PrimitiveKind::filledEllipse:
      case PrimitiveKind::polygon:
        setBrush(fill);
        setAreaPen(primitive);
        break;
      case PrimitiveKind::outlinedRectangle:
      case PrimitiveKind::outlinedEllipse:
        setBrush(kTransparent);
        setAreaPen(primitive);
        break;
      case PrimitiveKind::line:
        drawLine(primitive, fill.a != 0 ? fill : primitive.stroke);
        return;
      case PrimitiveKind::text:
        drawText(primitive, fill);
        return;
    }
    drawArea(primitive);
  }

  void drawFootprint(Rgba colour) {
    setBrush(kTransparent);
    const std::array<wxPoint, 4> corners = frame_.footprint();
    int longest = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const wxPoint side = corners[(i + 1) % corners.size()] - corners[i];
      longest = std::max({longest, std::abs(side.x), std::abs(side.y)});
    }
    dc_.SetPen(*wxThePenList->FindOrCreatePen(
        ToColour(colour), frame_.view().pixels(1),
        longest > kLongestDottedSide ? wxPENSTYLE_SOLID : wxPENSTYLE_DOT));
    penKnown_ = false;
    dc_.DrawPolygon(static_cast<int>(corners.size()), corners.data());
  }

 private:
  void setBrush(Rgba fill) {
    if (brushKnown_ && brush_ == fill) return;
    brush_ = fill;
    brushKnown_ = true;
    dc_.SetBrush(fill.a == 0 ? *wxTRANSPARENT_BRUSH
                             : *wxTheBrushList->FindOrCreateBrush(ToColour(fill)));
  }

  // Around an area a width of 0 is no pen; along a line it is the device's thinnest.
  void setAreaPen(const ScenePrimitive& primitive) {
    if (primitive.stroke.a == 0 || primitive.strokeWidth <= 0)
      setPen(PenKey{});
    else
      setPen({primitive.stroke, primitive.strokeWidth, true});
  }

  void setPen(const PenKey& key) {
    if (penKnown_ && pen_ == key) return;
    pen_ = key;
    penKnown_ = true;
    dc_.SetPen(key.visible ? *wxThePenList->FindOrCreatePen(ToColour(key.colour),
                                                            frame_.view().pixels(key.width))
                           : *wxTRANSPARENT_PEN);
  }

  void drawArea(const ScenePrimitive& primitive) {
    const double right = primitive.x + primitive.w;
    const double bottom = primitive.y + primitive.h;
    switch (primitive.kind) {
      case PrimitiveKind::filledRectangle:
      case PrimitiveKind::outlinedRectangle:
        points_ = {frame_.point(primitive.x, primitive.y), frame_.point(right, primitive.y),
                   frame_.point(right, bottom), frame_.point(primitive.x, bottom)};
        break;
      case PrimitiveKind::filledEllipse:
      case PrimitiveKind::outlinedEllipse:
        takeEllipse(primitive);
        break;
      default:
        points_.clear();
        for (const Vec2& vertex : primitive.points)
          points_.push_back(frame_.point(vertex.x, vertex.y));
    }
    if (!points_.empty()) dc_.DrawPolygon(static_cast<int>(points_.size()), points_.data());
  }

  void takeEllipse(const ScenePrimitive& primitive) {
    const int count =
        std::clamp(DeviceInt(std::max(primitive.w, primitive.h) * frame_.view().scale * 0.5),
                   kFewestEllipsePoints, kMostEllipsePoints);
    const double halfW = primitive.w / 2.0;
    const double halfH = primitive.h / 2.0;
    points_.clear();
    for (int k = 0; k < count; ++k) {
      const double angle = 2.0 * kPi * k / count;
      points_.push_back(frame_.point(primitive.x + halfW + std::cos(angle) * halfW,
                                     primitive.y + halfH + std::sin(angle) * halfH));
    }
  }

  void drawLine(const ScenePrimitive& primitive, Rgba colour) {
    setBrush(kTransparent);
    setPen({colour, primitive.strokeWidth, true});
    dc_.DrawLine(frame_.point(primitive.x, primitive.y), frame_.point(primitive.w, primitive.h));
  }

  void drawText(const ScenePrimitive& primitive, Rgba colour) {
    const int points = std::clamp(DeviceInt(primitive.h * frame_.view().pixelScale()),
                                  kSmallestFontPoints, kLargestFontPoints);
    // Not from the toolkit's list of fonts, which takes 70 points for "whatever is usual". The one
    // in force stays if it is the same, so that texts are found among those measured already.
    const wxFont font = PlanFont(frame_.view(), points, wxFONTWEIGHT_BOLD);
    if (dc_.GetFont() != font) dc_.SetFont(font);
    dc_.SetTextForeground(ToColour(colour));
    dc_.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    TextExtents ofThisCall;
    const MeasuredText& measured = MeasureText(
        context_.textExtents != nullptr ? *context_.textExtents : ofThisCall, dc_, primitive.text);
    const wxPoint centre = frame_.point(primitive.x, primitive.y);
    dc_.DrawText(measured.text, centre.x - measured.size.GetWidth() / 2,
                 centre.y - measured.size.GetHeight() / 2);
  }

  const RenderContext& context_;
  wxDC& dc_;
  const ItemFrame& frame_;
  // What the device was given last, so that runs of like primitives set it once.
  Rgba brush_;
  PenKey pen_;
  bool brushKnown_ = false;
  bool penKnown_ = false;
  std::vector<wxPoint> points_;
};

}  // namespace

void DrawSceneryItem(const RenderContext& context, wxDC& dc, const SceneryDef& def,
                     const Pose& pose, const ViewTransform& view, bool selected, double scalex,
                     double scaley) {
  const ItemFrame frame(def, pose, view, scalex, scaley);
  ItemPainter painter(context, dc, frame);
  for (const ScenePrimitive& primitive : def.primitives) painter.draw(primitive, selected);
  if (selected) painter.drawFootprint(kSelectedFrame);
}

void DrawSceneryGhost(const RenderContext& context, wxDC& dc, const SceneryDef& def,
                      const Pose& pose, const ViewTransform& view) {
  DrawSceneryItem(context, dc, def, pose, view, false, 1.0, 1.0);
  const ItemFrame frame(def, pose, view, 1.0, 1.0);
  ItemPainter(context, dc, frame).drawFootprint(kGhostFrame);
}

}  // namespace vantrel
