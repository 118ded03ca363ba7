// What stands on a sheet of 3D models: one scene per model, and its caption.
#pragma once

#include <string>
#include <vector>

#include "view3d/scene/scene.h"

namespace vantrel {

struct SheetModel {
  std::string caption;
  Scene scene;
  float radius = 0.0F;  // of a ball around the middle of the model, mm
  float height = 0.0F;  // of its middle above the table, mm
};

// One part for each system and kind of track, then every bridge and ramp.
std::vector<SheetModel> TrackSheet();

// Every item of the catalog.
std::vector<SheetModel> ScenerySheet();

// Triangles in one frame.
std::size_t TrianglesOf(const Scene& scene);

}  // namespace vantrel
