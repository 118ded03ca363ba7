#include "frame/help_topics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "frame/commands.h"

namespace vantrel {
namespace {

const HelpTopic& Topic(const std::string& heading) {
  const auto found = std::ranges::find(HelpTopics(), heading, &HelpTopic::heading);
  EXPECT_NE(found, HelpTopics().end()) << heading;
  return *found;
}

std::string WholeBody(const HelpTopic& topic) {
  return topic.text + "\n" + topic.linkLead + "\n" + topic.textBehind;
}

std::string WholeManual() {
  std::string all;
  for (const HelpTopic& topic : HelpTopics()) all += WholeBody(topic) + "\n";
  for (const HelpShortcut& shortcut : HelpShortcuts())
    all += std::string(shortcut.keys) + "\n" + shortcut.action + "\n";
  return all;
}

// Behind the tab of a command's label; empty for a label without a shortcut.
std::string ShortcutOf(const Command& command) {
  const std::string label = command.label;
  const std::size_t tab = label.find('\t');
  return tab == std::string::npos ? std::string() : label.substr(tab + 1);
}

TEST(HelpTopics, StandInTheManualsOrder) {
  std::vector<std::string> headings;
  for (const HelpTopic& topic : HelpTopics()) headings.push_back(topic.heading);
  const std::vector<std::string> expected = {"Welcome to Vantrel v1.5",
                                             "Getting Started",
                                             "Canvas Navigation",
                                             "Track Selection",
                                             "Autofill Gap",
                                             "Library",
                                             "Moving Pieces",
                                             "Dragging from the Palette",
                                             "Rotating Pieces",
                                             "Elevation and Grades",
                                             "3D View",
                                             "Layout Shape",
                                             "Polygon Shapes",
                                             "Files (.vtl)",
                                             "Levels",
                                             "Measuring Tape",
                                             "Adding Labels",
                                             "Piece Tally",
                                             "Coloring Track",
                                             "Experience Settings",
                                             "Keyboard Shortcuts"};
  EXPECT_EQ(headings, expected);
}

TEST(HelpTopics, StateTheirRulesWordForWord) {
  const std::pair<const char*, const char*> rules[] = {
      {"Welcome to Vantrel v1.5",
       "lets you design and plan your Marklin and TRIX model railway layouts. Supported systems: "
       "Marklin and TRIX HO C-Track, Marklin HO K-Track, and Marklin Z Track."},
      {"Autofill Gap",
       "The context menu shows 'Autofill Gap...' only when exactly two pieces are selected."},
      {"Moving Pieces",
       "Connected pieces move together when all their neighbours are also selected."},
      {"Dragging from the Palette",
       "scroll the mouse wheel to rotate it in 30 degree steps (15 degree with Shift) before "
       "dropping"},
      {"Rotating Pieces",
       "The whole selection rotates as a rigid block around its centroid; each piece's heading "
       "spins in place and its position orbits the centroid."},
      {"Elevation and Grades",
       "Arch and truss bridges automatically end the grade chain and sit flat."},
      {"Polygon Shapes",
       "When a polygon contains a tunnel, its 3D rendering switches to wireframe so the tunnel "
       "remains visible."},
      {"Levels",
       "When you drop a new piece on empty canvas it lands on the highest currently visible level; "
       "when you join to an existing piece, the new piece inherits that piece's level."},
      {"Piece Tally", "Bridge pieces also count their included deck track pieces."}};
  for (const auto& [heading, rule] : rules)
    EXPECT_NE(WholeBody(Topic(heading)).find(rule), std::string::npos) << heading << "\n"
                                                                       << WholeBody(Topic(heading));
}

TEST(HelpTopics, LinkToTheMakerInTheWelcomeAndInTheTally) {
  EXPECT_EQ(Topic("Welcome to Vantrel v1.5").linkLead, "Vantrel by");
  EXPECT_FALSE(Topic("Piece Tally").text.empty()) << "the link stands inside the text";
  EXPECT_FALSE(Topic("Piece Tally").linkLead.empty());
  EXPECT_FALSE(Topic("Piece Tally").textBehind.empty());
  EXPECT_EQ(std::ranges::count_if(HelpTopics(),
                                  [](const HelpTopic& topic) { return !topic.linkLead.empty(); }),
            2);
}

TEST(HelpTopics, GettingStartedHasSevenNumberedSteps) {
  const std::string text = "\n\n" + Topic("Getting Started").text;
  std::size_t last = 0;
  for (int step = 1; step <= 7; ++step) {
    const std::size_t at = text.find("\n\n" + std::to_string(step) + ". ");
    ASSERT_NE(at, std::string::npos) << step;
    EXPECT_GE(at, last) << step;
    last = at;
  }
  EXPECT_EQ(text.find("\n\n8. "), std::string::npos);
}

TEST(HelpTopics, EachHasABody) {
  for (const HelpTopic& topic : HelpTopics())
    EXPECT_GT(WholeBody(topic).size(), 100u) << topic.heading;
}

TEST(HelpTopics, TellHowToPrint) {
  const std::string body = WholeBody(Topic("Files (.vtl)"));
  for (const char* words : {"Page Setup...", "Print...", "Print Preview...", "Print Options",
                            "Fit to page", "Actual scale 1 : N", "Custom percentage"})
    EXPECT_NE(body.find(words), std::string::npos) << words;
}

TEST(HelpTopics, TellOfThePrintersPreviewAndHowToCancelAPrint) {
  const std::string body = WholeBody(Topic("Files (.vtl)"));
  for (const char* words : {"Preview there shows the pages first", "Cancel button ends it"})
    EXPECT_NE(body.find(words), std::string::npos) << words;
}

// One word for one thing: a joint, a turnout, a grade. "Switches" is the name of a palette section.
TEST(HelpTopics, UseOneWordForOneThing) {
  const std::string manual = WholeManual();
  for (const char* other : {"Joins ", "no joins", "connection", "switch ", "slope", "incline",
                            "gradient", "colour", "grey"})
    EXPECT_EQ(manual.find(other), std::string::npos) << other;
}

TEST(HelpTopics, TellWhatEndGradeDoesToTheSelectedPiece) {
  EXPECT_NE(WholeBody(Topic("Elevation and Grades"))
                .find("select the piece and press End Grade: that piece is level"),
            std::string::npos);
}

// What someone who follows the manual word for word would otherwise stumble over.
TEST(HelpTopics, TellWhatTheWindowsThemselvesDoNotShow) {
  const std::pair<const char*, std::vector<const char*>> stumbling[] = {
      // The bumper is still selected when End Grade is pressed, and becomes level itself.
      {"Getting Started", {"the bumper, selected still,", "a file if the list offers one"}},
      // A choice that doesn't change tells the palette nothing.
      {"Library",
       {"come with the program", "shows all your track", "flat, without the heights and grades",
        "choose another track system and come back"}},
      // The bottom line itself speaks of a right-click.
      {"Elevation and Grades", {"A right-click doesn't end a grade."}},
      // All of these stand in the list of shapes; none is a button.
      {"Layout Shape",
       {"In the list of shapes", "Custom polygon", "Free-form, in the same list",
        "Clear, the last in the list", "Undo doesn't bring a table back."}},
      {"Polygon Shapes", {"Click it and press Del to remove it."}},
      {"Levels", {"A new level has height 0", "prints as Active level only"}},
      {"Coloring Track", {"A level's color comes back without its red"}}};
  for (const auto& [heading, parts] : stumbling)
    for (const char* words : parts)
      EXPECT_NE(WholeBody(Topic(heading)).find(words), std::string::npos)
          << heading << ": " << words;
}

TEST(HelpTopics, AreSetInParagraphsThatLeaveLineBreaksToTheWindow) {
  for (const HelpTopic& topic : HelpTopics())
    for (const std::string& text : {topic.text, topic.linkLead, topic.textBehind}) {
      if (text.empty()) continue;
      EXPECT_FALSE(text.starts_with('\n') || text.ends_with('\n')) << text;
      EXPECT_EQ(text.find("  "), std::string::npos) << text;
      EXPECT_EQ(text.find("\n\n\n"), std::string::npos) << text;
      EXPECT_EQ(text.find('&'), std::string::npos) << "a static text would swallow it: " << text;
      for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 2))
        EXPECT_EQ(text.substr(i, 2), "\n\n") << text.substr(i);
    }
}

