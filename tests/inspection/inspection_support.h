// Small plans to look at and edit through the panel's pages.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "doc/layout.h"
#include "inspection/selection_page.h"
#include "tests/operations/plan_support.h"

namespace vantrel {

// Levels 1 "Ground" at 0 mm, 2 "Upper" at 120 mm, 5 "Hidden yard" at -80 mm.
inline Layout PlanWithThreeLevels() {
  Layout layout;
  layout.levels = {{.id = 1, .name = "Ground", .height = 0.0},
                   {.id = 2, .name = "Upper", .height = 120.0},
                   {.id = 5, .name = "Hidden yard", .height = -80.0}};
  return layout;
}

// Writes both slots as they are, whatever the poses.
inline void Join(Layout& layout, std::int32_t a, std::int32_t slotA, std::int32_t b,
                 std::int32_t slotB) {
  PieceOf(layout, a).joints.at(static_cast<std::size_t>(slotA)) = {.target = b, .tconn = slotB};
  PieceOf(layout, b).joints.at(static_cast<std::size_t>(slotB)) = {.target = a, .tconn = slotA};
}

// The four stubs and the record of a helix; nothing selected. All stubs on `level`.
inline std::int32_t LayHelix(Layout& layout, const std::string& variant, std::int32_t level = 1) {
  Helix helix;
  helix.id = TakeId(layout);
  helix.variant = variant;
  for (std::int32_t* end : {&helix.bottomR1, &helix.bottomR2, &helix.topR1, &helix.topR2}) {
    *end = LayPiece(layout, "24188", {});
    layout.pieces.back().helix = helix.id;
    layout.pieces.back().level = level;
  }
  layout.helices.push_back(helix);
  return helix.id;
}

inline SceneryItem& PlaceScenery(Layout& layout, const std::string& item, bool sel = true) {
  SceneryItem& placed = layout.scenery.emplace_back();
  placed.id = TakeId(layout);
  placed.item = item;
  placed.sel = sel;
  return placed;
}

inline Shape& DrawShape(Layout& layout, std::vector<Vec2> vertices, bool sel = true) {
  Shape& shape = layout.shapes.emplace_back();
  shape.id = TakeId(layout);
  shape.vertices = std::move(vertices);
  shape.sel = sel;
  return shape;
}

inline std::vector<std::string> LevelNames(const SelectionPage& page) {
  std::vector<std::string> names;
  for (const LevelRow& row : page.level.rows) names.push_back(row.name);
  return names;
}

// The name of the level that the page has chosen, or an empty text.
inline std::string ChosenLevel(const SelectionPage& page) {
  if (page.level.chosen < 0) return {};
  return page.level.rows.at(static_cast<std::size_t>(page.level.chosen)).name;
}

// No control of the grade box can be used.
inline void ExpectGradeDisabled(const SelectionPage& page) {
  EXPECT_EQ(page.grade.text, "-");
  EXPECT_EQ(page.grade.warning, "");
  EXPECT_FALSE(page.grade.settingEnabled);
  EXPECT_FALSE(page.grade.startEnabled);
  EXPECT_FALSE(page.grade.endEnabled);
  EXPECT_FALSE(page.grade.recalcEnabled);
}

// At most one id is set: this many of the four.
inline int IdsShown(const SelectionPage& page) {
  return (page.pieceId != -1) + (page.sceneryId != -1) + (page.helixId != -1) +
         (page.shapeId != -1);
}

}  // namespace vantrel
