#include "io/piece_reader.h"

#include <limits>

#include "io/line_tags.h"
#include "io/number_text.h"
#include "io/written_line.h"

namespace vantrel {
namespace {

// Above the connectors of any piece: a slot number from a broken file must not claim memory that
// every undo step copies.
constexpr std::int32_t kLastConnector = 63;

// The least that a piece takes in a file: its own two lines. Guessing the number of pieces too high
// costs only address space, and spares moving them.
constexpr std::size_t kBytesPerPiece = 160;

void ReadColor(AttributeLine& line, Piece& piece) {
  const std::string_view text = line.text("color");
  if (text.empty()) return;
  const auto color = static_cast<std::uint32_t>(IntFromText(text));
  piece.hasColor = true;
  piece.colorR = static_cast<std::uint8_t>(color >> 16);
  piece.colorG = static_cast<std::uint8_t>(color >> 8);
  piece.colorB = static_cast<std::uint8_t>(color);
}

Piece ReadPiece(AttributeLine& line) {
  Piece piece = ReadPlacedPiece(line);
  piece.sel = line.flag("sel");
  piece.z = line.optionalReal("z", 0.0);
  piece.grade = line.optionalReal("grade", 0.0);
  piece.rev = line.flag("rev");
  piece.free = line.flag("free");
  ReadColor(line, piece);
  piece.level = line.optionalInt("level", 1);
  piece.helix = line.optionalInt("helix", kNone);
  return piece;
}

void SetSlot(Piece& piece, std::int32_t conn, Joint joint) {
  const auto slot = static_cast<std::size_t>(conn);
  // Most pieces have two ends: one allocation for both.
  if (piece.joints.empty()) piece.joints.reserve(std::max<std::size_t>(slot + 1, 2));
  if (slot >= piece.joints.size()) piece.joints.resize(slot + 1);
  piece.joints[slot] = joint;
}

std::string_view WithoutIndent(std::string_view line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// The quick ways: true when they took the line whole. It comes without its indent, but with
// anything else that stands before the tag: attributes are searched for there too.
bool TakeWrittenPiece(std::string_view line, std::vector<Piece>& pieces) {
  if (!line.starts_with("<piece ")) return false;
  if (ReadWrittenPiece(line, pieces.emplace_back())) return true;
  pieces.pop_back();
  return false;
}

bool TakeWrittenJoint(std::string_view line, Piece& piece) {
  if (!line.starts_with("<joint ")) return false;
  const std::optional<WrittenJoint> written = ReadWrittenJoint(line);
  if (!written || written->conn > kLastConnector) return false;
  SetSlot(piece, written->conn, written->joint);
  return true;
}

}  // namespace

std::int32_t HighestId::next() const {
  return id == std::numeric_limits<std::int32_t>::max() ? id : id + 1;
}

void ReadPieces(LineCursor& lines, std::vector<Piece>& pieces, HighestId& highest) {
  if (pieces.empty()) pieces.reserve(lines.bytesLeft() / kBytesPerPiece);
  const std::size_t before = pieces.size();
  std::string_view line;
  while (lines.next(line)) {
    const std::string_view tag = WithoutIndent(line);
    if (pieces.size() > before && TakeWrittenJoint(tag, pieces.back())) continue;
    if (TakeWrittenPiece(tag, pieces)) {
      highest.see(pieces.back().id);
      continue;
    }
    const TagSet tags = TagsIn(line);
    if (tags.has(Tag::kPiecesEnd) || tags.has(Tag::kBlockEnd) || tags.has(Tag::kLayoutEnd)) return;
    AttributeLine attributes(line);
    if (tags.has(Tag::kPiece)) {
      pieces.push_back(ReadPiece(attributes));
      highest.see(pieces.back().id);
    }
    if (tags.has(Tag::kJoint) && pieces.size() > before) ReadJoint(attributes, pieces.back());
  }
}

Piece ReadPlacedPiece(AttributeLine& line) {
  Piece piece;
  piece.id = line.requiredInt("id");
  piece.cat = line.text("cat");
  piece.x = line.requiredReal("x");
  piece.y = line.requiredReal("y");
  piece.heading = line.requiredReal("heading");
  return piece;
}

void ReadJoint(AttributeLine& line, Piece& piece) {
  const std::int32_t conn = line.requiredInt("conn");
  if (conn < 0 || conn > kLastConnector) throw BadNumber("stoi argument out of range");
  Joint joint;
  joint.target = line.requiredInt("target");
  joint.tconn = line.requiredInt("tconn");
  SetSlot(piece, conn, joint);
}

SceneryItem ReadSceneryItem(AttributeLine& line) {
  SceneryItem item;
  item.id = line.requiredInt("id");
  item.item = line.text("item");
  item.x = line.requiredReal("x");
  item.y = line.requiredReal("y");
  item.heading = line.requiredReal("heading");
  item.sel = line.flag("sel");
  item.scalex = line.optionalReal("scalex", 1.0);
  item.scaley = line.optionalReal("scaley", 1.0);
  item.level = line.optionalInt("level", 1);
  return item;
}

}  // namespace vantrel
