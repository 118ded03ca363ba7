// make_pictures SAMPLES FOLDER: photographs sample plans for the pictures that the program carries,
// and writes FOLDER/splash.jpg, FOLDER/inset.jpg and FOLDER/help.jpg. Needs a display for the
// title's letters only.
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>

#include "io/layout_file.h"
#include "tools/pictures/staging.h"
#include "tools/pictures/studio.h"
#include "tools/samples/move_plan.h"

namespace {

using vantrel::Layout;
using vantrel::Put;
using vantrel::Scene;
using vantrel::Shot;

constexpr int kQuality = 90;  // of 100, of the JPEG data

std::string samples;
std::string folder;

// `corner` is where the table's corner lies in the scene: the scenes are measured in coordinates of
// their own.
Layout Plan(const std::string& name, vantrel::Vec2 corner) {
  Layout layout;
  std::string title;
  const std::string problem = vantrel::LoadLayoutFile(layout, samples + "/" + name + ".vtl", title);
  if (!problem.empty()) throw std::runtime_error(problem);
  layout.baseboard.clear();  // the meadow takes its place
  vantrel::samples::MovePlan(layout, corner);
  return layout;
}

wxImage Taken(const Scene& scene, const Shot& shot) {
  const wxImage image = vantrel::Photograph(scene, shot);
  if (!image.IsOk()) throw std::runtime_error("no OpenGL to draw with off screen");
  return image;
}

void Save(wxImage image, const std::string& name) {
  const std::string path = folder + "/" + name;
  image.SetOption(wxIMAGE_OPTION_QUALITY, kQuality);
  if (!image.SaveFile(wxString::FromUTF8(path), wxBITMAP_TYPE_JPEG))
    throw std::runtime_error("cannot write " + path);
  std::printf("%s: %d x %d\n", path.c_str(), image.GetWidth(), image.GetHeight());
}

// White letters over a soft shadow of themselves.
void WriteTitle(wxImage& image, const wxString& text, wxPoint at, const wxFont& font) {
  wxBitmap bitmap(image.GetWidth(), image.GetHeight(), 24);
  wxMemoryDC dc(bitmap);
  dc.SetBackground(*wxBLACK_BRUSH);
  dc.Clear();
  dc.SetFont(font);
  dc.SetTextForeground(*wxWHITE);
  dc.DrawText(text, at);
  dc.SelectObject(wxNullBitmap);
  const wxImage letters = bitmap.ConvertToImage();
  const wxImage shadow = letters.Blur(7);
  constexpr int kDrop = 3;  // pixels, to the right and down
  for (int y = kDrop; y < image.GetHeight(); ++y) {
    for (int x = kDrop; x < image.GetWidth(); ++x) {
      const int dark = shadow.GetGreen(x - kDrop, y - kDrop);
      const int white = letters.GetGreen(x, y);
      if (dark == 0 && white == 0) continue;
      const auto mixed = [&](int colour, int ink) {
        const int shaded = colour + (ink - colour) * dark * 55 / 100 / 255;
        return static_cast<unsigned char>(shaded + (255 - shaded) * white / 255);
      };
      image.SetRGB(x, y, mixed(image.GetRed(x, y), 20), mixed(image.GetGreen(x, y), 40),
                   mixed(image.GetBlue(x, y), 70));
    }
  }
}

// A paper print has a white edge.
void Frame(wxImage& image, int width) {
  const int right = image.GetWidth() - width;
  const int bottom = image.GetHeight() - width;
  for (const wxRect& edge :
       {wxRect(0, 0, image.GetWidth(), width), wxRect(0, bottom, image.GetWidth(), width),
        wxRect(0, 0, width, image.GetHeight()), wxRect(right, 0, width, image.GetHeight())})
    image.SetRGB(edge, 250, 248, 242);
}

// The viaduct, and a railcar on its arch.
wxImage Splash() {
  Layout layout = Plan("TRIX Viaduct", {160.0, 160.0});
  // The tunnel would draw the eye from the train.
  layout.tunnels.clear();
  std::erase_if(layout.scenery,
                [](const auto& item) { return item.item == "tunnel_portal_single"; });
  Put(layout, "signal_color_clear", {1110.0, 1330.0, 0.0});
  Put(layout, "signal_box", {1020.0, 1540.0, 90.0});
  Put(layout, "tree_conifer", {1330.0, 1480.0, 0.0});
  Put(layout, "tree_conifer", {1385.0, 1505.0, 0.0}, 0.9);
  Put(layout, "tree_sm_dec", {1450.0, 1440.0, 0.0});
  Put(layout, "tree_conifer", {1600.0, 1340.0, 0.0}, 1.1);
  vantrel::Plant(layout, {{100.0, 100.0}, {2600.0, 1060.0}, 150, 5});
  vantrel::Plant(layout, {{-6500.0, -6500.0}, {6500.0, 60.0}, 1500, 9});
  Scene scene = vantrel::BuildScene(layout);
  vantrel::AddRailcar(scene, {1420.0, 1175.0, 180.0}, 68.7F);
  Shot shot;
  shot.eye = {1700.0F, -1900.0F, 240.0F};
  shot.target = {1240.0F, -1100.0F, 112.0F};
  shot.viewDegrees = 36.0F;
  shot.size = {900, 600};
  wxImage image = Taken(scene, shot);
  WriteTitle(image, "Vantrel", {34, 18},
             wxFont(wxFontInfo(wxSize(0, 92)).FaceName("C059").Bold().Italic()));
  return image;
}

// A railcar has a clear line.
wxImage Inset() {
  Layout layout = Plan("C-Track Double Oval", {-60.0, 120.0});
  layout.scenery.clear();
  Put(layout, "signal_color_clear", {1215.0, 1136.0, 270.0});
  vantrel::Plant(layout, {{-500.0, 400.0}, {900.0, 1000.0}, 60, 3});
  vantrel::Plant(layout, {{-5000.0, -2500.0}, {300.0, 5000.0}, 900, 4});
  Scene scene = vantrel::BuildScene(layout);
  vantrel::AddRailcar(scene, {1150.0, 1175.0, 0.0}, 0.0F);
  Shot shot;
  shot.eye = {1560.0F, -1235.0F, 100.0F};
  shot.target = {1200.0F, -1163.0F, 52.0F};
  shot.viewDegrees = 30.0F;
  shot.size = {480, 590};
  shot.toSun = {0.55F, -0.5F, 0.62F};
  shot.shadowReach = 900.0F;
  wxImage image = Taken(scene, shot);
  Frame(image, 12);
  return image;
}

// Down the tracks of the terminus.
wxImage Help() {
  Layout layout = Plan("K-Track Terminus", {240.0, 380.0});
  std::erase_if(layout.scenery,
                [](const auto& item) { return item.item.starts_with("signal_color"); });
  Put(layout, "signal_color_clear", {1030.0, 772.0, 90.0});
  vantrel::Plant(layout, {{500.0, -300.0}, {4200.0, 420.0}, 110, 3});
  vantrel::Plant(layout, {{700.0, 1120.0}, {4200.0, 1900.0}, 110, 8});
  vantrel::Plant(layout, {{2900.0, -5000.0}, {9000.0, 6500.0}, 1500, 6});
  Scene scene = vantrel::BuildScene(layout);
  vantrel::AddRailcar(scene, {1500.0, 700.0, 0.0}, 0.0F);
  Shot shot;
  shot.eye = {480.0F, -700.0F, 290.0F};
  shot.target = {1500.0F, -720.0F, 70.0F};
  shot.viewDegrees = 50.0F;
  shot.size = {368, 660};
  return Taken(scene, shot);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: make_pictures SAMPLES FOLDER\n", stderr);
    return 2;
  }
  samples = argv[1];
  folder = argv[2];
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  delete wxLog::SetActiveTarget(new wxLogStderr);
  wxImage::AddHandler(new wxJPEGHandler);
  int result = 0;
  try {
    Save(Splash(), "splash.jpg");
    Save(Inset(), "inset.jpg");
    Save(Help(), "help.jpg");
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    result = 1;
  }
  wxEntryCleanup();
  return result;
}
