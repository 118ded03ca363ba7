#include "io/piece_reader.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "io/written_line.h"
#include "tests/io/io_support.h"

namespace vantrel {
namespace {

using testing::Loaded;

TEST(PieceReader, OneSelectedPieceSelectsItsWholeHelix) {
  std::string file = "<pieces>\n";
  for (const char* rest : {"helix=\"3\" sel=\"0\"", "helix=\"3\" sel=\"1\"",
                           "helix=\"4\" sel=\"0\"", "sel=\"0\"", "helix=\"3\"", "sel=\"1\""})
    file += "<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\" " + std::string(rest) + ">\n";
  const Layout layout = Loaded(file + "</pieces>\n");
  std::string selected;
  for (const Piece& piece : layout.pieces) selected += piece.sel ? '1' : '0';
  EXPECT_EQ(selected, "110011") << "a selected piece of no helix selects nothing else";
}

TEST(PieceReader, APieceHasItsDefaultsForMissingAndEmptyAttributes) {
  const std::vector<Piece> expected = {{.id = 3, .cat = "24188", .x = 1, .y = 2, .heading = 3}};
  EXPECT_EQ(
      Loaded("<pieces>\n<piece id=\"3\" cat=\"24188\" x=\"1\" y=\"2\" heading=\"3\">\n").pieces,
      expected);
  EXPECT_EQ(
      Loaded(
          "<pieces>\n<piece id=\"3\" cat=\"24188\" x=\"1\" y=\"2\" heading=\"3\" z=\"\" grade=\"\" "
          "rev=\"\" free=\"\" level=\"\" helix=\"\" sel=\"\" color=\"\">\n")
          .pieces,
      expected);
}

TEST(PieceReader, AFlagIsSetByOneAlone) {
  const std::string piece = "<pieces>\n<piece id=\"3\" cat=\"a\" x=\"1\" y=\"2\" heading=\"3\" ";
  const Layout set = Loaded(piece + "rev=\"1\" free=\"1\" sel=\"1\">\n");
  EXPECT_TRUE(set.pieces[0].rev && set.pieces[0].free && set.pieces[0].sel);
  for (const char* value : {"0", "2", "01", " 1", "true"}) {
    const std::string v = value;
    const Piece read =
        Loaded(piece + "rev=\"" + v + "\" free=\"" + v + "\" sel=\"" + v + "\">\n").pieces[0];
    EXPECT_FALSE(read.rev || read.free || read.sel) << value;
  }
}

TEST(PieceReader, TakesThePieceColourByItsBits) {
  const auto colour = [](const std::string& value) {
    const Piece piece =
        Loaded("<pieces>\n<piece id=\"3\" cat=\"a\" x=\"1\" y=\"2\" heading=\"3\" color=\"" +
               value + "\">\n")
            .pieces[0];
    EXPECT_TRUE(piece.hasColor);
    return std::vector<int>{piece.colorR, piece.colorG, piece.colorB};
  };
  EXPECT_EQ(colour("66051"), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(colour("0"), (std::vector<int>{0, 0, 0}));
  EXPECT_EQ(colour("16777216"), (std::vector<int>{0, 0, 0}));  // bit 24 alone
  EXPECT_EQ(colour("-1"), (std::vector<int>{255, 255, 255}));
  EXPECT_EQ(colour("-65536"), (std::vector<int>{255, 0, 0}));  // 0xFFFF0000
}

TEST(PieceReader, JointSlotsOpenUpToTheOneThatIsNamed) {
  const Layout layout = Loaded(
      "<pieces>\n<joint conn=\"oops\"/>\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n"
      "<joint conn=\"2\" target=\"7\" tconn=\"1\"/>\n</piece>\n<joint conn=\"0\" target=\"8\" "
      "tconn=\"3\"/>\n"
      "<joint conn=\"2\" target=\"9\" tconn=\"0\"/>\n");
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].joints,
            (std::vector<Joint>{{.target = 8, .tconn = 3}, {}, {.target = 9, .tconn = 0}}))
      << "a later line overwrites, and one behind the end of its piece still goes to the last "
         "piece";
}

TEST(PieceReader, APieceWithAJointInSlot2AloneHasSlots0And1PresentAndOpen) {
  const Layout layout = Loaded(
      "<pieces>\n<piece id=\"1\" cat=\"24611\" x=\"0\" y=\"0\" heading=\"0\">\n"
      "<joint conn=\"2\" target=\"7\" tconn=\"1\"/>\n</piece>\n</pieces>\n");
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].joints,
            (std::vector<Joint>{{.target = -1, .tconn = -1}, {.target = -1, .tconn = -1}, {7, 1}}));
}

