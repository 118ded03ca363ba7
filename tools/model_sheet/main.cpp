// Draws all track kinds, bridges, ramps and scenery items in 3D, each from two sides, and whole
// plans as the 3D view first shows them, so that models can be judged by eye; and says what a frame
// of each plan costs.
//
//   model_sheet FOLDER [--size WIDTHxHEIGHT] [--samples N] [PLAN.vtl...]
//
// Writes FOLDER/track.png, FOLDER/scenery.png and FOLDER/NAME.png for each plan. The size is that
// of a plan's picture, 1000x640 if absent; N smooths edges, 4 if absent.
#include <wx/app.h>
#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/font.h>
#include <wx/image.h>
#include <wx/init.h>
#include <wx/log.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <numbers>
#include <string>
#include <vector>

#include "io/layout_file.h"
#include "tools/model_sheet/measure.h"
#include "tools/model_sheet/off_screen.h"
#include "tools/model_sheet/sheet.h"

namespace {

using vantrel::PaintSize;

constexpr PaintSize kTile{330, 250};
constexpr int kColumns = 3;  // of models, each with two tiles
constexpr int kCaption = 20;
constexpr float kSidePitch = 58.0F;
constexpr float kSideYaws[] = {30.0F, 215.0F};

struct Options {
  std::string folder;
  PaintSize size{1000, 640};
  int samples = 4;
  std::vector<std::string> plans;
  bool valid = false;
};

Options ReadOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const bool hasNext = i + 1 < argc;
    if (std::strcmp(argv[i], "--size") == 0 && hasNext) {
      if (std::sscanf(argv[++i], "%dx%d", &options.size.width, &options.size.height) != 2)
        return options;
    } else if (std::strcmp(argv[i], "--samples") == 0 && hasNext) {
      options.samples = std::atoi(argv[++i]);
    } else if (options.folder.empty()) {
      options.folder = argv[i];
    } else {
      options.plans.emplace_back(argv[i]);
    }
  }
  const auto fits = [](int pixels) { return pixels >= 16 && pixels <= 8192; };
  options.valid = !options.folder.empty() && fits(options.size.width) && fits(options.size.height);
  return options;
}

wxImage Picture(const vantrel::OffScreen& screen) {
  const std::vector<unsigned char> pixels = screen.pixels();
  wxImage image(screen.size().width, screen.size().height, false);
  std::memcpy(image.GetData(), pixels.data(), pixels.size());
  return image;
}

bool Save(const wxImage& image, const std::string& path) {
  const bool saved = image.SaveFile(wxString::FromUTF8(path), wxBITMAP_TYPE_PNG);
  std::printf("%s%s\n", saved ? "" : "cannot write ", path.c_str());
  return saved;
}

float Radians(float degrees) {
  return degrees * std::numbers::pi_v<float> / 180.0F;
}

// So far away that the ball around the model fits into the picture. The camera looks at the table:
// what stands on it is pulled back until its middle lies in the line of sight.
vantrel::Camera LookAt(const vantrel::SheetModel& model, float yaw) {
  constexpr float kHalfViewDegrees = 20.0F;
  vantrel::Camera camera;
  camera.pitch = kSidePitch;
  camera.yaw = yaw;
  camera.distance = model.radius / std::sin(Radians(kHalfViewDegrees)) +
                    model.height / std::cos(Radians(kSidePitch));
  camera.centreX = model.scene.centreX;
  camera.centreY = model.scene.centreY;
  const float back = model.height * std::tan(Radians(kSidePitch));
  camera.panX = -std::sin(Radians(yaw)) * back;
  camera.panY = -std::cos(Radians(yaw)) * back;
  return camera;
}

bool MakeSheet(const std::vector<vantrel::SheetModel>& models, int samples,
               const std::string& path) {
  const vantrel::OffScreen screen(kTile, samples);
  if (!screen.ok()) return false;
  const int rows = (static_cast<int>(models.size()) + kColumns - 1) / kColumns;
  const int cellHeight = kTile.height + kCaption;
  wxBitmap bitmap(kColumns * 2 * kTile.width, rows * cellHeight, 24);
  wxMemoryDC dc(bitmap);
  dc.SetBackground(*wxWHITE_BRUSH);
  dc.Clear();
  dc.SetFont(wxFont(wxFontInfo(9)));
  for (std::size_t i = 0; i < models.size(); ++i) {
    const int x = static_cast<int>(i) % kColumns * 2 * kTile.width;
    const int y = static_cast<int>(i) / kColumns * cellHeight;
    dc.DrawText(wxString::FromUTF8(models[i].caption), x + 4, y + 2);
    for (int side = 0; side < 2; ++side) {
      vantrel::PaintScene(models[i].scene, LookAt(models[i], kSideYaws[side]), kTile);
      dc.DrawBitmap(wxBitmap(Picture(screen)), x + side * kTile.width, y + kCaption);
    }
  }
  dc.SelectObject(wxNullBitmap);
  return Save(bitmap.ConvertToImage(), path);
}

bool ShowPlan(const std::string& plan, const Options& options) {
  vantrel::Layout layout;
  std::string name;
  const std::string problem = vantrel::LoadLayoutFile(layout, plan, name);
  if (!problem.empty()) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    return false;
  }
  const vantrel::OffScreen screen(options.size, options.samples);
  if (!screen.ok()) return false;
  const auto start = std::chrono::steady_clock::now();
  const vantrel::Scene scene = vantrel::BuildScene(layout);
  const std::chrono::duration<double, std::milli> built = std::chrono::steady_clock::now() - start;
  vantrel::Camera camera;
  vantrel::frameScene(camera, scene);
  vantrel::PaintScene(scene, camera, options.size);
  const std::string stem = std::filesystem::path(plan).stem().string();
  if (!Save(Picture(screen), options.folder + "/" + stem + ".png")) return false;
  const vantrel::FrameCost cost = vantrel::MeasureFrame(scene, camera, options.size);
  std::printf(
      "  %zu pieces, %zu models, built in %.1f ms; %zu triangles a frame, %.1f frames a second: "
      "%.2f ms, of which clearing %.2f, the same triangles in one call %.2f\n",
      layout.pieces.size(), scene.trackModels.size() + scene.sceneryModels.size(), built.count(),
      vantrel::TrianglesOf(scene), 1000.0 / cost.whole, cost.whole, cost.cleared, cost.oneCall);
  return true;
}

bool Run(const Options& options) {
  wxImage::AddHandler(new wxPNGHandler);
  std::filesystem::create_directories(options.folder);
  if (!vantrel::OffScreen(kTile, options.samples).ok()) {
    std::fputs("no OpenGL to draw with off screen\n", stderr);
    return false;
  }
  bool fine = MakeSheet(vantrel::TrackSheet(), options.samples, options.folder + "/track.png") &&
              MakeSheet(vantrel::ScenerySheet(), options.samples, options.folder + "/scenery.png");
  for (const std::string& plan : options.plans) fine = ShowPlan(plan, options) && fine;
  return fine;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ReadOptions(argc, argv);
  if (!options.valid) {
    std::fputs("usage: model_sheet FOLDER [--size WIDTHxHEIGHT] [--samples N] [PLAN.vtl...]\n",
               stderr);
    return 2;
  }
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  delete wxLog::SetActiveTarget(new wxLogStderr);  // a failure is told here, not in a dialog
  const bool fine = Run(options);
  wxEntryCleanup();
  return fine ? 0 : 1;
}
