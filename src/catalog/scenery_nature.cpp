// Trees and bushes. Deciduous ones are crowns from above, lit from the upper left; a fir is shown
// in profile, the sign that plans use for it, because its footprint is twice as deep as wide.
#include <utility>

#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

SceneryDef SmallTree() {
  Art art = {Crown({0, 0, 34, 34}, 9, kDarkLeaf, kOutline), Crown({2, 1.5, 27, 27}, 8, kLeaf),
             Crown({4, 3.5, 16, 16}, 6, kLightLeaf), Crown({19, 17, 8, 8}, 5, kLightLeaf),
             Crown({9, 20, 6, 6}, 5, kDarkLeaf)};
  return MakeItem("tree_sm_dec", "Deciduous tree (small)", kNature, 34, 34, std::move(art));
}

SceneryDef LargeTree() {
  Art art = {Crown({0, 0, 57, 57}, 12, kDarkLeaf, kOutline), Crown({3, 2, 45, 45}, 10, kLeaf),
             Crown({5, 5, 25, 25}, 8, kLightLeaf), Crown({29, 20, 18, 18}, 7, kLightLeaf),
             Crown({14, 32, 13, 13}, 6, kLightLeaf)};
  return MakeItem("tree_lg_dec", "Deciduous tree (large)", kNature, 57, 57, std::move(art));
}

SceneryDef Conifer() {
  constexpr int kTiers = 4;
  Art art = {FilledRect({9.5, 33, 4, 7}, kTrunk)};
  for (int tier = 0; tier < kTiers; ++tier) {
    const double half = 11.5 - tier * 2.3;
    const double base = 35.0 - tier * 7.5;
    const double top = tier == kTiers - 1 ? 0.0 : base - 14.0;
    art.push_back(Polygon({{11.5 - half, base}, {11.5, top}, {11.5, base}}, kLeaf));
    art.push_back(Polygon({{11.5, base}, {11.5, top}, {11.5 + half, base}}, kConifer));
  }
  return MakeItem("tree_conifer", "Conifer tree", kNature, 23, 40, std::move(art));
}

SceneryDef TreeGroup() {
  constexpr double kTip = 93;  // x of the fir's middle line
  Art art = {Crown({0, 2, 57, 57}, 12, kDarkLeaf, kOutline),
             Crown({3, 4, 44, 44}, 10, kLeaf),
             Crown({6, 8, 23, 23}, 8, kLightLeaf),
             Crown({28, 24, 15, 15}, 6, kLightLeaf),
             FilledRect({kTip - 2.5, 62, 5, 9}, kTrunk),
             Polygon({{kTip - 18, 64},
                      {kTip - 8, 47},
                      {kTip - 13, 47},
                      {kTip - 5, 29},
                      {kTip - 9, 29},
                      {kTip, 6},
                      {kTip + 9, 29},
                      {kTip + 5, 29},
                      {kTip + 13, 47},
                      {kTip + 8, 47},
                      {kTip + 18, 64}},
                     kConifer, kOutline),
             Polygon({{kTip - 18, 64},
                      {kTip - 8, 47},
                      {kTip - 13, 47},
                      {kTip - 5, 29},
                      {kTip - 9, 29},
                      {kTip, 6},
                      {kTip, 64}},
                     kLeaf),
             Crown({43, 40, 40, 40}, 9, kDarkLeaf, kOutline),
             Crown({45, 41, 32, 32}, 8, kLeaf),
             Crown({48, 44, 17, 17}, 6, kLightLeaf)};
  return MakeItem("tree_group", "Tree group (3 mixed)", kNature, 115, 80, std::move(art));
}

SceneryDef Bush() {
  Art art = {Crown({0, 0, 23, 17}, 8, kDarkLeaf, kOutline), Crown({1.5, 1, 17, 12}, 7, kLeaf),
             Crown({3, 2, 8, 7}, 5, kLightLeaf), Crown({12.5, 7, 7, 6}, 5, kLightLeaf)};
  return MakeItem("bush", "Bush / shrub", kNature, 23, 17, std::move(art));
}

}  // namespace

void AddNature(std::vector<SceneryDef>& rows) {
  rows.push_back(SmallTree());
  rows.push_back(LargeTree());
  rows.push_back(Conifer());
  rows.push_back(TreeGroup());
  rows.push_back(Bush());
}

}  // namespace vantrel::scenery
