#include "io/layout_file.h"
#include "io/layout_text.h"
#include "io/record_lines.h"
#include "io/text_file.h"
#include "io/xml_line.h"

namespace vantrel {
namespace {

// With fewer points a level has no outline, and none is stored.
constexpr std::size_t kLeastOutline = 3;

// About what a piece and its two joints take, in bytes.
constexpr std::size_t kBytesPerPiece = 256;

// A line that opens an element or closes it.
void AppendTagLine(std::string& out, int depth, const char* tag) {
  AppendIndent(out, depth);
  out += tag;
  out += '\n';
}

void AppendPointLine(std::string& out, int depth, const char* opening, Vec2 point) {
  AppendIndent(out, depth);
  out += opening;
  AppendAttribute(out, "x", point.x);
  AppendAttribute(out, "y", point.y);
  out += "/>\n";
}

void AppendGradeRuns(std::string& out, const Layout& layout) {
  if (layout.gradeRuns.empty()) return;
  AppendTagLine(out, 1, "<grade_runs>");
  for (const GradeRun& run : layout.gradeRuns) {
    out += "    <run";
    AppendAttribute(out, "deg", run.deg);
    AppendAttribute(out, "anchor", run.anchor);
    AppendAttribute(out, "conn", run.conn);
    out += "/>\n";
  }
  AppendTagLine(out, 1, "</grade_runs>");
}

void AppendPieces(std::string& out, const Layout& layout) {
  AppendTagLine(out, 1, "<pieces>");
  for (const Piece& piece : layout.pieces) AppendPieceLines(out, piece, 2);
  AppendTagLine(out, 1, "</pieces>");
}

void AppendScenery(std::string& out, const Layout& layout) {
  if (layout.scenery.empty()) return;
  AppendTagLine(out, 1, "<scenery>");
  for (const SceneryItem& item : layout.scenery) AppendSceneryLine(out, item, item.sel, 2);
  AppendTagLine(out, 1, "</scenery>");
}

void AppendLevel(std::string& out, const Level& level) {
  out += "    <level";
  AppendAttribute(out, "id", level.id);
  AppendAttribute(out, "name", level.name);
  AppendAttribute(out, "visible", level.visible ? 1 : 0);
  AppendAttribute(out, "height", level.height);
  AppendAttribute(out, "trackcolor", level.trackcolor ? 1 : 0);
  AppendAttribute(out, "r", level.r);
  AppendAttribute(out, "g", level.g);
  AppendAttribute(out, "b", level.b);
  if (level.outline.size() < kLeastOutline) {
    out += "/>\n";
    return;
  }
  out += ">\n";
  for (const Vec2& point : level.outline) AppendPointLine(out, 3, "<pt", point);
  AppendTagLine(out, 2, "</level>");
}

void AppendLevels(std::string& out, const Layout& layout) {
  if (layout.levels.empty()) return;
  out += "  <levels";
  AppendAttribute(out, "active", layout.activeLevel);
  out += ">\n";
  for (const Level& level : layout.levels) AppendLevel(out, level);
  AppendTagLine(out, 1, "</levels>");
}

void AppendBaseboard(std::string& out, const Layout& layout) {
  if (layout.baseboard.empty()) return;
  AppendTagLine(out, 1, "<baseboard>");
  for (const Vec2& point : layout.baseboard) AppendPointLine(out, 2, "<vertex", point);
  AppendTagLine(out, 1, "</baseboard>");
}

void AppendLastShape(std::string& out, const LastShape& shape) {
  out += "  <lastshape";
  AppendAttribute(out, "id", shape.id);
  AppendAttribute(out, "w_mm", shape.w_mm);
  AppendAttribute(out, "h_mm", shape.h_mm);
  AppendAttribute(out, "w2_mm", shape.w2_mm);
  AppendAttribute(out, "h2_mm", shape.h2_mm);
  out += "/>\n";
}

void AppendLabels(std::string& out, const Layout& layout) {
  if (layout.labels.empty()) return;
  AppendTagLine(out, 1, "<labels>");
  for (const Label& label : layout.labels) {
    out += "    <label";
    AppendAttribute(out, "id", label.id);
    AppendAttribute(out, "x", label.x);
    AppendAttribute(out, "y", label.y);
    AppendAttribute(out, "text", label.text);
    out += "/>\n";
  }
  AppendTagLine(out, 1, "</labels>");
}

void AppendShape(std::string& out, const Shape& shape) {
  out += "    <shape";
  AppendAttribute(out, "id", shape.id);
  AppendAttribute(out, "r", shape.r);
  AppendAttribute(out, "g", shape.g);
  AppendAttribute(out, "b", shape.b);
  AppendAttribute(out, "a", shape.a);
  AppendAttribute(out, "outline", shape.outline ? 1 : 0);
  AppendAttribute(out, "level", shape.level);
  AppendAttribute(out, "height", shape.height);
  AppendAttribute(out, "label", shape.label);
  out += ">\n";
  for (const Vec2& point : shape.vertices) AppendPointLine(out, 3, "<v", point);
  AppendTagLine(out, 2, "</shape>");
}

void AppendShapes(std::string& out, const Layout& layout) {
  if (layout.shapes.empty()) return;
  AppendTagLine(out, 1, "<shapes>");
  for (const Shape& shape : layout.shapes) AppendShape(out, shape);
  AppendTagLine(out, 1, "</shapes>");
}

void AppendTunnels(std::string& out, const Layout& layout) {
  if (layout.tunnels.empty()) return;
  AppendTagLine(out, 1, "<tunnels>");
  for (const Tunnel& tunnel : layout.tunnels) {
    out += "    <tunnel";
    AppendAttribute(out, "id", tunnel.id);
    AppendAttribute(out, "portalA", tunnel.portalA);
    AppendAttribute(out, "portalB", tunnel.portalB);
    AppendAttribute(out, "anchorA", tunnel.anchorA);
    AppendAttribute(out, "anchorB", tunnel.anchorB);
    out += ">\n";
    for (const std::int32_t piece : tunnel.covers) {
      out += "      <covers";
      AppendAttribute(out, "piece", piece);
      out += "/>\n";
    }
    AppendTagLine(out, 2, "</tunnel>");
  }
  AppendTagLine(out, 1, "</tunnels>");
}

void AppendHelices(std::string& out, const Layout& layout) {
  if (layout.helices.empty()) return;
  AppendTagLine(out, 1, "<helices>");
  for (const Helix& helix : layout.helices) {
    out += "    <helix";
    AppendAttribute(out, "id", helix.id);
    AppendAttribute(out, "cx", helix.cx);
    AppendAttribute(out, "cy", helix.cy);
    AppendAttribute(out, "heading", helix.heading);
    AppendAttribute(out, "variant", helix.variant);
    AppendAttribute(out, "bottomR1", helix.bottomR1);
    AppendAttribute(out, "bottomR2", helix.bottomR2);
    AppendAttribute(out, "topR1", helix.topR1);
    AppendAttribute(out, "topR2", helix.topR2);
    out += "/>\n";
  }
  AppendTagLine(out, 1, "</helices>");
}

}  // namespace

std::string LayoutText(const Layout& layout, std::string_view name) {
  std::string out;
  out.reserve((layout.pieces.size() + layout.scenery.size() + 16) * kBytesPerPiece);
  out += kXmlDeclaration;
  out += "<layout";
  AppendAttribute(out, "name", name);
  AppendAttribute(out, "version", 1);
  AppendAttribute(out, "units", layout.units);
  out += ">\n";
  AppendGradeRuns(out, layout);
  AppendPieces(out, layout);
  AppendScenery(out, layout);
  AppendLevels(out, layout);
  AppendBaseboard(out, layout);
  AppendLastShape(out, layout.lastShape);
  AppendLabels(out, layout);
  AppendShapes(out, layout);
  AppendTunnels(out, layout);
  AppendHelices(out, layout);
  out += "</layout>\n";
  return out;
}

std::string SaveLayoutFile(const Layout& layout, const std::string& path, const std::string& name) {
  return WriteLayoutFile(layout, path, name).what;
}

FileProblem WriteLayoutFile(const Layout& layout, const std::string& path,
                            const std::string& name) {
  return WriteTextFile(path, LayoutText(layout, name));
}

}  // namespace vantrel
