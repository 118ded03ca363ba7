#include "app/services/box_text.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

const wxString kBreak(wchar_t{0x200B});

wxString Letters(std::size_t count, const wxString& letter = "n") {
  wxString text;
  for (std::size_t i = 0; i < count; ++i) text += letter;
  return text;
}

TEST(BoxText, AnOrdinaryTextStaysAsItIs) {
  for (const wxString& text :
       {wxString(), wxString("Delete library block \"Yard\"?\n\nThis cannot be undone."),
        Letters(60), wxString("Cannot open file: /home/me/Vantrel/library/Yard.vtl")})
    EXPECT_EQ(BoxText(text), text);
}

// A line of a box is never narrower than its longest word.
TEST(BoxText, AWordCanBreakAfterEverySixtyLetters) {
  EXPECT_EQ(BoxText(Letters(61)), Letters(60) + kBreak + "n");
  EXPECT_EQ(BoxText("\"" + Letters(130) + "\"?"),
            "\"" + Letters(59) + kBreak + Letters(60) + kBreak + Letters(11) + "\"?");
}

TEST(BoxText, BlanksLineBreaksAndSlashesBeginAWord) {
  for (const char* between : {" ", "\n", "/"}) {
    const wxString text = Letters(45) + between + Letters(45) + between + Letters(45);
    EXPECT_EQ(BoxText(text), text) << between;
  }
}

TEST(BoxText, LettersAreCountedAndNotBytes) {
  const wxString umlauts = Letters(60, wxString::FromUTF8("ü"));
  EXPECT_EQ(BoxText(umlauts), umlauts);
}

TEST(BoxText, ATextHigherThanTheScreenLosesItsMiddle) {
  const wxString full = Letters(240, "word ");  // 1200 letters
  EXPECT_EQ(BoxText(full), full);
  const wxString tooLong = "Remove \"" + Letters(10000, "word ") + "\"? It can't come back.";
  const wxString shown = BoxText(tooLong);
  // 800 from the front, the dots, 400 from the end.
  EXPECT_EQ(shown.length(), 1201u);
  EXPECT_TRUE(shown.StartsWith("Remove \"word word"));
  EXPECT_EQ(shown[800], wxUniChar(0x2026));
  EXPECT_TRUE(shown.EndsWith("word \"? It can't come back."));
}

}  // namespace
}  // namespace vantrel
