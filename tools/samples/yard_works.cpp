#include "tools/samples/exhibition_yard.h"

namespace vantrel::samples::yard {

void LayWorks(SampleBuilder& plan, End lead) {
  plan.onLevel(kRamps);
  constexpr double kEnd = 1500.0;
  const End first = plan.lay(BendRight(plan, lead), kTurnoutLeft);
  const End second = plan.lay(BendRight(plan, plan.other(first, 2)), kTurnoutLeft);
  const End third = BendRight(plan, plan.other(second, 2));
  FinishTrack(plan, first, kEnd + 680.0);
  FinishTrack(plan, second, kEnd + 340.0);
  FinishTrack(plan, third, kEnd);
  plan.scenery("warehouse", {kEnd - 260.0, 2930.0, 0.0});
  plan.scenery("goods_shed", {kEnd + 220.0, 2870.0, 0.0});
  plan.scenery("goods_shed", {kEnd + 560.0, 2792.0, 0.0});
}

}  // namespace vantrel::samples::yard
