#include "app/services/locale.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <clocale>
#include <string>

namespace vantrel {
namespace {

// Puts locale and environment back.
class LocaleTest : public testing::Test {
 protected:
  LocaleTest()
      : ctype_(std::setlocale(LC_CTYPE, nullptr)),
        numeric_(std::setlocale(LC_NUMERIC, nullptr)),
        home_(getenv("HOME") ? getenv("HOME") : ""),
        all_(getenv("LC_ALL") ? getenv("LC_ALL") : "") {}
  ~LocaleTest() override {
    std::setlocale(LC_CTYPE, ctype_.c_str());
    std::setlocale(LC_NUMERIC, numeric_.c_str());
    setenv("HOME", home_.c_str(), 1);
    if (all_.empty())
      unsetenv("LC_ALL");
    else
      setenv("LC_ALL", all_.c_str(), 1);
  }

 private:
  std::string ctype_;
  std::string numeric_;
  std::string home_;
  std::string all_;
};

TEST_F(LocaleTest, KeepsNumbersIndependentOfTheUsersLocale) {
  std::setlocale(LC_NUMERIC, "C.UTF-8");
  SettleLocale();
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST_F(LocaleTest, ReadsAHomeFolderWithAccentsWhateverTheLocaleNames) {
  setenv("HOME", "/home/jürgen", 1);
  for (const char* locale : {"C", "POSIX", "C.UTF-8"}) {
    std::setlocale(LC_CTYPE, "C");
    setenv("LC_ALL", locale, 1);
    SettleLocale();
    EXPECT_EQ(wxGetHomeDir().utf8_string(), "/home/jürgen") << locale;
  }
}

}  // namespace
}  // namespace vantrel
