// A user who edits at random with every operation there is, and can keep a record of what the
// plan's file would have held at each undo step.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/operations/clipboard.h"
#include "doc/layout.h"

namespace vantrel {

class EditSession {
 public:
  explicit EditSession(unsigned seed);

  // From the next beginStretch on. Writing texts takes most of the time of a session.
  void recordTexts() { records_ = true; }

  // One edit, undo or redo. An edit that finds nothing to work on does nothing.
  void step();

  // Forgets the history, so that what follows can be undone whole before the oldest states are
  // dropped.
  void beginStretch();

  // Undoes everything since beginStretch, then does it all again. Empty when each state on the way
  // had the text that was recorded for it; else what differed.
  std::string undoAllAndRedoAll();

  // What the last step's undo or redo brought back wrongly, or empty. Both this and
  // undoAllAndRedoAll need recordTexts.
  const std::string& complaint() const { return complaint_; }

  Layout layout;

  enum Edit : std::size_t {
    kPlace,
    kAutoConnect,
    kClone,
    kSelect,
    kCopy,
    kPaste,
    kDelete,
    kJoin,
    kDrag,
    kRotate,
    kTurnByWheel,
    kGrade,
    kScenery,
    kHelix,
    kTunnel,
    kAutofill,
    kBlock,
    kAnnotate,
    kNew,
    kSave,
    kOpen,
    kUndo,
    kRedo,
    kEdits
  };
  static const std::array<std::string_view, kEdits> kEditNames;

  // How often each edit found something to work on; how many drops snapped; how often Undo or Redo
  // followed New or Open at once.
  std::array<int, kEdits> done{};
  int snappedDrops = 0;
  int stepsAcrossPlans = 0;

 private:
  std::size_t below(std::size_t limit) { return random_() % limit; }
  double between(double low, double high);
  Vec2 anyPoint();
  std::string_view anyPart();
  const Piece& anyPiece();
  Pose poseAtAnEnd(std::string_view part);
  Vec2 wayToAnEnd();
  Edit chooseEdit();
  bool run(Edit edit);

  bool place();
  bool select();
  bool paste();
  bool remove();
  bool join();
  bool drag();
  bool grade();
  bool tunnel();
  bool autofill();
  bool block();
  bool annotate();
  bool startNew();
  bool open();
  bool stepBack();
  bool stepForward();

  void record();
  std::string differenceHere(std::string_view when);

  std::mt19937 random_;
  Clipboard clipboard_;
  std::vector<std::string> files_;  // the last few plans that were saved
  bool anotherPlan_ = false;        // the last edit was New or Open
  std::vector<std::string> texts_;  // by depth of the undo history; empty where unknown
  std::string complaint_;
  bool records_ = false;
};

}  // namespace vantrel
