// What the status bar says.
#pragma once

#include <cstddef>
#include <string>

#include "doc/layout.h"

namespace vantrel {

// "Ready", or the slopes of the grade runs in force.
std::string ReadyText(const Layout& layout);

// "Pieces: " and the number.
std::string PiecesText(std::size_t count);

}  // namespace vantrel
