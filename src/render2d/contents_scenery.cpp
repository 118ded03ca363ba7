#include "render2d/contents_scenery.h"

#include <algorithm>
#include <cmath>

#include "catalog/scenery_catalog.h"
#include "render2d/contents_reach.h"
#include "render2d/contents_text.h"
#include "render2d/scenery_drawing.h"

namespace vantrel {
namespace {

// The font size that text bounds are measured at, and the smallest that an item's text has.
constexpr int kSamplePoints = 20;
constexpr double kSmallestTextPoints = 8.0;
// For what is rounded, and for the dotted frame of a selected item.
constexpr int kExtra = 8;  // pixels

std::unordered_set<std::int32_t> PortalIds(const Layout& layout) {
  std::unordered_set<std::int32_t> ids;
  for (const Tunnel& tunnel : layout.tunnels) {
    ids.insert(tunnel.portalA);
    ids.insert(tunnel.portalB);
  }
  ids.erase(kNone);  // a tunnel that has lost a portal
  return ids;
}

class SceneryView {
 public:
  explicit SceneryView(ContentsPaint& paint)
      : paint_(paint),
        widthPerPoint_(TextBounds(paint.dc, PlanFont(paint.view, kSamplePoints, wxFONTWEIGHT_BOLD))
                           .perCharacter() /
                       static_cast<double>(kSamplePoints)) {}

  bool outOfView(const SceneryItem& item, const SceneryDef& def) const {
    if (!std::isfinite(item.heading)) return false;
    const SceneryReach& reach = ReachOfScenery(def);
    const double points =
        std::max(kSmallestTextPoints, reach.textHeight * paint_.view.pixelScale());
    // Texts don't grow with the item's own factors. A character of several bytes may be wider than
    // a plain one, but not by more than its number of bytes.
    const double text =
        reach.textBytes > 0.0 ? (reach.textBytes + 1.0) * points * widthPerPoint_ : 0.0;
    return paint_.outOfView(
        {item.x, item.y}, std::hypot(reach.across * item.scalex, reach.along * item.scaley),
        reach.strokeWidth * paint_.view.pixel + text + paint_.view.pixels(kExtra));
  }

 private:
  ContentsPaint& paint_;
  double widthPerPoint_;  // device units, per point that the text has on a screen
};

}  // namespace

SceneryPlan PrepareScenery(ContentsPaint& paint) {
  SceneryPlan plan;
  if (paint.layout.scenery.empty()) return plan;
  const std::unordered_set<std::int32_t> portals = PortalIds(paint.layout);
  const SceneryView view(paint);
  for (const SceneryItem& item : paint.layout.scenery) {
    if (paint.levelHidden(item.level)) continue;
    const SceneryDef* def = findScenery(item.item);
    if (def == nullptr || view.outOfView(item, *def)) continue;
    (portals.contains(item.id) ? plan.portals : plan.ordinary).push_back({&item, def});
  }
  return plan;
}

void DrawScenery(ContentsPaint& paint, const std::vector<SceneryJob>& jobs) {
  for (const bool selected : {false, true}) {
    for (const auto& [item, def] : jobs) {
      if (item->sel != selected) continue;
      DrawSceneryItem(paint.context, paint.dc, *def, item->pose(), paint.view, selected,
                      item->scalex, item->scaley);
    }
  }
}

}  // namespace vantrel