TEST(PieceReader, AJointWithoutConnTakesTheNumberOfItsFarEnd) {
  const Layout layout = Loaded(
      "<pieces>\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n<joint target=\"7\" "
      "tconn=\"1\"/>\n");
  EXPECT_EQ(layout.pieces[0].joints, (std::vector<Joint>{{}, {.target = 7, .tconn = 1}}));
}

TEST(PieceReader, ReadsPieceAndJointFromOneLine) {
  const Layout layout = Loaded(
      "<pieces>\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\"><joint conn=\"0\" "
      "target=\"2\" tconn=\"1\"/></piece>\n");
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].joints, (std::vector<Joint>{{.target = 2, .tconn = 1}}));
}

TEST(PieceReader, ThePiecesEndAtAnyOfThreeLinesAndThatLineIsConsumed) {
  const std::string piece = "<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">";
  for (const std::string end : {"</pieces>", "</block>", "</layout>"}) {
    const Layout layout =
        Loaded("<pieces>\n" + piece + "\n" + piece + " <label id=\"1\" x=\"1\" y=\"1\"/>" + end +
               "\n" + piece + "\n<label id=\"9\" x=\"1\" y=\"1\"/>\n");
    EXPECT_EQ(layout.pieces.size(), 1u) << end;
    ASSERT_EQ(layout.labels.size(), 1u) << end;
    EXPECT_EQ(layout.labels[0].id, 9) << end;
  }
}

TEST(PieceReader, InsideThePiecesNothingElseIsRead) {
  const Layout layout =
      Loaded("<pieces>\n<label id=\"9\" x=\"1\" y=\"1\"/>\n<layout units=\"2\">\n</pieces>\n");
  EXPECT_TRUE(layout.labels.empty());
  EXPECT_EQ(layout.units, 0);
}

TEST(PieceReader, TheLineThatOpensThePiecesStillCountsForTheTestsBehind) {
  const Layout layout = Loaded(
      "<pieces><label id=\"9\" x=\"1\" y=\"1\"/><piece id=\"5\">\n"
      "<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n</pieces>\n");
  EXPECT_EQ(layout.pieces.size(), 1u) << "the opening line itself holds no piece";
  EXPECT_EQ(layout.labels.size(), 1u);
}

// What becomes of one line among the pieces: what is wrong with it, or the plan that it gives.
std::string Outcome(const std::string& line) {
  const std::string file =
      "<pieces>\n<piece id=\"9\" cat=\"first\" x=\"1\" y=\"1\" heading=\"1\">\n" + line +
      "\n</pieces>\n";
  const std::string problem = testing::ProblemOf(file);
  return problem == "loads" ? testing::Saved(Loaded(file)) : problem;
}

// Lines exactly as the writer prints them are read a quicker way. A character before the tag keeps
// a line from it and changes nothing else.
TEST(PieceReader, ReadsLinesOfTheWriterAsItReadsAllOthers) {
  const std::vector<std::string> lines = {
      "    <piece id=\"1\" cat=\"24188\" x=\"100.0000\" y=\"-50.1234\" heading=\"0.0000\" "
      "z=\"-0.0000\" "
      "grade=\"2.5000\" level=\"1\" sel=\"0\">",
      "    <piece id=\"-7\" cat=\"a b\" x=\"0.0001\" y=\"99999999999.9999\" heading=\"359.9999\" "
      "z=\"3.0000\" "
      "grade=\"0.0000\" rev=\"1\" free=\"1\" level=\"-2\" helix=\"5\" sel=\"1\">",
      "    <piece id=\"1\" cat=\"24188\" x=\"1.0000\" y=\"2.0000\" heading=\"0.0000\" z=\"0.0000\" "
      "grade=\"0.0000\" free=\"1\" level=\"1\" sel=\"0\" color=\"66051\">",
      "      <joint conn=\"1\" target=\"22\" tconn=\"0\"/>",
      "      <joint conn=\"63\" target=\"-1\" tconn=\"-3\"/>",
  };
  std::mt19937 random(31);
  const std::string_view alphabet = "0123456789.-+=\"<> xidclj\r\t";
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  const auto place = [&](const std::string& text) {
    return std::uniform_int_distribution<std::size_t>(0, text.size() - 1)(random);
  };
  for (const std::string& original : lines) {
    ASSERT_EQ(Outcome(original), Outcome("!" + original)) << original;
    for (int i = 0; i < 1500; ++i) {
      std::string line = original;
      for (auto n = random() % 3; n < 3; ++n) {
        switch (random() % 3) {
          case 0:
            line[place(line)] = alphabet[letter(random)];
            break;
          case 1:
            line.erase(place(line), 1);
            break;
          default:
            line.insert(place(line), 1, alphabet[letter(random)]);
        }
      }
      ASSERT_EQ(Outcome(line), Outcome("!" + line)) << line;
    }
  }
}

