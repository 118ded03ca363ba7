#include "print/pages/printed_levels.h"

#include <cstddef>
#include <unordered_map>

namespace vantrel {

LevelStates levelStates(const Layout& layout) {
  LevelStates states;
  states.reserve(layout.levels.size());
  for (const Level& level : layout.levels) states.emplace_back(level.id, level.visible);
  return states;
}

void showPrintedLevels(Layout& layout, const PrintOptions& options) {
  for (Level& level : layout.levels)
    level.visible = options.allLevels != 0 || level.id == layout.activeLevel;
}

void putLevelStatesBack(Layout& layout, const LevelStates& states) {
  std::unordered_map<std::int32_t, Level*> byId;
  for (Level& level : layout.levels) byId.emplace(level.id, &level);
  for (std::size_t i = 0; i < states.size(); ++i) {
    const auto& [id, visible] = states[i];
    if (i < layout.levels.size() && layout.levels[i].id == id) {
      layout.levels[i].visible = visible;
    } else if (const auto found = byId.find(id); found != byId.end()) {
      found->second->visible = visible;
    }
  }
}

PrintedGround::PrintedGround(Layout& layout, const PrintOptions& options)
    : layout_(layout),
      gridVisible_(layout.gridVisible),
      baseboardVisible_(layout.baseboardVisible) {
  if (!options.includeGrid) layout.gridVisible = false;
  if (!options.includeBaseboard) layout.baseboardVisible = false;
}

PrintedGround::~PrintedGround() {
  layout_.gridVisible = gridVisible_;
  layout_.baseboardVisible = baseboardVisible_;
}

}  // namespace vantrel
