// Asks for the outline of the table: a shape with dimensions, typed vertices, drawing it on the
// canvas, or none.
#pragma once

#include <wx/dialog.h>

#include <array>
#include <cstdint>
#include <vector>

#include "canvas/operations/baseboard_shapes.h"
#include "dialogs/typed_spins.h"
#include "doc/layout.h"
#include "inspection/shown_unit.h"

class wxBoxSizer;
class wxChoice;
class wxPanel;
class wxSpinCtrl;
class wxTextCtrl;

namespace vantrel {

class LayoutShapeDialog : public wxDialog {
 public:
  // Of the plan only `lastShape` is written, and only on Apply.
  LayoutShapeDialog(wxWindow* parent, vantrel::Layout& layout);

  // After wxID_OK: the outline in mm, which may have fewer than three points or none.
  const std::vector<Vec2>& vertices() const { return vertices_; }
  // After wxID_OK: the user wants to draw the outline on the canvas.
  bool freeForm() const { return freeForm_; }

 private:
  void build();
  void makeRoomForAllPages();
  void buildPage(std::int32_t shape);
  void buildSpins(std::int32_t shape);
  void buildVertexField();
  void addSpinRow(std::size_t index, const char* caption, std::int32_t value);
  std::int32_t shape() const;
  BoardDimensions dimensions() const;
  void apply();
  bool takeVertices();
  void refuse(wxWindow* field);

  LastShape& lastShape_;
  const std::vector<Vec2> existing_;
  const ShownUnit unit_;
  const LastShape start_;  // the last shape, or the table that is there instead
  TypedSpins typed_;
  wxChoice* shapeChoice_ = nullptr;
  wxPanel* page_ = nullptr;
  wxBoxSizer* pageSizer_ = nullptr;
  wxTextCtrl* vertexField_ = nullptr;   // only on the page for vertices
  std::array<wxSpinCtrl*, 4> spins_{};  // null where the page has fewer
  std::vector<Vec2> vertices_;
  bool freeForm_ = false;
};

}  // namespace vantrel
