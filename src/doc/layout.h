// The document: one model railway plan. Plain data; the operations on it are free functions
// (layout_ops.h, undo.h and canvas/operations/).
//
// Lengths are world millimetres whatever `units` says: `units` only selects how they are shown.
#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "doc/records.h"
#include "doc/vec2.h"

namespace vantrel {

// Mirrors the last element of `gradeRuns`, or says that there is none.
struct CurrentGrade {
  bool active = false;
  double deg = 0.0;
  std::int32_t anchor = kNone;
  std::int32_t conn = 1;

  friend bool operator==(const CurrentGrade&, const CurrentGrade&) = default;
};

// The choice last made in the baseboard dialog.
struct LastShape {
  std::int32_t id = 0;
  double w_mm = 2400.0;
  double h_mm = 1200.0;
  double w2_mm = 1200.0;
  double h2_mm = 1200.0;

  friend bool operator==(const LastShape&, const LastShape&) = default;
};

// A deep copy of what an edit may change. Selection travels with the records; ids, levels, the
// baseboard and the view settings are not part of history.
struct UndoSnapshot {
  std::vector<Piece> pieces;
  std::vector<SceneryItem> scenery;
  std::vector<Label> labels;
  std::vector<Measurement> measurements;
  std::vector<Shape> shapes;
  std::vector<Tunnel> tunnels;
  std::vector<Helix> helices;
  std::vector<GradeRun> gradeRuns;
  CurrentGrade currentGrade;

  friend bool operator==(const UndoSnapshot&, const UndoSnapshot&) = default;
};

// The values of Layout::units.
enum Units : std::int32_t { kMillimetres = 0, kCentimetres = 1, kInches = 2 };

// The values of Layout::toolMode.
enum ToolMode : std::int32_t {
  kNoTool = 0,
  kMeasureTool = 3,
  kPolygonTool = 4,
  kBaseboardTool = 5
};

struct Layout {
  std::vector<Piece> pieces;  // in placing order
  std::vector<SceneryItem> scenery;
  std::vector<Label> labels;
  std::vector<Measurement> measurements;
  std::vector<Shape> shapes;
  std::vector<Tunnel> tunnels;
  std::vector<Helix> helices;
  std::int32_t nextId = 1;    // take ids with TakeId() only
  std::vector<Level> levels;  // never empty while the frame is up: EnsureDefaultLevel
  std::int32_t activeLevel = 1;
  std::int32_t toolMode = kNoTool;
  std::vector<Vec2> baseboard;  // outline of the table, no closing repeat of the first vertex
  bool baseboardVisible = true;
  LastShape lastShape;
  bool snapEnabled = true;
  bool gridVisible = true;
  bool labelsVisible = true;
  std::int32_t units = kMillimetres;
  std::vector<GradeRun> gradeRuns;  // oldest first
  CurrentGrade currentGrade;
  double gridSize = 32.0;                // mm; nothing changes it and no file stores it
  std::deque<UndoSnapshot> undoHistory;  // newest at the back
  std::deque<UndoSnapshot> redoHistory;
};

}  // namespace vantrel
