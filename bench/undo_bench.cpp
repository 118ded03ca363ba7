// Taking a snapshot of 10,000 pieces, beside a copy of as many bytes in one block.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

#include "catalog/track_catalog.h"
#include "doc/layout.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

constexpr int kPieces = 10'000;

Layout Plan() {
  Layout layout;
  constexpr const char* parts[] = {"24188", "24612", "24130", "24640"};
  for (int i = 0; i < kPieces; ++i) {
    const PieceDef& def = *findPart(parts[i % 4]);
    Piece piece;
    piece.id = i + 1;
    piece.cat = def.partNumber;
    piece.x = 10.0 * i;
    piece.joints.resize(def.connectors.size());
    layout.pieces.push_back(piece);
  }
  return layout;
}

// Part numbers fit into the records themselves, so these are all the bytes there are.
std::size_t BytesOf(const Layout& layout) {
  std::size_t bytes = layout.pieces.size() * sizeof(Piece);
  for (const Piece& piece : layout.pieces) bytes += piece.joints.size() * sizeof(Joint);
  return bytes;
}

void CopyTheSameBytesInOneBlock(benchmark::State& state) {
  const std::size_t bytes = BytesOf(Plan());
  const std::vector<std::byte> from(bytes);
  std::vector<std::byte> to(bytes);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), bytes);
    benchmark::ClobberMemory();
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(CopyTheSameBytesInOneBlock)->Unit(benchmark::kMicrosecond);

// The slots of each piece are a block of their own on the heap; this is what they cost alone.
void AllocateAndFreeABlockForEachPiece(benchmark::State& state) {
  const Layout layout = Plan();
  std::vector<std::unique_ptr<Joint[]>> blocks(layout.pieces.size());
  for (auto _ : state) {
    for (std::size_t i = 0; i < blocks.size(); ++i)
      blocks[i] = std::make_unique<Joint[]>(layout.pieces[i].joints.size());
    for (auto& block : blocks) block.reset();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(AllocateAndFreeABlockForEachPiece)->Unit(benchmark::kMicrosecond);

// With a full history, so that each push also drops the oldest state.
void Push(benchmark::State& state) {
  Layout layout = Plan();
  for (std::size_t i = 0; i < kUndoLimit; ++i) PushUndo(layout);
  for (auto _ : state) PushUndo(layout);
}
BENCHMARK(Push)->Unit(benchmark::kMicrosecond);

void UndoThenRedo(benchmark::State& state) {
  Layout layout = Plan();
  PushUndo(layout);
  layout.pieces.pop_back();
  for (auto _ : state) {
    Undo(layout);
    Redo(layout);
  }
}
BENCHMARK(UndoThenRedo)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vantrel

BENCHMARK_MAIN();
