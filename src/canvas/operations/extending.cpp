#include "canvas/operations/extending.h"

#include <cstddef>
#include <utility>

#include "canvas/operations/joining.h"
#include "canvas/operations/placing.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// A join stored on the far side only still blocks.
bool IsNamedByOthers(const Layout& layout, std::int32_t id, std::int32_t connector) {
  const Joint end{.target = id, .tconn = connector};
  for (const Piece& piece : layout.pieces) {
    if (piece.id == id) continue;
    for (const Joint& joint : piece.joints)
      if (joint == end) return true;
  }
  return false;
}

bool IsFree(const Layout& layout, const Piece& piece, std::int32_t connector) {
  return IsConnectorOpen(piece, static_cast<std::size_t>(connector)) &&
         !IsNamedByOthers(layout, piece.id, connector);
}

std::int32_t FreeEnd(const Layout& layout, const Piece& piece, const PieceDef& def) {
  if (def.connectors.size() >= 2 && IsFree(layout, piece, 1)) return 1;
  return IsFree(layout, piece, 0) ? 0 : kNone;
}

}  // namespace

CloneResult clonePiece(Layout& layout, std::int32_t id) {
  Piece* const piece = FindPiece(layout, id);
  if (piece == nullptr || piece->helix != kNone) return {};
  const PieceDef* const def = findPart(piece->cat);
  if (def == nullptr || def->connectors.empty()) return {};
  GrowJoints(*piece);
  const std::int32_t end = FreeEnd(layout, *piece, *def);
  if (end == kNone) return {.outcome = CloneOutcome::noFreeEnd, .clone = kNone};

  const std::int32_t own = end == 0 && def->connectors.size() >= 2 ? 1 : 0;
  const WorldConnector target = worldConnector(*piece, *def, static_cast<std::size_t>(end));
  Piece clone = NewPiece(*def, poseForConnector(*def, own, target.pose()));
  clone.level = piece->level;
  const std::int32_t cloneId = addPieceToLayout(layout, std::move(clone));
  JoinNewPiece(layout, cloneId, own, id, end);
  SelectOnly(layout, cloneId);
  return {.outcome = CloneOutcome::cloned, .clone = cloneId};
}

std::optional<Vec2> farEnd(const Layout& layout, std::int32_t id) {
  const Piece* const piece = FindPiece(layout, id);
  const PieceDef* const def = piece != nullptr ? findPart(piece->cat) : nullptr;
  if (def == nullptr) return std::nullopt;
  for (const std::size_t end : {std::size_t{1}, std::size_t{0}})
    if (end < def->connectors.size() && IsConnectorOpen(*piece, end)) {
      const WorldConnector at = worldConnector(*piece, *def, end);
      return Vec2{at.x, at.y};
    }
  return LocalToWorld(piece->pose(), {def->length, 0.0});
}

}  // namespace vantrel
