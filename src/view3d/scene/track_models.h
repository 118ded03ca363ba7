// The 3D models of track parts, bridges and end stops, and the piers and posts that carry them.
#pragma once

#include "catalog/piece_def.h"
#include "view3d/scene/mesh.h"

namespace vantrel {

// The model of a part in the piece's frame (+y as on the canvas, z up): ballasted strips, with the
// structure of a bridge or ramp, the turntable's pit, or the end stop.
Model makeTrackModel(const PieceDef& def);

// The bowstring arch and the truss of a bridge of this length in mm, from x 0 along x.
void AddArchBridge(Mesh& mesh, float length);
void AddTrussBridge(Mesh& mesh, float length);

// In the view's frame; `angle` in degrees. Nothing when `top` is less than 2 mm above `base`.
void AddPier(Mesh& mesh, float x, float y, float base, float top, float angle);
void AddPost(Mesh& mesh, float x, float y, float base, float top, float angle);

}  // namespace vantrel
