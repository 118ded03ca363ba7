// The 3D models of track parts, bridges and end stops, and the piers and posts that carry them.
#pragma once

#include "catalog/piece_def.h"
#include "view3d/scene/mesh.h"

namespace vantrel {

// The model of a part in the piece's frame (+y as on the canvas, z up): ballasted strips, with the
// structure of a bridge or ramp, the turntable's pit, or the end stop. In the frame's own numbers
// fronts run counter-clockwise and normals point outward. An instance mirrors y as it is drawn: its
// normals are mirrored along and still point outward, so the light falls right, but its fronts then
// run clockwise. So track must be drawn without culling of faces.
Model makeTrackModel(const PieceDef& def);

// The bowstring arch and the truss of a bridge of this length in mm, from x 0 along x.
void AddArchBridge(Mesh& mesh, float length);
void AddTrussBridge(Mesh& mesh, float length);

// In the view's frame; `angle` in degrees. Nothing when `top` is less than 2 mm above `base`.
void AddPier(Mesh& mesh, float x, float y, float base, float top, float angle);
void AddPost(Mesh& mesh, float x, float y, float base, float top, float angle);

}  // namespace vantrel
