// make_samples FOLDER: writes the sample plans that are installed beside the program.
#include <cstdio>
#include <exception>
#include <string>

#include "io/layout_file.h"
#include "tools/samples/sample_builder.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_samples FOLDER\n");
    return 2;
  }
  try {
    for (const vantrel::samples::Sample& sample : vantrel::samples::AllSamples()) {
      const std::string name(sample.name);
      const std::string path = std::string(argv[1]) + "/" + name + ".vtl";
      const vantrel::Layout layout = sample.make();
      const std::string problem = vantrel::SaveLayoutFile(layout, path, name);
      if (!problem.empty()) throw std::runtime_error(problem);
      std::printf("%s: %zu pieces\n", path.c_str(), layout.pieces.size());
    }
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return 1;
  }
  return 0;
}
