#include "doc/trimmed.h"

#include <algorithm>
#include <array>

namespace vantrel {
namespace {

constexpr std::array<std::string_view, 23> kBlanks = {
    " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00a0",
    "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006",
    "\u2007", "\u2008", "\u2009", "\u200a", "\u202f", "\u205f", "\u3000"};

// How many bytes at the front, or at the end, are one blank; 0 for none.
std::size_t BlankAtFront(std::string_view text) {
  for (const std::string_view blank : kBlanks)
    if (text.starts_with(blank)) return blank.size();
  return 0;
}

std::size_t BlankAtEnd(std::string_view text) {
  for (const std::string_view blank : kBlanks)
    if (text.ends_with(blank)) return blank.size();
  return 0;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
  while (const std::size_t size = BlankAtFront(text)) text.remove_prefix(size);
  while (const std::size_t size = BlankAtEnd(text)) text.remove_suffix(size);
  return text;
}

std::string OneLine(std::string_view name) {
  std::string line(name);
  std::ranges::replace_if(
      line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
  return line;
}

}  // namespace vantrel
