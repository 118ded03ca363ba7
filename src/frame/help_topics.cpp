#include "frame/help_topics.h"

#include <string_view>

namespace vantrel {
namespace {

// The texts below are broken into lines as the source needs it: a single line end is a blank, and
// the ones around a text are none of it.
std::string Flow(std::string_view text) {
  while (text.starts_with('\n')) text.remove_prefix(1);
  while (text.ends_with('\n')) text.remove_suffix(1);
  std::string flown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\n') {
      flown += text[i];
    } else if (text.substr(i).starts_with("\n\n")) {
      flown += "\n\n";
      ++i;
    } else {
      flown += ' ';
    }
  }
  return flown;
}

constexpr std::string_view kWelcome = R"text(
lets you design and plan your Marklin and TRIX model railway layouts. Supported systems: Marklin
and TRIX HO C-Track, Marklin HO K-Track, and Marklin Z Track.

The window has three parts. On the left is the palette, with everything you can lay: track, saved
blocks, scenery and signals. In the middle is the canvas, your plan seen from above. On the right
you see what is selected, change it, and read what your plan needs. The line at the bottom tells
how to go on while a tool is in use or a part hangs at the pointer, the number of pieces, and where
the pointer is.

Try things freely: Ctrl+Z takes back nearly everything, one step at a time, and Ctrl+Y brings it
back.
)text";

constexpr std::string_view kGettingStarted = R"text(
These seven steps lay a first plan: a double oval with a siding that climbs, saved and printed.
Any other plan goes the same way.

1. Choose your track system in the list at the top left. These steps use Marklin C-Track, which is
chosen when the program starts.

2. Lay the inner oval. On the palette's Track page press on the straight 24188, pull it onto the
canvas and let go: it hangs at the pointer. Click where it should lie, for this plan at about 600
mm, 300 mm; the bottom right corner tells where the pointer is. The piece is selected now, and a
double click on a part in the palette adds that part to its free end and selects the new piece in
turn. So double-click 24188 once, the curve 24130 six times, 24188 twice, and 24130 six times
more.

3. Close the ring. A dot at an end is green where two pieces are joined and orange where the end
is open, and where the ring closes it is still orange. Drag the last curve a little way off, just
until a yellow spot shows, and let go: it snaps back into place, and both its ends turn green.

4. Lay the outer oval around it. From the section Switches pull the left turnout 24611 onto the
canvas and click 77.5 mm above the point where the inner oval's first straight begins, here at
about 600 mm, 222 mm; the second number grows downwards. Then double-click 24188 once, the curve
24230 six times, 24188 twice, and 24230 six times more, and close this ring as you closed the
first.

5. Lay the siding on a grade. Click the turnout and double-click the curve 24224: it goes to the
branch, the one open end left. On the right, under Set Grade, leave UP chosen, set 2 deg, and
press Start Grade. Double-click 24188 three times, then the bumper 24977 in the section Other:
each new piece climbs on from the one before. End Grade stops the climb; the bumper, selected still,
lies level.

6. Give the plan a table and look at it. Choose Layout, Layout Shape..., and Apply the rectangle
it offers. Ctrl+0 brings everything into view, and the 3D View button shows your railway as a
model.

7. Save and print. Ctrl+S asks for a name the first time. File, Print Preview... shows the page.
File, Print... (Ctrl+P) asks how: keep Fit to page, press OK, and choose your printer, or a file
if the list offers one. "Files (.vtl)" below tells more about both.
)text";

constexpr std::string_view kNavigation = R"text(
Pan: drag with the middle mouse button. Without one, hold Ctrl and drag with the left button on
empty canvas, or hold Space and drag.

Zoom: turn the mouse wheel; the point under the pointer stays where it is. + and - zoom about the
middle of the canvas.

Fit: Ctrl+0 or the Fit button brings the whole plan into view.

Rubber band: a drag with the left button over empty canvas selects what the frame touches.

The rulers follow the units, which you choose under Layout, Units of Measure. The View menu turns
the grid (Ctrl+G) and the snapping of track ends (Ctrl+Shift+G) on and off. The Hide Labels button
takes part numbers and dots away, for a plain look at the track.
)text";

constexpr std::string_view kSelection = R"text(
Click a piece to select it; selected track is blue. On the right you see what it is. Where pieces
lie above one another, the click takes the one on the higher level.

Ctrl+A selects all track and scenery.

Shift+click selects a chain: with one piece selected, Shift+click another, and all the pieces on
the shortest way between the two are selected.

