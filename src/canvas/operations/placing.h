// How track and scenery get into the layout. None of these touch a window: the gesture that calls
// them tells the user, the panels and the title.
#pragma once

#include <cstdint>
#include <string_view>

#include "canvas/operations/snap.h"
#include "catalog/piece_def.h"
#include "doc/layout.h"

namespace vantrel {

// Joins the new piece's `ownConnector` to a piece that stands, and takes over the height there.
void JoinNewPiece(Layout& layout, std::int32_t newId, std::int32_t ownConnector,
                  std::int32_t targetId, std::int32_t targetConnector);

// Makes the piece with this id the whole selection.
void SelectOnly(Layout& layout, std::int32_t id);

// A new piece of this definition at `pose`, all connectors open, everything else at its defaults;
// it has no id yet.
Piece NewPiece(const PieceDef& def, const Pose& pose);

// PushUndo, gives the piece the next id, appends it, returns the id: one undo step.
std::int32_t addPieceToLayout(Layout& layout, Piece piece);

// Places one piece of `def`: at the snap's pose joined to its target, or free at `freePose`. Takes
// the level of the target (activeLevel when it is gone) or the highest visible level; makes the
// join, the elevation and, for a turntable, the spokes. Not the partner of a paired piece. Returns
// the new piece's id.
std::int32_t placePiece(Layout& layout, const PieceDef& def, const SnapResult& snap,
                        const Pose& freePose);

// Sets one spoke extension at each of the six connectors of a turntable that get one, but at none
// that is joined already. No undo step of its own.
void addTurntableSpokes(Layout& layout, std::int32_t turntableId);

// Adds and joins the second piece of a pair at connector 1 of the first: a second undo step.
// Returns its id, or kNone when the definition isn't paired, has no second connector, or connector
// 1 of the first isn't open.
std::int32_t addPairPartner(Layout& layout, std::int32_t firstId);

// Where a scenery item lands that is dropped at `pose`: a roundhouse near a scenery turntable turns
// to its ring, everything else stays.
Pose sceneryDropPose(const Layout& layout, std::string_view item, const Pose& pose);

// Places a scenery item (one undo step), selected as the only thing, on the highest visible level.
// Returns its id, or kNone, with nothing changed, for an unknown item.
std::int32_t placeScenery(Layout& layout, std::string_view item, const Pose& pose);

// Joins a new piece of `part` to the free end of the selected piece with the greatest id, selects
// it and returns its id, or its partner's when the part is laid in pairs. Returns kNone, with
// nothing changed, when a part is unknown, nothing is selected or the anchor has no free end.
// Looks at neither snapEnabled nor the track systems.
std::int32_t autoConnectPart(Layout& layout, std::string_view part);

}  // namespace vantrel
