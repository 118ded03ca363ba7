#include "app/services/press_pairs.h"

#include <cstdlib>

namespace vantrel {
namespace {

bool AreNear(const MousePress& first, const MousePress& second, const PressReach& reach) {
  if (first.button != second.button || first.timeMs == 0 || second.timeMs == 0) return false;
  if (reach.withinMs < 0 || reach.dx < 0 || reach.dy < 0) return false;
  // Unsigned, so that a clock that has wrapped round in between still tells how long ago it was.
  const std::uint32_t apartMs = second.timeMs - first.timeMs;
  return apartMs < static_cast<std::uint32_t>(reach.withinMs) &&
         std::abs(second.x - first.x) <= reach.dx && std::abs(second.y - first.y) <= reach.dy;
}

}  // namespace

bool PressPairs::endsPair(const MousePress& press, const PressReach& reach) {
  const bool near = last_ && AreNear(*last_, press, reach);
  lastEndedPair_ = near ? !lastEndedPair_ : press.saidDouble;
  last_ = press;
  return lastEndedPair_;
}

}  // namespace vantrel
