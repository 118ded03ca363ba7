// Helpers to lay small plans by hand and to check what must hold in every plan.
#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout.h"
#include "doc/layout_ops.h"

namespace vantrel {

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInf = std::numeric_limits<double>::infinity();
inline constexpr std::int32_t kLargestId = std::numeric_limits<std::int32_t>::max();

// Appends a piece with a slot for each connector and returns its id.
inline std::int32_t LayPiece(Layout& layout, std::string_view part, const Pose& pose) {
  Piece piece;
  piece.id = TakeId(layout);
  piece.cat = std::string(part);
  piece.x = pose.x;
  piece.y = pose.y;
  piece.heading = pose.heading;
  if (const PieceDef* def = findPart(part)) piece.joints.resize(def->connectors.size());
  layout.pieces.push_back(piece);
  return piece.id;
}

inline Piece& PieceOf(Layout& layout, std::int32_t id) {
  Piece* piece = FindPiece(layout, id);
  EXPECT_NE(piece, nullptr) << "no piece " << id;
  static Piece nothing;
  return piece != nullptr ? *piece : nothing;
}

inline std::int32_t LaySelected(Layout& layout, std::string_view part, const Pose& pose = {}) {
  const std::int32_t id = LayPiece(layout, part, pose);
  PieceOf(layout, id).sel = true;
  return id;
}

inline std::vector<std::int32_t> SelectedIds(const Layout& layout) {
  std::vector<std::int32_t> ids;
  for (const Piece& piece : layout.pieces)
    if (piece.sel) ids.push_back(piece.id);
  return ids;
}

inline std::vector<std::int32_t> LevelIds(const Layout& layout) {
  std::vector<std::int32_t> ids;
  for (const Level& level : layout.levels) ids.push_back(level.id);
  return ids;
}

inline Joint JointOf(Layout& layout, std::int32_t id, std::size_t slot) {
  const Piece& piece = PieceOf(layout, id);
  return slot < piece.joints.size() ? piece.joints[slot] : Joint{};
}

// Empty when each slot that is not open names a slot that names it back; else what is wrong.
inline std::string BrokenJoint(const Layout& layout) {
  for (const Piece& piece : layout.pieces) {
    for (std::size_t slot = 0; slot < piece.joints.size(); ++slot) {
      const Joint& joint = piece.joints[slot];
      if (joint.target == -1) continue;
      const std::string where = "slot " + std::to_string(slot) + " of piece " +
                                std::to_string(piece.id) + " names piece " +
                                std::to_string(joint.target);
      const Piece* far = FindPiece(layout, joint.target);
      if (far == nullptr) return where + ", which doesn't exist";
      const auto farSlot = static_cast<std::size_t>(joint.tconn);
      if (joint.tconn < 0 || farSlot >= far->joints.size())
        return where + ", which has no such slot";
      const Joint back{.target = piece.id, .tconn = static_cast<std::int32_t>(slot)};
      if (!(far->joints[farSlot] == back)) return where + ", which doesn't name it back";
    }
  }
  return {};
}

inline void ExpectPose(const Pose& pose, double x, double y, double heading, double tolerance) {
  EXPECT_NEAR(pose.x, x, tolerance);
  EXPECT_NEAR(pose.y, y, tolerance);
  EXPECT_NEAR(pose.heading, heading, tolerance);
}

}  // namespace vantrel
