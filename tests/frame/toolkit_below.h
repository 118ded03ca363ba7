// What the toolkit below the toolkit says and how large it writes, for the time of a test.
#pragma once

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <sstream>
#include <string>

namespace vantrel {

// Its own headers needn't be there: wxWidgets brings only the libraries along.
template <typename Function>
Function* FromToolkitBelow(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

// Gathers the warnings that it writes to standard error, where they no longer go meanwhile.
class ToolkitComplaints {
 public:
  ToolkitComplaints() : file_(std::tmpfile()), before_(dup(STDERR_FILENO)) {
    dup2(fileno(file_), STDERR_FILENO);
  }
  ~ToolkitComplaints() {
    std::fflush(stderr);
    dup2(before_, STDERR_FILENO);
    close(before_);
    std::fclose(file_);
  }
  ToolkitComplaints(const ToolkitComplaints&) = delete;
  ToolkitComplaints& operator=(const ToolkitComplaints&) = delete;

  std::string text() const {
    std::fflush(stderr);
    std::string all(static_cast<std::size_t>(lseek(STDERR_FILENO, 0, SEEK_END)), ' ');
    const ssize_t read = pread(fileno(file_), all.data(), all.size(), 0);
    std::istringstream lines(all.substr(0, static_cast<std::size_t>(std::max<ssize_t>(read, 0))));
    std::string complaints;
    for (std::string line; std::getline(lines, line);)
      if (line.find("-CRITICAL") != std::string::npos || line.find("-WARNING") != std::string::npos)
        complaints += line + "\n";
    return complaints;
  }

 private:
  std::FILE* file_;
  int before_;
};

// Its name and size as the desktop's settings have them, "Sans 16".
class ToolkitFont {
 public:
  explicit ToolkitFont(const char* name) {
    char* before = nullptr;
    FromToolkitBelow<void(void*, const char*, ...)>("g_object_get")(settings(), kProperty, &before,
                                                                    static_cast<void*>(nullptr));
    before_ = before;
    FromToolkitBelow<void(void*)>("g_free")(before);
    use(name);
  }
  ~ToolkitFont() { use(before_.c_str()); }
  ToolkitFont(const ToolkitFont&) = delete;
  ToolkitFont& operator=(const ToolkitFont&) = delete;

 private:
  static constexpr const char* kProperty = "gtk-font-name";

  static void* settings() { return FromToolkitBelow<void*()>("gtk_settings_get_default")(); }
  static void use(const char* name) {
    FromToolkitBelow<void(void*, const char*, ...)>("g_object_set")(settings(), kProperty, name,
                                                                    static_cast<void*>(nullptr));
  }

  std::string before_;
};

}  // namespace vantrel
