// The records of a plan: what stands in it and what it refers to. Plain data; Layout (layout.h)
// owns them by value.
//
// All lengths and coordinates are world millimetres and all angles degrees. Records refer to each
// other by id, never by position or pointer, because they move freely inside their vectors.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "doc/vec2.h"

namespace vantrel {

// The id and the connector number that stand for "none".
inline constexpr std::int32_t kNone = -1;

// One end of a join, stored in the slot of the piece's own connector. Every join is stored on both
// pieces, each slot naming the other.
struct Joint {
  std::int32_t target = kNone;  // id of the other piece
  std::int32_t tconn = kNone;   // connector number on that piece

  bool open() const { return target == kNone; }
  friend bool operator==(const Joint&, const Joint&) = default;
};

// One placed track piece. `cat` is the key of its definition in the track catalog; a key that the
// catalog doesn't know is allowed everywhere.
struct Piece {
  std::int32_t id = kNone;
  std::string cat{};
  double x = 0.0;        // mm, of the definition's origin
  double y = 0.0;        // mm
  double heading = 0.0;  // degrees
  bool sel = false;
  double z = 0.0;      // mm, elevation at connector 0
  double grade = 0.0;  // degrees, positive up
  bool rev = false;    // the grade chain runs from connector 1 to connector 0
  bool hasColor = false;
  std::uint8_t colorR = 0;
  std::uint8_t colorG = 0;
  std::uint8_t colorB = 0;
  std::int32_t level = 1;      // id of its Level
  std::int32_t helix = kNone;  // id of the Helix it is a stub of
  bool free = false;           // comes with another piece: neither counted nor bought
  // Indexed by the piece's own connector number. May be shorter than the piece's number of
  // connectors: a missing slot is an open connector.
  std::vector<Joint> joints{};

  Pose pose() const { return {x, y, heading}; }
  friend bool operator==(const Piece&, const Piece&) = default;
};

struct SceneryItem {
  std::int32_t id = kNone;
  std::string item{};  // key in the scenery catalog
  double x = 0.0;      // mm, the middle of the footprint
  double y = 0.0;
  double heading = 0.0;  // degrees
  bool sel = false;
  double scalex = 1.0;  // the user's resize factors
  double scaley = 1.0;
  std::int32_t level = 1;

  Pose pose() const { return {x, y, heading}; }
  friend bool operator==(const SceneryItem&, const SceneryItem&) = default;
};

struct Label {
  std::int32_t id = kNone;
  std::string text{};  // UTF-8
  double x = 0.0;      // mm, top left
  double y = 0.0;
  bool sel = false;

  friend bool operator==(const Label&, const Label&) = default;
};

// A measuring tape between two clicked points. Never written to a file.
struct Measurement {
  std::int32_t id = kNone;
  double startX = 0.0;  // mm
  double startY = 0.0;
  double endX = 0.0;
  double endY = 0.0;
  double moveX = 0.0;  // mm, offset of the length's plate from the middle of the line
  double moveY = 0.0;
  bool sel = false;

  friend bool operator==(const Measurement&, const Measurement&) = default;
};

// A free polygon. With a height above 0 it is a solid in the 3D view.
struct Shape {
  std::int32_t id = kNone;
  std::vector<Vec2> vertices{};
  std::uint8_t r = 120;
  std::uint8_t g = 170;
  std::uint8_t b = 110;
  std::uint8_t a = 140;  // opacity
  bool outline = true;
  std::int32_t level = 1;
  double height = 0.0;  // mm
  std::string label{};  // UTF-8, the user's name for it
  bool sel = false;

  friend bool operator==(const Shape&, const Shape&) = default;
};

// One deck. Level ids are a space of their own.
struct Level {
  std::int32_t id = 1;
  std::string name = "Level 1";
  bool visible = true;
  double height = 0.0;      // mm above the ground
  bool trackcolor = false;  // the level's colour applies to its track
  std::uint8_t r = 180;
  std::uint8_t g = 180;
  std::uint8_t b = 180;
  std::vector<Vec2> outline{};  // used only with at least three points

  friend bool operator==(const Level&, const Level&) = default;
};

// A grade in force: the next piece joined to `anchor` continues the climb.
struct GradeRun {
  double deg = 0.0;  // signed slope
  std::int32_t anchor = kNone;
  std::int32_t conn = 0;  // connector of the anchor that the run continues from

  friend bool operator==(const GradeRun&, const GradeRun&) = default;
};

struct Tunnel {
  std::int32_t id = kNone;
  std::int32_t portalA = kNone;  // scenery ids
  std::int32_t portalB = kNone;
  std::int32_t anchorA = kNone;  // ids of the pieces that the portals stand on
  std::int32_t anchorB = kNone;
  std::vector<std::int32_t> covers{};  // ids of the pieces inside

  friend bool operator==(const Tunnel&, const Tunnel&) = default;
};

// A ready-made spiral climb from a kit; its four stubs are pieces that name it.
struct Helix {
  std::int32_t id = kNone;
  double cx = 0.0;  // mm
  double cy = 0.0;
  double heading = 0.0;                     // degrees
  std::string variant = "proses_2_5_r1r2";  // key of its kit
  std::int32_t bottomR1 = kNone;            // piece ids at the open ends, inner and outer ring
  std::int32_t bottomR2 = kNone;
  std::int32_t topR1 = kNone;
  std::int32_t topR2 = kNone;

  friend bool operator==(const Helix&, const Helix&) = default;
};

}  // namespace vantrel
