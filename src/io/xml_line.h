// The pieces of one line of a layout file: attributes and their escapes on the way out, tags and
// attributes found by plain text search on the way in.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

// `text` with <, >, " and & replaced by their entities. Nothing else is: an apostrophe stays, and
// so does a line break, which the reader would take for the end of the line.
std::string XmlEscape(std::string_view text);

// One attribute with its leading blank: ` name="value"`. Texts are escaped, reals have four digits
// after the point.
std::string XmlAttribute(std::string_view name, std::string_view value);
std::string XmlAttribute(std::string_view name, std::int32_t value);
std::string XmlAttribute(std::string_view name, double value);

// The same, added to a line under way.
void AppendAttribute(std::string& out, std::string_view name, std::string_view value);
void AppendAttribute(std::string& out, std::string_view name, std::int32_t value);
void AppendAttribute(std::string& out, std::string_view name, double value);

// The raw text, entities and all, between the quotes after the first `name="` in the line; empty
// when there is none or the closing quote is missing. The first hit wins wherever it stands, also
// at the end of a longer name or inside another value.
std::string_view ReadAttribute(std::string_view line, std::string_view name);

// One line under search for several attributes: gives what ReadAttribute gives, without starting
// over for each name. The line's text must outlive it.
class AttributeLine {
 public:
  explicit AttributeLine(std::string_view line) : line_(line) {}

  std::string_view text(std::string_view name);

  // Throw BadNumber when the attribute is missing, empty or no number.
  std::int32_t requiredInt(std::string_view name);
  double requiredReal(std::string_view name);

  // The fallback stands for a missing or empty attribute. Throw BadNumber when it is no number.
  std::int32_t optionalInt(std::string_view name, std::int32_t fallback);
  double optionalReal(std::string_view name, double fallback);

  // True when the attribute is exactly "1".
  bool flag(std::string_view name) { return text(name) == "1"; }

 private:
  bool namedAt(std::size_t mark, std::string_view name) const;
  std::string_view valueAt(std::size_t mark) const;
  std::string_view textBeyondMarks(std::string_view name) const;

  std::string_view line_;
  // Where the first `="` of the line stand, as far as they have been looked for. The longest line
  // that the writer prints has 13 of them; beyond these a stranger line is searched text by text.
  std::array<std::size_t, 16> marks_;
  std::size_t count_ = 0;
  std::size_t scanned_ = 0;
};

}  // namespace vantrel
