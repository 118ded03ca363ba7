// make_samples FOLDER: writes the sample plans that are installed beside the program, and the
// blocks of its library.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "io/block_file.h"
#include "io/layout_file.h"
#include "tools/samples/sample_builder.h"

namespace {

using namespace vantrel;

void Report(const std::string& problem, const std::string& path, const Layout& layout) {
  if (!problem.empty()) throw std::runtime_error(problem);
  std::printf("%s: %zu pieces\n", path.c_str(), layout.pieces.size());
}

void WritePlans(const std::string& folder) {
  for (const samples::Sample& sample : samples::AllSamples()) {
    const std::string name(sample.name);
    const std::string path = folder + "/" + name + ".vtl";
    const Layout layout = sample.make();
    Report(SaveLayoutFile(layout, path, name), path, layout);
  }
}

void WriteBlocks(const std::string& library) {
  for (const samples::SampleBlock& block : samples::AllBlocks()) {
    const std::string folder = library + "/" + std::string(block.folder);
    std::filesystem::create_directories(folder);
    const std::string name(block.name);
    const std::string path = folder + "/" + name + ".vtl";
    const Layout layout = block.make();
    Report(SaveBlockFile(layout, path, name), path, layout);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_samples FOLDER\n");
    return 2;
  }
  try {
    WritePlans(argv[1]);
    WriteBlocks(std::string(argv[1]) + "/library");
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return 1;
  }
  return 0;
}
