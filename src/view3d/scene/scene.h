// The 3D scene of a layout as plain data: models made once per part, light instances, and the
// merged meshes of what is unique.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "doc/layout.h"
#include "view3d/scene/far_track.h"
#include "view3d/scene/mesh.h"

namespace vantrel {

// In the view's frame; degrees and mm.
struct TrackInstance {
  std::string key;  // part number
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
  float heading = 0.0F;
  float grade = 0.0F;
  float length = 0.0F;
  bool rev = false;
};

struct SceneryInstance {
  std::string key;  // scenery id
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
  float heading = 0.0F;
  float halfWidth = 0.0F;
  float halfDepth = 0.0F;
  float scaleX = 1.0F;
  float scaleY = 1.0F;
};

struct WireLine {
  Vec3f from;
  Vec3f to;
  Rgb colour;
};

struct Scene {
  std::unordered_map<std::string, Model> trackModels;
  std::unordered_map<std::string, FarTrack> farTracks;  // of the same parts
  std::vector<TrackInstance> trackInstances;
  Mesh sceneMesh;  // shapes, piers, helix posts
  Mesh baseMesh;   // the baseboard
  Mesh tunnelMesh;
  std::vector<WireLine> wireLines;
  std::unordered_map<std::string, Model> sceneryModels;
  std::vector<SceneryInstance> sceneryInstances;
  // Of the box around track, helices and scenery; only when there is track or scenery in it.
  bool framed = false;
  float centreX = 0.0F;
  float centreY = 0.0F;
  float distance = 0.0F;  // of the camera, mm
};

// Whatever numbers the layout holds, the scene is built, and every coordinate in it is finite.
Scene BuildScene(const Layout& layout);

}  // namespace vantrel
