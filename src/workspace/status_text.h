// What the status bar says.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// How the first field begins while grade runs are in force.
inline constexpr std::string_view kGradeMark = "[ELEV]";

// "Ready", or the slopes of the grade runs in force.
std::string ReadyText(const Layout& layout);

// "Pieces: " and the number.
std::string PiecesText(std::size_t count);

}  // namespace vantrel
