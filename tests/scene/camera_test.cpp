#include "view3d/scene/camera.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantrel {
namespace {

TEST(Camera, StartsAboveTheNearEdgeLookingAcross) {
  const Camera camera;
  EXPECT_EQ(camera.pitch, 35.0F);
  EXPECT_EQ(camera.yaw, 30.0F);
  EXPECT_EQ(camera.distance, 800.0F);
  EXPECT_EQ(camera.panX, 0.0F);
  EXPECT_EQ(camera.panY, 0.0F);
  EXPECT_EQ(camera.centreX, 0.0F);
  EXPECT_EQ(camera.centreY, 0.0F);
}

TEST(Camera, TurnsHalfADegreePerPixel) {
  Camera camera;
  rotateByDrag(camera, 20, -11);
  EXPECT_EQ(camera.yaw, 40.0F);    // 30 + 10
  EXPECT_EQ(camera.pitch, 29.5F);  // 35 - 5.5
  EXPECT_EQ(camera.distance, 800.0F);
  EXPECT_EQ(camera.panX, 0.0F);
}

TEST(Camera, PitchStopsAt89) {
  Camera camera;
  rotateByDrag(camera, 0, 107);
  EXPECT_EQ(camera.pitch, 88.5F);
  rotateByDrag(camera, 0, 2);
  EXPECT_EQ(camera.pitch, 89.0F);
  rotateByDrag(camera, 0, 1000000);
  EXPECT_EQ(camera.pitch, 89.0F);
}

TEST(Camera, PitchStopsAtMinus89) {
  Camera camera;
  rotateByDrag(camera, 0, -247);
  EXPECT_EQ(camera.pitch, -88.5F);  // 35 - 123.5
  rotateByDrag(camera, 0, -2);
  EXPECT_EQ(camera.pitch, -89.0F);
  // And leaves the stop at once when the pointer turns back.
  rotateByDrag(camera, 0, 1);
  EXPECT_EQ(camera.pitch, -88.5F);
}

TEST(Camera, YawTurnsRoundWithoutAStop) {
  Camera camera;
  rotateByDrag(camera, 1440, 0);
  EXPECT_EQ(camera.yaw, 750.0F);  // 30 + 720
  rotateByDrag(camera, -2880, 0);
  EXPECT_EQ(camera.yaw, -690.0F);
}

TEST(Camera, PansAlongTheYaw) {
  Camera camera;
  camera.distance = 900.0F;  // 1 mm per pixel
  panByDrag(camera, 10, 0);
  // At a yaw of 30 degrees: cos 30 = 0.8660254, sin 30 = 0.5.
  EXPECT_NEAR(camera.panX, 8.660254F, 1e-5F);
  EXPECT_NEAR(camera.panY, -5.0F, 1e-5F);
  panByDrag(camera, 0, 10);
  EXPECT_NEAR(camera.panX, 8.660254F + 5.0F, 1e-5F);
  EXPECT_NEAR(camera.panY, -5.0F + 8.660254F, 1e-5F);
  EXPECT_EQ(camera.yaw, 30.0F);
  EXPECT_EQ(camera.pitch, 35.0F);
}

TEST(Camera, PansFasterFromFartherAway) {
  Camera camera;
  camera.yaw = 0.0F;
  camera.distance = 4500.0F;  // 5 mm per pixel
  panByDrag(camera, 3, -4);
  EXPECT_EQ(camera.panX, 15.0F);
  EXPECT_EQ(camera.panY, -20.0F);
  camera.yaw = 90.0F;
  panByDrag(camera, 3, -4);
  EXPECT_NEAR(camera.panX, 15.0F - 20.0F, 1e-4F);
  EXPECT_NEAR(camera.panY, -20.0F - 15.0F, 1e-4F);
}

TEST(Camera, WheelForwardComesNearer) {
  Camera camera;
  zoomByWheel(camera, 120);
  EXPECT_FLOAT_EQ(camera.distance, 704.0F);  // 800 times 0.88
  zoomByWheel(camera, 1);
  EXPECT_FLOAT_EQ(camera.distance, 619.52F);
}

TEST(Camera, WheelBackwardAndNoRotationGoAway) {
  Camera camera;
  zoomByWheel(camera, -120);
  EXPECT_FLOAT_EQ(camera.distance, 909.09088F);  // 800 times 1.1363636
  zoomByWheel(camera, 0);
  EXPECT_NEAR(camera.distance, 1033.0578F, 1e-3F);
}

TEST(Camera, DistanceStopsAt50UnderTheWheel) {
  Camera camera;
  camera.distance = 57.0F;
  zoomByWheel(camera, 120);
  EXPECT_FLOAT_EQ(camera.distance, 50.16F);
  zoomByWheel(camera, 120);
  EXPECT_EQ(camera.distance, 50.0F);
  zoomByWheel(camera, 120);
  EXPECT_EQ(camera.distance, 50.0F);
}

TEST(Camera, DistanceStopsAt15000UnderTheWheel) {
  Camera camera;
  camera.distance = 13200.0F;
  zoomByWheel(camera, -120);
  EXPECT_NEAR(camera.distance, 15000.0F, 0.01F);  // 14999.9995
  zoomByWheel(camera, -120);
  EXPECT_EQ(camera.distance, 15000.0F);
}

TEST(Camera, FramedFartherThanTheWheelReachesComesBackToItsLimit) {
  Camera camera;
  camera.distance = 40000.0F;
  zoomByWheel(camera, -120);
  EXPECT_EQ(camera.distance, 15000.0F);
}

TEST(Camera, ResetLeavesTheZoomAsItIs) {
  Camera camera{.pitch = -12.0F,
                .yaw = 300.0F,
                .distance = 77.0F,
                .panX = 5.0F,
                .panY = -6.0F,
                .centreX = 100.0F,
                .centreY = 200.0F};
  resetDirection(camera);
  const Camera expected{.pitch = 35.0F,
                        .yaw = 30.0F,
                        .distance = 77.0F,
                        .panX = 0.0F,
                        .panY = 0.0F,
                        .centreX = 100.0F,
                        .centreY = 200.0F};
  EXPECT_EQ(camera, expected);
}

TEST(Camera, FramingKeepsDirectionAndPan) {
  Camera camera;
  camera.pitch = 80.0F;
  camera.yaw = -45.0F;
  camera.panX = 7.0F;
  camera.panY = 8.0F;
  Scene scene;
  scene.framed = true;
  scene.centreX = 500.0F;
  scene.centreY = -250.0F;
  scene.distance = 1800.0F;
  frameScene(camera, scene);
  const Camera expected{.pitch = 80.0F,
                        .yaw = -45.0F,
                        .distance = 1800.0F,
                        .panX = 7.0F,
                        .panY = 8.0F,
                        .centreX = 500.0F,
                        .centreY = -250.0F};
  EXPECT_EQ(camera, expected);
}

TEST(Camera, FramingASceneOfNothingChangesNothing) {
  Camera camera;
  camera.distance = 1234.0F;
  camera.centreX = 9.0F;
  const Camera before = camera;
  frameScene(camera, Scene{});
  EXPECT_EQ(camera, before);
}

TEST(Camera, StaysWithinItsLimitsHoweverFarThePointerJumps) {
  Camera camera;
  rotateByDrag(camera, std::numeric_limits<int>::max(), std::numeric_limits<int>::min());
  EXPECT_EQ(camera.pitch, -89.0F);
  zoomByWheel(camera, std::numeric_limits<int>::min());
  EXPECT_FLOAT_EQ(camera.distance, 909.09088F);
}

}  // namespace
}  // namespace vantrel
