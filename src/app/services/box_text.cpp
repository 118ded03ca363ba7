#include "app/services/box_text.h"

#include <cstddef>

namespace vantrel {
namespace {

// A line of a box takes about 60 letters, a screen about 25 lines of them.
constexpr std::size_t kLongestWord = 60;
constexpr std::size_t kMostLetters = 1200;
constexpr std::size_t kLettersAtEnd = 400;

const wxUniChar kPlaceToBreak(0x200B);
const wxUniChar kDots(0x2026);

wxString WithoutMiddle(const wxString& text) {
  if (text.length() <= kMostLetters) return text;
  return text.Left(kMostLetters - kLettersAtEnd) + kDots + text.Right(kLettersAtEnd);
}

// Paths are broken at their slashes anyway.
bool EndsWord(wxUniChar letter) {
  return letter == ' ' || letter == '\n' || letter == '/';
}

}  // namespace

wxString BoxText(const wxString& text) {
  wxString result;
  std::size_t wordLength = 0;
  for (const wxUniChar letter : WithoutMiddle(text)) {
    if (EndsWord(letter)) {
      wordLength = 0;
    } else if (++wordLength > kLongestWord) {
      result += kPlaceToBreak;
      wordLength = 1;
    }
    result += letter;
  }
  return result;
}

}  // namespace vantrel
