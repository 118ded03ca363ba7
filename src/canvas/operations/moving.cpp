#include "canvas/operations/moving.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "canvas/operations/closing_joints.h"
#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/rotating.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// A piece that stands farther than this from its start has been moved.
constexpr double kMovedMm = 1.0;
// A smaller change of height isn't passed on to the rest of the block.
constexpr double kLeastLiftMm = 0.001;

// Places in `helices` of those that a selected piece names, in the order of the pieces; of equal
// ids the first.
std::vector<std::size_t> HelicesOfSelection(const Layout& layout) {
  std::vector<std::size_t> places;
  std::unordered_set<std::int32_t> seen;
  for (const Piece& piece : layout.pieces) {
    if (!piece.sel || piece.helix == kNone || !seen.insert(piece.helix).second) continue;
    const auto helix = std::find_if(layout.helices.begin(), layout.helices.end(),
                                    [&](const Helix& h) { return h.id == piece.helix; });
    if (helix != layout.helices.end())
      places.push_back(static_cast<std::size_t>(helix - layout.helices.begin()));
  }
  return places;
}

// Opens the slots that lead out of the selection and shows openFarSide the piece over there, the
// piece they belong to and what they held.
template <typename OpenFarSide>
void BreakEdge(Layout& layout, OpenFarSide openFarSide) {
  std::unordered_set<std::int32_t> selected;
  for (const Piece& piece : layout.pieces)
    if (piece.sel) selected.insert(piece.id);
  if (selected.empty()) return;
  const PieceIndex index = IndexPieces(layout);
  for (Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    for (Joint& joint : piece.joints) {
      if (joint.target < 0 || selected.contains(joint.target)) continue;
      const Joint held = joint;
      joint = Joint{};
      const auto far = index.find(held.target);
      if (far != index.end()) openFarSide(layout.pieces[far->second], piece, held);
    }
  }
}

// As breakEdgeJoints, but over there every slot that names the piece opens.
void BreakEdgeOnAllSides(Layout& layout) {
  BreakEdge(layout, [](Piece& far, const Piece& piece, const Joint&) {
    for (Joint& joint : far.joints)
      if (joint.target == piece.id) joint = Joint{};
  });
}

bool HasMoved(const Layout& layout, const MoveStart& start) {
  std::size_t i = 0;
  for (const Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    if (i >= start.poses.size()) return false;
    const double dx = piece.x - start.poses[i].x;
    const double dy = piece.y - start.poses[i].y;
    if (std::sqrt(dx * dx + dy * dy) > kMovedMm) return true;
    ++i;
  }
  return false;
}

// The piece of the block that snaps, and how the block turns with it.
struct Mating {
  std::int32_t anchor = kNone;  // id
  Pose from;                    // of the anchor
  Pose to;
  double turn = 0.0;  // degrees

  Vec2 moved(double x, double y) const {
    return LocalToWorld({to.x, to.y, turn}, {x - from.x, y - from.y});
  }
};

const Piece* FindAnchor(const Layout& layout, std::int32_t id) {
  const Piece* first = nullptr;
  for (const Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    if (piece.id == id) return &piece;
    if (first == nullptr) first = &piece;
  }
  return first;
}

bool HasConnector(const PieceDef* def, std::int32_t connector) {
  return def != nullptr && connector >= 0 &&
         static_cast<std::size_t>(connector) < def->connectors.size();
}

// Nothing when the layout no longer holds what the snap was found with.
std::optional<Mating> FindMating(const Layout& layout, const BlockSnap& held) {
  if (!held.snap.found) return std::nullopt;
  const Piece* const anchor = FindAnchor(layout, held.piece);
  const Piece* const target = FindPiece(layout, held.snap.targetPiece);
  if (anchor == nullptr || target == nullptr) return std::nullopt;
  const PieceDef* const def = findPart(anchor->cat);
  const PieceDef* const targetDef = findPart(target->cat);
  if (!HasConnector(def, held.snap.ownConnector)) return std::nullopt;
  if (!HasConnector(targetDef, held.snap.targetConnector)) return std::nullopt;

  const auto connector = static_cast<std::size_t>(held.snap.targetConnector);
  Mating mating;
  mating.anchor = anchor->id;
  mating.from = anchor->pose();
  mating.to = poseForConnector(*def, held.snap.ownConnector,
                               worldConnector(*target, *targetDef, connector).pose());
  mating.turn = mating.to.heading - mating.from.heading;
  // A piece set to not-a-number meanwhile would take the whole block along.
  const double sum = mating.to.x + mating.to.y + mating.from.x + mating.from.y + mating.turn;
  if (!std::isfinite(sum)) return std::nullopt;
  return mating;
}

