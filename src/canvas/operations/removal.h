// Deleting the selection with all that hangs on it.
#pragma once

#include "doc/layout.h"

namespace vantrel {

// Whether anything that can be deleted is selected; shapes only count when asked for.
bool hasDeletableSelection(const Layout& layout, bool shapesToo);

// Each selected piece that is laid in pairs selects the paired pieces joined to it, in one walk
// over `pieces`.
void selectPairPartners(Layout& layout);

// PushUndo, then removes what is selected, a turntable's neighbours with it, and the helices that
// lose a stub. Grade runs anchored on a deleted piece go on to the first unselected piece, in
// order, that was joined to any deleted piece, or end. Asks nothing and looks at no lock.
void deleteSelection(Layout& layout);

}  // namespace vantrel
