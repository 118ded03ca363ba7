// The lines that layouts and library blocks have in common.
#pragma once

#include <string>

#include "doc/layout.h"

namespace vantrel {

inline constexpr const char* kXmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// Two blanks per depth.
void AppendIndent(std::string& out, int depth);

// A piece at this depth, its joints one deeper, and its closing line.
void AppendPieceLines(std::string& out, const Piece& piece, int depth);

// One line; `sel` is given apart because a block never stores a selection.
void AppendSceneryLine(std::string& out, const SceneryItem& item, bool sel, int depth);

}  // namespace vantrel