void TurnBlock(Layout& layout, const Mating& mating) {
  const auto turn = [&mating](double& x, double& y, double& heading) {
    const Vec2 at = mating.moved(x, y);
    if (!std::isfinite(at.x) || !std::isfinite(at.y)) return;  // a place no sum can reach
    x = at.x;
    y = at.y;
    heading += mating.turn;
  };
  for (Piece& piece : layout.pieces)
    if (piece.sel) turn(piece.x, piece.y, piece.heading);
  for (const std::size_t place : HelicesOfSelection(layout)) {
    Helix& helix = layout.helices[place];
    turn(helix.cx, helix.cy, helix.heading);
  }
}

// Gives each selected piece as many slots as it has connectors. A slot beyond them that named an
// end goes, and what named it opens.
void FitJointsOfBlock(Layout& layout) {
  std::unordered_map<std::int32_t, std::size_t> cut;  // slots left, by the id of the piece
  for (Piece& piece : layout.pieces) {
    if (!piece.sel) continue;
    const PieceDef* const def = findPart(piece.cat);
    if (def == nullptr) continue;
    if (piece.joints.size() > def->connectors.size()) cut[piece.id] = def->connectors.size();
    piece.joints.resize(def->connectors.size());
  }
  if (cut.empty()) return;
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints) {
      const auto entry = cut.find(joint.target);
      if (entry == cut.end() || joint.open()) continue;
      if (joint.tconn < 0 || static_cast<std::size_t>(joint.tconn) >= entry->second)
        joint = Joint{};
    }
}

// The anchor takes over the height of what it has joined, and lifts the rest of the block with it.
// Helices keep the heights of their kits.
void LiftBlock(Layout& layout, const Mating& mating, const SnapResult& snap) {
  const Piece* anchor = FindAnchor(layout, mating.anchor);
  if (anchor == nullptr || anchor->helix != kNone) return;
  const double before = anchor->z;
  applyJoinElevation(layout, mating.anchor, snap.targetPiece, snap.targetConnector,
                     snap.ownConnector);
  const double lift = anchor->z - before;
  if (!(std::abs(lift) > kLeastLiftMm)) return;
  for (Piece& piece : layout.pieces)
    if (piece.sel && piece.helix == kNone && &piece != anchor) piece.z += lift;
}

}  // namespace

MoveStart takeMoveStart(const Layout& layout) {
  MoveStart start{.poses = selectionPoses(layout), .helices = {}};
  for (const std::size_t place : HelicesOfSelection(layout)) {
    const Helix& helix = layout.helices[place];
    start.helices.push_back({.id = helix.id, .cx = helix.cx, .cy = helix.cy});
  }
  return start;
}

MoveStart takeSceneryMoveStart(const Layout& layout) {
  MoveStart start;
  for (const SceneryItem& item : layout.scenery)
    if (item.sel) start.poses.push_back(item.pose());
  return start;
}

void breakEdgeJoints(Layout& layout) {
  BreakEdge(layout, [](Piece& far, const Piece&, const Joint& held) {
    if (held.tconn >= 0 && static_cast<std::size_t>(held.tconn) < far.joints.size())
      far.joints[static_cast<std::size_t>(held.tconn)] = Joint{};
  });
}

void moveSelection(Layout& layout, const MoveStart& start, Vec2 by) {
  if (!std::isfinite(by.x) || !std::isfinite(by.y)) return;
  auto pose = start.poses.begin();
  const auto move = [&](auto& record) {
    if (!record.sel || pose == start.poses.end()) return;
    record.x = pose->x + by.x;
    record.y = pose->y + by.y;
    ++pose;
  };
  for (Piece& piece : layout.pieces) move(piece);
  for (SceneryItem& item : layout.scenery) move(item);
  // A helix whose stubs have been deselected meanwhile stays with them.
  if (start.helices.empty()) return;
  for (const std::size_t place : HelicesOfSelection(layout)) {
    Helix& helix = layout.helices[place];
    const auto from = std::ranges::find(start.helices, helix.id, &HelixStart::id);
    if (from == start.helices.end()) continue;
    helix.cx = from->cx + by.x;
    helix.cy = from->cy + by.y;
  }
}

void dropSelection(Layout& layout, const MoveStart& start, const BlockSnap& held) {
  if (HasMoved(layout, start)) BreakEdgeOnAllSides(layout);
  const std::optional<Mating> mating = FindMating(layout, held);
  if (!mating) return;
  TurnBlock(layout, *mating);
  FitJointsOfBlock(layout);
  joinPieces(layout, mating->anchor, held.snap.ownConnector, held.snap.targetPiece,
             held.snap.targetConnector);
  LiftBlock(layout, *mating, held.snap);
  joinClosingEnds(layout);
}

}  // namespace vantrel
