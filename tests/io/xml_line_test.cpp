#include "io/xml_line.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "io/line_tags.h"

namespace vantrel {
namespace {

TEST(XmlLine, EscapesFourCharactersAndNoOthers) {
  EXPECT_EQ(XmlEscape("a<b>c\"d&e"), "a&lt;b&gt;c&quot;d&amp;e");
  EXPECT_EQ(XmlEscape("it's; \xC3\xBC\n\t"), "it's; \xC3\xBC\n\t");
  EXPECT_EQ(XmlEscape(""), "");
  EXPECT_EQ(XmlEscape("&&"), "&amp;&amp;");
  EXPECT_EQ(XmlEscape("&lt;"), "&amp;lt;");
}

TEST(XmlLine, WritesAnAttributeBehindOneBlank) {
  EXPECT_EQ(XmlAttribute("name", "A & B"), " name=\"A &amp; B\"");
  EXPECT_EQ(XmlAttribute("id", -3), " id=\"-3\"");
  EXPECT_EQ(XmlAttribute("x", 2400.0), " x=\"2400.0000\"");
}

TEST(XmlLine, ReadsTheRawTextBetweenTheQuotes) {
  EXPECT_EQ(ReadAttribute("<p a=\"1\" b=\"two words\">", "b"), "two words");
  EXPECT_EQ(ReadAttribute("<p a=\"\">", "a"), "");
  EXPECT_EQ(ReadAttribute("<p a=\"&amp;lt;\">", "a"), "&amp;lt;");
}

TEST(XmlLine, GivesNothingForAMissingOrOpenAttribute) {
  EXPECT_EQ(ReadAttribute("<p a=\"1\">", "b"), "");
  EXPECT_EQ(ReadAttribute("<p a=\"1", "a"), "");
  EXPECT_EQ(ReadAttribute("<p a = \"1\">", "a"), "");
  EXPECT_EQ(ReadAttribute("<p a='1'>", "a"), "");
  EXPECT_EQ(ReadAttribute("", "a"), "");
}

TEST(XmlLine, TakesTheFirstHitAlsoInsideALongerName) {
  EXPECT_EQ(ReadAttribute("<level trackcolor=\"1\" r=\"200\">", "r"), "1");
  EXPECT_EQ(ReadAttribute("<joint tconn=\"5\" conn=\"6\"/>", "conn"), "5");
}

TEST(XmlLine, TakesTheFirstHitAlsoInsideAnotherValue) {
  // The quote that closes `name` serves as the opening quote of `units`.
  EXPECT_EQ(ReadAttribute("<layout name=\"in units=\" version=\"1\" units=\"2\">", "units"),
            " version=");
}

std::string PlainSearch(const std::string& line, const std::string& name) {
  const std::size_t hit = line.find(name + "=\"");
  if (hit == std::string::npos) return "";
  const std::size_t start = hit + name.size() + 2;
  const std::size_t end = line.find('"', start);
  return end == std::string::npos ? "" : line.substr(start, end - start);
}

TEST(XmlLine, FindsWhatAPlainSearchFindsInAnyOrderOfAsking) {
  std::mt19937 random(11);
  const std::string_view alphabet = "ab=\"\" ";
  const std::vector<std::string> names = {"a", "b", "ab", "ba", "bab", "aa"};
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  std::uniform_int_distribution<std::size_t> name(0, names.size() - 1);
  std::uniform_int_distribution<int> length(0, 300);
  int found = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string line;
    for (int n = length(random); n > 0; --n) line += alphabet[letter(random)];
    AttributeLine attributes(line);
    for (int n = 0; n < 8; ++n) {
      const std::string& asked = names[name(random)];
      const std::string expected = PlainSearch(line, asked);
      ASSERT_EQ(attributes.text(asked), expected) << line << " / " << asked;
      found += expected.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(found, 20'000);
}

TEST(LineTags, FindsEachTagAnywhereInTheLine) {
  struct Row {
    const char* text;
    Tag tag;
  };
  const Row rows[] = {{"<layout ", Tag::kLayout},
                      {"</layout>", Tag::kLayoutEnd},
                      {"<block ", Tag::kBlock},
                      {"</block>", Tag::kBlockEnd},
                      {"<run ", Tag::kRun},
                      {"<pieces>", Tag::kPieces},
                      {"</pieces>", Tag::kPiecesEnd},
                      {"<piece ", Tag::kPiece},
                      {"<joint ", Tag::kJoint},
                      {"<levels ", Tag::kLevels},
                      {"</levels>", Tag::kLevelsEnd},
                      {"<level ", Tag::kLevel},
                      {"<pt ", Tag::kPt},
                      {"<scenery>", Tag::kScenery},
                      {"</scenery>", Tag::kSceneryEnd},
                      {"<sceneryitem ", Tag::kSceneryItem},
                      {"<baseboard>", Tag::kBaseboard},
                      {"</baseboard>", Tag::kBaseboardEnd},
                      {"<vertex ", Tag::kVertex},
                      {"<lastshape", Tag::kLastShape},
                      {"<label ", Tag::kLabel},
                      {"<shape ", Tag::kShape},
                      {"</shape", Tag::kShapeEnd},
                      {"<v ", Tag::kV},
                      {"<tunnel ", Tag::kTunnel},
                      {"<covers ", Tag::kCovers},
                      {"<helix ", Tag::kHelix}};
  for (const Row& row : rows) {
    const std::string tag = row.text;
    for (const std::string& line : {tag, "<" + tag, "<a" + tag, "x<<" + tag + "y"}) {
      const TagSet tags = TagsIn(line);
      for (const Row& other : rows)
        EXPECT_EQ(tags.has(other.tag), row.tag == other.tag) << line << " / " << other.text;
    }
    const std::string shortened(row.text, std::string_view(row.text).size() - 1);
    EXPECT_FALSE(TagsIn(shortened).has(row.tag)) << shortened;
    EXPECT_FALSE(TagsIn("<<<").has(row.tag));
  }
  EXPECT_TRUE(TagsIn("").empty());
  const TagSet both = TagsIn("<levels active=\"1\"><level id=\"2\"/>");
  EXPECT_TRUE(both.has(Tag::kLevels) && both.has(Tag::kLevel));
}

}  // namespace
}  // namespace vantrel
