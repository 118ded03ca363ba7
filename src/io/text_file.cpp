#include "io/text_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vantrel {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

std::string CannotOpen(const std::string& path) {
  return "Cannot open file: " + path;
}

std::string CannotWrite(const std::string& path) {
  return "Cannot write file: " + path;
}

// A call that failed without a word is still a failure.
std::error_code LastError() {
  return {errno != 0 ? errno : EIO, std::generic_category()};
}

// Room for one byte more than the file, so that its end is found without growing.
std::size_t FirstCapacity(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return error ? 4096 : static_cast<std::size_t>(size) + 1;
}

bool ReadToEnd(std::FILE* file, std::size_t capacity, FileBytes& bytes) {
  bytes.data = std::make_unique_for_overwrite<char[]>(capacity);
  bytes.size = 0;
  while (true) {
    bytes.size += std::fread(bytes.data.get() + bytes.size, 1, capacity - bytes.size, file);
    if (bytes.size < capacity) return std::ferror(file) == 0;
    // The file has grown since it was measured.
    capacity *= 2;
    std::unique_ptr<char[]> larger = std::make_unique_for_overwrite<char[]>(capacity);
    std::memcpy(larger.get(), bytes.data.get(), bytes.size);
    bytes.data = std::move(larger);
  }
}

}  // namespace

std::string ReadTextFile(const std::string& path, FileBytes& bytes) {
  // A folder opens like a file, and a pipe would keep the program waiting for its other end.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return CannotOpen(path);
  const OpenFile file(std::fopen(path.c_str(), "rb"));
  if (!file) return CannotOpen(path);
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  FileBytes read;
  if (!ReadToEnd(file.get(), FirstCapacity(path), read)) return CannotOpen(path);
  bytes = std::move(read);
  return {};
}

FileProblem WriteTextFile(const std::string& path, std::string_view text) {
  if (std::string why = WhyNoPlainFile(path); !why.empty()) {
    std::error_code error;
    const bool folder = std::filesystem::is_directory(path, error);
    return {folder ? CannotOpen(path) : CannotWrite(path), std::move(why)};
  }
  errno = 0;
  OpenFile file(std::fopen(path.c_str(), "w"));
  if (!file) return {CannotOpen(path), WhyNotWritten(LastError())};
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  std::error_code error;
  if (std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) error = LastError();
  // A disk may take the bytes and refuse them only at the close.
  if (std::fclose(file.release()) != 0 && !error) error = LastError();
  if (!error) return {};
  return {CannotWrite(path), WhyNotWritten(error)};
}

bool LineCursor::next(std::string_view& line) {
  if (rest_.empty()) return false;
  const std::size_t end = rest_.find('\n');
  line = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  ++number_;
  return true;
}

}  // namespace vantrel
