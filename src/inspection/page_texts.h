// The texts on the pages of the properties panel. All are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalog/piece_def.h"
#include "doc/records.h"
#include "inspection/shown_unit.h"

namespace vantrel {

inline constexpr std::string_view kPlainHeightCaption = "Height:";

// "Height (mm):" and "Base height (mm):", with the unit's name.
std::string HeightCaption(const ShownUnit& unit);
std::string BaseHeightCaption(const ShownUnit& unit);

// The slope with its sign in degrees and, without, in percent.
std::string GradeText(double deg);
std::string GradeWarningText(double deg, double maxDeg);

// The system and, in mm whatever the unit, the length of a part that has one.
std::string PieceInfo(const PieceDef& def);

// An unknown kit is titled "Helix" and has the figures of the default kit.
std::string HelixTitle(const Helix& helix);
std::string HelixInfo(const Helix& helix, const ShownUnit& unit);

// An unknown item is titled by its key and has no size.
std::string SceneryTitle(const SceneryItem& item);
std::string SceneryInfo(const SceneryItem& item);

std::string PolygonTitle(const Shape& shape);
std::string PolygonInfo(const Shape& shape);

// Part numbers, in the order given.
std::string RunTitle(const std::vector<const Piece*>& walked);
// The number of pieces and the sum of their lengths.
std::string RunInfo(const std::vector<const Piece*>& pieces, const ShownUnit& unit);

// What the status bar says of a grade that was started.
std::string GradeStartedText(bool up, double degrees);
inline constexpr std::string_view kGradeEndedText = "Grade ended - subsequent pieces will be flat";

}  // namespace vantrel