// Two lines of the writer, and what makes them lines that the quicker way must not take as they
// stand.
const std::string kPieceLine =
    R"(    <piece id="1" cat="24188" x="1.0000" y="2.0000" heading="3.0000" z="4.0000" grade="5.0000" level="6" sel="0">)";
const std::string kJointLine = R"(      <joint conn="1" target="22" tconn="0"/>)";

struct LineChange {
  const std::string& line;
  const char* from;
  const char* to;
  const char* why;
};

const LineChange kLineChanges[] = {
    {kPieceLine, R"(id="1")", R"(id="2147483647")", "the largest number"},
    {kPieceLine, R"(id="1")", R"(id="2147483648")", "one too many"},
    {kPieceLine, R"(id="1")", R"(id="-2147483649")", "one too few"},
    {kPieceLine, R"(level="6")", R"(level="9999999999")", "ten digits"},
    {kPieceLine, R"(sel="0")", R"(helix="4294967299" sel="0")", "would be 3 in 32 bits"},
    {kJointLine, R"(conn="1")", R"(conn="4294967297")", "would be 1 in 32 bits"},
    {kJointLine, R"(target="22")", R"(target="2147483648")", "one too many"},
    {kJointLine, R"(conn="1")", R"(conn="64")", "no such connector"},
    {kJointLine, R"(conn="1")", R"(conn="-1")", "no such connector"},
    {kJointLine, R"(conn="1")", R"(conn="-0")", "still 0"},
    {kJointLine, R"( target)", R"( tconn="9" target)", "the first of two tells the far connector"},
    {kJointLine, R"(<joint conn)", R"(<joint tconn="5" conn)", "ends in the wanted name"},
    {kJointLine, R"("/>)", R"("/></pieces>)", "ends the pieces"},
    {kPieceLine, R"(x="1.0000")", R"(x="99999999999.9999")", "fifteen digits"},
    {kPieceLine, R"(x="1.0000")", R"(x="9007199254740993.0000")", "odd beyond 53 bits"},
    {kPieceLine, R"(x="1.0000")", R"(x="1.00001")", "five decimals"},
    {kPieceLine, R"(x="1.0000" y="2.0000" heading="3.0000" z="4.0000" grade="5.0000")",
     R"(x="1.00001" y="2.00001" heading="3.00001" z="4.00001" grade="5.00001")",
     "five decimals throughout"},
    {kPieceLine, R"(x="1.0000" y="2.0000" heading="3.0000" z="4.0000" grade="5.0000")",
     R"(x="1.001" y="2.001" heading="3.001" z="4.001" grade="5.001")", "three decimals throughout"},
    {kPieceLine, R"(x="1.0000")", R"(x="1.0000e2")", "an exponent"},
    {kPieceLine, R"(x="1.0000")", R"(x="-0.0000")", "minus zero"},
    {kPieceLine, R"(x="1.0000")", R"(x="")", "empty"},
    {kPieceLine, R"(x="1.0000")", R"(x="1.0000" x="7.0000")", "twice, the first counts"},
    {kPieceLine, R"(x="1.0000" y="2.0000")", R"(y="2.0000" x="1.0000")", "another order"},
    {kPieceLine, R"( y="2.0000")", R"(y="2.0000")", "no blank"},
    {kPieceLine, R"(cat="24188")", R"(maxx="8.0000" cat="24188")", "ends in the wanted name"},
    {kPieceLine, R"(cat="24188")", R"(cat=" y=")", "an attribute inside a value"},
    {kPieceLine, R"(cat="24188")", R"(cat="x=" y="8.0000")", "an attribute inside a value"},
    {kPieceLine, R"(cat="24188")", R"(cat="&lt;piece &amp;")", "entities stay"},
    {kPieceLine, R"(cat="24188")", R"(cat="</pieces>")", "ends the pieces"},
    {kPieceLine, R"(cat="24188")", R"(cat="<joint conn=)", "a second tag"},
    {kPieceLine, R"(sel="0")", R"(sel="0" sel="1")", "twice, the first counts"},
    {kPieceLine, R"(sel="0")", R"(sel="10")", "no flag"},
    {kPieceLine, R"(level="6")", R"(rev="0" level="6")", "a flag that the writer leaves out"},
    {kPieceLine, R"(level="6")", R"(free="1" rev="1" level="6")", "another order"},
    {kPieceLine, R"("0">)", R"("0"><joint conn="0" target="2" tconn="1"/>)", "a joint behind it"},
    {kPieceLine, R"("0">)", R"("0"> x="7.0000")", "an attribute behind it"},
    {kPieceLine, R"("0">)", "\"0\">\r", "a carriage return"},
};

