#include "canvas/operations/autofill.h"

#include <cmath>
#include <cstdint>
#include <string_view>

#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "canvas/operations/selection.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/format_length.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kFarthestMm = 1e9;
constexpr double kFacingDegrees = 150.0;    // between the headings, at least
constexpr double kStraightDegrees = 170.0;  // above this a row of straights leads across
constexpr double kTouchingMm = 1.0;         // below this there is no gap
// How far, squared, an end may be from where the plan found it.
constexpr double kSameEndSquaredMm = 1.0;

struct FacingPair {
  bool found = false;
  double distance = kFarthestMm;
  double angle = 0.0;  // degrees between the headings, up to 180
  Vec2 endA;
  Vec2 endB;
};

// An end of a piece by places: ids may come twice in a damaged plan.
struct End {
  std::size_t piece = 0;
  std::size_t connector = 0;
};

bool MayTakePiece(const Piece& piece, std::size_t connector) {
  return connector >= piece.joints.size() || piece.joints[connector].target < 0;
}

double AngleBetween(double headingA, double headingB) {
  const double angle = std::fmod(std::abs(headingA - headingB), 360.0);
  return angle > 180.0 ? 360.0 - angle : angle;
}

double SquaredDistance(Vec2 a, Vec2 b) {
  const double dx = a.x - b.x;
  const double dy = a.y - b.y;
  return dx * dx + dy * dy;
}

FacingPair FindFacingPair(const Piece& a, const PieceDef& defA, const Piece& b,
                          const PieceDef& defB) {
  FacingPair best;
  const std::vector<WorldConnector> endsB = worldConnectors(b, defB);
  for (const WorldConnector& endA : worldConnectors(a, defA)) {
    if (!MayTakePiece(a, static_cast<std::size_t>(endA.connectorIndex))) continue;
    for (const WorldConnector& endB : endsB) {
      if (!MayTakePiece(b, static_cast<std::size_t>(endB.connectorIndex))) continue;
      const Vec2 atA{endA.x, endA.y};
      const Vec2 atB{endB.x, endB.y};
      const double distance = std::sqrt(SquaredDistance(atA, atB));
      const double angle = AngleBetween(endA.heading, endB.heading);
      if (angle >= kFacingDegrees && distance < best.distance) {
        best = {.found = true, .distance = distance, .angle = angle, .endA = atA, .endB = atB};
      }
    }
  }
  return best;
}

AutofillPlan Refusal(std::string title, std::string text, bool deselects) {
  AutofillPlan plan;
  plan.notice = Notice{std::move(title), std::move(text)};
  plan.deselects = deselects;
  return plan;
}

std::string PartAndSystem(const Piece& piece, const PieceDef& def) {
  return piece.cat + " (" + std::string(SystemName(static_cast<std::int32_t>(def.system))) + ")";
}

AutofillPlan MixedSystems(const Piece& a, const PieceDef& defA, const Piece& b,
                          const PieceDef& defB) {
  return Refusal("Autofill - Mixed Track Systems",
                 "Autofill can only run on pieces of the same track series.\n\n"
                 "Selected pieces:\n  - " +
                     PartAndSystem(a, defA) + "\n  - " + PartAndSystem(b, defB),
                 false);
}

std::vector<FillSolution> SolutionsFor(const FacingPair& pair, TrackSystem system) {
  // A row of straights from one end to the other: that the ends may lie side by side isn't looked
  // at, the distance is filled as if they were in line.
  if (!(pair.angle > kStraightDegrees)) return {};
  std::vector<FillSolution> fills = searchFills(fillCandidates(system), pair.distance);
  rankFills(fills, pair.distance);
  return fills;
}

std::vector<std::size_t> SelectedPlaces(const Layout& layout) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < layout.pieces.size(); ++i)
    if (layout.pieces[i].sel) places.push_back(i);
  return places;
}

