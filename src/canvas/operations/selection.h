// What is selected, and what a click or a band on the canvas makes of it. There is no selection
// set: the `sel` flags of the records are all there is.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "doc/view_transform.h"

namespace vantrel {

// In list order. The pointers die with the next change of the vector.
std::vector<Piece*> selectedPieces(Layout& layout);
std::vector<const Piece*> selectedPieces(const Layout& layout);
std::vector<SceneryItem*> selectedScenery(Layout& layout);
std::vector<const SceneryItem*> selectedScenery(const Layout& layout);

bool hasSelectedPiece(const Layout& layout);
// A piece or a scenery item.
bool hasSelectedObject(const Layout& layout);
// Anything at all: a label, a measuring tape and a shape count too.
bool hasSelection(const Layout& layout);

// The helix that all selected pieces share, when at least one piece and no scenery is selected;
// otherwise kNone.
std::int32_t commonHelixOfSelection(const Layout& layout);

// Selects every piece of each helix of which a piece is selected.
void expandHelixSelection(Layout& layout);

// Selects every piece joined to a selected turntable, in one walk over `pieces`.
void selectTurntableNeighbours(Layout& layout);

// The three ways to click on a piece; each ends with expandHelixSelection. All do nothing for a
// piece that doesn't exist.
//
// Plain: a selected piece keeps the selection as it is; otherwise the piece alone is selected, with
// its helix, or its neighbours when it is a turntable.
void clickPiece(Layout& layout, std::int32_t id);
// Turns the piece's flag over.
void clickPieceToggle(Layout& layout, std::int32_t id);
// Adds the shortest way through the joints from the selected piece latest in `pieces`; with no way
// or no such piece, turns the piece's flag over.
void clickPieceChain(Layout& layout, std::int32_t id);

// Plain: an item that isn't selected becomes the only selection. With `toggle` its flag is turned
// over.
void clickScenery(Layout& layout, std::int32_t id, bool toggle);

// The centre lines of a piece in the world: the arc or the straight, and from three connectors on a
// line to connector 2.
std::vector<std::vector<Vec2>> pieceOutlineSegments(const Piece& piece, const PieceDef& def);

// Selects the visible pieces whose centre line meets the band between two client points, and the
// visible scenery items whose position lies in it, borders included; then expandHelixSelection.
// False, with nothing changed, for a band below 5 pixels in both directions.
bool selectInBand(Layout& layout, const ViewTransform& view, DevicePoint from, DevicePoint to);

}  // namespace vantrel
