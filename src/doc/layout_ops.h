// Small operations on the whole document: ids, levels, selection, grade bookkeeping, look-ups.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "doc/layout.h"

namespace vantrel {

// The id for a new record of any kind but Level: the next of the counter that no record of the
// seven lists holds or names, whatever undo has brought back. Never overflows: once the counter has
// reached the largest id, the lowest free one is searched for. Costs a walk over all records.
std::int32_t TakeId(Layout& layout);

// The ids for `count` new records, as TakeId would give them out one by one, for a single walk.
std::vector<std::int32_t> TakeIds(Layout& layout, std::size_t count);

// Measuring tapes outlive a load, whose records may hold their ids: such a tape gets a new one.
void RenewTapeIds(Layout& layout);

// With no levels at all, appends "Level 1" (id 1, visible, height 0, colour 180, 200, 220). Leaves
// activeLevel alone.
void EnsureDefaultLevel(Layout& layout);

// Clears `sel` on pieces, scenery, labels, measurements and shapes.
void ClearSelection(Layout& layout);

// Makes currentGrade mirror the last grade run, or its defaults when there is none.
void SyncCurrentGrade(Layout& layout);

// Empties gradeRuns, then SyncCurrentGrade.
void ResetGrades(Layout& layout);

// The first record with this id, or null. A linear walk: code that follows joints over the whole
// layout builds a PieceIndex instead. The pointer dies with the next change of the vector.
Piece* FindPiece(Layout& layout, std::int32_t id);
const Piece* FindPiece(const Layout& layout, std::int32_t id);
const Level* FindLevel(const Layout& layout, std::int32_t id);

// True when a Level with this id exists and is not visible: a level that can't be found hides
// nothing.
bool IsLevelHidden(const Layout& layout, std::int32_t levelId);

// The ids of all hidden levels, for loops over many records.
std::unordered_set<std::int32_t> HiddenLevels(const Layout& layout);

// Positions in `pieces` by piece id, the first of equal ids.
using PieceIndex = std::unordered_map<std::int32_t, std::size_t>;
PieceIndex IndexPieces(const Layout& layout);

// Where a free drop lands: the visible level with the greatest height, the first of equals, or
// activeLevel when none is visible. Heights of -1e9 mm and below don't count.
std::int32_t HighestVisibleLevel(const Layout& layout);

}  // namespace vantrel
