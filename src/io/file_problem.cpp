#include "io/file_problem.h"

#include <filesystem>

namespace vantrel {

std::string WhyNotWritten(std::error_code error) {
  const std::error_condition condition = error.default_error_condition();
  if (condition == std::errc::no_space_on_device) return "The disk is full.";
  if (condition == std::errc::read_only_file_system) return "The disk can only be read.";
  if (condition == std::errc::permission_denied || condition == std::errc::operation_not_permitted)
    return "You may not write there.";
  if (condition == std::errc::no_such_file_or_directory || condition == std::errc::not_a_directory)
    return "There is no such folder.";
  if (condition == std::errc::is_a_directory) return "A folder has that name.";
  if (condition == std::errc::filename_too_long) return "The name is too long.";
  if (condition == std::errc::invalid_argument || condition == std::errc::illegal_byte_sequence)
    return "The disk doesn't take such a name.";
  if (condition == std::errc::file_too_large) return "The disk doesn't take so large a file.";
  return error ? error.message() + "." : std::string();
}

std::string WhyNoPlainFile(const std::string& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status)) return {};
  if (std::filesystem::is_directory(status)) return "A folder has that name.";
  return "What has that name is no file, but a pipe or a device.";
}

}  // namespace vantrel
