// What goes wrong when a file is written, in the user's words.
#pragma once

#include <string>
#include <system_error>

namespace vantrel {

// Both texts are empty when nothing went wrong.
struct FileProblem {
  std::string what;  // "Cannot open file: " or "Cannot write file: " and the path
  std::string why;   // a sentence, or empty when nobody knows

  bool none() const { return what.empty(); }
};

// A sentence for what the system said.
std::string WhyNotWritten(std::error_code error);

// A sentence when what lies at `path` is a folder, or a pipe or device, which could keep the
// program waiting; else an empty text, also when nothing lies there.
std::string WhyNoPlainFile(const std::string& path);

}  // namespace vantrel
