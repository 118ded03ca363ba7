// Ready-made helices: which track hangs on their two ends, and their rings.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <unordered_set>

#include "render2d/contents_paint.h"

namespace vantrel {

// A helix's stubs at this elevation and above belong to its upper end.
inline constexpr double kHelixTopFromMm = 0.5;

using PieceIds = std::unordered_set<std::int32_t>;

// All pieces that are reached from `seeds` along joints without passing a helix's stub. The seeds
// themselves are not among them.
PieceIds CollectHelixLinked(ContentsPaint& paint, const PieceIds& seeds);

// What a helix takes from its stubs, by helix id.
struct HelixState {
  std::int32_t level = 1;  // the first stub's
  bool selected = false;   // any stub is
};

struct HelixPlan {
  std::unordered_map<std::int32_t, HelixState> states;
  PieceIds lowFlood;  // what hangs on the lower ends

  // True for what passes under the rings.
  bool isLow(const Piece& piece) const;
};

// Also fills the context's helixLinked anew.
HelixPlan PrepareHelices(ContentsPaint& paint);

// Each helix as the 30-degree curves of its two rings, turn upon turn.
void DrawHelices(ContentsPaint& paint, const HelixPlan& plan);

}  // namespace vantrel