std::string Changed(const LineChange& change) {
  std::string line = change.line;
  const std::size_t at = line.find(change.from);
  EXPECT_NE(at, std::string::npos) << change.from;
  return line.replace(at, std::string_view(change.from).size(), change.to);
}

TEST(PieceReader, ReadsLinesThatOnlyLookLikeTheWritersAsItReadsAllOthers) {
  for (const LineChange& change : kLineChanges) {
    const std::string line = Changed(change);
    EXPECT_EQ(Outcome(line), Outcome("!" + line)) << change.why << ": " << line;
  }
}

// Or else the lines would all go the long way, and nobody would notice but by the clock.
TEST(PieceReader, TheQuickerWayTakesTheWritersLines) {
  Piece piece;
  ASSERT_TRUE(ReadWrittenPiece(
      R"(<piece id="-7" cat="a b" x="0.0001" y="-99999999999.9999" heading="359.9000" z="30.1250" grade="-2.5000" level="2" sel="0">)",
      piece));
  EXPECT_EQ(piece, (Piece{.id = -7,
                          .cat = "a b",
                          .x = 0.0001,
                          .y = -99999999999.9999,
                          .heading = 359.9,
                          .z = 30.125,
                          .grade = -2.5,
                          .level = 2}));
  Piece dressed;
  ASSERT_TRUE(ReadWrittenPiece(
      "<piece id=\"123456789\" cat=\"\" x=\"1.0000\" y=\"2.0000\" heading=\"3.0000\" z=\"0.0000\" "
      "grade=\"0.0000\" rev=\"1\" free=\"1\" level=\"1\" helix=\"5\" sel=\"1\">\r",
      dressed));
  EXPECT_EQ(dressed, (Piece{.id = 123456789,
                            .x = 1,
                            .y = 2,
                            .heading = 3,
                            .sel = true,
                            .rev = true,
                            .helix = 5,
                            .free = true}));
  const auto joint = ReadWrittenJoint(R"(<joint conn="0" target="908" tconn="-1"/>)");
  ASSERT_TRUE(joint.has_value());
  EXPECT_EQ(joint->conn, 0);
  EXPECT_EQ(joint->joint, (Joint{.target = 908, .tconn = -1}));
}

TEST(PieceReader, RefusesAnIdBeyond32BitsInALineOfTheWriter) {
  const auto outcomeWithId = [](const char* id) {
    return Outcome(Changed({kPieceLine, "id=\"1", id, ""}));
  };
  EXPECT_NE(outcomeWithId("id=\"2147483647").find("<piece id=\"2147483647\""), std::string::npos);
  EXPECT_EQ(outcomeWithId("id=\"2147483648"), "3: stoi argument out of range");
  EXPECT_EQ(outcomeWithId("id=\"4294967297"), "3: stoi argument out of range");
}

TEST(PieceReader, AJointBeforeTheFirstPieceOfAListBelongsToNone) {
  const std::string joint = "      <joint conn=\"0\" target=\"2\" tconn=\"1\"/>\n";
  EXPECT_TRUE(Loaded("<pieces>\n" + joint + "</pieces>\n").pieces.empty());
  const Layout layout = Loaded(
      "<pieces>\n<piece id=\"1\" cat=\"a\" x=\"0\" y=\"0\" heading=\"0\">\n</pieces>\n"
      "<pieces>\n" +
      joint + "</pieces>\n");
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_TRUE(layout.pieces[0].joints.empty());
}

TEST(PieceReader, SearchesAlsoInFrontOfTheTag) {
  const Layout layout = Loaded(
      "<pieces>\nid=\"8\" <piece id=\"1\" cat=\"24188\" x=\"1.0000\" y=\"2.0000\" "
      "heading=\"0.0000\" "
      "z=\"0.0000\" grade=\"0.0000\" level=\"1\" sel=\"0\">\n");
  ASSERT_EQ(layout.pieces.size(), 1u);
  EXPECT_EQ(layout.pieces[0].id, 8);
}

TEST(PieceReader, ACatalogKeyThatLooksLikeATagOrAnAttributeConfusesIt) {
  const std::string rest =
      "\" x=\"1.0000\" y=\"2.0000\" heading=\"0.0000\" z=\"0.0000\" grade=\"0.0000\" "
      "level=\"1\" sel=\"0\">\n";
  EXPECT_EQ(testing::ProblemOf("<pieces>\n<piece id=\"1\" cat=\"a x=" + rest),
            "2: invalid stod argument");
  EXPECT_EQ(testing::ProblemOf("<pieces>\n<piece id=\"1\" cat=\"<joint " + rest),
            "2: invalid stoi argument");
}

}  // namespace
}  // namespace vantrel
