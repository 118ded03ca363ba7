// A pair of reals: a point or a vector, in world millimetres unless a name says otherwise.
#pragma once

namespace vantrel {

struct Vec2 {
  double x = 0.0;
  double y = 0.0;

  friend bool operator==(const Vec2&, const Vec2&) = default;
};

// Where something stands and how it is turned. World y grows downward, so a positive heading turns
// clockwise on the screen.
struct Pose {
  double x = 0.0;        // mm
  double y = 0.0;        // mm
  double heading = 0.0;  // degrees

  friend bool operator==(const Pose&, const Pose&) = default;
};

}  // namespace vantrel
