// Where the 3D view is seen from, and what mouse, wheel and keys make of it.
#pragma once

#include "view3d/scene/scene.h"

namespace vantrel {

// Degrees and mm. The camera looks at the scene's centre, shifted by the pan, from `distance` away:
// at a pitch of 0 from straight above, at 90 it would lie on the table.
struct Camera {
  float pitch = 35.0F;
  float yaw = 30.0F;
  float distance = 800.0F;
  float panX = 0.0F;
  float panY = 0.0F;
  float centreX = 0.0F;
  float centreY = 0.0F;

  friend bool operator==(const Camera&, const Camera&) = default;
};

// The pointer moved by this many pixels.
void rotateByDrag(Camera& camera, int dx, int dy);
void panByDrag(Camera& camera, int dx, int dy);

// One step of the wheel, nearer for a positive rotation. The distance stays within 50 and 15000 mm.
void zoomByWheel(Camera& camera, int rotation);

// Back to the first direction, without pan; the distance stays.
void resetDirection(Camera& camera);

// Takes over centre and distance of a scene that has any; direction and pan stay.
void frameScene(Camera& camera, const Scene& scene);

}  // namespace vantrel
