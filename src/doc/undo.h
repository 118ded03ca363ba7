// History by whole snapshots: one linear undo and redo for the document.
#pragma once

#include <cstddef>

#include "doc/layout.h"

namespace vantrel {

// Undo keeps at most this many states; the oldest is dropped.
inline constexpr std::size_t kUndoLimit = 50;

// A copy of what undo brings back.
UndoSnapshot TakeSnapshot(const Layout& layout);

// To be called immediately before a change. Empties the redo history.
void PushUndo(Layout& layout);

// Swap the current state with the newest one of the undo (redo) history. Nothing happens when that
// history is empty. currentGrade comes from the snapshot, it is not recomputed.
void Undo(Layout& layout);
void Redo(Layout& layout);

// PushUndo, then empties all records and grade runs and sets nextId to 1. Levels, the baseboard,
// lastShape and the view settings stay.
void ClearContents(Layout& layout);

// An empty plan: ClearContents, one default level, no baseboard. It is undone as far as a snapshot
// reaches.
void StartNewPlan(Layout& layout);

}  // namespace vantrel
