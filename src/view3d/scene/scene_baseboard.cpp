#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "view3d/scene/scene_build.h"
#include "view3d/scene/triangle_collector.h"

namespace vantrel {
namespace {

constexpr double kBoardZ = -0.5;
constexpr Rgb kBoardColour{0.36F, 0.5F, 0.3F};
constexpr Vec3f kUp{0.0F, 0.0F, 1.0F};

using Points = std::vector<Vec2>;
using Place = std::array<GLdouble, 3>;

// The tessellator's work grows with the crossings of an outline times the edges that stand side by
// side: a scribble of some thousand edges would take minutes. No table has an outline that comes
// near to these limits (a hundredth of a second or two, to a tenth).
constexpr std::size_t kMostCrossings = 20'000;
constexpr std::size_t kMostEdgePairs = 20'000'000;

struct Edge {
  Vec2 from;
  Vec2 to;
  std::size_t place = 0;

  double left() const { return std::min(from.x, to.x); }
  double right() const { return std::max(from.x, to.x); }
};

double SideOf(const Edge& edge, Vec2 point) {
  return (edge.to.x - edge.from.x) * (point.y - edge.from.y) -
         (edge.to.y - edge.from.y) * (point.x - edge.from.x);
}

// Touching counts too.
bool Cross(const Edge& a, const Edge& b) {
  if (std::max(a.from.y, a.to.y) < std::min(b.from.y, b.to.y)) return false;
  if (std::max(b.from.y, b.to.y) < std::min(a.from.y, a.to.y)) return false;
  const auto straddles = [](double one, double other) {
    return (one <= 0.0 && other >= 0.0) || (one >= 0.0 && other <= 0.0);
  };
  return straddles(SideOf(a, b.from), SideOf(a, b.to)) &&
         straddles(SideOf(b, a.from), SideOf(b, a.to));
}

// Whether the tessellator would take too long over the outline.
bool IsScribble(const Points& outline) {
  std::vector<Edge> edges;
  edges.reserve(outline.size());
  for (std::size_t i = 0; i < outline.size(); ++i)
    edges.push_back({outline[i], outline[(i + 1) % outline.size()], i});
  std::ranges::sort(edges, {}, &Edge::left);
  std::size_t crossings = 0;
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const double right = edges[i].right();
    for (std::size_t j = i + 1; j < edges.size() && edges[j].left() <= right; ++j) {
      if (++pairs > kMostEdgePairs) return true;
      const std::size_t apart = edges[i].place > edges[j].place ? edges[i].place - edges[j].place
                                                                : edges[j].place - edges[i].place;
      const bool areNeighbours = apart == 1 || apart + 1 == outline.size();
      if (areNeighbours || !Cross(edges[i], edges[j])) continue;
      if (++crossings > kMostCrossings) return true;
    }
  }
  return false;
}

// What the tessellator's calls back work on. It knows a vertex by the place of its number here.
struct Board {
  std::vector<Place> places;
  std::deque<std::uint32_t> numbers;  // which stay where they are
  TriangleCollector triangles;

  std::uint32_t* addVertex(const Place& place) {
    numbers.push_back(static_cast<std::uint32_t>(places.size()));
    places.push_back(place);
    return &numbers.back();
  }
};

void OnBegin(GLenum kind, void* board) {
  const CornerRun run = kind == GL_TRIANGLE_FAN     ? CornerRun::fan
                        : kind == GL_TRIANGLE_STRIP ? CornerRun::strip
                                                    : CornerRun::triangles;
  static_cast<Board*>(board)->triangles.begin(run);
}

void OnVertex(void* number, void* board) {
  static_cast<Board*>(board)->triangles.take(*static_cast<std::uint32_t*>(number));
}

void OnEnd(void*) {}

// Asking for edge flags is asking for triangles one by one.
void OnEdgeFlag(GLboolean, void*) {}

// Where the outline crosses itself.
void OnCombine(GLdouble place[3], void* [4], GLfloat[4], void** number, void* board) {
  *number = static_cast<Board*>(board)->addVertex({place[0], place[1], place[2]});
}

template <typename Function>
void SetCallback(GLUtesselator* tesselator, GLenum which, Function* function) {
  gluTessCallback(tesselator, which, reinterpret_cast<_GLUfuncptr>(function));
}

void Tessellate(const Points& outline, Board& board) {
  const std::unique_ptr<GLUtesselator, decltype(&gluDeleteTess)> owner(gluNewTess(), gluDeleteTess);
  GLUtesselator* const tesselator = owner.get();
  if (tesselator == nullptr) return;
  SetCallback(tesselator, GLU_TESS_BEGIN_DATA, OnBegin);
  SetCallback(tesselator, GLU_TESS_VERTEX_DATA, OnVertex);
  SetCallback(tesselator, GLU_TESS_END_DATA, OnEnd);
  SetCallback(tesselator, GLU_TESS_EDGE_FLAG_DATA, OnEdgeFlag);
  SetCallback(tesselator, GLU_TESS_COMBINE_DATA, OnCombine);
  gluTessNormal(tesselator, 0.0, 0.0, 1.0);
  gluTessBeginPolygon(tesselator, &board);
  gluTessBeginContour(tesselator);
  for (const Vec2 point : outline) {
    Place place{point.x, -point.y, kBoardZ};
    gluTessVertex(tesselator, place.data(), board.addVertex(place));
  }
  gluTessEndContour(tesselator);
  gluTessEndPolygon(tesselator);
}

}  // namespace

// Corners that are no places are left out, and a scribble as a whole.
void AddBaseboard(SceneBuild& build) {
  if (!build.layout.baseboardVisible || build.layout.baseboard.size() < 3) return;
  Points outline = PlacesOf(build.layout.baseboard);
  const auto repeated = std::ranges::unique(outline);
  outline.erase(repeated.begin(), repeated.end());
  if (outline.size() < 3 || IsScribble(outline)) return;
  Board board;
  Tessellate(outline, board);
  Mesh& mesh = build.scene.baseMesh;
  for (const Place& place : board.places) {
    mesh.positions.push_back(
        {static_cast<float>(place[0]), static_cast<float>(place[1]), static_cast<float>(place[2])});
  }
  mesh.normals.assign(mesh.positions.size(), kUp);
  mesh.colors.assign(mesh.positions.size(), kBoardColour);
  mesh.indices = board.triangles.indices();
}

}  // namespace vantrel
