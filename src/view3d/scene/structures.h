// What stands around or instead of a part's track: ramps, the turntable's pit, the end stop. All in
// the part's frame, sizes in mm.
#pragma once

#include "catalog/piece_def.h"
#include "view3d/scene/mesh.h"
#include "view3d/scene/paths.h"

namespace vantrel {

// The arch, truss or ramp of a bridge part, by its form; every curved one has a ramp. `path`
// is the part's centre line.
void AddBridgeStructure(Mesh& mesh, const PieceDef& def, const Path& path);

// A slab under the path with posts and a guard rail along both sides. The slope is the instance's.
// Nothing for a path of fewer than 2 points.
void AddRamp(Mesh& mesh, const Path& path);

// The pit around the origin with its ring wall and rim, and the bridge along x.
void AddTurntable(Mesh& mesh, double radius, double length);

// The track up to a buffer stop, and the stop.
void AddEndStop(Mesh& mesh, const PieceDef& def);

}  // namespace vantrel
