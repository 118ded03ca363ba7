#include "tools/model_sheet/measure.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "view3d/gl_headers.h"

namespace vantrel {
namespace {

constexpr int kFrames = 15;

double Median(const std::function<void()>& frame) {
  std::vector<double> times;
  for (int i = 0; i <= kFrames; ++i) {
    const auto start = std::chrono::steady_clock::now();
    frame();
    glFinish();
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    if (i > 0) times.push_back(taken.count());  // the first one warms up
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

struct Turn {
  float cosine = 1.0F;
  float sine = 0.0F;
};

Turn TurnBy(float degrees) {
  const float radians = degrees * std::numbers::pi_v<float> / 180.0F;
  return {std::cos(radians), std::sin(radians)};
}

// Where an instance draws a vector of its model, without its place.
Vec3f Placed(Vec3f v, Vec3f scale, Turn tilt, Turn heading) {
  v = {v.x * scale.x, v.y * scale.y, v.z * scale.z};
  v = {v.x * tilt.cosine + v.z * tilt.sine, v.y, v.z * tilt.cosine - v.x * tilt.sine};
  return {v.x * heading.cosine - v.y * heading.sine, v.x * heading.sine + v.y * heading.cosine,
          v.z};
}

void Append(Mesh& all, const Mesh& mesh) {
  const auto first = static_cast<std::uint32_t>(all.positions.size());
  all.positions.insert(all.positions.end(), mesh.positions.begin(), mesh.positions.end());
  all.normals.insert(all.normals.end(), mesh.normals.begin(), mesh.normals.end());
  all.colors.insert(all.colors.end(), mesh.colors.begin(), mesh.colors.end());
  for (const std::uint32_t index : mesh.indices) all.indices.push_back(first + index);
}

void AppendPlaced(Mesh& all, Mesh mesh, Vec3f at, Vec3f scale, float tilt, float heading) {
  const Turn tilted = TurnBy(tilt);
  const Turn turned = TurnBy(heading);
  for (Vec3f& point : mesh.positions) {
    point = Placed(point, scale, tilted, turned);
    point = {point.x + at.x, point.y + at.y, point.z + at.z};
  }
  for (Vec3f& normal : mesh.normals) normal = Placed(normal, scale, tilted, turned);
  Append(all, mesh);
}

Scene GrownTogether(const Scene& scene) {
  Scene together;
  Mesh& all = together.sceneMesh;
  Append(all, scene.baseMesh);
  for (const SceneryInstance& item : scene.sceneryInstances) {
    const auto model = scene.sceneryModels.find(item.key);
    if (model == scene.sceneryModels.end()) continue;
    AppendPlaced(all, model->second, {item.x, item.y, item.z}, {item.scaleX, item.scaleY, 1.0F},
                 0.0F, item.heading);
  }
  Append(all, scene.sceneMesh);
  for (const TrackInstance& piece : scene.trackInstances) {
    const auto model = scene.trackModels.find(piece.key);
    if (model == scene.trackModels.end()) continue;
    AppendPlaced(all, model->second, {piece.x, piece.y, piece.z}, {1.0F, -1.0F, 1.0F},
                 piece.rev ? piece.grade : -piece.grade, piece.heading);
  }
  Append(all, scene.tunnelMesh);
  return together;
}

}  // namespace

FrameCost MeasureFrame(const Scene& scene, const Camera& camera, PaintSize size) {
  FrameCost cost;
  cost.whole = Median([&] { PaintScene(scene, camera, size); });
  cost.cleared = Median([] { glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT); });
  const Scene together = GrownTogether(scene);
  cost.oneCall = Median([&] { PaintScene(together, camera, size); });
  return cost;
}

}  // namespace vantrel