Ctrl+click adds a piece to the selection or takes it out; for scenery it is Shift+click. A click
and a Ctrl+click give you the pair of pieces that Autofill Gap needs.

Rubber band: drag over empty canvas. Track is taken when the frame touches its centre line,
scenery when its middle lies inside.

Escape, or a click on empty canvas, deselects. Del deletes what is selected.
)text";

constexpr std::string_view kAutofill = R"text(
When a straight gap is left between two ends of track, the program finds the pieces that fill it.

Click one piece, Ctrl+click the other, then right-click one of them and choose Autofill Gap... The
context menu shows 'Autofill Gap...' only when exactly two pieces are selected.

Up to twelve ways to fill the gap are listed, those with the fewest pieces first, each with its
total length. Choose one and press Place: the pieces are laid and joined at both ends, at the
height of the piece that was laid first.

Both pieces must be of the same track system, with open ends that face each other in one straight
line. Only straights are used, and the sum may be off by at most 1.5 mm. A gap that bends has to
be laid by hand.
)text";

constexpr std::string_view kLibrary = R"text(
A block is a part of a plan kept for use in others: a station throat, a loop, a yard.

The palette's Library page lists the blocks of the chosen track system; a few to try come with the
program. Double-click one, and it is placed with its upper left corner at x 0, y 0, and the view
shows all your track. Select it with a rubber band and drag it to where it belongs. A block comes
back flat, without the heights and grades it had. Right-click a block and choose Delete... to remove
its file.

To save one, select the pieces and choose File, Save as Library Block... The block is written into
the folder "library" beside the program, into the folder of the track system, with the ending
.xml. The page lists the files that end in .vtl: rename the new file so, choose another track
system and come back, and it is there.
)text";

constexpr std::string_view kMoving = R"text(
Press on a piece and drag it. If it belongs to a selection, the whole selection moves as one
block. Connected pieces move together when all their neighbours are also selected. Joints between
the selection and the rest of the track come apart.

When an open end of what you move comes within 25 mm of another open end, a yellow spot marks it.
Let go there and the block snaps on, turns to fit, and every other end that now meets one is
joined as well: that is how rings close. While Snap in the View menu is off, nothing snaps.

To add track to track: double-click a piece on the canvas, and one more of its kind is joined to
its free end. Double-click a part in the palette, and it is joined to the selected piece, of
several to the one laid last. The view follows where the new end would be out of sight.

To copy: right-click a selected piece and choose Copy, then right-click empty canvas and choose
Paste, as often as you like; the copy lands where you clicked. A left click on empty canvas
forgets what was copied.

The program asks before it deletes track on a grade, and before it moves some until you have said
Yes once. A helix moves only as a whole, and track in a tunnel only once the tunnel is removed.
)text";

constexpr std::string_view kPalette = R"text(
Press on a part, pull it onto the canvas and let go: it hangs at the pointer until you click to
set it down. On the way, scroll the mouse wheel to rotate it in 30 degree steps (15 degree with
Shift) before dropping. R and the right button turn it by 30 degrees too. Escape gives it up.

Near an open end a yellow spot shows where the piece will join, and a click lays it there,
whatever its angle was. Ends of different track systems don't snap together; only the adapter
24922 leads from C-Track to K-Track. A turntable brings its first six spokes, a ramp sold in pairs
its partner.

Scenery and signals: double-click or drag a line of the list, click to set it down. R and the
right button turn it by 15 degrees. Drag it to move it, double-click it to change its size; a
platform that is selected also has handles at its edges. Z-Track has signals of its own and no
scenery.
)text";

constexpr std::string_view kRotating = R"text(
Select what you want to turn.

Alt+drag turns it freely and shows the angle, which catches at 0, 90, 180 and 270 degrees. The
whole selection rotates as a rigid block around its centroid; each piece's heading spins in place
and its position orbits the centroid.

Ctrl+wheel turns it about its middle, 15 degrees at each step, or 5 with Shift. The keys [ and ]
do the same, to the left and to the right, and with Shift by one degree: use them where your
desktop keeps Alt with a drag for moving windows. The Tools menu has these four turns as well.
Labels, measuring tapes and polygons stay as they are; where nothing else is selected, the keys and
the menu say so.

Alt+right-click turns it about its first piece: 30 degrees for track, platforms and signals, 15
for other scenery.

Turning makes no joints and breaks none. To join what you have turned, drag it near an open end.
)text";

