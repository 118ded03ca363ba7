#include "io/xml_line.h"

#include "io/number_text.h"

namespace vantrel {
namespace {

constexpr std::string_view kMark = "=\"";

std::string_view EntityFor(char c) {
  switch (c) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return "&amp;";
  }
}

void AppendEscaped(std::string& out, std::string_view text) {
  while (true) {
    const std::size_t special = text.find_first_of("<>\"&");
    if (special == std::string_view::npos) break;
    out.append(text.substr(0, special));
    out.append(EntityFor(text[special]));
    text.remove_prefix(special + 1);
  }
  out.append(text);
}

void AppendOpening(std::string& out, std::string_view name) {
  out += ' ';
  out.append(name);
  out.append(kMark);
}

}  // namespace

std::string XmlEscape(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return escaped;
}

void AppendAttribute(std::string& out, std::string_view name, std::string_view value) {
  AppendOpening(out, name);
  AppendEscaped(out, value);
  out += '"';
}

void AppendAttribute(std::string& out, std::string_view name, std::int32_t value) {
  AppendOpening(out, name);
  AppendInt(out, value);
  out += '"';
}

void AppendAttribute(std::string& out, std::string_view name, double value) {
  AppendOpening(out, name);
  AppendReal(out, value);
  out += '"';
}

std::string XmlAttribute(std::string_view name, std::string_view value) {
  std::string attribute;
  AppendAttribute(attribute, name, value);
  return attribute;
}

std::string XmlAttribute(std::string_view name, std::int32_t value) {
  std::string attribute;
  AppendAttribute(attribute, name, value);
  return attribute;
}

std::string XmlAttribute(std::string_view name, double value) {
  std::string attribute;
  AppendAttribute(attribute, name, value);
  return attribute;
}

std::string_view ReadAttribute(std::string_view line, std::string_view name) {
  return AttributeLine(line).text(name);
}

bool AttributeLine::namedAt(std::size_t mark, std::string_view name) const {
  return mark >= name.size() && line_.substr(mark - name.size(), name.size()) == name;
}

std::string_view AttributeLine::valueAt(std::size_t mark) const {
  const std::size_t start = mark + kMark.size();
  const std::size_t end = line_.find('"', start);
  return end == std::string_view::npos ? std::string_view() : line_.substr(start, end - start);
}

std::string_view AttributeLine::text(std::string_view name) {
  for (std::size_t i = 0; i < count_; ++i)
    if (namedAt(marks_[i], name)) return valueAt(marks_[i]);
  while (count_ < marks_.size()) {
    const std::size_t mark = line_.find(kMark, scanned_);
    if (mark == std::string_view::npos) {
      scanned_ = line_.size();
      return {};
    }
    scanned_ = mark + kMark.size();
    marks_[count_++] = mark;
    if (namedAt(mark, name)) return valueAt(mark);
  }
  return textBeyondMarks(name);
}

std::string_view AttributeLine::textBeyondMarks(std::string_view name) const {
  std::string wanted(name);
  wanted += kMark;
  // No name holds a quote, so none begins before the last mark.
  const std::size_t hit = line_.find(wanted, scanned_);
  return hit == std::string_view::npos ? std::string_view() : valueAt(hit + name.size());
}

std::int32_t AttributeLine::requiredInt(std::string_view name) {
  return IntFromText(text(name));
}

double AttributeLine::requiredReal(std::string_view name) {
  return RealFromText(text(name));
}

std::int32_t AttributeLine::optionalInt(std::string_view name, std::int32_t fallback) {
  const std::string_view value = text(name);
  return value.empty() ? fallback : IntFromText(value);
}

double AttributeLine::optionalReal(std::string_view name, double fallback) {
  const std::string_view value = text(name);
  return value.empty() ? fallback : RealFromText(value);
}

}  // namespace vantrel
