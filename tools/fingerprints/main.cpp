// What the program makes of plans, as one line of digits for each thing that it makes: the file,
// what is drawn at several scales and on pages, what lies under the pointer, what a band selects,
// the 3D scene, the tally. Two builds that print the same lines show, hit, print, save and count
// the same:
//
//   fingerprints PLAN.vtl... >before.txt
//
// Besides the plans given it takes every catalog piece in many poses, and random plans that are the
// same at every run. It needs a display, as all drawing does.
#include <wx/app.h>
#include <wx/init.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>

#include "canvas/operations/hit_test.h"
#include "canvas/operations/selection.h"
#include "catalog/helix_kits.h"
#include "catalog/scenery_catalog.h"
#include "catalog/track_catalog.h"
#include "io/layout_file.h"
#include "print/pages/pagination.h"
#include "render2d/contents_drawing.h"
#include "render2d/track_drawing.h"
#include "shopping/tally.h"
#include "tests/support/recording_dc.h"
#include "view3d/scene/scene.h"

namespace {

using namespace vantrel;

std::size_t PartCount() {
  return static_cast<std::size_t>(catalog().pieceCount());
}

const PieceDef& PartAt(std::size_t index) {
  return *catalog().pieceAt(static_cast<std::int32_t>(index));
}

// FNV-1a over bytes: short, and the same on every machine.
class Digest {
 public:
  void take(const void* bytes, std::size_t count) {
    const auto* at = static_cast<const unsigned char*>(bytes);
    for (std::size_t i = 0; i < count; ++i) {
      state_ ^= at[i];
      state_ *= 1099511628211ULL;
    }
  }
  void take(const std::string& text) { take(text.data(), text.size()); }
  template <typename Number>
  requires std::is_arithmetic_v<Number>
  void take(Number number) { take(&number, sizeof number); }
  template <typename Record>
  void takeAll(const std::vector<Record>& records) {
    if (!records.empty()) take(records.data(), records.size() * sizeof(Record));
  }
  unsigned long long value() const { return state_; }

