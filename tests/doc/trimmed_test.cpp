#include "doc/trimmed.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(TrimmedText, LosesTheBlanksOfBothEndsAndNoneBetween) {
  EXPECT_EQ(Trimmed(" \t\n North \t yard\v\f\r "), "North \t yard");
  EXPECT_EQ(Trimmed("  left"), "left");
  EXPECT_EQ(Trimmed("right "), "right");
  EXPECT_EQ(Trimmed(" \r\n"), "");
  EXPECT_EQ(Trimmed(""), "");
}

TEST(TrimmedText, LosesEveryBlankOfOtherScripts) {
  for (const char* blank :
       {"\u0085", "\u00a0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005",
        "\u2006", "\u2007", "\u2008", "\u2009", "\u200a", "\u202f", "\u205f", "\u3000"}) {
    EXPECT_EQ(Trimmed(std::string(blank) + "駅" + blank + blank), "駅") << blank;
    EXPECT_EQ(Trimmed(std::string(blank) + " "), "");
  }
}

// The letter's last byte is a no-break space's last, its first one's first.
TEST(TrimmedText, KeepsLettersThatShareBytesWithABlank) {
  EXPECT_EQ(Trimmed("\u00e0 la carte, voil\u00e0"), "\u00e0 la carte, voil\u00e0");
  EXPECT_EQ(Trimmed("\u200b"), "\u200b") << "of no width, and no blank";
  EXPECT_EQ(Trimmed("\xa0x\xc2"), "\xa0x\xc2") << "halves of a no-break space";
}

TEST(OneLineText, HasABlankForEachByteOfALineBreak) {
  EXPECT_EQ(OneLine("North\nyard"), "North yard");
  EXPECT_EQ(OneLine("North\r\nyard"), "North  yard");
  EXPECT_EQ(OneLine("\rNorth yard\n\n"), " North yard  ");
}

TEST(OneLineText, KeepsAllElse) {
  for (const char* text : {"", "North\tyard ", "Süd\u2028駅", "\v\f"})
    EXPECT_EQ(OneLine(text), text);
}

}  // namespace
}  // namespace vantrel
