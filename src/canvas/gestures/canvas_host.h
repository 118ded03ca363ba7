// What gestures need of the window and the frame around them. CanvasPanel implements it; tests
// implement it with a recorder.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "canvas/operations/shape_properties.h"
#include "doc/view_transform.h"
#include "workspace/workspace.h"

namespace vantrel {

enum class CanvasCursor { normal, cross, hand, sizeNwse, sizeNs, sizeNesw, sizeWe };

enum class BoxIcon { information, exclamation, warning, question, error };

// An entry of a context menu.
struct MenuEntry {
  int id = 0;
  std::string label;
};

class CanvasHost {
 public:
  virtual ~CanvasHost() = default;

  virtual DeviceSize clientSize() const = 0;

  virtual bool hasCapture() const = 0;
  virtual void captureMouse() = 0;  // nothing when it is held
  virtual void releaseMouse() = 0;  // nothing when it is not held
  virtual void takeFocus() = 0;
  virtual void setCursor(CanvasCursor cursor) = 0;
  virtual void repaint() = 0;

  virtual void setStatus(StatusField field, const std::string& text) = 0;
  virtual std::string status(StatusField field) const = 0;

  // Message boxes with the frame as parent. `ask` is a Yes/No question, true for Yes.
  virtual void inform(const std::string& title, const std::string& text, BoxIcon icon) = 0;
  virtual bool ask(const std::string& title, const std::string& text, bool defaultYes) = 0;

  // Lets the user choose among the rows of track that fill a gap; the row, or kNone when cancelled.
  virtual int chooseAutofill(double gapMm, const std::vector<std::string>& rows) = 0;

  // Pops a menu up at a client point; the id of the entry taken, or 0.
  virtual int popUpMenu(std::span<const MenuEntry> entries, DevicePoint at) = 0;

  // The two small dialogs; nothing when the user gives up.
  virtual std::optional<ShapeProperties> editShape(const ShapeProperties& properties,
                                                   std::int32_t units) = 0;
  virtual std::optional<SceneryScale> resizeScenery(SceneryFootprint size, SceneryScale scale) = 0;

  // One timer: calls onFlashTimer once after this time, unless it is started anew or stopped.
  virtual void startFlashTimer(int milliseconds) = 0;
  virtual void stopFlashTimer() = 0;

  // The tool of this toolMode has ended: its button comes up.
  virtual void clickToolEnded(std::int32_t toolMode) = 0;

  virtual void selectionChanged() = 0;
  virtual void markDirty() = 0;
  // Repaints the canvas and rebuilds an open 3D view.
  virtual void refreshViews() = 0;
  virtual void noteCanvasClick(Vec2 world) = 0;
};

}  // namespace vantrel
