// Building the 3D scene of each sample plan, and of a plan that asks for the most work per piece,
// beside one copy of all arrays that come out of it. The counters tell what a frame draws.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "io/layout_file.h"
#include "view3d/scene/scene.h"

namespace vantrel {
namespace {

constexpr const char* kSamples[] = {"Exhibition Yard", "C-Track Double Oval",  "K-Track Terminus",
                                    "TRIX Viaduct",    "Two Decks with Helix", "Z-Track Table Top"};

Layout Sample(std::size_t which) {
  Layout layout;
  std::string name;
  LoadLayoutFile(layout, std::string(VANTREL_SOURCE_DIR "/samples/") + kSamples[which] + ".vtl",
                 name);
  return layout;
}

// 5,000 bridges under one tunnel each ten, and 1,000 shapes of 100 corners around pieces that none
// of them holds.
Layout Crowded() {
  constexpr int kPieces = 5'000;
  Layout layout;
  for (int i = 0; i < kPieces; ++i) {
    Piece piece;
    piece.id = i + 1;
    piece.cat = i % 2 == 0 ? "74636" : "74613";
    piece.x = 400.0 * (i % 100);
    piece.y = 400.0 * (i / 100);
    piece.z = 90.0;
    piece.joints.resize(2);
    if (i % 10 != 0) piece.joints[0] = {.target = i, .tconn = 1};
    if (i % 10 != 9) piece.joints[1] = {.target = i + 2, .tconn = 0};
    if (i % 10 == 0) layout.tunnels.emplace_back();
    layout.tunnels.back().covers.push_back(piece.id);
    layout.pieces.push_back(piece);
  }
  for (int i = 0; i < 1'000; ++i) {
    Shape shape;
    shape.height = 50.0;
    // A comb whose teeth run between the rows of pieces, over the whole plan.
    for (int corner = 0; corner < 100; ++corner)
      shape.vertices.push_back({corner % 4 < 2 ? -100.0 : 39'000.0, 200.0 * corner + 100.0});
    layout.shapes.push_back(shape);
  }
  return layout;
}

std::size_t Triangles(const Mesh& mesh) {
  return mesh.indices.size() / 3;
}

void Count(benchmark::State& state, const Layout& layout, const Scene& scene) {
  std::size_t track = 0;
  for (const TrackInstance& instance : scene.trackInstances)
    track += Triangles(scene.trackModels.at(instance.key));
  std::size_t scenery = 0;
  for (const SceneryInstance& instance : scene.sceneryInstances)
    scenery += Triangles(scene.sceneryModels.at(instance.key));
  const std::size_t meshes =
      Triangles(scene.sceneMesh) + Triangles(scene.baseMesh) + Triangles(scene.tunnelMesh);
  state.counters["pieces"] = static_cast<double>(layout.pieces.size());
  state.counters["models"] =
      static_cast<double>(scene.trackModels.size() + scene.sceneryModels.size());
  state.counters["trackTriangles"] = static_cast<double>(track);
  state.counters["sceneryTriangles"] = static_cast<double>(scenery);
  state.counters["triangles"] = static_cast<double>(track + scenery + meshes);
}

void BuildSample(benchmark::State& state) {
  const auto which = static_cast<std::size_t>(state.range(0));
  const Layout layout = Sample(which);
  for (auto _ : state) benchmark::DoNotOptimize(BuildScene(layout));
  Count(state, layout, BuildScene(layout));
  state.SetLabel(kSamples[which]);
}
BENCHMARK(BuildSample)->DenseRange(0, 5)->Unit(benchmark::kMicrosecond);

void CopySample(benchmark::State& state) {
  const auto which = static_cast<std::size_t>(state.range(0));
  const Scene scene = BuildScene(Sample(which));
  for (auto _ : state) {
    Scene copy = scene;
    benchmark::DoNotOptimize(copy);
  }
  state.SetLabel(kSamples[which]);
}
BENCHMARK(CopySample)->DenseRange(0, 5)->Unit(benchmark::kMicrosecond);

void BuildCrowded(benchmark::State& state) {
  const Layout layout = Crowded();
  for (auto _ : state) benchmark::DoNotOptimize(BuildScene(layout));
  Count(state, layout, BuildScene(layout));
}
BENCHMARK(BuildCrowded)->Unit(benchmark::kMillisecond);

void CopyCrowded(benchmark::State& state) {
  const Scene scene = BuildScene(Crowded());
  for (auto _ : state) {
    Scene copy = scene;
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CopyCrowded)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
