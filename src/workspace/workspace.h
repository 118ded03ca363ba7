// The one way in which a panel reaches the open document and says what it changed. The main frame
// implements it; panels never know the frame.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "doc/layout.h"

namespace vantrel {

// The fields of the status bar.
enum StatusField { kStatusMessage = 0, kStatusPieces = 1, kStatusPosition = 2 };

class Workspace {
 public:
  virtual ~Workspace() = default;

  virtual Layout& layout() = 0;

  // The document changed: title, tally.
  virtual void markDirty() = 0;
  // What is selected changed: the properties panel shows it anew and recounts.
  virtual void selectionChanged() = 0;
  // The canvas repaints fully and an open 3D view rebuilds.
  virtual void refreshViews() = 0;
  // A Ctrl press on empty canvas at this world point: where the next label goes.
  virtual void noteCanvasClick(Vec2 world) = 0;

  virtual void setStatus(StatusField field, const std::string& text) = 0;
  virtual std::string status(StatusField field) const = 0;

  // The canvas has ended the tool of this toolMode by itself: its button in the toolbar comes up.
  virtual void clickToolEnded(std::int32_t toolMode) = 0;

  // Places a helix of this kit at a world pose, as the palette's double click does.
  virtual void placeHelix(std::string_view kitId, const Pose& pose) = 0;
};

// What the palette asks of the canvas. Unknown keys do nothing.
class PlacementTarget {
 public:
  virtual ~PlacementTarget() = default;

  virtual void beginPieceDrag(std::string_view part) = 0;
  virtual void beginSceneryDrag(std::string_view item) = 0;
  virtual void beginHelixDrag(std::string_view kitId) = 0;
  // Adds the part to the last selected piece, or starts a drag when nothing is selected.
  virtual void placeByDoubleClick(std::string_view part) = 0;

  // Ends a gesture that is under way between a press and its release, before the palette changes
  // the document beneath it.
  virtual void endGestures() = 0;
  // Shows everything, or with `trackOnly` everything but decks and baseboard.
  virtual void zoomToFit(bool trackOnly) = 0;
};

}  // namespace vantrel
