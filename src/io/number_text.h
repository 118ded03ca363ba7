// Numbers as layout files hold them, the same under every locale.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantrel {

// A text that is no number, or one beyond its type. what() is one of the four texts that
// MalformedFile carries on.
class BadNumber : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The whole number at the start of `text`, as std::stoi takes it: leading blanks and a sign are
// skipped and whatever follows the digits is ignored. Throws BadNumber.
std::int32_t IntFromText(std::string_view text);

// The real at the start of `text`, as std::stod takes it in the C locale: decimal, hexadecimal,
// "inf" and "nan" alike. Too large, and too small to be held with full precision, are both out of
// range. Throws BadNumber.
double RealFromText(std::string_view text);

void AppendInt(std::string& out, std::int32_t value);

// As "%.4f" prints it in the C locale, "-0.0000", "inf" and "-nan" included.
void AppendReal(std::string& out, double value);

}  // namespace vantrel
