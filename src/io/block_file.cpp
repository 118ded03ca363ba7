#include "io/block_file.h"

#include <algorithm>

#include "io/layout_file.h"
#include "io/line_tags.h"
#include "io/number_text.h"
#include "io/piece_reader.h"
#include "io/record_lines.h"
#include "io/text_file.h"
#include "io/xml_line.h"

namespace vantrel {
namespace {

void AppendSelectedPieces(std::string& out, const Layout& layout) {
  for (const Piece& piece : layout.pieces)
    if (piece.sel) AppendPieceLines(out, piece, 1);
}

void AppendSelectedScenery(std::string& out, const Layout& layout) {
  if (std::ranges::none_of(layout.scenery, &SceneryItem::sel)) return;
  out += "  <scenery>\n";
  for (const SceneryItem& item : layout.scenery)
    if (item.sel) AppendSceneryLine(out, item, false, 2);
  out += "  </scenery>\n";
}

// Height, slope, direction, colour and helix belong to the plan that the block was taken from.
Piece ReadBlockPiece(AttributeLine& line) {
  Piece piece = ReadPlacedPiece(line);
  piece.level = line.optionalInt("level", 1);
  return piece;
}

SceneryItem ReadBlockItem(AttributeLine& line) {
  SceneryItem item = ReadSceneryItem(line);
  item.sel = false;
  return item;
}

}  // namespace

std::string SaveBlockFile(const Layout& layout, const std::string& path, const std::string& name) {
  return WriteBlockFile(layout, path, name).what;
}

FileProblem WriteBlockFile(const Layout& layout, const std::string& path, const std::string& name) {
  if (std::ranges::none_of(layout.pieces, &Piece::sel) &&
      std::ranges::none_of(layout.scenery, &SceneryItem::sel))
    return {.what = "No pieces or scenery selected", .why = ""};
  std::string out = kXmlDeclaration;
  out += "<block";
  AppendAttribute(out, "name", name);
  AppendAttribute(out, "version", 1);
  out += ">\n";
  AppendSelectedPieces(out, layout);
  AppendSelectedScenery(out, layout);
  out += "</block>\n";
  return WriteTextFile(path, out);
}

// A line can match several tests; their order is part of the format.
void ReadBlockText(std::string_view text, const std::string& path, std::string& nameOut,
                   std::vector<Piece>& pieces, std::vector<SceneryItem>& scenery) {
  nameOut.clear();
  pieces.clear();
  scenery.clear();
  bool inScenery = false;
  LineCursor lines(text);
  try {
    std::string_view line;
    while (lines.next(line)) {
      const TagSet tags = TagsIn(line);
      if (tags.empty()) continue;
      AttributeLine attributes(line);
      if (tags.has(Tag::kBlock)) nameOut = attributes.text("name");
      if (tags.has(Tag::kScenery)) inScenery = true;
      if (tags.has(Tag::kSceneryEnd)) inScenery = false;
      if (inScenery && tags.has(Tag::kSceneryItem)) scenery.push_back(ReadBlockItem(attributes));
      if (tags.has(Tag::kPiece)) pieces.push_back(ReadBlockPiece(attributes));
      if (tags.has(Tag::kJoint) && !pieces.empty()) ReadJoint(attributes, pieces.back());
    }
  } catch (const BadNumber& problem) {
    throw MalformedFile(problem.what(), path, lines.number());
  }
}

std::string LoadBlockFile(const std::string& path, std::string& nameOut, std::vector<Piece>& pieces,
                          std::vector<SceneryItem>& scenery) {
  FileBytes bytes;
  std::string error = ReadTextFile(path, bytes);
  ReadBlockText(error.empty() ? bytes.text() : std::string_view(), path, nameOut, pieces, scenery);
  return error;
}

}  // namespace vantrel