TEST(HelpShortcuts, AreTheManualsList) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"Ctrl+Z / Ctrl+Y", "Undo / Redo"},
      {"Del", "Delete selected"},
      {"Ctrl+A", "Select all"},
      {"Ctrl+C / Ctrl+V", "Copy / Paste selection (track, scenery, polygons)"},
      {"Ctrl+S / O / N", "Save / Open / New"},
      {"Ctrl+0", "Zoom to fit"},
      {"+ / -", "Zoom in / out"},
      {"Middle-drag", "Pan canvas"},
      {"Left-drag", "Rubber band select (on empty area)"},
      {"Shift+click", "Range-select chain between two pieces"},
      {"Mouse wheel", "Zoom in / out"},
      {"Ctrl+wheel", "Rotate selection by 15 deg (Shift: 5 deg)"},
      {"Wheel (palette)", "Rotate piece being dragged (Shift: 15 deg)"},
      {"R (palette)", "Rotate piece being dragged by 30 deg"},
      {"Right-click", "Context menu (includes polygon Copy/Paste)"},
      {"Alt+drag", "Free rotate"},
      {"Alt+right-click", "Rotate 15 degrees"},
      {"Escape", "Deselect / cancel drag / cancel measurement"},
      {"F1", "This help screen"}};
  std::vector<std::pair<std::string, std::string>> listed;
  for (const HelpShortcut& shortcut : HelpShortcuts())
    listed.emplace_back(shortcut.keys, shortcut.action);
  EXPECT_EQ(listed, expected);
  for (const HelpTopic& topic : HelpTopics())
    EXPECT_EQ(topic.shortcuts, topic.heading == "Keyboard Shortcuts") << topic.heading;
}

