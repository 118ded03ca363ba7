// What holds after any sequence of edits.
#include <gtest/gtest.h>

#include <unordered_set>

#include "canvas/operations/selection.h"
#include "io/layout_text.h"
#include "tests/laws/edit_session.h"
#include "tests/operations/plan_support.h"

namespace vantrel {
namespace {

constexpr int kEditsPerSession = 1000;
// An edit takes at most four undo steps (two straights, an autofill; a piece and its partner), and
// history holds fifty.
constexpr int kEditsPerStretch = 12;

// Empty when no two records have one id, of whatever kinds they are.
std::string RepeatedId(const Layout& layout) {
  std::unordered_set<std::int32_t> seen;
  std::string repeated;
  const auto look = [&](const auto& records) {
    for (const auto& record : records)
      if (!seen.insert(record.id).second) repeated = "id " + std::to_string(record.id);
  };
  look(layout.pieces);
  look(layout.scenery);
  look(layout.labels);
  look(layout.measurements);
  look(layout.shapes);
  look(layout.tunnels);
  look(layout.helices);
  return repeated;
}

// Empty when every run has its anchor in the plan, and the last one is the current grade.
std::string StrayRun(const Layout& layout) {
  if (layout.currentGrade.active == layout.gradeRuns.empty()) return "the current grade is no run";
  for (const GradeRun& run : layout.gradeRuns)
    if (FindPiece(layout, run.anchor) == nullptr)
      return "a run is anchored on piece " + std::to_string(run.anchor) + ", which doesn't exist";
  return {};
}

class AnyEdits : public testing::TestWithParam<unsigned> {
 protected:
  // Runs the session in stretches, with `check` after each edit and `checkStretch` at their ends.
  template <typename Check, typename CheckStretch>
  void run(Check check, CheckStretch checkStretch) {
    for (int edit = 0; edit < kEditsPerSession && !HasFatalFailure(); ++edit) {
      session_.step();
      check(edit);
      if (edit % kEditsPerStretch != kEditsPerStretch - 1) continue;
      checkStretch(edit);
      session_.beginStretch();
    }
  }

  EditSession session_{GetParam()};
};

TEST_P(AnyEdits, LeaveNoTwoRecordsWithOneId) {
  run([this](int edit) { ASSERT_EQ(RepeatedId(session_.layout), "") << "edit " << edit; },
      [](int) {});
  EXPECT_GT(session_.stepsAcrossPlans, 10) << "hardly an undo across New and Open";
}

TEST_P(AnyEdits, LeaveEveryJointNamedBackFromItsFarSide) {
  run(
      [this](int edit) {
        ASSERT_EQ(BrokenJoint(session_.layout), "") << "edit " << edit;
        ASSERT_EQ(StrayRun(session_.layout), "") << "edit " << edit;
      },
      [](int) {});
  for (std::size_t i = 0; i < EditSession::kEdits; ++i)
    EXPECT_GT(session_.done[i], 3) << "the session hardly tried: " << EditSession::kEditNames[i];
  EXPECT_GT(session_.snappedDrops, 5);
}

TEST_P(AnyEdits, AreUndoneAndRedoneToTheSameBytesOfTheFile) {
  session_.recordTexts();
  session_.beginStretch();
  run([this](int edit) { ASSERT_EQ(session_.complaint(), "") << "edit " << edit; },
      [this](int edit) {
        ASSERT_LT(session_.layout.undoHistory.size(), 50u) << "nothing may have been dropped";
        ASSERT_EQ(session_.undoAllAndRedoAll(), "") << "edit " << edit;
      });
}

TEST_P(AnyEdits, LeaveAPlanThatReadsAndWritesToTheSameBytes) {
  run([](int) {},
      [this](int edit) {
        // A reader selects a helix whole when a part of it is.
        expandHelixSelection(session_.layout);
        const std::string text = LayoutText(session_.layout, "Session");
        Layout read;
        std::string name;
        ReadLayoutText(read, text, "session.vtl", name);
        ASSERT_EQ(LayoutText(read, name), text) << "edit " << edit;
      });
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyEdits, testing::Range(1u, 5u));

}  // namespace
}  // namespace vantrel
