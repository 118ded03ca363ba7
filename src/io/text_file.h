// Whole files in and out. Paths are UTF-8.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "io/file_problem.h"

namespace vantrel {

// The bytes of a file, as they are.
struct FileBytes {
  std::unique_ptr<char[]> data;
  std::size_t size = 0;

  std::string_view text() const { return {data.get(), size}; }
};

// Reads a file into `bytes`. Returns an empty text, or "Cannot open file: " and the path, also for
// a folder and for a file that breaks off while being read; `bytes` is then left as it was.
std::string ReadTextFile(const std::string& path, FileBytes& bytes);

// Overwrites a file where it stands, with the platform's line ends. A write that breaks off leaves
// a broken file behind; what is no file, but a folder, a pipe or a device, is not touched.
FileProblem WriteTextFile(const std::string& path, std::string_view text);

// Walks over the lines of a text, which may end in "\n" or "\r\n": no tag or attribute sees the
// carriage return, so it stays on.
class LineCursor {
 public:
  explicit LineCursor(std::string_view text) : rest_(text) {}

  // False when there is no further line.
  bool next(std::string_view& line);

  std::size_t bytesLeft() const { return rest_.size(); }

  // Of the line given last, from 1.
  std::size_t number() const { return number_; }

 private:
  std::string_view rest_;
  std::size_t number_ = 0;
};

}  // namespace vantrel
