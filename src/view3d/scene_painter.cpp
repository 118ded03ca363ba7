#include "view3d/scene_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "catalog/piece_builders.h"
#include "view3d/gl_headers.h"
#include "view3d/scene/projection.h"
#include "view3d/scene/track_strip.h"
#include "view3d/scene/vec3f.h"

namespace vantrel {
namespace {

constexpr double kFieldOfViewDegrees = 40.0;
constexpr double kNearMm = 1.0;
constexpr double kFarMm = 60000.0;

constexpr int kGridReachMm = 3500;
constexpr int kGridStepMm = 100;
constexpr float kGridHeightMm = -0.5F;
constexpr float kAxesHeightMm = -0.3F;
// Of the depth range: a few of the smallest steps of a depth buffer of 24 bits.
constexpr double kAxesNearer = 4e-7;

constexpr float kSceneryHeightMm = -1.0F;
constexpr float kArchBridgeHeightMm = -18.0F;
constexpr float kTrussBridgeHeightMm = -4.0F;

// Around the lines drawn inside: without light and this wide.
class PlainLines {
 public:
  explicit PlainLines(float width) {
    glDisable(GL_LIGHTING);
    glLineWidth(width);
  }
  ~PlainLines() {
    glLineWidth(1.0F);
    glEnable(GL_LIGHTING);
  }
  PlainLines(const PlainLines&) = delete;
  PlainLines& operator=(const PlainLines&) = delete;
};

// The arrays that are switched on stay so for the whole frame; a model that comes again right after
// itself need not be pointed at again.
class MeshDrawing {
 public:
  MeshDrawing() {
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
  }
  ~MeshDrawing() {
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
  }
  MeshDrawing(const MeshDrawing&) = delete;
  MeshDrawing& operator=(const MeshDrawing&) = delete;

  void draw(const Mesh& mesh) { draw(mesh, mesh.colors, mesh.indices); }

  // The vertices of a mesh in other colours, and only some of its triangles.
  void draw(const Mesh& mesh, const std::vector<Rgb>& colours,
            const std::vector<std::uint32_t>& indices) {
    if (indices.empty()) return;
    if (&mesh != pointedAt_) {
      glVertexPointer(3, GL_FLOAT, sizeof(Vec3f), mesh.positions.data());
      glNormalPointer(GL_FLOAT, sizeof(Vec3f), mesh.normals.data());
      pointedAt_ = &mesh;
    }
    if (&colours != colouredBy_) {
      glColorPointer(3, GL_FLOAT, sizeof(Rgb), colours.data());
      colouredBy_ = &colours;
    }
    glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(indices.size()), GL_UNSIGNED_INT,
                   indices.data());
  }

