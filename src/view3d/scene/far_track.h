// Track from so far away that its sleepers fall between the pixels. Drawn as they are they would
// shimmer with each move of the camera; so their colour and the ballast's run into one another the
// finer they get, and where none can be told from the next they are left out.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "view3d/scene/mesh.h"

namespace vantrel {

// Shade 0 is the model as it is; at the last one ballast and sleepers have the same colour.
inline constexpr int kFarShades = 8;

// The shade in which track is drawn whose sleepers are this many pixels apart.
int FarShade(double sleeperStepPixels);

// Whether rails and sides are too fine to be drawn, when as much as from sleeper to sleeper
// measures so many pixels across the view.
bool IsPlainBand(double sleeperStepPixels);

// What of a track model is different from afar; its vertices and normals are the model's own.
struct FarTrack {
  std::array<std::vector<Rgb>, kFarShades> colours;  // of shade 1, 2 and so on
  std::vector<std::uint32_t> withoutSleepers;        // indices, at the last shade
  std::vector<Rgb> bandColours;                      // of a plain band
  std::vector<std::uint32_t> band;                   // indices: without rails and sides too
};

FarTrack MakeFarTrack(const Model& model);

}  // namespace vantrel
