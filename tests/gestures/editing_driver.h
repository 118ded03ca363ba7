// The canvas driver with a view of one pixel to the millimetre, and what tests of editing ask.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "canvas/operations/joining.h"
#include "doc/layout_ops.h"
#include "tests/gestures/canvas_driver.h"

namespace vantrel {

class EditingTest : public CanvasTest {
 protected:
  void SetUp() override { state.view = {.scale = 1.0, .offsetX = 0.0, .offsetY = 0.0}; }

  Piece& piece(std::int32_t id) { return *FindPiece(layout, id); }

  // Straights of 188.3 mm joined end to end from (x, y) along x; returns their ids.
  std::vector<std::int32_t> layChain(int count, double x, double y) {
    std::vector<std::int32_t> ids;
    for (int i = 0; i < count; ++i) {
      ids.push_back(lay("24188", {x + 188.3 * i, y, 0.0}));
      if (i > 0) joinPieces(layout, ids[ids.size() - 2], 1, ids.back(), 0);
    }
    return ids;
  }

  std::int32_t layScenery(const std::string& item, const Pose& pose) {
    SceneryItem scenery;
    scenery.id = layout.nextId++;
    scenery.item = item;
    scenery.x = pose.x;
    scenery.y = pose.y;
    scenery.heading = pose.heading;
    layout.scenery.push_back(scenery);
    return scenery.id;
  }

  // A helix of the default kit (radii 360 and 437.5) around a point, made by hand, with its stubs
  // in the order bottomR1, bottomR2, topR1, topR2.
  Helix& layHelix(Vec2 centre) {
    Helix helix;
    helix.id = layout.nextId++;
    helix.cx = centre.x;
    helix.cy = centre.y;
    std::vector<std::int32_t> stubs;
    for (const double offset : {-360.0, -437.5, 360.0, 437.5}) {
      stubs.push_back(lay("24188", {centre.x, centre.y + offset, 0.0}));
      layout.pieces.back().helix = helix.id;
    }
    helix.bottomR1 = stubs[0];
    helix.bottomR2 = stubs[1];
    helix.topR1 = stubs[2];
    helix.topR2 = stubs[3];
    layout.helices.push_back(helix);
    return layout.helices.back();
  }

  // A tunnel over these pieces, without portals.
  void layTunnel(std::initializer_list<std::int32_t> covers) {
    Tunnel tunnel;
    tunnel.id = layout.nextId++;
    tunnel.covers = covers;
    layout.tunnels.push_back(tunnel);
  }

  std::int32_t layShape(Vec2 corner, double size) {
    Shape shape;
    shape.id = layout.nextId++;
    shape.vertices = {corner,
                      {corner.x + size, corner.y},
                      {corner.x + size, corner.y + size},
                      {corner.x, corner.y + size}};
    layout.shapes.push_back(shape);
    return shape.id;
  }

  void select(std::initializer_list<std::int32_t> ids) {
    for (Piece& p : layout.pieces) p.sel = std::ranges::find(ids, p.id) != ids.end();
    for (SceneryItem& s : layout.scenery) s.sel = std::ranges::find(ids, s.id) != ids.end();
  }

  // The ids of all selected pieces and scenery items.
  std::vector<std::int32_t> selected() const {
    std::vector<std::int32_t> ids;
    for (const Piece& p : layout.pieces)
      if (p.sel) ids.push_back(p.id);
    for (const SceneryItem& s : layout.scenery)
      if (s.sel) ids.push_back(s.id);
    return ids;
  }

  void dragLeft(int fromX, int fromY, int toX, int toY) {
    pressLeft(fromX, fromY);
    move(toX, toY);
    releaseLeft(toX, toY);
  }
  bool doubleClick(int x, int y) {
    clickLeft(x, y);
    held.leftDown = true;
    const bool used = onDoubleClick(context, at(x, y));
    releaseLeft(x, y);
    return used;
  }

  // After any gesture: a click on empty canvas far from everything clears the selection, leaves
  // nothing captured and no gesture on.
  void expectNextClickWorks() {
    layout.pieces.front().sel = true;
    clickLeft(5000, 5000);
    EXPECT_FALSE(layout.pieces.front().sel);
    EXPECT_FALSE(host.captured);
    const std::vector<Piece> before = layout.pieces;
    move(5100, 5100);
    EXPECT_EQ(layout.pieces, before);
  }
};

using Ids = std::vector<std::int32_t>;

}  // namespace vantrel
