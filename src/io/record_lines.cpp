#include "io/record_lines.h"

#include "io/xml_line.h"

namespace vantrel {
namespace {

std::int32_t PackedColor(const Piece& piece) {
  return piece.colorR * 65536 + piece.colorG * 256 + piece.colorB;
}

void AppendJointLine(std::string& out, std::int32_t conn, const Joint& joint, int depth) {
  AppendIndent(out, depth);
  out += "<joint";
  AppendAttribute(out, "conn", conn);
  AppendAttribute(out, "target", joint.target);
  AppendAttribute(out, "tconn", joint.tconn);
  out += "/>\n";
}

}  // namespace

void AppendIndent(std::string& out, int depth) {
  out.append(static_cast<std::size_t>(depth) * 2, ' ');
}

void AppendPieceLines(std::string& out, const Piece& piece, int depth) {
  AppendIndent(out, depth);
  out += "<piece";
  AppendAttribute(out, "id", piece.id);
  AppendAttribute(out, "cat", piece.cat);
  AppendAttribute(out, "x", piece.x);
  AppendAttribute(out, "y", piece.y);
  AppendAttribute(out, "heading", piece.heading);
  AppendAttribute(out, "z", piece.z);
  AppendAttribute(out, "grade", piece.grade);
  if (piece.rev) AppendAttribute(out, "rev", 1);
  if (piece.free) AppendAttribute(out, "free", 1);
  AppendAttribute(out, "level", piece.level);
  if (piece.helix != kNone) AppendAttribute(out, "helix", piece.helix);
  AppendAttribute(out, "sel", piece.sel ? 1 : 0);
  if (piece.hasColor) AppendAttribute(out, "color", PackedColor(piece));
  out += ">\n";
  for (std::size_t i = 0; i < piece.joints.size(); ++i)
    if (!piece.joints[i].open())
      AppendJointLine(out, static_cast<std::int32_t>(i), piece.joints[i], depth + 1);
  AppendIndent(out, depth);
  out += "</piece>\n";
}

void AppendSceneryLine(std::string& out, const SceneryItem& item, bool sel, int depth) {
  AppendIndent(out, depth);
  out += "<sceneryitem";
  AppendAttribute(out, "id", item.id);
  AppendAttribute(out, "item", item.item);
  AppendAttribute(out, "x", item.x);
  AppendAttribute(out, "y", item.y);
  AppendAttribute(out, "heading", item.heading);
  AppendAttribute(out, "scalex", item.scalex);
  AppendAttribute(out, "scaley", item.scaley);
  AppendAttribute(out, "level", item.level);
  AppendAttribute(out, "sel", sel ? 1 : 0);
  out += "/>\n";
}

}  // namespace vantrel
