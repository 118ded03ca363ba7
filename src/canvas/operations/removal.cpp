#include "canvas/operations/removal.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

#include "canvas/operations/selection.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"

namespace vantrel {
namespace {

using IdSet = std::unordered_set<std::int32_t>;

bool IsPaired(const Piece& piece) {
  const PieceDef* const def = findPart(piece.cat);
  return def != nullptr && def->isPaired;
}

// A file can hold a piece whose id is the number for "none". Nothing is joined to it, and in this
// set it would match every open slot, and every stub that a helix lacks.
IdSet SelectedPieceIds(const Layout& layout) {
  IdSet ids;
  for (const Piece& piece : layout.pieces)
    if (piece.sel && piece.id != kNone) ids.insert(piece.id);
  return ids;
}

bool Names(const Joint& joint, const IdSet& ids) {
  return ids.contains(joint.target);
}

// Where the runs of deleted anchors go on: the first slot, in the order of the unselected pieces,
// that was joined to any deleted piece. The same for all of them; anchor kNone when there is none.
GradeRun FirstNeighbourOf(const Layout& layout, const IdSet& deleted) {
  for (const Piece& piece : layout.pieces) {
    if (piece.sel) continue;
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot)
      if (Names(piece.joints[slot], deleted))
        return {.deg = 0.0, .anchor = piece.id, .conn = slot == 0 ? 1 : 0};
  }
  return {};
}

void MoveGradeRuns(Layout& layout, const IdSet& deleted) {
  const GradeRun neighbour = FirstNeighbourOf(layout, deleted);
  for (GradeRun& run : layout.gradeRuns) {
    if (!deleted.contains(run.anchor)) continue;
    run.anchor = neighbour.anchor;
    if (neighbour.anchor != kNone) run.conn = neighbour.conn;
  }
  std::erase_if(layout.gradeRuns, [](const GradeRun& run) { return run.anchor < 0; });
  SyncCurrentGrade(layout);
}

void OpenSlotsNaming(Layout& layout, const IdSet& deleted) {
  for (Piece& piece : layout.pieces)
    for (Joint& joint : piece.joints)
      if (Names(joint, deleted)) joint = Joint{};
}

void RemoveBrokenHelices(Layout& layout, const IdSet& deleted) {
  std::erase_if(layout.helices, [&deleted](const Helix& helix) {
    return deleted.contains(helix.bottomR1) || deleted.contains(helix.bottomR2) ||
           deleted.contains(helix.topR1) || deleted.contains(helix.topR2);
  });
}

template <typename Record>
void EraseSelected(std::vector<Record>& records) {
  std::erase_if(records, [](const Record& record) { return record.sel; });
}

template <typename Record>
bool HasSelected(const std::vector<Record>& records) {
  return std::ranges::any_of(records, &Record::sel);
}

}  // namespace

bool hasDeletableSelection(const Layout& layout, bool shapesToo) {
  return HasSelected(layout.pieces) || HasSelected(layout.scenery) || HasSelected(layout.labels) ||
         HasSelected(layout.measurements) || (shapesToo && HasSelected(layout.shapes));
}

// A partner selected on the way draws in its own partner when it comes later in the list.
void selectPairPartners(Layout& layout) {
  const PieceIndex index = IndexPieces(layout);
  for (std::size_t i = 0; i < layout.pieces.size(); ++i) {
    const Piece& piece = layout.pieces[i];
    if (!piece.sel || !IsPaired(piece)) continue;
    for (const Joint& joint : piece.joints) {
      if (joint.target < 0) continue;
      const auto far = index.find(joint.target);
      if (far == index.end() || !IsPaired(layout.pieces[far->second])) continue;
      layout.pieces[far->second].sel = true;
    }
  }
}

void deleteSelection(Layout& layout) {
  PushUndo(layout);
  selectTurntableNeighbours(layout);
  const IdSet deleted = SelectedPieceIds(layout);
  MoveGradeRuns(layout, deleted);
  OpenSlotsNaming(layout, deleted);
  EraseSelected(layout.pieces);
  RemoveBrokenHelices(layout, deleted);
  EraseSelected(layout.scenery);
  EraseSelected(layout.labels);
  EraseSelected(layout.measurements);
  EraseSelected(layout.shapes);
}

}  // namespace vantrel
