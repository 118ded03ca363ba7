#include "canvas/operations/placing.h"

#include <array>
#include <cstddef>
#include <utility>

#include "canvas/operations/elevation.h"
#include "canvas/operations/joining.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

// Three approach tracks on one side of the table and three opposite, in the order they are laid.
constexpr std::array<std::int32_t, 6> kSpokeConnectors = {29, 0, 1, 14, 15, 16};

std::int32_t LevelForDrop(const Layout& layout, const SnapResult& snap) {
  if (!snap.found) return HighestVisibleLevel(layout);
  const Piece* const target = FindPiece(layout, snap.targetPiece);
  return target != nullptr ? target->level : layout.activeLevel;
}

const Piece* LastSelectedPiece(const Layout& layout) {
  const Piece* last = nullptr;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && (last == nullptr || piece.id > last->id)) last = &piece;
  return last;
}

// The connector that the next piece goes to: the far end, else the near end, else the first branch
// that is open; kNone when all are taken.
std::int32_t FreeEnd(const Piece& piece, const PieceDef& def) {
  if (def.connectors.size() >= 2 && IsConnectorOpen(piece, 1)) return 1;
  for (std::size_t i = 0; i < def.connectors.size(); ++i)
    if (IsConnectorOpen(piece, i)) return static_cast<std::int32_t>(i);
  return kNone;
}

}  // namespace

void JoinNewPiece(Layout& layout, std::int32_t newId, std::int32_t ownConnector,
                  std::int32_t targetId, std::int32_t targetConnector) {
  joinPieces(layout, newId, ownConnector, targetId, targetConnector);
  applyJoinElevation(layout, newId, targetId, targetConnector, ownConnector);
}

void SelectOnly(Layout& layout, std::int32_t id) {
  ClearSelection(layout);
  if (Piece* const piece = FindPiece(layout, id)) piece->sel = true;
}

Piece NewPiece(const PieceDef& def, const Pose& pose) {
  Piece piece;
  piece.cat = def.partNumber;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  piece.joints.resize(def.connectors.size());
  return piece;
}

std::int32_t addPieceToLayout(Layout& layout, Piece piece) {
  PushUndo(layout);
  piece.id = TakeId(layout);
  layout.pieces.push_back(std::move(piece));
  return layout.pieces.back().id;
}

std::int32_t placePiece(Layout& layout, const PieceDef& def, const SnapResult& snap,
                        const Pose& freePose) {
  Piece piece = NewPiece(def, snap.found ? snap.pose() : freePose);
  EnsureDefaultLevel(layout);
  piece.level = LevelForDrop(layout, snap);
  const std::int32_t id = addPieceToLayout(layout, std::move(piece));
  if (snap.found)
    JoinNewPiece(layout, id, snap.ownConnector, snap.targetPiece, snap.targetConnector);
  if (def.role == PieceRole::turntable) addTurntableSpokes(layout, id);
  return id;
}

void addTurntableSpokes(Layout& layout, std::int32_t turntableId) {
  const Piece* const found = FindPiece(layout, turntableId);
  const PieceDef* const tableDef = found != nullptr ? findPart(found->cat) : nullptr;
  if (tableDef == nullptr || tableDef->role != PieceRole::turntable) return;
  const PieceDef* const spokeDef = findPart(tableDef->system, PieceRole::spoke);
  if (spokeDef == nullptr) return;

  const Piece table = *found;  // `pieces` grows below
  for (const std::int32_t connector : kSpokeConnectors) {
    const auto slot = static_cast<std::size_t>(connector);
    if (!IsConnectorOpen(table, slot)) continue;
    const WorldConnector at = worldConnector(table, *tableDef, slot);
    Piece spoke = NewPiece(*spokeDef, poseForConnector(*spokeDef, 0, at.pose()));
    spoke.id = TakeId(layout);
    spoke.z = table.z;
    spoke.level = table.level;
    spoke.free = true;
    const std::int32_t spokeId = spoke.id;
    layout.pieces.push_back(std::move(spoke));
    joinPieces(layout, spokeId, 0, turntableId, connector);
  }
}

std::int32_t addPairPartner(Layout& layout, std::int32_t firstId) {
  const Piece* const first = FindPiece(layout, firstId);
  if (first == nullptr) return kNone;
  const PieceDef* const def = findPart(first->cat);
  if (def == nullptr || !def->isPaired || def->connectors.size() < 2) return kNone;
  if (!IsConnectorOpen(*first, 1)) return kNone;

  const WorldConnector end = worldConnector(*first, *def, 1);
  Piece partner = NewPiece(*def, poseForConnector(*def, 0, end.pose()));
  partner.level = first->level;
  const std::int32_t id = addPieceToLayout(layout, std::move(partner));
  JoinNewPiece(layout, id, 0, firstId, 1);
  return id;
}

std::int32_t autoConnectPart(Layout& layout, std::string_view part) {
  const Piece* const anchor = LastSelectedPiece(layout);
  const PieceDef* const def = findPart(part);
  if (anchor == nullptr || def == nullptr) return kNone;
  const PieceDef* const anchorDef = findPart(anchor->cat);
  if (anchorDef == nullptr) return kNone;
  const std::int32_t end = FreeEnd(*anchor, *anchorDef);
  if (end == kNone) return kNone;

  const std::int32_t anchorId = anchor->id;
  const std::int32_t own = end == 0 && def->connectors.size() >= 2 ? 1 : 0;
  const WorldConnector target = worldConnector(*anchor, *anchorDef, static_cast<std::size_t>(end));
  Piece piece = NewPiece(*def, poseForConnector(*def, own, target.pose()));
  piece.level = anchor->level;
  const std::int32_t id = addPieceToLayout(layout, std::move(piece));
  SelectOnly(layout, id);
  JoinNewPiece(layout, id, own, anchorId, end);

  const std::int32_t partner = addPairPartner(layout, id);
  if (partner == kNone) return id;
  SelectOnly(layout, partner);
  return partner;
}

}  // namespace vantrel