constexpr std::string_view kGrades = R"text(
Select the piece where the climb begins. On the right, under Set Grade, choose UP or DOWN, set the
degrees, and press Start Grade. From then on each piece you join to that one, and to those that
follow, climbs on, and the bottom line shows the grade in force. Where the track should run level
again, select the piece and press End Grade: that piece is level, and so is what you join to it. A
right-click doesn't end a grade.

One degree is a rise of about 17 mm on each metre. Most trains manage 2 degrees (3.5 %). The
program offers up to 6 and warns in red beside a steeper piece. Arch and truss bridges
automatically end the grade chain and sit flat. Ramps carry the climb on.

You can also type a height for the selected piece and press Enter. A comma is as good as a point in
every number, and a field that was given none turns red and keeps the one it had. To carry it on,
select the piece that follows and press Recalc: it takes its height from the piece before, and the
level track behind it goes along.

A helix climbs in rings. C-Track's palette lists helix kits below the bridges: drag one onto the
canvas, click to set it down, and join track to its four ends. Click any of its ends to select and
move it as a whole.
)text";

constexpr std::string_view k3DView = R"text(
The 3D View button opens a window that shows your plan as a model, with grades, bridges on piers,
tunnels and scenery. It follows every change you make, so leave it open beside the plan.

Drag with the left button to turn the model, with the right button to move it. The mouse wheel
zooms. R brings the first view back and keeps the zoom. Levels that are hidden don't show. The keys
of the menus work in this window too: Ctrl+S saves, Ctrl+Z takes a step back.
)text";

constexpr std::string_view kLayoutShape = R"text(
Layout, Layout Shape... draws the table your railway stands on. In the list of shapes choose a
rectangle, an L, a U or a T and type its measures, or choose Custom polygon and type the corners of
any other outline, one "x,y" in each line. The upper left corner of the four shapes is at x 0, y 0.
Press Apply.

Free-form, in the same list, lets you draw the table yourself: after Apply click the corners on the
canvas. Click the first corner again, or press Enter, to close the outline. Backspace takes the last
corner back, and Escape gives up. Clear, the last in the list, removes the table when you press
Apply. Undo doesn't bring a table back.
)text";

constexpr std::string_view kPolygons = R"text(
The Polygon button draws areas: access hatches, rivers, mountains. Click the corners one after the
other, and click the first one again, or press Enter, to close. Backspace takes the last corner
back, and Escape gives up.

Drag an area to move it. Double-click it to give it a name, a color, an opacity and a height above
its level; with a height it stands up in the 3D view. Right-click it to copy it. Click it and press
Del to remove it.

Tunnels: select a chain of joined pieces, by a click on its one end and a Shift+click on the
other, and press the Tunnel button. A portal is set at each end. The track inside can't be moved
or deleted until you select the same pieces again and press Remove Tunnel. When a polygon contains
a tunnel, its 3D rendering switches to wireframe so the tunnel remains visible.
)text";

constexpr std::string_view kFiles = R"text(
Plans have names and live together in the program's own folder, each in a file that ends in .vtl;
you never have to look for them.

Ctrl+S saves, and asks for a name the first time. File, Save As... (Ctrl+Shift+S) saves under
another name. File, Open Layout... (Ctrl+O) lists your plans, and its Delete... button removes one
for good. New Layout (Ctrl+N) and Close Layout (Ctrl+W) both begin anew. When there are changes
you haven't saved, the program asks first; a star in the title bar tells that there are some. A
save that fails says why: a full disk, a folder that isn't there. A few names could not be read back
from the file, such as one that ends in units=: the first save asks whether you want another.

File, Import Layout... takes a plan from another folder into yours, and File, Export Layout...
copies one out as it was last saved, to send it to a friend or to keep it safe.

Printing: File, Page Setup... chooses paper and orientation. File, Print... (Ctrl+P) opens Print
Options. Fit to page puts the plan on one sheet. Actual scale 1 : N prints it N times smaller than
it is, on as many sheets as that takes, which meet edge to edge; 1 : 1 gives a template to lay
your track on. Custom percentage makes the fitted plan larger or smaller. Choose whether to print
the active level only or all levels, in color or grayscale, with or without the grid and the
baseboard outline. After OK you choose the printer; Preview there shows the pages first, on the
paper chosen there, and its Print button goes on. A print of six sheets or more tells which one it
is at, and its Cancel button ends it: no sheet is printed and no file written. File, Print
Preview... shows the pages as you last set the options.
)text";

constexpr std::string_view kLevels = R"text(
Levels are the decks of your railway: a hidden yard, the main line, a branch in the hills. The
Levels button opens their list.

