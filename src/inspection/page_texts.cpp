#include "inspection/page_texts.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "doc/format_length.h"

namespace vantrel {
namespace {

constexpr std::string_view kSeparator = "  |  ";

// By the system's number. The panel writes out the umlaut and names systems that no part is of yet.
constexpr std::array<std::string_view, 7> kSystemNames = {
    "Märklin C", "Märklin K", "Märklin Z", "TRIX C", "Rokuhan Z", "Minitrix N", "Kato N"};

std::string PanelSystemName(TrackSystem system) {
  const auto index = static_cast<std::size_t>(system);
  return std::string(index < kSystemNames.size() ? kSystemNames[index] : "Unknown");
}

// One digit after the point, but none for a whole number.
std::string RadiusText(double mm) {
  std::string text = FormatFixed(mm, 1);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

// A size on the plan in whole mm.
std::string SizeText(double width, double depth) {
  return FormatFixed(width, 0) + " x " + FormatFixed(depth, 0) + " mm";
}

// A coordinate that is no number counts for nothing.
std::string BoundingSizeText(const std::vector<Vec2>& vertices) {
  Vec2 low = vertices.front();
  Vec2 high = low;
  for (const Vec2& vertex : vertices) {
    low = {std::fmin(low.x, vertex.x), std::fmin(low.y, vertex.y)};
    high = {std::fmax(high.x, vertex.x), std::fmax(high.y, vertex.y)};
  }
  return SizeText(high.x - low.x, high.y - low.y);
}

}  // namespace

std::string HeightCaption(const ShownUnit& unit) {
  return "Height (" + std::string(unit.name) + "):";
}

std::string BaseHeightCaption(const ShownUnit& unit) {
  return "Base height (" + std::string(unit.name) + "):";
}

std::string GradeText(double deg) {
  const double steepness = std::abs(deg);
  const double percent = std::tan(steepness * std::numbers::pi / 180.0) * 100.0;
  return (deg >= 0.0 ? "+" : "-") + FormatFixed(steepness, 2) + " deg (" + FormatFixed(percent, 1) +
         "%)";
}

std::string GradeWarningText(double deg, double maxDeg) {
  return "WARNING: Grade " + FormatFixed(std::abs(deg), 1) + " deg exceeds " +
         FormatFixed(maxDeg, 0) + " deg max!";
}

std::string PieceInfo(const PieceDef& def) {
  std::string info = PanelSystemName(def.system) + std::string(kSeparator);
  if (def.length > 0.0) info += FormatFixed(def.length, 1) + " mm";
  return info;
}

std::string HelixTitle(const Helix& helix) {
  const HelixKit* kit = findKit(helix.variant);
  return kit != nullptr ? std::string(kit->name) : "Helix";
}

std::string HelixInfo(const Helix& helix, const ShownUnit& unit) {
  const HelixKit& kit = kitOrDefault(helix.variant);
  const std::string separator(kSeparator);
  return FormatFixed(kit.turns, 1) + " turns" + separator + "rise " + HeightText(kit.height, unit) +
         " " + std::string(unit.name) + separator + "R1 " + RadiusText(kit.innerRadius) + " / R2 " +
         RadiusText(kit.outerRadius) + " mm";
}

std::string SceneryTitle(const SceneryItem& item) {
  const SceneryDef* def = findScenery(item.item);
  return def != nullptr ? def->name : item.item;
}

std::string SceneryInfo(const SceneryItem& item) {
  const SceneryDef* def = findScenery(item.item);
  if (def == nullptr) return "Scenery";
  return "Scenery" + std::string(kSeparator) +
         SizeText(item.scalex * def->width, item.scaley * def->depth);
}

std::string PolygonTitle(const Shape& shape) {
  return shape.label.empty() ? "(unnamed shape)" : shape.label;
}

std::string PolygonInfo(const Shape& shape) {
  const std::string separator(kSeparator);
  const std::string kind = "Polygon" + separator;
  if (shape.vertices.empty()) return kind + "(no vertices)";
  return kind + std::to_string(shape.vertices.size()) + " verts" + separator +
         BoundingSizeText(shape.vertices) + separator + "height " + FormatFixed(shape.height, 0) +
         " mm";
}

std::string RunTitle(const std::vector<const Piece*>& walked) {
  std::string title;
  for (const Piece* piece : walked) {
    if (!title.empty()) title += " + ";
    title += piece->cat;
  }
  return title;
}

std::string RunInfo(const std::vector<const Piece*>& pieces, const ShownUnit& unit) {
  double sum = 0.0;
  for (const Piece* piece : pieces)
    if (const PieceDef* def = findPart(piece->cat)) sum += def->length;
  return std::to_string(pieces.size()) + " pieces" + std::string(kSeparator) +
         FormatFixed(sum / unit.mm, unit.sumDigits) + " " + std::string(unit.name);
}

std::string GradeStartedText(bool up, double degrees) {
  return std::string("Elevation: ") + (up ? "UP " : "DOWN ") + FormatFixed(degrees, 1) + " deg";
}

}  // namespace vantrel
