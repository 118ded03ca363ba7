// Library blocks: a selection of track and scenery as a file of its own, to be placed again. The
// same fixed lines as in a layout file (layout_file.h), without levels, grades, labels and tunnels.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "doc/layout.h"
#include "io/file_problem.h"

namespace vantrel {

// Writes the selected pieces and scenery items, with ids and positions as they stand, over whatever
// is at `path`. Paths and texts are UTF-8. Returns an empty text, "No pieces or scenery selected"
// without touching the file, or "Cannot open file: " or "Cannot write file: " and the path.
std::string SaveBlockFile(const Layout& layout, const std::string& path, const std::string& name);

// The same, with the reason for a failure.
FileProblem WriteBlockFile(const Layout& layout, const std::string& path, const std::string& name);

// Reads a block; the two lists and `nameOut` are emptied first. What is read of a piece is narrow:
// id, part, position, heading, level and joints, so it always comes back flat, uncoloured,
// unreversed and outside any helix. A file without a line of a block gives empty lists. Returns an
// empty text, or "Cannot open file: " and the path, also for a folder. Throws MalformedFile
// (layout_file.h).
std::string LoadBlockFile(const std::string& path, std::string& nameOut, std::vector<Piece>& pieces,
                          std::vector<SceneryItem>& scenery);

// What LoadBlockFile does once it has the bytes of the file. Throws MalformedFile, which names
// `path`.
void ReadBlockText(std::string_view text, const std::string& path, std::string& nameOut,
                   std::vector<Piece>& pieces, std::vector<SceneryItem>& scenery);

}  // namespace vantrel
