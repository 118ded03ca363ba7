#include "render2d/contents_helix.h"

#include <cmath>

#include "catalog/connector_geometry.h"
#include "catalog/helix_kits.h"
#include "catalog/piece_builders.h"
#include "catalog/track_catalog.h"
#include "render2d/contents_reach.h"
#include "render2d/track_drawing.h"

namespace vantrel {
namespace {

constexpr double kCurvesPerTurn = 12.0;
constexpr double kDegreesPerCurve = 30.0;
constexpr double kFirstCurveFrom = -90.0;

bool IsStub(const Piece& piece) {
  return piece.helix != kNone;
}

bool IsTopStub(const Piece& piece) {
  return IsStub(piece) && piece.z >= kHelixTopFromMm;
}

void DrawHelixRing(ContentsPaint& paint, const Helix& helix, const HelixState& state,
                   const PieceDef& curve, double radius, int curves) {
  Piece piece;
  piece.helix = helix.id;
  piece.level = state.level;
  piece.joints.resize(curve.connectors.size());
  const PieceReach& reach = ReachOfPiece(curve);
  const Pose centre{helix.cx, helix.cy, helix.heading};
  for (int i = 1; i <= curves; ++i) {
    const double angle = kFirstCurveFrom - kDegreesPerCurve * i;
    const Vec2 at = LocalToWorld(
        centre, {std::cos(Radians(angle)) * radius, std::sin(Radians(angle)) * radius});
    piece.x = at.x;
    piece.y = at.y;
    piece.heading = angle + 90.0 + helix.heading;
    if (PieceOutOfView(paint, piece.pose(), reach, {})) continue;
    DrawTrackPiece(paint.context, paint.dc, piece, curve, paint.view, state.selected, false, false);
  }
}

}  // namespace

PieceIds CollectHelixLinked(ContentsPaint& paint, const PieceIds& seeds) {
  PieceIds flood;
  std::vector<const Piece*> walk;
  const auto follow = [&](const Piece& from) {
    for (const Joint& joint : from.joints) {
      if (joint.target < 0) continue;
      const Piece* next = paint.piece(joint.target);
      if (next == nullptr || IsStub(*next) || !flood.insert(next->id).second) continue;
      walk.push_back(next);
    }
  };
  for (const std::int32_t seed : seeds) {
    const Piece* piece = paint.piece(seed);
    if (piece != nullptr) follow(*piece);
  }
  while (!walk.empty()) {
    const Piece* piece = walk.back();
    walk.pop_back();
    follow(*piece);
  }
  return flood;
}

bool HelixPlan::isLow(const Piece& piece) const {
  if (IsStub(piece)) return !IsTopStub(piece);
  return !lowFlood.empty() && lowFlood.contains(piece.id);
}

HelixPlan PrepareHelices(ContentsPaint& paint) {
  HelixPlan plan;
  PieceIds lowSeeds;
  PieceIds highSeeds;
  for (const Piece& piece : paint.layout.pieces) {
    if (!IsStub(piece)) continue;
    (IsTopStub(piece) ? highSeeds : lowSeeds).insert(piece.id);
    HelixState& state = plan.states.try_emplace(piece.helix, HelixState{piece.level}).first->second;
    state.selected = state.selected || piece.sel;
  }
  plan.lowFlood = CollectHelixLinked(paint, lowSeeds);
  PieceIds highFlood = CollectHelixLinked(paint, highSeeds);
  PieceIds& linked = paint.context.helixLinked;
  linked.clear();
  for (PieceIds* ids : {&lowSeeds, &highSeeds, &plan.lowFlood, &highFlood})
    linked.insert(ids->begin(), ids->end());
  return plan;
}

void DrawHelices(ContentsPaint& paint, const HelixPlan& plan) {
  for (const Helix& helix : paint.layout.helices) {
    const HelixKit& kit = kitOrDefault(helix.variant);
    const PieceDef* inner = findPart(kit.innerCurvePart);
    const PieceDef* outer = findPart(kit.outerCurvePart);
    if (inner == nullptr || outer == nullptr) continue;
    const auto found = plan.states.find(helix.id);
    const HelixState state = found == plan.states.end() ? HelixState{} : found->second;
    if (paint.levelHidden(state.level)) continue;
    const int curves = static_cast<int>(kit.turns * kCurvesPerTurn);
    DrawHelixRing(paint, helix, state, *inner, kit.innerRadius, curves);
    DrawHelixRing(paint, helix, state, *outer, kit.outerRadius, curves);
  }
}

}  // namespace vantrel
