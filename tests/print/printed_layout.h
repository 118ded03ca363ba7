// A plan of three levels and a printout of it that draws on a recorded page.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "print/layout_printout.h"
#include "tests/support/recording_dc.h"

namespace vantrel {

inline constexpr int kLetterWidth = 3300;  // landscape at 300 dots an inch; usable: 3036 by 2346
inline constexpr int kLetterHeight = 2550;

class PrintedLayout : public testing::Test {
 protected:
  PrintedLayout() {
    for (const std::int32_t id : {1, 2, 3}) {
      Level level;
      level.id = id;
      level.visible = id != 2;
      plan_.levels.push_back(level);
    }
    plan_.activeLevel = 2;
    plan_.baseboard = {{0, 0}, {2400, 0}, {2400, 1200}, {0, 1200}};
    addStraight(100, 2);
    addStraight(600, 1);
  }

  void addStraight(double y, std::int32_t level) {
    Piece piece;
    piece.id = plan_.nextId++;
    piece.cat = "24188";
    piece.x = 100;
    piece.y = y;
    piece.level = level;
    plan_.pieces.push_back(piece);
  }

  LayoutPrintout& printout() {
    if (!printout_) {
      printout_ = std::make_unique<LayoutPrintout>(plan_, options_);
      setUp(*printout_, kLetterWidth, kLetterHeight, 300);
    }
    return *printout_;
  }

  void setUp(LayoutPrintout& out, int width, int height, int dpi) {
    out.SetPageSizePixels(width, height);
    out.SetPPIPrinter(dpi, dpi);
    out.SetDC(&dc_);
  }

  std::vector<bool> visible() const {
    std::vector<bool> visible;
    for (const Level& level : plan_.levels) visible.push_back(level.visible);
    return visible;
  }
  void expectPlanAsItWas() const {
    EXPECT_EQ(visible(), (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(plan_.gridVisible);
    EXPECT_TRUE(plan_.baseboardVisible);
  }
  void expectLevelsOfPrint() const {
    EXPECT_EQ(visible(), (std::vector<bool>{false, true, false}));
  }

  void atOneToFive() {  // 2 sheets by 2
    options_.mode = kActualScale;
    options_.scaleN = 5;
  }

  Layout plan_;
  PrintOptions options_;
  RecordingDC dc_{{kLetterWidth, kLetterHeight}, 300};
  std::unique_ptr<LayoutPrintout> printout_;
};

}  // namespace vantrel