std::optional<End> EndAt(const Layout& layout, std::size_t place, Vec2 point) {
  const Piece& piece = layout.pieces[place];
  const PieceDef* const def = findPart(piece.cat);
  if (def == nullptr) return std::nullopt;
  for (const WorldConnector& end : worldConnectors(piece, *def))
    if (SquaredDistance({end.x, end.y}, point) < kSameEndSquaredMm)
      return End{.piece = place, .connector = static_cast<std::size_t>(end.connectorIndex)};
  return std::nullopt;
}

// Appends the pieces in a row from `from` on, unjoined; their places are the last of the list.
void AppendRow(Layout& layout, const End& from, const std::vector<std::string>& parts) {
  const Piece& first = layout.pieces[from.piece];
  const std::int32_t level = first.level;
  const double z = first.z;
  Pose end = worldConnector(first, *findPart(first.cat), from.connector).pose();
  for (const std::string& part : parts) {
    const PieceDef* const def = findPart(part);
    if (def == nullptr || def->connectors.size() < 2) continue;
    Piece piece = NewPiece(*def, poseForConnector(*def, 0, end));
    piece.id = TakeId(layout);
    piece.level = level;
    piece.z = z;
    end = worldConnector(piece, *def, 1).pose();
    layout.pieces.push_back(std::move(piece));
  }
}

void JoinRow(Layout& layout, const End& from, std::size_t firstOfRow, const End& to) {
  EndJoiner joiner(layout);
  End last = from;
  for (std::size_t place = firstOfRow; place < layout.pieces.size(); ++place) {
    joiner.join(last.piece, last.connector, place, 0);
    last = {.piece = place, .connector = 1};
  }
  joiner.join(last.piece, last.connector, to.piece, to.connector);
}

}  // namespace

std::optional<AutofillPlan> planAutofill(const Layout& layout) {
  const std::vector<const Piece*> selected = selectedPieces(layout);
  if (selected.size() != 2) return std::nullopt;
  const Piece& a = *selected[0];
  const Piece& b = *selected[1];
  const PieceDef* const defA = findPart(a.cat);
  const PieceDef* const defB = findPart(b.cat);
  if (defA == nullptr || defB == nullptr) return std::nullopt;
  if (defA->system != defB->system) return MixedSystems(a, *defA, b, *defB);

  const FacingPair pair = FindFacingPair(a, *defA, b, *defB);
  if (!pair.found)
    return Refusal("Autofill", "Could not find facing free connectors on the two selected pieces.",
                   true);
  if (pair.distance < kTouchingMm)
    return Refusal("Autofill", "The two pieces are already touching - no gap to fill.", true);

  AutofillPlan plan;
  plan.solutions = SolutionsFor(pair, defA->system);
  if (plan.solutions.empty())
    plan = Refusal("Autofill - No Solution",
                   "Gap is " + FormatFixed(pair.distance, 1) +
                       "mm. No combination of catalog straights fills it within tolerance.",
                   true);
  plan.gap = pair.distance;
  plan.endA = pair.endA;
  plan.endB = pair.endB;
  return plan;
}

std::string autofillRowText(const FillSolution& fill) {
  std::string text;
  for (const std::string& part : fill.parts) text += (text.empty() ? "" : " + ") + part;
  return text + "  (" + FormatFixed(fill.total, 1) + " mm)";
}

bool placeAutofill(Layout& layout, const AutofillPlan& plan, std::size_t solution) {
  if (solution >= plan.solutions.size()) return false;
  PushUndo(layout);
  const std::vector<std::size_t> selected = SelectedPlaces(layout);
  if (selected.size() != 2) return false;
  const std::optional<End> from = EndAt(layout, selected[0], plan.endA);
  const std::optional<End> to = EndAt(layout, selected[1], plan.endB);
  if (!from || !to) return false;
  const std::size_t firstOfRow = layout.pieces.size();
  AppendRow(layout, *from, plan.solutions[solution].parts);
  JoinRow(layout, *from, firstOfRow, *to);
  return true;
}

}  // namespace vantrel
