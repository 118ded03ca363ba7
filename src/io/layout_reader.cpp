#include <unordered_set>

#include "doc/layout_ops.h"
#include "io/layout_file.h"
#include "io/layout_text.h"
#include "io/line_tags.h"
#include "io/number_text.h"
#include "io/piece_reader.h"
#include "io/text_file.h"
#include "io/xml_line.h"

namespace vantrel {
namespace {

// A load under way.
struct Reading {
  Layout& layout;
  std::string& name;
  LineCursor lines;
  HighestId highest;
  bool inLevels = false;
  bool inScenery = false;
  bool inBaseboard = false;
};

// What the file replaces whole. Grade runs pile up, and the baseboard waits for one in the file.
void EmptyRecords(Layout& layout) {
  layout.pieces.clear();
  layout.scenery.clear();
  layout.labels.clear();
  layout.shapes.clear();
  layout.tunnels.clear();
  layout.helices.clear();
  layout.levels.clear();
}

// Numbers beyond a byte wrap around.
std::uint8_t OptionalByte(AttributeLine& line, std::string_view name, std::uint8_t fallback) {
  return static_cast<std::uint8_t>(line.optionalInt(name, fallback));
}

Vec2 RequiredPoint(AttributeLine& line) {
  const double x = line.requiredReal("x");
  return {x, line.requiredReal("y")};
}

void ReadGradeRun(AttributeLine& line, Layout& layout) {
  GradeRun run;
  run.deg = line.requiredReal("deg");
  run.anchor = line.requiredInt("anchor");
  run.conn = line.requiredInt("conn");
  layout.gradeRuns.push_back(run);
}

void ReadLevel(AttributeLine& line, Layout& layout) {
  Level level;
  level.id = line.requiredInt("id");
  level.name = line.text("name");
  level.visible = line.text("visible") != "0";
  level.height = line.optionalReal("height", 0.0);
  level.trackcolor = line.flag("trackcolor");
  // The search for "r" finds the end of "trackcolor" first, where there is one: the red of a level
  // comes back as 0 or 1. Saved plans look the way they do because of it.
  level.r = OptionalByte(line, "r", 180);
  level.g = OptionalByte(line, "g", 180);
  level.b = OptionalByte(line, "b", 180);
  layout.levels.push_back(std::move(level));
}

void ReadLevelLines(Reading& reading, TagSet tags, AttributeLine& line) {
  Layout& layout = reading.layout;
  if (tags.has(Tag::kLevels)) {
    layout.activeLevel = line.optionalInt("active", 1);
    reading.inLevels = true;
  }
  if (tags.has(Tag::kLevelsEnd)) reading.inLevels = false;
  if (!reading.inLevels) return;
  if (tags.has(Tag::kLevel)) ReadLevel(line, layout);
  if (tags.has(Tag::kPt) && !layout.levels.empty())
    layout.levels.back().outline.push_back(RequiredPoint(line));
}

void ReadBaseboardLines(Reading& reading, TagSet tags, AttributeLine& line) {
  if (tags.has(Tag::kBaseboard)) {
    reading.inBaseboard = true;
    reading.layout.baseboard.clear();
  }
  if (tags.has(Tag::kBaseboardEnd)) reading.inBaseboard = false;
  if (reading.inBaseboard && tags.has(Tag::kVertex))
    reading.layout.baseboard.push_back(RequiredPoint(line));
}

void ReadLastShape(AttributeLine& line, LastShape& shape) {
  shape.id = line.optionalInt("id", shape.id);
  shape.w_mm = line.optionalReal("w_mm", shape.w_mm);
  shape.h_mm = line.optionalReal("h_mm", shape.h_mm);
  shape.w2_mm = line.optionalReal("w2_mm", shape.w2_mm);
  shape.h2_mm = line.optionalReal("h2_mm", shape.h2_mm);
}

void ReadSceneryLines(Reading& reading, TagSet tags, AttributeLine& line) {
  if (!reading.inScenery || !tags.has(Tag::kSceneryItem)) return;
  reading.layout.scenery.push_back(ReadSceneryItem(line));
  reading.highest.see(reading.layout.scenery.back().id);
}

void ReadLabel(Reading& reading, AttributeLine& line) {
  Label label;
  label.id = line.requiredInt("id");
  label.x = line.requiredReal("x");
  label.y = line.requiredReal("y");
  label.text = line.text("text");
  reading.highest.see(label.id);
  reading.layout.labels.push_back(std::move(label));
}

void ReadShape(Reading& reading, AttributeLine& line) {
  const std::string_view id = line.text("id");
  if (id.empty()) return;
  Shape shape;
  shape.id = IntFromText(id);
  shape.r = OptionalByte(line, "r", shape.r);
  shape.g = OptionalByte(line, "g", shape.g);
  shape.b = OptionalByte(line, "b", shape.b);
  shape.a = OptionalByte(line, "a", shape.a);
  if (!line.text("outline").empty()) shape.outline = line.flag("outline");
  shape.level = line.optionalInt("level", shape.level);
  shape.height = line.optionalReal("height", shape.height);
  shape.label = line.text("label");
  reading.highest.see(shape.id);
  reading.layout.shapes.push_back(std::move(shape));
}

void ReadShapeLines(Reading& reading, TagSet tags, AttributeLine& line) {
  if (tags.has(Tag::kShape) && !tags.has(Tag::kShapeEnd)) ReadShape(reading, line);
  if (!tags.has(Tag::kV) || reading.layout.shapes.empty()) return;
  if (line.text("x").empty() || line.text("y").empty()) return;
  reading.layout.shapes.back().vertices.push_back(RequiredPoint(line));
}

void ReadTunnelLines(Reading& reading, TagSet tags, AttributeLine& line) {
  std::vector<Tunnel>& tunnels = reading.layout.tunnels;
  if (tags.has(Tag::kTunnel)) {
    Tunnel tunnel;
    tunnel.id = line.requiredInt("id");
    tunnel.portalA = line.requiredInt("portalA");
    tunnel.portalB = line.requiredInt("portalB");
    tunnel.anchorA = line.optionalInt("anchorA", kNone);
    tunnel.anchorB = line.optionalInt("anchorB", kNone);
    reading.highest.see(tunnel.id);
    tunnels.push_back(std::move(tunnel));
  }
  if (tags.has(Tag::kCovers) && !tunnels.empty())
    tunnels.back().covers.push_back(line.requiredInt("piece"));
}

void ReadHelix(Reading& reading, AttributeLine& line) {
  Helix helix;
  helix.id = line.requiredInt("id");
  helix.cx = line.requiredReal("cx");
  helix.cy = line.requiredReal("cy");
  helix.heading = line.requiredReal("heading");
  // Plans from before there was a choice of kits name none; the record's default is the kit of
  // then.
  const std::string_view variant = line.text("variant");
  if (!variant.empty()) helix.variant = variant;
  helix.bottomR1 = line.requiredInt("bottomR1");
  helix.bottomR2 = line.requiredInt("bottomR2");
  helix.topR1 = line.requiredInt("topR1");
  helix.topR2 = line.requiredInt("topR2");
  reading.highest.see(helix.id);
  reading.layout.helices.push_back(std::move(helix));
}

// A line can match several tests; their order is part of the format.
void ReadLine(Reading& reading, std::string_view text) {
  const TagSet tags = TagsIn(text);
  if (tags.empty()) return;
  AttributeLine line(text);
  if (tags.has(Tag::kLayout)) {
    reading.name = line.text("name");
    reading.layout.units = line.optionalInt("units", kMillimetres);
  }
  if (tags.has(Tag::kRun)) ReadGradeRun(line, reading.layout);
  if (tags.has(Tag::kPieces)) ReadPieces(reading.lines, reading.layout.pieces, reading.highest);
  ReadLevelLines(reading, tags, line);
  if (tags.has(Tag::kScenery)) reading.inScenery = true;
  if (tags.has(Tag::kSceneryEnd)) reading.inScenery = false;
  ReadBaseboardLines(reading, tags, line);
  if (tags.has(Tag::kLastShape)) ReadLastShape(line, reading.layout.lastShape);
  ReadSceneryLines(reading, tags, line);
  if (tags.has(Tag::kLabel)) ReadLabel(reading, line);
  ReadShapeLines(reading, tags, line);
  ReadTunnelLines(reading, tags, line);
  if (tags.has(Tag::kHelix)) ReadHelix(reading, line);
}

// A helix is selected whole or not at all.
void SelectWholeHelices(Layout& layout) {
  std::unordered_set<std::int32_t> selected;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && piece.helix != kNone) selected.insert(piece.helix);
  if (selected.empty()) return;
  for (Piece& piece : layout.pieces)
    if (selected.contains(piece.helix)) piece.sel = true;
}

}  // namespace

void ReadLayoutText(Layout& layout, std::string_view text, const std::string& path,
                    std::string& nameOut) {
  EmptyRecords(layout);
  Reading reading{.layout = layout, .name = nameOut, .lines = LineCursor(text), .highest = {}};
  try {
    std::string_view line;
    while (reading.lines.next(line)) ReadLine(reading, line);
  } catch (const BadNumber& problem) {
    throw MalformedFile(problem.what(), path, reading.lines.number());
  }
  layout.nextId = reading.highest.next();
  EnsureDefaultLevel(layout);
  SyncCurrentGrade(layout);
  SelectWholeHelices(layout);
}

std::string LoadLayoutFile(Layout& layout, const std::string& path, std::string& nameOut) {
  FileBytes bytes;
  std::string error = ReadTextFile(path, bytes);
  if (error.empty()) ReadLayoutText(layout, bytes.text(), path, nameOut);
  return error;
}

}  // namespace vantrel
