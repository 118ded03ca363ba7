#include "canvas/operations/elevation.h"

#include <algorithm>
#include <cmath>

#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"

namespace vantrel {
namespace {

// Below this a connector 1 lies beside the piece's origin, not ahead of it, and says nothing about
// how far the piece climbs.
constexpr double kLeastChordMm = 1.0;

GradeRun* FindRun(Layout& layout, std::int32_t anchor) {
  for (GradeRun& run : layout.gradeRuns)
    if (run.anchor == anchor) return &run;
  return nullptr;
}

double Climb(double deg, double riseMm) {
  return std::sin(Radians(deg)) * riseMm;
}

// The run goes through the piece and from now on continues from its other end.
void ContinueRun(Layout& layout, GradeRun& run, Piece& piece, double entryZ, double riseMm,
                 std::int32_t ownConnector) {
  const bool entersAtFarEnd = ownConnector == 1;
  piece.z = entersAtFarEnd ? entryZ + Climb(run.deg, riseMm) : entryZ;
  piece.rev = entersAtFarEnd;
  piece.grade = run.deg;
  run.anchor = piece.id;
  run.conn = entersAtFarEnd ? 0 : 1;
  SyncCurrentGrade(layout);
}

}  // namespace

double pieceRise(const PieceDef& def) {
  const bool bent = def.radius > 0.0 && def.connectors.size() >= 2;
  return bent && def.connectors[1].x > kLeastChordMm ? def.connectors[1].x : def.length;
}

double exitElevation(const Piece& piece, const PieceDef& def, std::int32_t connector) {
  if (connector == 0) return piece.z;
  const double climb = Climb(piece.grade, pieceRise(def));
  return piece.rev ? piece.z - climb : piece.z + climb;
}

void applyJoinElevation(Layout& layout, std::int32_t pieceId, std::int32_t targetId,
                        std::int32_t targetConnector, std::int32_t ownConnector) {
  Piece* const piece = FindPiece(layout, pieceId);
  const Piece* const target = FindPiece(layout, targetId);
  if (piece == nullptr || target == nullptr) return;
  const PieceDef* const targetDef = findPart(target->cat);
  if (targetDef == nullptr || !(targetDef->length > 0.0)) return;

  const PieceDef* const def = findPart(piece->cat);
  const double z = exitElevation(*target, *targetDef, targetConnector);
  GradeRun* const run = FindRun(layout, targetId);

  if (def != nullptr && def->isBridge && !def->isRamp) {
    piece->z = z;
    piece->grade = 0.0;
    if (run != nullptr) removeGradeRun(layout, targetId);
    return;
  }
  if (run != nullptr) {
    const double rise = def != nullptr ? pieceRise(*def) : 0.0;
    ContinueRun(layout, *run, *piece, z, rise, ownConnector);
    return;
  }
  piece->z = z;
  piece->grade = 0.0;
}

void addGradeRun(Layout& layout, double deg, std::int32_t anchor, std::int32_t conn) {
  if (GradeRun* const run = FindRun(layout, anchor)) {
    run->deg = deg;
    run->conn = conn;
  } else {
    layout.gradeRuns.push_back({.deg = deg, .anchor = anchor, .conn = conn});
  }
  SyncCurrentGrade(layout);
}

void removeGradeRun(Layout& layout, std::int32_t anchor) {
  std::erase_if(layout.gradeRuns, [anchor](const GradeRun& run) { return run.anchor == anchor; });
  SyncCurrentGrade(layout);
}

}  // namespace vantrel
