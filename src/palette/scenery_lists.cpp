#include "palette/scenery_lists.h"

#include <cstdint>
#include <string_view>

#include "catalog/scenery_catalog.h"

namespace vantrel {
namespace {

constexpr std::uint32_t kListedCategories =
    1u << kPlatforms | 1u << kStations | 1u << kBridges | 1u << kNature | 1u << kOther;

bool IsListed(std::int32_t category) {
  return category >= 0 && category <= kOther && (kListedCategories >> category & 1u) != 0;
}

}  // namespace

std::vector<SceneryListRow> sceneryListRows(std::span<const SceneryDef> items) {
  std::vector<SceneryListRow> rows;
  std::string_view heading;
  for (const SceneryDef& item : items) {
    if (!IsListed(item.category)) continue;
    const std::string_view category = SceneryCategoryName(item.category);
    if (category != heading) rows.push_back({"--- " + std::string(category), {}});
    heading = category;
    rows.push_back({item.name, item.id});
  }
  return rows;
}

std::vector<SceneryListRow> signalListRows(std::span<const SceneryDef> items, bool forZ) {
  std::vector<SceneryListRow> rows;
  for (const SceneryDef& item : items)
    if (item.category == kSignals && item.forZ == forZ) rows.push_back({item.name, item.id});
  return rows;
}

}  // namespace vantrel
