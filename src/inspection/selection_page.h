// What the properties panel shows of the selection: which page, and every text and state on it, as
// plain data. The panel only copies it into its controls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

enum class PageKind : std::uint8_t { none, piece, helix, scenery, polygon, run };

// Stands in a LevelRow for pieces on several levels.
inline constexpr std::int32_t kMixedLevels = -1;

// The steepest slope that the panel offers, and above which it warns, in degrees.
inline constexpr double kMaxGradeDeg = 6.0;

struct LevelRow {
  std::int32_t id = kMixedLevels;
  std::string name;  // UTF-8

  friend bool operator==(const LevelRow&, const LevelRow&) = default;
};

struct HeightEntry {
  std::string caption;
  std::string text = "-";
  bool enabled = false;

  friend bool operator==(const HeightEntry&, const HeightEntry&) = default;
};

struct LevelEntry {
  std::vector<LevelRow> rows;
  std::int32_t chosen = -1;  // position in `rows`, -1 for none
  bool enabled = false;

  friend bool operator==(const LevelEntry&, const LevelEntry&) = default;
};

struct GradeEntry {
  std::string text = "-";
  std::string warning;  // not empty: the grade is too steep, and its text is red
  bool up = true;
  double degrees = 0.0;  // of the grade to start, from 0 to kMaxGradeDeg
  bool settingEnabled = false;
  bool startEnabled = false;
  bool endEnabled = false;
  bool recalcEnabled = false;

  friend bool operator==(const GradeEntry&, const GradeEntry&) = default;
};

struct SelectionPage {
  PageKind kind = PageKind::none;
  // The record shown: at most one is not kNone.
  std::int32_t pieceId = kNone;
  std::int32_t sceneryId = kNone;
  std::int32_t helixId = kNone;
  std::int32_t shapeId = kNone;
  std::string title;  // UTF-8
  std::string info;   // UTF-8
  HeightEntry height;
  LevelEntry level;
  GradeEntry grade;

  // Both pages are about the same thing, whatever its values.
  bool showsTheSameAs(const SelectionPage& other) const {
    return kind == other.kind && pieceId == other.pieceId && sceneryId == other.sceneryId &&
           helixId == other.helixId && shapeId == other.shapeId;
  }
  friend bool operator==(const SelectionPage&, const SelectionPage&) = default;
};

// The page for what is selected now.
SelectionPage DescribeSelection(const Layout& layout);

// The page for an empty selection, whatever is selected.
SelectionPage DescribeNothing(const Layout& layout);

}  // namespace vantrel
