#include "canvas/operations/grades.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "canvas/operations/elevation.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr double kLevelDegrees = 0.001;

// The piece joined in this slot, or null.
Piece* Neighbour(Layout& layout, const PieceIndex& index, const Piece& piece, std::size_t slot) {
  if (slot >= piece.joints.size() || piece.joints[slot].target < 0) return nullptr;
  const auto found = index.find(piece.joints[slot].target);
  return found == index.end() ? nullptr : &layout.pieces[found->second];
}

// The height after a piece: always at its far end, whichever way it lies in the chain.
double HeightAfter(const Piece& piece) {
  const PieceDef* const def = findPart(piece.cat);
  return def == nullptr ? piece.z : piece.z + std::sin(Radians(piece.grade)) * pieceRise(*def);
}

// A height that no number says, in a damaged plan, is passed on to nobody; then false.
bool LayAfter(const Piece& before, Piece& piece) {
  const double z = HeightAfter(before);
  if (!std::isfinite(z)) return false;
  piece.z = z;
  return true;
}

// Lays the piece at the height of the one before it, and the level pieces after it in a row.
void LayChain(Layout& layout, const PieceIndex& index, Piece& start) {
  if (const Piece* const before = Neighbour(layout, index, start, 0)) LayAfter(*before, start);
  const Piece* current = &start;
  for (int step = 0; step < kGradeWalkLimit; ++step) {
    Piece* const next = Neighbour(layout, index, *current, 1);
    if (next == nullptr || std::abs(next->grade) > kLevelDegrees) return;
    if (!LayAfter(*current, *next)) return;
    current = next;
  }
}

bool IsAnchor(const Layout& layout, std::int32_t id) {
  return std::ranges::find(layout.gradeRuns, id, &GradeRun::anchor) != layout.gradeRuns.end();
}

// The id of the first piece ahead that a run is anchored on, or of the last piece looked at.
std::int32_t FindRunAhead(const Layout& layout, const PieceIndex& index, std::int32_t id) {
  for (int step = 0; step < kGradeRunSearchLimit; ++step) {
    if (IsAnchor(layout, id)) return id;
    const auto found = index.find(id);
    if (found == index.end()) return id;
    const Piece& piece = layout.pieces[found->second];
    if (piece.joints.size() < 2 || piece.joints[1].target < 0) return id;
    id = piece.joints[1].target;
  }
  return id;
}

}  // namespace

bool startGrade(Layout& layout, std::int32_t pieceId, double deg) {
  Piece* const piece = FindPiece(layout, pieceId);
  if (piece == nullptr) return false;
  addGradeRun(layout, deg, pieceId, 0);
  piece->grade = deg;
  return true;
}

bool endGrade(Layout& layout, std::int32_t pieceId) {
  Piece* const piece = FindPiece(layout, pieceId);
  if (piece == nullptr) return false;
  PushUndo(layout);
  const PieceIndex index = IndexPieces(layout);
  piece->grade = 0.0;
  LayChain(layout, index, *piece);
  removeGradeRun(layout, FindRunAhead(layout, index, pieceId));
  return true;
}

bool recalcElevation(Layout& layout, std::int32_t pieceId) {
  Piece* const piece = FindPiece(layout, pieceId);
  if (piece == nullptr) return false;
  PushUndo(layout);
  LayChain(layout, IndexPieces(layout), *piece);
  return true;
}

}  // namespace vantrel
