// The eight signals: a disc from above, lit in the colour of the aspect, with the kind's letters.
#include <string>
#include <utility>

#include "catalog/scenery_palette.h"
#include "catalog/scenery_rows.h"

namespace vantrel::scenery {
namespace {

constexpr Rgba kSignalWhite{255, 255, 255, 255};
constexpr Rgba kSignalInk{20, 20, 20, 255};
constexpr Rgba kLightClear{60, 200, 80, 255};
constexpr Rgba kLightStop{220, 40, 40, 255};

constexpr double kSignalSize = 20.0;   // mm
constexpr double kSignalSizeZ = 12.0;  // mm
constexpr double kLetterSize = 10.0;   // the same for both sizes, so that it stays readable

SceneryDef Signal(std::string id, std::string name, bool colourLight, bool clear, bool forZ) {
  const double s = forZ ? kSignalSizeZ : kSignalSize;
  Art art = {FilledEllipse({0.0, 0.0, s, s}, kSignalWhite, kSignalInk),
             // A little off centre: the lamp stands forward of the mast.
             FilledEllipse({0.16 * s, 0.16 * s, 0.74 * s, 0.74 * s},
                           clear ? kLightClear : kLightStop, kSignalInk)};
  if (colourLight) {
    art.push_back(Polygon({{0.1 * s, 0.78 * s}, {0.32 * s, 0.7 * s}, {0.32 * s, 0.86 * s}},
                          kSignalInk, kSignalInk));
    art.push_back(Line({0.32 * s, 0.78 * s}, {0.55 * s, 0.78 * s}, kSignalInk));
  }
  art.push_back(Text({0.5 * s, 0.42 * s}, kLetterSize, kSignalInk, colourLight ? "SL" : "SS"));
  SceneryDef def = MakeItem(std::move(id), std::move(name), kSignals, s, s, std::move(art));
  def.forZ = forZ;
  return def;
}

}  // namespace

void AddSignals(std::vector<SceneryDef>& rows) {
  rows.push_back(Signal("signal_semaphore_stop", "Semaphore (Stop)", false, false, false));
  rows.push_back(Signal("signal_semaphore_clear", "Semaphore (Clear)", false, true, false));
  rows.push_back(Signal("signal_color_stop", "Color light (Stop)", true, false, false));
  rows.push_back(Signal("signal_color_clear", "Color light (Clear)", true, true, false));
  rows.push_back(Signal("signal_z_semaphore_stop", "Semaphore Z (Stop)", false, false, true));
  rows.push_back(Signal("signal_z_semaphore_clear", "Semaphore Z (Clear)", false, true, true));
  rows.push_back(Signal("signal_z_color_stop", "Color light Z (Stop)", true, false, true));
  rows.push_back(Signal("signal_z_color_clear", "Color light Z (Clear)", true, true, true));
}

}  // namespace vantrel::scenery