// What the list calls by a key must be the command of that key.
TEST(HelpShortcuts, ThatAreCommandsAreInTheMenus) {
  const std::pair<int, const char*> listed[] = {
      {2002, "Ctrl+Z"}, {2003, "Ctrl+Y"}, {2004, "Del"},    {2005, "Ctrl+A"},
      {5003, "Ctrl+S"}, {5000, "Ctrl+O"}, {5002, "Ctrl+N"}, {2008, "Ctrl+0"},
      {2006, "+"},      {2007, "-"},      {2022, "F1"}};
  for (const auto& [id, keys] : listed) {
    const auto command = std::ranges::find(Commands(), id, &Command::id);
    ASSERT_NE(command, Commands().end()) << id;
    EXPECT_EQ(ShortcutOf(*command), keys) << id;
    EXPECT_TRUE(IsCommandAvailable(id)) << id;
  }
}

// Two lines of the list promise more than the keys do; the words below it say how it is.
TEST(HelpShortcuts, AreFollowedByTheTruthAboutTwoOfThem) {
  for (const Command& command : Commands()) {
    EXPECT_NE(ShortcutOf(command), "Ctrl+C");
    EXPECT_NE(ShortcutOf(command), "Ctrl+V");
  }
  const std::string& notes = Topic("Keyboard Shortcuts").textBehind;
  EXPECT_NE(notes.find("Copy and Paste are chosen from the right-click menu."), std::string::npos);
  EXPECT_NE(notes.find("Alt+right-click turns track by 30 degrees"), std::string::npos);
}

TEST(HelpTopics, TellOfTheDecimalComma) {
  EXPECT_NE(WholeBody(Topic("Elevation and Grades")).find("A comma is as good as a point"),
            std::string::npos);
}

// Whose desktop takes Alt with a drag finds another way.
TEST(HelpTopics, TellHowToTurnWithoutAlt) {
  const std::string body = WholeBody(Topic("Rotating Pieces"));
  EXPECT_NE(body.find("The keys [ and ] do the same"), std::string::npos) << body;
  EXPECT_NE(body.find("The Tools menu"), std::string::npos) << body;
  EXPECT_NE(Topic("Keyboard Shortcuts").textBehind.find("[ and ] rotate the selection"),
            std::string::npos);
}

TEST(HelpTopics, NameEveryShortcutOfTheMenus) {
  std::string manual = WholeManual();
  manual += "Ctrl+O Ctrl+N";  // written as "Ctrl+S / O / N"
  for (const Command& command : Commands()) {
    const std::string keys = ShortcutOf(command);
    if (keys.empty()) continue;
    EXPECT_NE(manual.find(keys), std::string::npos) << keys;
  }
}

}  // namespace
}  // namespace vantrel
