// The line-oriented text format of layouts (".vtl", older ".xml"). It looks like XML but is a
// contract of fixed lines: the writer prints them and the reader searches each line for literal tag
// text.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

#include "doc/layout.h"
#include "io/file_problem.h"

namespace vantrel {

// A required number that is missing, malformed or out of range. what() is exactly one of "invalid
// stoi argument", "invalid stod argument", "stoi argument out of range" and "stod argument out of
// range". By then the layout is partly replaced.
class MalformedFile : public std::runtime_error {
 public:
  MalformedFile(const std::string& problem, std::string filePath, std::size_t lineNumber)
      : std::runtime_error(problem), path(std::move(filePath)), line(lineNumber) {}

  std::string path;  // UTF-8
  std::size_t line;  // from 1
};

// Writes the layout under its display name (paths and texts are UTF-8). Returns an empty text, or
// "Cannot open file: " or "Cannot write file: " and the path. The file is written where it stands.
// A folder, a pipe or a device at `path` is refused.
std::string SaveLayoutFile(const Layout& layout, const std::string& path, const std::string& name);

// The same, with the reason for a failure.
FileProblem WriteLayoutFile(const Layout& layout, const std::string& path, const std::string& name);

// Reads a layout over the records of `layout`; `nameOut` gets the file's name attribute. Histories,
// measurements, old grade runs and, without one in the file, the baseboard stay. A file without a
// "<layout " line leaves `nameOut` alone. Returns an empty text, or "Cannot open file: " and the
// path, also for a folder, with the layout unchanged. Throws MalformedFile.
std::string LoadLayoutFile(Layout& layout, const std::string& path, std::string& nameOut);

}  // namespace vantrel