 private:
  unsigned long long state_ = 14695981039346656037ULL;
};

void Print(const std::string& plan, const std::string& what, const Digest& digest) {
  std::printf("%016llx  %s  %s\n", digest.value(), plan.c_str(), what.c_str());
}

struct Box {
  double left = 1e9;
  double top = 1e9;
  double right = -1e9;
  double bottom = -1e9;
};

Box BoxOf(const Layout& layout) {
  Box box;
  const auto takeIn = [&](double x, double y) {
    box.left = std::min(box.left, x);
    box.right = std::max(box.right, x);
    box.top = std::min(box.top, y);
    box.bottom = std::max(box.bottom, y);
  };
  for (const Piece& piece : layout.pieces) takeIn(piece.x, piece.y);
  for (const SceneryItem& item : layout.scenery) takeIn(item.x, item.y);
  if (box.left > box.right) box = {0.0, 0.0, 1000.0, 1000.0};
  return {box.left - 300.0, box.top - 300.0, box.right + 300.0, box.bottom + 300.0};
}

Digest OfCalls(const RecordingDC& dc) {
  std::ostringstream text;
  text.precision(17);
  for (const DrawCall& call : dc.calls()) text << call << '\n';
  Digest digest;
  digest.take(text.str());
  return digest;
}

void PrintFile(const std::string& name, const Layout& layout) {
  const std::string path = (std::filesystem::temp_directory_path() /
                            ("fingerprint." + std::to_string(std::random_device{}()) + ".vtl"))
                               .string();
  SaveLayoutFile(layout, path, name);
  std::ifstream file(path, std::ios::binary);
  Digest digest;
  digest.take(std::string(std::istreambuf_iterator<char>(file), {}));
  file.close();
  std::filesystem::remove(path);
  Print(name, "file", digest);
}

void PrintDrawing(const std::string& name, const Layout& layout, const Box& box) {
  for (const double scale : {0.06, 0.19, 0.4, 1.0, 3.7, 20.0}) {
    // Wholly in view up to 1, in part beyond, so that what is skipped is looked at as well.
    const ViewTransform view{scale, -box.left * scale, -box.top * scale};
    const DeviceSize size{std::min(4000, DeviceInt((box.right - box.left) * scale)),
                          std::min(3000, DeviceInt((box.bottom - box.top) * scale))};
    RecordingDC dc({size.width, size.height});
    RenderContext context;
    DrawLayoutContents(context, dc, layout, view, size);
    Print(name, "drawn at " + std::to_string(scale), OfCalls(dc));
  }
}

void PrintPages(const std::string& name, const Layout& layout) {
  for (std::int32_t mode = 0; mode < 3; ++mode) {
    const PrintOptions options{.mode = mode, .scaleN = 20, .percent = 170, .allLevels = 1};
    const PrintBounds bounds = boundsOfPrint(layout, options);
    const DeviceSize page{3508, 2480};
    const Pagination pagination = paginate(bounds, options, page, 300);
    RecordingDC dc({page.width, page.height}, 300);
    for (int number = 1; number <= std::min(pagination.pageCount(), 4); ++number) {
      RenderContext context;
      ViewTransform view = pageView(pagination, bounds, page, number);
      view.pixel = 300.0 / 96.0;
      DrawLayoutContents(context, dc, layout, view, page);
    }
    Print(name, "pages in mode " + std::to_string(mode), OfCalls(dc));
  }
}

void PrintHits(const std::string& name, const Layout& layout, const Box& box) {
  const ViewTransform view{0.5, -box.left * 0.5, -box.top * 0.5};
  const int width = DeviceInt((box.right - box.left) * 0.5);
  const int height = DeviceInt((box.bottom - box.top) * 0.5);
  Digest hits;
  const int step = std::max(1, static_cast<int>(std::sqrt(width * 1.0 * height / 40000.0)));
  for (int y = 0; y < height; y += step)
    for (int x = 0; x < width; x += step) {
      hits.take(hitTestPieceOrHelix(layout, view, {x, y}));
      hits.take(hitTestScenery(layout, view, {x, y}));
      hits.take(hitTestLabel(layout, view, {x, y}));
      hits.take(hitTestShape(layout, view, {x, y}));
    }
  Print(name, "hits", hits);
  std::mt19937 random(7);
  const auto below = [&](int limit) { return static_cast<int>(random() % std::max(1, limit)); };
  Digest bands;
  for (int i = 0; i < 100; ++i) {
    Layout copy = layout;
    for (Piece& piece : copy.pieces) piece.sel = false;
    const DevicePoint from{below(width), below(height)};
    selectInBand(copy, view, from, {from.x + below(200), from.y + below(120)});
    for (const Piece& piece : copy.pieces) bands.take(piece.sel);
    for (const SceneryItem& item : copy.scenery) bands.take(item.sel);
  }
  Print(name, "bands", bands);
}

void Take(Digest& digest, const Mesh& mesh) {
  digest.takeAll(mesh.positions);
  digest.takeAll(mesh.normals);
  digest.takeAll(mesh.colors);
  digest.takeAll(mesh.indices);
}

void PrintScene(const std::string& name, const Layout& layout) {
  const Scene scene = BuildScene(layout);
  Digest digest;
  for (std::size_t i = 0; i < PartCount(); ++i) {
    const auto model = scene.trackModels.find(PartAt(i).partNumber);
    if (model != scene.trackModels.end()) Take(digest, model->second);
  }
  for (const TrackInstance& at : scene.trackInstances) {
    digest.take(at.key);
    for (const float number : {at.x, at.y, at.z, at.heading, at.grade, at.length})
      digest.take(number);
    digest.take(at.rev);
  }
  for (const SceneryInstance& at : scene.sceneryInstances) {
    digest.take(at.key);
    for (const float number : {at.x, at.y, at.z, at.heading, at.scaleX, at.scaleY})
      digest.take(number);
    Take(digest, scene.sceneryModels.at(at.key));
  }
  for (const Mesh* mesh : {&scene.sceneMesh, &scene.baseMesh, &scene.tunnelMesh})
    Take(digest, *mesh);
  digest.takeAll(scene.wireLines);
  for (const float number : {scene.centreX, scene.centreY, scene.distance}) digest.take(number);
  Print(name, "scene", digest);
}

void PrintTally(const std::string& name, const Layout& layout) {
  Digest digest;
  for (const TallyRow& row : TallyRows(CountForTally(layout))) digest.take(row.text + row.count);
  Print(name, "tally", digest);
}

void PrintAll(const std::string& name, const Layout& layout) {
  const Box box = BoxOf(layout);
  PrintFile(name, layout);
  PrintDrawing(name, layout, box);
  PrintPages(name, layout);
  PrintHits(name, layout, box);
  PrintScene(name, layout);
  PrintTally(name, layout);
}

void PrintGhosts() {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> heading(-30.0, 400.0);
  for (const double scale : {0.15, 0.8, 4.0}) {
    RecordingDC dc;
    for (std::size_t i = 0; i < PartCount(); ++i)
      for (int k = 0; k < 5; ++k)
        DrawTrackGhost(dc, PartAt(i), {500.0, 400.0, heading(random)}, {scale, 3.0, 5.0});
    Print("ghosts", "at " + std::to_string(scale), OfCalls(dc));
  }
}

// Every part of the catalog six times, in rows.
Layout EveryPart(std::mt19937& random) {
  std::uniform_real_distribution<double> turn(-400.0, 400.0);
  Layout layout;
  layout.levels = {Level{}, Level{.id = 2, .height = 120.0, .trackcolor = true, .r = 20, .g = 9}};
  for (std::size_t i = 0; i < PartCount(); ++i) {
    const PieceDef& def = PartAt(i);
    for (int k = 0; k < 6; ++k) {
      Piece piece{.id = layout.nextId++, .cat = def.partNumber};
      piece.x = 1300.0 * k;
      piece.y = 1000.0 * static_cast<double>(i);
      piece.heading = k == 0 ? 0.0 : k == 1 ? 90.0 : turn(random);
      piece.sel = k == 5;
      piece.z = k < 3 ? 0.0 : 40.0 * k;
      piece.grade = k == 4 ? 2.0 : 0.0;
      piece.level = k == 2 ? 2 : 1;
      piece.hasColor = k == 3;
      piece.colorB = 7;
      piece.joints.resize(def.connectors.size());
      if (k % 2 == 1) piece.joints[0] = {piece.id - 1, 0};
      layout.pieces.push_back(piece);
    }
  }
  return layout;
}

Layout RandomPlan(std::mt19937& random) {
  std::uniform_real_distribution<double> place(-1500.0, 2500.0);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  Layout layout = EveryPart(random);
  std::shuffle(layout.pieces.begin(), layout.pieces.end(), random);
  layout.pieces.resize(300);
  for (Piece& piece : layout.pieces) {
    piece.x = place(random);
    piece.y = place(random);
  }
  for (std::size_t i = 0; i < sceneryCatalog().size(); ++i)
    layout.scenery.push_back({.id = layout.nextId++,
                              .item = std::string(sceneryCatalog()[i].id),
                              .x = place(random),
                              .y = place(random),
                              .heading = place(random),
                              .scalex = i % 3 == 0 ? 1.7 : 1.0});
  for (int i = 0; i < 8; ++i) {
    layout.labels.push_back({.id = layout.nextId++,
                             .text = "Gleis " + std::to_string(i),
                             .x = place(random),
                             .y = 20.0});
    layout.measurements.push_back({.id = layout.nextId++,
                                   .startX = place(random),
                                   .startY = place(random),
                                   .endX = place(random),
                                   .endY = place(random)});
    Shape shape{.id = layout.nextId++, .height = 15.0 * i, .label = "Berg"};
    for (int k = 0; k < 4; ++k) shape.vertices.push_back({place(random), place(random)});
    layout.shapes.push_back(shape);
    Helix helix{.id = layout.nextId++, .cx = place(random), .cy = place(random)};
    helix.bottomR1 = layout.pieces[below(300)].id;
    layout.helices.push_back(helix);
    Tunnel tunnel{.id = layout.nextId++};
    tunnel.portalA = layout.scenery[below(layout.scenery.size())].id;
    for (int k = 0; k < 6; ++k) tunnel.covers.push_back(layout.pieces[below(300)].id);
    layout.tunnels.push_back(tunnel);
  }
  layout.gradeRuns = {{2.0, layout.pieces[3].id, 1}};
  layout.currentGrade = {true, 2.0, layout.pieces[3].id, 1};
  layout.baseboard = {{-900, -900}, {2000, -900}, {2000, 1800}, {300, 900}, {-900, 1800}};
  return layout;
}

int PrintFingerprints(int count, char** plans) {
  for (int i = 0; i < count; ++i) {
    Layout layout;
    std::string ownName;
    const std::string problem = LoadLayoutFile(layout, plans[i], ownName);
    if (!problem.empty()) {
      std::fprintf(stderr, "%s\n", problem.c_str());
      return 1;
    }
    PrintAll(std::filesystem::path(plans[i]).stem().string(), layout);
  }
  PrintGhosts();
  std::mt19937 random(1);
  PrintAll("every part", EveryPart(random));
  for (int i = 0; i < 4; ++i) PrintAll("random " + std::to_string(i), RandomPlan(random));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  wxApp::SetInstance(new wxApp);
  int toolkitArguments = 1;
  if (!wxEntryStart(toolkitArguments, argv)) return 2;
  const int result = PrintFingerprints(argc - 1, argv + 1);
  wxEntryCleanup();
  return result;
}
