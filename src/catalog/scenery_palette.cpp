#include "catalog/scenery_palette.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "catalog/piece_builders.h"

namespace vantrel::scenery {
namespace {

ScenePrimitive InBox(PrimitiveKind kind, const Box& box, Rgba fill, Rgba stroke, int strokeWidth) {
  ScenePrimitive primitive;
  primitive.kind = kind;
  primitive.fill = fill;
  primitive.stroke = stroke;
  primitive.strokeWidth = stroke.a == 0 ? 0 : strokeWidth;
  primitive.x = box.x;
  primitive.y = box.y;
  primitive.w = box.w;
  primitive.h = box.h;
  return primitive;
}

// Four planes from the eaves up to a ridge along one of the axes; `start` is the end of the ridge
// that lies nearer the box's origin.
Art RoofOverRidge(const Box& box, Vec2 start, Vec2 end, Rgba lit, Rgba shaded) {
  const double right = box.x + box.w;
  const double bottom = box.y + box.h;
  const bool ridgeAlongX = box.w >= box.h;
  const Vec2 upperRight = ridgeAlongX ? end : start;
  const Vec2 lowerLeft = ridgeAlongX ? start : end;
  return {Polygon({{box.x, box.y}, {right, box.y}, upperRight, start}, lit, kOutline),
          Polygon({{box.x, box.y}, start, lowerLeft, {box.x, bottom}}, lit, kOutline),
          Polygon({{right, box.y}, {right, bottom}, end, upperRight}, shaded, kOutline),
          Polygon({{box.x, bottom}, lowerLeft, end, {right, bottom}}, shaded, kOutline)};
}

}  // namespace

ScenePrimitive FilledRect(const Box& box, Rgba fill, Rgba stroke, int strokeWidth) {
  return InBox(PrimitiveKind::filledRectangle, box, fill, stroke, strokeWidth);
}

ScenePrimitive FilledEllipse(const Box& box, Rgba fill, Rgba stroke, int strokeWidth) {
  return InBox(PrimitiveKind::filledEllipse, box, fill, stroke, strokeWidth);
}

ScenePrimitive Polygon(std::vector<Vec2> points, Rgba fill, Rgba stroke, int strokeWidth) {
  ScenePrimitive primitive = InBox(PrimitiveKind::polygon, {}, fill, stroke, strokeWidth);
  primitive.points = std::move(points);
  return primitive;
}

ScenePrimitive OutlinedRect(const Box& box, Rgba stroke, int strokeWidth) {
  return InBox(PrimitiveKind::outlinedRectangle, box, kNoColour, stroke, strokeWidth);
}

ScenePrimitive OutlinedEllipse(const Box& box, Rgba stroke, int strokeWidth) {
  return InBox(PrimitiveKind::outlinedEllipse, box, kNoColour, stroke, strokeWidth);
}

// The colour stands in `fill`, the one of the two that a selected item's tint reaches.
ScenePrimitive Line(Vec2 from, Vec2 to, Rgba colour, int width) {
  return InBox(PrimitiveKind::line, {from.x, from.y, to.x, to.y}, colour, colour, width);
}

ScenePrimitive Text(Vec2 centre, double size, Rgba colour, std::string text) {
  ScenePrimitive primitive =
      InBox(PrimitiveKind::text, {centre.x, centre.y, 0.0, size}, colour, kNoColour, 0);
  primitive.text = std::move(text);
  return primitive;
}

void Append(Art& art, Art more) {
  art.insert(art.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

Art GableRoofAlongX(const Box& box, Rgba lit, Rgba shaded) {
  const double half = box.h / 2.0;
  return {FilledRect({box.x, box.y, box.w, half}, lit, kOutline),
          FilledRect({box.x, box.y + half, box.w, half}, shaded, kOutline)};
}

Art GableRoofAlongY(const Box& box, Rgba lit, Rgba shaded) {
  const double half = box.w / 2.0;
  return {FilledRect({box.x, box.y, half, box.h}, lit, kOutline),
          FilledRect({box.x + half, box.y, half, box.h}, shaded, kOutline)};
}

Art HipRoof(const Box& box, Rgba lit, Rgba shaded) {
  const double inset = std::min(box.w, box.h) / 2.0;
  return RoofOverRidge(box, {box.x + inset, box.y + inset},
                       {box.x + box.w - inset, box.y + box.h - inset}, lit, shaded);
}

Art PyramidRoof(const Box& box, Rgba lit, Rgba shaded) {
  const Vec2 apex{box.x + box.w / 2.0, box.y + box.h / 2.0};
  return RoofOverRidge(box, apex, apex, lit, shaded);
}

ScenePrimitive Crown(const Box& box, int lobes, Rgba fill, Rgba stroke) {
  constexpr int kPointsPerLobe = 4;
  constexpr double kNotch = 0.14;  // depth of the cusp between two bulges, as part of the radius
  std::vector<Vec2> points;
  const int count = lobes * kPointsPerLobe;
  for (int i = 0; i < count; ++i) {
    const double turn = 2.0 * kPi * i / count;
    const double reach = 1.0 - kNotch + kNotch * std::abs(std::sin(lobes * turn / 2.0));
    points.push_back({box.x + box.w / 2.0 * (1.0 + reach * std::cos(turn)),
                      box.y + box.h / 2.0 * (1.0 + reach * std::sin(turn))});
  }
  return Polygon(std::move(points), fill, stroke);
}

SceneryDef MakeItem(std::string id, std::string name, std::int32_t category, double width,
                    double depth, Art art) {
  SceneryDef def;
  def.id = std::move(id);
  def.name = std::move(name);
  def.category = category;
  def.width = width;
  def.depth = depth;
  def.primitives = std::move(art);
  return def;
}

}  // namespace vantrel::scenery
