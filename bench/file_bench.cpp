// Saving and loading a plan of 10,000 pieces, each beside its floor: the same bytes handed over by
// one fwrite, and fetched by one fread.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "io/layout_file.h"

namespace {

constexpr int kPieces = 10'000;

// A long chain with uneven coordinates, every piece joined to the next on both sides.
vantrel::Layout LongChain() {
  vantrel::Layout layout;
  layout.levels.emplace_back();
  for (int i = 0; i < kPieces; ++i) {
    vantrel::Piece piece;
    piece.id = i + 1;
    piece.cat = i % 3 == 0 ? "24188" : "24130";
    piece.x = 188.3 * (i % 100) + i * 0.0137;
    piece.y = 77.5 * (i / 100) - i * 0.0071;
    piece.heading = (i * 30 % 360) + (i % 7) * 0.1375;
    piece.z = i % 5 == 0 ? 0.0 : i * 0.0431;
    piece.grade = i % 5 == 0 ? 0.0 : 2.5;
    piece.joints.resize(2);
    if (i > 0) piece.joints[0] = {.target = i, .tconn = 1};
    if (i + 1 < kPieces) piece.joints[1] = {.target = i + 2, .tconn = 0};
    layout.pieces.push_back(piece);
  }
  layout.nextId = kPieces + 1;
  return layout;
}

std::string BenchPath(const char* name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

std::vector<char> ReadAll(const std::string& path) {
  std::vector<char> bytes(std::filesystem::file_size(path));
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size()) bytes.clear();
  std::fclose(file);
  return bytes;
}

void SaveLayout(benchmark::State& state) {
  const vantrel::Layout layout = LongChain();
  const std::string path = BenchPath("vantrel_save_bench.vtl");
  for (auto _ : state) {
    const std::string error = vantrel::SaveLayoutFile(layout, path, "Bench");
    if (!error.empty()) state.SkipWithError(error.c_str());
  }
  state.SetBytesProcessed(state.iterations() * std::filesystem::file_size(path));
  std::filesystem::remove(path);
}
BENCHMARK(SaveLayout)->Unit(benchmark::kMicrosecond);

void SaveFloorOneFwrite(benchmark::State& state) {
  const std::string path = BenchPath("vantrel_fwrite_bench.vtl");
  vantrel::SaveLayoutFile(LongChain(), path, "Bench");
  const std::vector<char> bytes = ReadAll(path);
  for (auto _ : state) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size())
      state.SkipWithError("fwrite failed");
    std::fclose(file);
  }
  state.SetBytesProcessed(state.iterations() * bytes.size());
  std::filesystem::remove(path);
}
BENCHMARK(SaveFloorOneFwrite)->Unit(benchmark::kMicrosecond);

// As the program opens a plan: over the one that is open.
void LoadLayout(benchmark::State& state) {
  const std::string path = BenchPath("vantrel_load_bench.vtl");
  vantrel::SaveLayoutFile(LongChain(), path, "Bench");
  vantrel::Layout layout;
  std::string name;
  for (auto _ : state) {
    const std::string error = vantrel::LoadLayoutFile(layout, path, name);
    if (!error.empty() || layout.pieces.size() != kPieces) state.SkipWithError("load failed");
  }
  state.SetBytesProcessed(state.iterations() * std::filesystem::file_size(path));
  std::filesystem::remove(path);
}
BENCHMARK(LoadLayout)->Unit(benchmark::kMicrosecond);

// The same into a new document, which first has to get all its memory from the system, and gives it
// back each time.
void LoadNewLayout(benchmark::State& state) {
  const std::string path = BenchPath("vantrel_load_new_bench.vtl");
  vantrel::SaveLayoutFile(LongChain(), path, "Bench");
  for (auto _ : state) {
    vantrel::Layout layout;
    std::string name;
    const std::string error = vantrel::LoadLayoutFile(layout, path, name);
    if (!error.empty() || layout.pieces.size() != kPieces) state.SkipWithError("load failed");
  }
  state.SetBytesProcessed(state.iterations() * std::filesystem::file_size(path));
  std::filesystem::remove(path);
}
BENCHMARK(LoadNewLayout)->Unit(benchmark::kMicrosecond);

void LoadFloorOneFread(benchmark::State& state) {
  const std::string path = BenchPath("vantrel_fread_bench.vtl");
  vantrel::SaveLayoutFile(LongChain(), path, "Bench");
  std::vector<char> bytes(std::filesystem::file_size(path));
  for (auto _ : state) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size())
      state.SkipWithError("fread failed");
    std::fclose(file);
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetBytesProcessed(state.iterations() * bytes.size());
  std::filesystem::remove(path);
}
BENCHMARK(LoadFloorOneFread)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
