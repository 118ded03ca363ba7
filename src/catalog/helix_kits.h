// The ready-made helix kits: how many turns, how high, which rings and which parts one stands for.
#pragma once

#include <span>
#include <string_view>

namespace vantrel {

struct HelixKit {
  std::string_view id;    // the key in Helix::variant and behind "@helix:" in the palette
  std::string_view name;  // palette text
  double turns = 0.0;
  double height = 0.0;       // mm, bottom to top
  double innerRadius = 0.0;  // mm
  double outerRadius = 0.0;  // mm
  std::string_view stubPart;
  std::string_view innerCurvePart;
  std::string_view outerCurvePart;
};

// All kits, in palette order.
std::span<const HelixKit> kits();

// The kit with this id, or null.
const HelixKit* findKit(std::string_view id);

std::string_view defaultKitId();

// findKit, falling back on the default kit for an id that no kit has.
const HelixKit& kitOrDefault(std::string_view id);

}  // namespace vantrel
