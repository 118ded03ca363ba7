#include "io/written_line.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace vantrel {
namespace {

// So many digits always fit: the mantissa of a real is exact below 2^53, about 9.007e15, and an
// integer below 2^31.
constexpr std::ptrdiff_t kRealDigits = 15;
constexpr std::ptrdiff_t kIntDigits = 9;

// Takes a line apart from the left. A step that doesn't fit spoils the rest; what the steps after
// it give means nothing.
class Taker {
 public:
  explicit Taker(std::string_view line) : at_(line.data()), end_(line.data() + line.size()) {}

  template <std::size_t N>
  bool takes(const char (&literal)[N]) {
    constexpr std::size_t kLength = N - 1;
    if (static_cast<std::size_t>(end_ - at_) < kLength || std::memcmp(at_, literal, kLength) != 0)
      return false;
    at_ += kLength;
    return true;
  }

  template <std::size_t N>
  void expect(const char (&literal)[N]) {
    if (!takes(literal)) fail();
  }

  std::int32_t integer() {
    const bool negative = takes("-");
    const char* const start = at_;
    std::int32_t value = 0;
    while (at_ != end_ && isDigit() && at_ - start < kIntDigits) value = value * 10 + digit();
    if (at_ == start) fail();
    return negative ? -value : value;
  }

  // A value with four digits behind the point. The mantissa and the power of ten are both exact, so
  // the quotient is the nearest double, as the long way gives it.
  double real() {
    const bool negative = takes("-");
    const char* const start = at_;
    std::int64_t mantissa = 0;
    while (at_ != end_ && isDigit() && at_ - start < kRealDigits - 4)
      mantissa = mantissa * 10 + digit();
    if (at_ == start) fail();
    expect(".");
    if (end_ - at_ < 4) {
      fail();
      return 0.0;
    }
    for (int i = 0; i < 4; ++i) {
      if (!isDigit()) fail();
      mantissa = mantissa * 10 + digit();
    }
    const double value = static_cast<double>(mantissa) / 1e4;
    return negative ? -value : value;
  }

  // Up to the closing quote. A text that could pass for a line or an attribute is refused.
  std::string_view text() {
    const char* const start = at_;
    while (at_ != end_ && *at_ != '"') {
      if (*at_ == '<' || *at_ == '=') fail();
      ++at_;
    }
    return {start, static_cast<std::size_t>(at_ - start)};
  }

  // True when every step did fit and nothing is left but a carriage return.
  bool done() {
    takes("\r");
    return fits_ && at_ == end_;
  }

 private:
  bool isDigit() const { return *at_ >= '0' && *at_ <= '9'; }
  int digit() { return *at_++ - '0'; }
  void fail() { fits_ = false; }

  const char* at_;
  const char* end_;
  bool fits_ = true;
};

}  // namespace

bool ReadWrittenPiece(std::string_view line, Piece& piece) {
  Taker take(line);
  take.expect("<piece id=\"");
  piece.id = take.integer();
  take.expect("\" cat=\"");
  piece.cat = take.text();
  take.expect("\" x=\"");
  piece.x = take.real();
  take.expect("\" y=\"");
  piece.y = take.real();
  take.expect("\" heading=\"");
  piece.heading = take.real();
  take.expect("\" z=\"");
  piece.z = take.real();
  take.expect("\" grade=\"");
  piece.grade = take.real();
  piece.rev = take.takes("\" rev=\"1");
  piece.free = take.takes("\" free=\"1");
  take.expect("\" level=\"");
  piece.level = take.integer();
  if (take.takes("\" helix=\"")) piece.helix = take.integer();
  piece.sel = take.takes("\" sel=\"1");
  if (!piece.sel) take.expect("\" sel=\"0");
  take.expect("\">");
  return take.done();
}

std::optional<WrittenJoint> ReadWrittenJoint(std::string_view line) {
  Taker take(line);
  WrittenJoint written;
  take.expect("<joint conn=\"");
  written.conn = take.integer();
  take.expect("\" target=\"");
  written.joint.target = take.integer();
  take.expect("\" tconn=\"");
  written.joint.tconn = take.integer();
  take.expect("\"/>");
  if (!take.done() || written.conn < 0) return std::nullopt;
  return written;
}

}  // namespace vantrel
