// Which scenery items the palette's two lists offer, and in which order.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "catalog/scenery_def.h"

namespace vantrel {

// One row of a list: what it shows, and the id of its item, empty for a heading. UTF-8.
struct SceneryListRow {
  std::string text;
  std::string key;

  friend bool operator==(const SceneryListRow&, const SceneryListRow&) = default;
};

// Platforms, stations, bridges, nature and other items in catalog order, with a heading before each
// run of one category. The remaining categories are not for placing by hand.
std::vector<SceneryListRow> sceneryListRows(std::span<const SceneryDef> items);

// The signals of one scale, in catalog order, without headings.
std::vector<SceneryListRow> signalListRows(std::span<const SceneryDef> items, bool forZ);

}  // namespace vantrel