 private:
  const Mesh* pointedAt_ = nullptr;
  const std::vector<Rgb>* colouredBy_ = nullptr;
};

const Model* ModelFor(const std::unordered_map<std::string, Model>& models,
                      const std::string& key) {
  const auto found = models.find(key);
  return found == models.end() || found->second.empty() ? nullptr : &found->second;
}

void Look(const Camera& camera, PaintSize size) {
  glViewport(0, 0, size.width, size.height);
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  gluPerspective(kFieldOfViewDegrees, static_cast<double>(size.width) / size.height, kNearMm,
                 kFarMm);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  gluLookAt(0.0, 0.0, camera.distance, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  // The far side of the table turns away from the eye, so what stands on it points up.
  glRotatef(-camera.pitch, 1.0F, 0.0F, 0.0F);
  glRotatef(camera.yaw, 0.0F, 0.0F, 1.0F);
  glTranslatef(camera.panX - camera.centreX, camera.panY - camera.centreY, 0.0F);
}

// The baseboard, of the same height and drawn later, has to cover the grid. Depths of a line and of
// a surface come out differently, so the grid leaves none behind: nothing else lies below it.
void DrawFloorGrid() {
  const PlainLines lines(1.0F);
  glDepthMask(GL_FALSE);
  glColor3f(0.22F, 0.24F, 0.22F);
  glBegin(GL_LINES);
  constexpr auto reach = static_cast<float>(kGridReachMm);
  for (int step = -kGridReachMm; step <= kGridReachMm; step += kGridStepMm) {
    const auto at = static_cast<float>(step);
    glVertex3f(at, -reach, kGridHeightMm);
    glVertex3f(at, reach, kGridHeightMm);
    glVertex3f(-reach, at, kGridHeightMm);
    glVertex3f(reach, at, kGridHeightMm);
  }
  glEnd();
  glDepthMask(GL_TRUE);
}

void DrawAxisLines() {
  constexpr auto reach = static_cast<float>(kGridReachMm);
  glBegin(GL_LINES);
  glColor3f(0.45F, 0.18F, 0.18F);
  glVertex3f(0.0F, -reach, kAxesHeightMm);
  glVertex3f(0.0F, reach, kAxesHeightMm);
  glColor3f(0.18F, 0.45F, 0.18F);
  glVertex3f(-reach, 0.0F, kAxesHeightMm);
  glVertex3f(reach, 0.0F, kAxesHeightMm);
  glEnd();
}

// They lie a hair above the baseboard: too little for the depth buffer from farther away. Drawn
// without samples they leave their depth, on some drivers, in one sample of four only, and the
// board would cover the others.
void DrawAxes() {
  const PlainLines lines(2.0F);
  glDepthRange(0.0, 1.0 - kAxesNearer);
  DrawAxisLines();
  glEnable(GL_MULTISAMPLE);
  glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
  DrawAxisLines();
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glDepthRange(0.0, 1.0);
}

// The bridges of the scenery reach below the table's edge with their abutments.
float SceneryHeight(const std::string& id) {
  if (id == "bridge_arch") return kArchBridgeHeightMm;
  if (id == "bridge_truss") return kTrussBridgeHeightMm;
  return kSceneryHeightMm;
}

void DrawScenery(MeshDrawing& meshes, const Scene& scene) {
  for (const SceneryInstance& item : scene.sceneryInstances) {
    const Model* model = ModelFor(scene.sceneryModels, item.key);
    if (!model) continue;
    glPushMatrix();
    glTranslatef(item.x, item.y, item.z + SceneryHeight(item.key));
    glRotatef(item.heading, 0.0F, 0.0F, 1.0F);
    if (item.scaleX != 1.0F || item.scaleY != 1.0F) glScalef(item.scaleX, item.scaleY, 1.0F);
    meshes.draw(*model);
    glPopMatrix();
  }
}

void DrawWires(const std::vector<WireLine>& wires) {
  if (wires.empty()) return;
  const PlainLines lines(2.0F);
  glBegin(GL_LINES);
  for (const WireLine& wire : wires) {
    glColor3f(wire.colour.r, wire.colour.g, wire.colour.b);
    glVertex3f(wire.from.x, wire.from.y, wire.from.z);
    glVertex3f(wire.to.x, wire.to.y, wire.to.z);
  }
  glEnd();
}

// As the context has it just now.
Projection CurrentProjection() {
  std::array<float, 16> scene{};
  std::array<float, 16> view{};
  std::array<GLint, 4> viewport{};
  glGetFloatv(GL_MODELVIEW_MATRIX, scene.data());
  glGetFloatv(GL_PROJECTION_MATRIX, view.data());
  glGetIntegerv(GL_VIEWPORT, viewport.data());
  return {Product(view, scene), static_cast<float>(viewport[2]), static_cast<float>(viewport[3])};
}

// As much as from one sleeper to the next, in the piece's middle.
struct SleeperStep {
  double along = 0.0;  // pixels, along the heading
  double across = 0.0;
};

SleeperStep SleeperStepOf(const Projection& projection, const TrackInstance& piece) {
  const auto heading = static_cast<float>(Radians(piece.heading));
  const Vec3f ahead{std::cos(heading), std::sin(heading), 0.0F};
  const Vec3f aside{-ahead.y, ahead.x, 0.0F};
  constexpr auto step = static_cast<float>(kSleeperStepMm);
  const Vec3f middle = Vec3f{piece.x, piece.y, piece.z} + ahead * (piece.length / 2.0F);
  return {PixelsBetween(projection, middle, middle + ahead * step),
          PixelsBetween(projection, middle, middle + aside * step)};
}

// With as much of sleepers and rails as can be seen.
void DrawTrackModel(MeshDrawing& meshes, const Model& model, const FarTrack& far,
                    SleeperStep step) {
  const int shade = FarShade(step.along);
  if (IsPlainBand(std::max(step.along, step.across)))
    meshes.draw(model, far.bandColours, far.band);
  else if (shade == 0)
    meshes.draw(model);
  else
    meshes.draw(model, far.colours[static_cast<std::size_t>(shade - 1)],
                shade == kFarShades ? far.withoutSleepers : model.indices);
}

void DrawTrack(MeshDrawing& meshes, const Scene& scene) {
  const Projection projection = CurrentProjection();
  for (const TrackInstance& piece : scene.trackInstances) {
    const Model* model = ModelFor(scene.trackModels, piece.key);
    if (!model) continue;
    const auto far = scene.farTracks.find(piece.key);
    glPushMatrix();
    glTranslatef(piece.x, piece.y, piece.z);
    glRotatef(piece.heading, 0.0F, 0.0F, 1.0F);
    glRotatef(piece.rev ? piece.grade : -piece.grade, 0.0F, 1.0F, 0.0F);
    // Models are made in the canvas's frame, in which y points the other way.
    glScalef(1.0F, -1.0F, 1.0F);
    if (far == scene.farTracks.end())
      meshes.draw(*model);
    else
      DrawTrackModel(meshes, *model, far->second, SleeperStepOf(projection, piece));
    glPopMatrix();
  }
}

}  // namespace

bool SetUpPainting() {
  while (glGetError() != GL_NO_ERROR) {
  }
  glEnable(GL_DEPTH_TEST);
  glDepthFunc(GL_LEQUAL);
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  glEnable(GL_LIGHT1);
  glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
  glEnable(GL_COLOR_MATERIAL);
  glShadeModel(GL_SMOOTH);
  glEnable(GL_NORMALIZE);

  // Placed before the camera is: the lights go along with the eye.
  constexpr float ambient0[] = {0.22F, 0.22F, 0.2F, 1.0F};
  constexpr float diffuse0[] = {0.92F, 0.9F, 0.84F, 1.0F};
  constexpr float position0[] = {700.0F, 500.0F, 1000.0F, 1.0F};
  constexpr float ambient1[] = {0.04F, 0.04F, 0.07F, 1.0F};
  constexpr float diffuse1[] = {0.22F, 0.26F, 0.34F, 1.0F};
  constexpr float position1[] = {-500.0F, -700.0F, 250.0F, 1.0F};
  constexpr float specular[] = {0.35F, 0.35F, 0.38F, 1.0F};
  constexpr float shininess = 20.0F;
  glLightfv(GL_LIGHT0, GL_AMBIENT, ambient0);
  glLightfv(GL_LIGHT0, GL_DIFFUSE, diffuse0);
  glLightfv(GL_LIGHT0, GL_SPECULAR, specular);
  glLightfv(GL_LIGHT0, GL_POSITION, position0);
  glLightfv(GL_LIGHT1, GL_AMBIENT, ambient1);
  glLightfv(GL_LIGHT1, GL_DIFFUSE, diffuse1);
  glLightfv(GL_LIGHT1, GL_POSITION, position1);
  glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, specular);
  glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, shininess);
  glClearColor(0.14F, 0.16F, 0.19F, 1.0F);
  return glGetError() == GL_NO_ERROR;
}

void PaintScene(const Scene& scene, const Camera& camera, PaintSize size) {
  if (size.width >= 1 && size.height >= 1) Look(camera, size);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  // So wide and of that colour to the pixel, however many samples it has: smoothed, the dark lines
  // of the grid would be as good as gone.
  glDisable(GL_MULTISAMPLE);
  DrawFloorGrid();
  DrawAxes();
  glEnable(GL_MULTISAMPLE);
  PaintContents(scene);
}

void PaintContents(const Scene& scene) {
  MeshDrawing meshes;
  meshes.draw(scene.baseMesh);
  DrawScenery(meshes, scene);
  glPushMatrix();
  meshes.draw(scene.sceneMesh);
  glPopMatrix();
  DrawWires(scene.wireLines);
  // Track on a board or a deck of the same height lies visibly above it.
  glEnable(GL_POLYGON_OFFSET_FILL);
  glPolygonOffset(-1.0F, -1.0F);
  DrawTrack(meshes, scene);
  glDisable(GL_POLYGON_OFFSET_FILL);
  meshes.draw(scene.tunnelMesh);
}

}  // namespace vantrel
