// What the toolkit below the toolkit says and how large it writes, for the time of a test.
#pragma once

#include <dlfcn.h>

#include <string>

namespace vantrel {

// Its own headers needn't be there: wxWidgets brings only the libraries along.
template <typename Function>
Function* FromToolkitBelow(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

// Gathers the warnings that would go to standard error.
class ToolkitComplaints {
 public:
  ToolkitComplaints() { previous_ = set(&ToolkitComplaints::hear, &text_); }
  ~ToolkitComplaints() { set(previous_, nullptr); }
  ToolkitComplaints(const ToolkitComplaints&) = delete;
  ToolkitComplaints& operator=(const ToolkitComplaints&) = delete;

  const std::string& text() const { return text_; }

 private:
  using Handler = void (*)(const char* domain, int level, const char* message, void* data);

  static Handler set(Handler handler, void* data) {
    return FromToolkitBelow<Handler(Handler, void*)>("g_log_set_default_handler")(handler, data);
  }
  static void hear(const char* domain, int level, const char* message, void* data) {
    constexpr int kErrorsToWarnings = 4 | 8 | 16;
    if ((level & kErrorsToWarnings) == 0) return;
    *static_cast<std::string*>(data) += std::string(domain ? domain : "") + ": " + message + "\n";
  }

  std::string text_;
  Handler previous_ = nullptr;
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
