// Draws whole plans as the canvas shows them, the table with a margin around it, so that a sample
// can be judged by eye.
//
//   plan_sheet FOLDER [--width PIXELS] PLAN.vtl...
//
// Writes FOLDER/NAME-plan.png for each plan, 1600 pixels wide if no width is given.
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "render2d/contents_drawing.h"

namespace {

constexpr double kMarginMm = 60.0;
constexpr int kDefaultWidth = 1600;

// Around the table, or around the origins of the pieces when there is none.
std::vector<vantrel::Vec2> Outline(const vantrel::Layout& layout) {
  if (!layout.baseboard.empty()) return layout.baseboard;
  std::vector<vantrel::Vec2> points;
  for (const vantrel::Piece& piece : layout.pieces) points.push_back({piece.x, piece.y});
  return points;
}

bool Draw(const std::string& plan, const std::string& folder, int width) {
  vantrel::Layout layout;
  std::string name;
  const std::string problem = vantrel::LoadLayoutFile(layout, plan, name);
  const std::vector<vantrel::Vec2> points = Outline(layout);
  if (!problem.empty() || points.empty()) {
    std::fprintf(stderr, "%s: %s\n", plan.c_str(), problem.c_str());
    return false;
  }
  const auto [left, right] =
      std::minmax_element(points.begin(), points.end(), [](auto a, auto b) { return a.x < b.x; });
  const auto [top, bottom] =
      std::minmax_element(points.begin(), points.end(), [](auto a, auto b) { return a.y < b.y; });
  vantrel::ViewTransform view;
  view.scale = width / (right->x - left->x + 2 * kMarginMm);
  view.offsetX = (kMarginMm - left->x) * view.scale;
  view.offsetY = (kMarginMm - top->y) * view.scale;
  const int height = static_cast<int>((bottom->y - top->y + 2 * kMarginMm) * view.scale);

  wxBitmap bitmap(width, height, 24);
  wxMemoryDC dc(bitmap);
  vantrel::RenderContext context;
  vantrel::DrawLayoutContents(context, dc, layout, view, {width, height});
  dc.SelectObject(wxNullBitmap);
  const std::string stem = std::filesystem::path(plan).stem().string();
  return bitmap.ConvertToImage().SaveFile(wxString::FromUTF8(folder + "/" + stem + "-plan.png"),
                                          wxBITMAP_TYPE_PNG);
}

}  // namespace

int main(int argc, char** argv) {
  int width = kDefaultWidth;
  std::vector<std::string> names;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--width") == 0 && i + 1 < argc)
      width = std::atoi(argv[++i]);
    else
      names.emplace_back(argv[i]);
  }
  if (names.size() < 2 || width < 100 || width > 20000) {
    std::fputs("usage: plan_sheet FOLDER [--width PIXELS] PLAN.vtl...\n", stderr);
    return 2;
  }
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  delete wxLog::SetActiveTarget(new wxLogStderr);
  wxImage::AddHandler(new wxPNGHandler);
  bool drawn = true;
  for (std::size_t i = 1; i < names.size(); ++i) drawn = Draw(names[i], names[0], width) && drawn;
  wxEntryCleanup();
  return drawn ? 0 : 1;
}
