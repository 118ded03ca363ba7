#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {
namespace {

constexpr int kBehindThroat = 10;
constexpr int kAcrossWest = 4;
constexpr int kRampPieces = 28;  // sold in pairs
constexpr int kFromRampToFoot = 2;
constexpr int kAtTheFoot = 4;
constexpr int kIntoTheYard = 2;

// As long as `straights` straights, but the last one is two stopping places: 0.1 mm more.
End LayBlock(SampleBuilder& plan, End end, int straights) {
  return plan.layMany(plan.layMany(end, kStraight, straights - 1), "24994", 2);
}

// `foot` is the piece at the end of the ramp, as long as a straight.
struct Line {
  std::string_view curve;
  std::string_view foot;
};

struct LaidLine {
  End end;
  std::int32_t foot = kNone;
};

LaidLine LayLine(SampleBuilder& plan, End end, const Line& line) {
  const std::string_view curve = line.curve;
  plan.onLevel(kStation);
  end = LayBlock(plan, end, kBehindThroat);
  end = QuarterLeft(plan, end, curve);
  end = plan.lay(LayBlock(plan, end, kAcrossWest), "24172");
  end = QuarterLeft(plan, end, curve);
  end = plan.lay(end, kStraight);
  plan.onLevel(kRamps);
  for (const std::string_view bridge : {"74636", "74620", "74636"}) end = plan.lay(end, bridge);
  end = plan.layRamp(end, "74618", kRampPieces, 0.0);
  end = LayBlock(plan, end, kFromRampToFoot);
  end = plan.lay(end, line.foot, 1, 0);
  const std::int32_t foot = end.piece;
  end = LayBlock(plan, end, kAtTheFoot);
  end = QuarterLeft(plan, end, curve);
  end = plan.lay(end, kStraight);
  end = QuarterLeft(plan, end, curve);
  return {plan.layMany(end, kStraight, kIntoTheYard), foot};
}

}  // namespace

// The lines keep their distance of one row: the curves are those of two neighbouring radii.
Lines LayRamps(SampleBuilder& plan, const Throat& throat) {
  const LaidLine outer = LayLine(plan, throat.departure, {"24330", kTurnoutLeft});
  const LaidLine inner = LayLine(plan, throat.arrival, {"24230", kStraight});
  return {outer.end, inner.end, {outer.foot, 2}};
}

}  // namespace vantrel::samples::yard