Add Level adds one. Double-click a level to change its name, its height off the ground, and a
color for its track. A new level has height 0, so give it one of its own: of levels at the same
height the first in the list takes your new pieces. Untick a level to hide it: what lies on it is
neither shown nor clicked. A click on a level makes it the active one, shown in bold: the one that
Print Options prints as Active level only. Remove Level deletes the level with all its track and
scenery; Undo has no step for that, so save first.

When you drop a new piece on empty canvas it lands on the highest currently visible level; when
you join to an existing piece, the new piece inherits that piece's level. To move track to another
level, select it and choose the level on the right. Level track takes the level's height, track on
a grade keeps its own.
)text";

constexpr std::string_view kMeasuring = R"text(
Press the Measure button and click two points. The distance stays on the plan as a dimension line,
in the units you chose. Escape gives up before the second click.

Drag a dimension line to move it. Click it and press Del to remove it.
)text";

constexpr std::string_view kLabels = R"text(
Hold Ctrl and click the spot on empty canvas where the text should stand. Then type the text under
Add Label at the top right and press Enter or OK. Without that click the label is put at x 0, y 0.

Drag a label to move it. Click it and press Del to remove it.
)text";

constexpr std::string_view kTally = R"text(
The list at the lower right counts every part your plan needs, and is up to date after each
change. Bridge pieces also count their included deck track pieces. Below, We Recommend names the
motors and decoders that suit your turnouts.

Buy Track opens your browser with a shopping cart that holds all of it,
)text";

constexpr std::string_view kTallyBehind = R"text(
for you to review and order. You are told beforehand which parts the store doesn't have. The
button with the question mark explains it once more.
)text";

constexpr std::string_view kColoring = R"text(
Select track, choose a color on the right, and press Apply. The selection is lifted, so that you
see the color at once. Default takes the color away again.

A whole level can have a color too: press Levels and double-click the level. A piece's own color
wins over that of its level. A level's color comes back without its red when the plan is opened
again; a piece's own color stays as it was.

Track that stands above the table is drawn by its height, from gray through yellow to brown,
whatever color it was given.
)text";

constexpr std::string_view kExperience = R"text(
The first time the program starts it asks how it should greet you. Keep it Playful shows pictures:
a greeting at the start, one beside this help, and one where Buy Track is explained. Down to
Business leaves them out.

You can change your mind with Help, Options... A window that is opened after that follows your
choice, the greeting at the next start. Closing the question without an answer means Down to
Business.
)text";

constexpr std::string_view kShortcutNotes = R"text(
[ and ] rotate the selection by 15 degrees, with Shift by one.

Copy and Paste are chosen from the right-click menu. Alt+right-click turns track by 30 degrees and
most scenery by 15.
)text";

constexpr HelpShortcut kShortcuts[] = {
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
    {"F1", "This help screen"},
};

HelpTopic Plain(const char* heading, std::string_view text) {
  return {.heading = heading, .text = Flow(text)};
}

std::vector<HelpTopic> MakeTopics() {
  return {
      {.heading = "Welcome to Vantrel v1.5",
       .linkLead = "Vantrel by",
       .textBehind = Flow(kWelcome)},
      Plain("Getting Started", kGettingStarted),
      Plain("Canvas Navigation", kNavigation),
      Plain("Track Selection", kSelection),
      Plain("Autofill Gap", kAutofill),
      Plain("Library", kLibrary),
      Plain("Moving Pieces", kMoving),
      Plain("Dragging from the Palette", kPalette),
      Plain("Rotating Pieces", kRotating),
      Plain("Elevation and Grades", kGrades),
      Plain("3D View", k3DView),
      Plain("Layout Shape", kLayoutShape),
      Plain("Polygon Shapes", kPolygons),
      Plain("Files (.vtl)", kFiles),
      Plain("Levels", kLevels),
      Plain("Measuring Tape", kMeasuring),
      Plain("Adding Labels", kLabels),
      {.heading = "Piece Tally",
       .text = Flow(kTally),
       .linkLead = "in the online store of",
       .textBehind = Flow(kTallyBehind)},
      Plain("Coloring Track", kColoring),
      Plain("Experience Settings", kExperience),
      {.heading = "Keyboard Shortcuts", .shortcuts = true, .textBehind = Flow(kShortcutNotes)},
  };
}

}  // namespace

const std::vector<HelpTopic>& HelpTopics() {
  static const std::vector<HelpTopic> topics = MakeTopics();
  return topics;
}

std::span<const HelpShortcut> HelpShortcuts() {
  return kShortcuts;
}

}  // namespace vantrel
