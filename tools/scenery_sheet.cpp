// Draws every scenery item with its id on one picture, at 1:1 and beside it at 0.4, so that a
// change to the drawings can be judged by eye.
//
//   scenery_sheet PICTURE.png [SCALE]
//
// SCALE is the device units per mm of the large drawing, 1 if absent.
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/brush.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/pen.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "catalog/scenery_catalog.h"
#include "render2d/scenery_drawing.h"

namespace {

constexpr double kSmallScale = 0.4;
constexpr int kSheetWidth = 1500;  // device units at scale 1
constexpr int kMargin = 14;
constexpr int kCaption = 18;
constexpr int kLeastCell = 150;  // room for the longest id
constexpr unsigned char kBaseboard[] = {245, 235, 210};

struct Cell {
  const vantrel::SceneryDef* def = nullptr;
  int x = 0;
  int y = 0;
};

struct Sheet {
  std::vector<Cell> cells;
  wxSize size;
};

int Extent(double mm, double scale) {
  return static_cast<int>(std::ceil(mm * scale));
}

Sheet LayOut(double scale) {
  Sheet sheet;
  const int sheetWidth = std::max(kSheetWidth, static_cast<int>(kSheetWidth * scale));
  int x = kMargin;
  int y = kMargin;
  int rowHeight = 0;
  for (const vantrel::SceneryDef& def : vantrel::sceneryCatalog()) {
    const int drawings = Extent(def.width, scale) + kMargin + Extent(def.width, kSmallScale);
    const int width = std::max(kLeastCell, drawings) + 2 * kMargin;
    if (x + width > sheetWidth && x > kMargin) {
      x = kMargin;
      y += rowHeight;
      rowHeight = 0;
    }
    sheet.cells.push_back({&def, x, y});
    x += width;
    rowHeight = std::max(rowHeight, kCaption + Extent(def.depth, scale) + 2 * kMargin);
  }
  sheet.size = {sheetWidth, y + rowHeight};
  return sheet;
}

void DrawCell(wxDC& dc, const Cell& cell, double scale) {
  const vantrel::RenderContext context;
  const vantrel::SceneryDef& def = *cell.def;
  dc.SetFont(wxFont(wxFontInfo(9)));
  dc.SetTextForeground(*wxBLACK);
  dc.DrawText(wxString::FromUTF8(def.id), cell.x, cell.y);
  const vantrel::Pose middle{def.width / 2.0, def.depth / 2.0, 0.0};
  const double top = cell.y + kCaption;
  const double beside = cell.x + Extent(def.width, scale) + kMargin;
  const vantrel::ViewTransform large{scale, static_cast<double>(cell.x), top};
  const vantrel::ViewTransform small{kSmallScale, beside, top};
  vantrel::DrawSceneryItem(context, dc, def, middle, large, false, 1.0, 1.0);
  vantrel::DrawSceneryItem(context, dc, def, middle, small, false, 1.0, 1.0);
}

int MakeSheet(const char* path, double scale) {
  wxImage::AddHandler(new wxPNGHandler);
  const Sheet sheet = LayOut(scale);
  wxBitmap bitmap(sheet.size, 24);
  wxMemoryDC dc(bitmap);
  dc.SetBackground(
      *wxTheBrushList->FindOrCreateBrush({kBaseboard[0], kBaseboard[1], kBaseboard[2]}));
  dc.Clear();
  for (const Cell& cell : sheet.cells) DrawCell(dc, cell, scale);
  dc.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage().SaveFile(wxString::FromUTF8(path), wxBITMAP_TYPE_PNG) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  const double scale = argc > 2 ? std::atof(argv[2]) : 1.0;
  if (argc < 2 || !(scale >= kSmallScale && scale <= 10.0)) {
    std::fputs("usage: scenery_sheet PICTURE.png [SCALE from 0.4 to 10]\n", stderr);
    return 2;
  }
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  delete wxLog::SetActiveTarget(new wxLogStderr);  // a failure is told here, not in a dialog
  const int result = MakeSheet(argv[1], scale);
  wxEntryCleanup();
  if (result != 0) std::fprintf(stderr, "cannot write %s\n", argv[1]);
  return result;
}
