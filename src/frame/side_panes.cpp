#include "frame/side_panes.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr int kCanvasWidth = 280;  // pixels, as long as the side panes can spare them
constexpr int kSmallestSplitter = 50;

}  // namespace

// The handlers leave the splitters' own out: those move the sash by what the size has changed.
SidePanes::SidePanes(wxSplitterWindow& outer, wxSplitterWindow& inner, PaneWidths wanted)
    : outer_(outer), inner_(inner), wanted_(wanted), fitted_(wanted), canvas_(kCanvasWidth) {
  outer_.Bind(wxEVT_SIZE, [this](wxSizeEvent&) { arrange(); });
  inner_.Bind(wxEVT_SIZE, [this](wxSizeEvent&) { arrangeInner(); });
  outer_.Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [this](wxSplitterEvent& event) {
    if (event.GetEventObject() == &outer_)
      takeDragged({event.GetSashPosition(), fitted_.properties});
    event.Skip();
  });
  inner_.Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [this](wxSplitterEvent& event) {
    takeDragged({outer_.GetSashPosition(),
                 inner_.GetClientSize().x - inner_.GetSashSize() - event.GetSashPosition()});
    event.Skip();
  });
  arrange();
}

int SidePanes::smallestWidth() const {
  const PaneWidths sides = smallest();
  return sides.palette + sides.properties + inner_.GetMinimumPaneSize() + outer_.GetSashSize() +
         inner_.GetSashSize();
}

PaneWidths SidePanes::smallest() const {
  return {std::max(outer_.GetMinimumPaneSize(), outer_.GetWindow1()->GetMinWidth()),
          std::max(inner_.GetMinimumPaneSize(), inner_.GetWindow2()->GetMinWidth())};
}

// For the panes, without the sashes between them.
int SidePanes::room() const {
  return outer_.GetClientSize().x - outer_.GetSashSize() - inner_.GetSashSize();
}

// Whoever moves a sash means what is seen then: both panes are to keep that, and the plan as little
// as it was left.
void SidePanes::takeDragged(PaneWidths dragged) {
  wanted_ = dragged;
  canvas_ = std::clamp(room() - dragged.palette - dragged.properties, inner_.GetMinimumPaneSize(),
                       kCanvasWidth);
  fitted_ = FitPanes(room(), wanted_, smallest(), canvas_);
}

void SidePanes::arrange() {
  if (outer_.GetClientSize().x < kSmallestSplitter) return;
  fitted_ = FitPanes(room(), wanted_, smallest(), canvas_);
  outer_.SetSashPosition(fitted_.palette);
  arrangeInner();
}

void SidePanes::arrangeInner() {
  const int width = inner_.GetClientSize().x;
  if (width < kSmallestSplitter) return;
  inner_.SetSashPosition(width - inner_.GetSashSize() - fitted_.properties);
}

}  // namespace vantrel
