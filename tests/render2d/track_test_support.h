// What the tests of track drawing share: a view whose numbers are easy to work out, and short ways
// to draw one piece.
#pragma once

#include <wx/gdicmn.h>

#include <ostream>
#include <string>
#include <vector>

#include "catalog/piece_builders.h"
#include "catalog/piece_def.h"
#include "doc/layout.h"
#include "doc/view_transform.h"
#include "render2d/render_context.h"
#include "render2d/track_drawing.h"
#include "tests/support/recording_dc.h"

namespace vantrel {

using Points = std::vector<wxPoint>;

// One device unit per mm. A world coordinate w lands on floor(w + 1000.5), so that whole
// millimetres don't sit on the edge of a truncation.
inline constexpr ViewTransform kPlainView{1.0, 1000.5, 1000.5};

inline constexpr Rgba kDefaultFill{210, 210, 205};
inline constexpr Rgba kDefaultOutline{120, 120, 115};
inline constexpr Rgba kDefaultBranch{195, 195, 195};  // 210 - 15, 210 - 15, 205 - 10
inline constexpr Rgba kPickedFill{180, 200, 230};
inline constexpr Rgba kPickedOutline{40, 100, 200};
inline constexpr Rgba kOrange{255, 140, 0};
inline constexpr Rgba kGreen{60, 180, 60};

// A piece at `pose` with one open slot per connector.
inline Piece PieceOf(const PieceDef& def, Pose pose = {}) {
  Piece piece;
  piece.id = 1;
  piece.cat = def.partNumber;
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  piece.joints.resize(def.connectors.size());
  return piece;
}

// The calls that a piece makes outside any layout, neither selected nor labelled nor in a tunnel.
inline std::vector<DrawCall> PlainCalls(const PieceDef& def, Pose pose = {},
                                        const ViewTransform& view = kPlainView) {
  RecordingDC dc;
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def, pose), def, view, false, false, false);
  return dc.calls();
}

inline std::vector<DrawCall> LabelledCalls(const PieceDef& def, const ViewTransform& view) {
  RecordingDC dc;
  DrawTrackPiece(RenderContext{}, dc, PieceOf(def), def, view, false, true, false);
  return dc.calls();
}

inline std::vector<DrawCall> GhostCalls(const PieceDef& def, Pose pose = {},
                                        const ViewTransform& view = kPlainView) {
  RecordingDC dc;
  DrawTrackGhost(dc, def, pose, view);
  return dc.calls();
}

inline std::vector<DrawOp> OpsOf(const std::vector<DrawCall>& calls) {
  std::vector<DrawOp> ops;
  for (const DrawCall& call : calls) ops.push_back(call.op);
  return ops;
}

inline std::vector<Rgba> FillsOf(const std::vector<DrawCall>& calls) {
  std::vector<Rgba> fills;
  for (const DrawCall& call : calls) fills.push_back(call.brush.colour);
  return fills;
}

// A definition with `count` connectors in a row along +x, 10 mm apart.
inline PieceDef Sketch(PieceKind kind, std::size_t count) {
  PieceDef def;
  def.partNumber = "sketch";
  def.kind = kind;
  def.length = 100.0;
  for (std::size_t i = 0; i < count; ++i) {
    Connector connector;
    connector.x = 10.0 * static_cast<double>(i);
    connector.connectorId = static_cast<std::int32_t>(i);
    def.connectors.push_back(connector);
  }
  return def;
}

}  // namespace vantrel
