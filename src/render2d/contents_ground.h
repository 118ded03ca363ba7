// The ground of a plan: white, the baseboard, the decks and the grid.
#pragma once

#include "render2d/contents_paint.h"

namespace vantrel {

void DrawBackground(ContentsPaint& paint);
void DrawBaseboardFill(ContentsPaint& paint);
void DrawDecks(ContentsPaint& paint);
// The grid and the cross at the world's origin, when the grid is switched on and its pitch on the
// device is neither too fine nor too coarse.
void DrawGrid(ContentsPaint& paint);
// The outline once more, over decks and grid, with the length of each of its edges.
void DrawBaseboardOutline(ContentsPaint& paint);

}  // namespace vantrel
