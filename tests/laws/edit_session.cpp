#include "tests/laws/edit_session.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "canvas/operations/autofill.h"
#include "canvas/operations/block_placing.h"
#include "canvas/operations/extending.h"
#include "canvas/operations/grades.h"
#include "canvas/operations/helix_placing.h"
#include "canvas/operations/joining.h"
#include "canvas/operations/moving.h"
#include "canvas/operations/placing.h"
#include "canvas/operations/removal.h"
#include "canvas/operations/rotating.h"
#include "canvas/operations/selection.h"
#include "canvas/operations/snap.h"
#include "canvas/operations/tunnels.h"
#include "catalog/connector_geometry.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "doc/undo.h"
#include "io/layout_text.h"

namespace vantrel {
namespace {

// Beyond this size the user clears up, so that a long session stays quick.
constexpr std::size_t kManyPieces = 60;

// How often each edit is tried, in the order of Edit.
constexpr std::array<std::size_t, EditSession::kEdits> kWeights = {
    14, 6, 6, 14, 4, 4, 4, 4, 12, 3, 3, 6, 2, 1, 6, 4, 2, 3, 2, 3, 3, 7, 1};

// So many saved plans are kept to be opened again.
constexpr std::size_t kFiles = 4;

// What a reader makes of any red while a level doesn't colour its track.
constexpr std::uint8_t kReadRed = 0;

std::string TextOf(const Layout& layout) {
  return LayoutText(layout, "Session");
}

}  // namespace

const std::array<std::string_view, EditSession::kEdits> EditSession::kEditNames = {
    "place",         "auto-connect", "clone",  "select",   "copy",        "paste",
    "delete",        "join",         "drag",   "rotate",   "turn",        "grade",
    "place scenery", "place helix",  "tunnel", "autofill", "place block", "annotate",
    "new",           "save",         "open",   "undo",     "redo"};

EditSession::EditSession(unsigned seed) : random_(seed) {
  EnsureDefaultLevel(layout);
  layout.levels[0].r = kReadRed;
  beginStretch();
}

void EditSession::beginStretch() {
  layout.undoHistory.clear();
  layout.redoHistory.clear();
  texts_.clear();
  record();
}

void EditSession::step() {
  complaint_.clear();
  const bool crowded = layout.pieces.size() > kManyPieces;
  const Edit edit = crowded ? kDelete : chooseEdit();
  if (crowded) {
    for (Piece& piece : layout.pieces) piece.sel = below(2) == 0;
    record();
  }
  const std::size_t depth = layout.undoHistory.size();
  const bool isDone = run(edit);
  done[edit] += isDone ? 1 : 0;
  stepsAcrossPlans += isDone && anotherPlan_ && (edit == kUndo || edit == kRedo) ? 1 : 0;
  anotherPlan_ = isDone && (edit == kNew || edit == kOpen);
  if (edit == kUndo || edit == kRedo) {
    complaint_ = differenceHere(kEditNames[edit]);
    return;
  }
  // What an earlier future held at the depths that this edit went through is history no more.
  if (layout.undoHistory.size() > depth) texts_.resize(depth + 1);
  record();
}

EditSession::Edit EditSession::chooseEdit() {
  if (anotherPlan_ && below(4) > 0) return kUndo;
  if (!layout.redoHistory.empty() && below(2) == 0) return kRedo;
  std::size_t total = 0;
  for (const std::size_t weight : kWeights) total += weight;
  std::size_t ticket = below(total);
  std::size_t edit = 0;
  while (ticket >= kWeights[edit]) ticket -= kWeights[edit++];
  return static_cast<Edit>(edit);
}

bool EditSession::run(Edit edit) {
  switch (edit) {
    case kPlace:
      return place();
    case kAutoConnect:
      return autoConnectPart(layout, anyPart()) != kNone;
    case kClone:
      return !layout.pieces.empty() &&
             clonePiece(layout, anyPiece().id).outcome == CloneOutcome::cloned;
    case kSelect:
      return select();
    case kCopy:
      copySelection(layout, clipboard_);
      return hasSelectedObject(layout);
    case kPaste:
      return paste();
    case kDelete:
      return remove();
    case kJoin:
      return join();
    case kDrag:
      return drag();
    case kRotate:
      if (!hasSelectedObject(layout)) return false;
      rotateSelectionStep(layout);
      return true;
    case kTurnByWheel:
      if (!hasSelectedObject(layout)) return false;
      turnSelectionByWheel(layout, between(-20.0, 20.0));
      return true;
    case kGrade:
      return grade();
    case kScenery:
      // Its undo step comes after the selection has gone.
      ClearSelection(layout);
      record();
      return placeScenery(layout, "72886", {between(-900.0, 900.0), 0.0, 30.0}) != kNone;
    case kHelix:
      return placeHelix(layout, anyPoint(), between(0.0, 360.0), "") != kNone;
    case kTunnel:
      return tunnel();
    case kAutofill:
      return autofill();
    case kBlock:
      return block();
    case kAnnotate:
      return annotate();
    case kNew:
      return startNew();
    case kSave:
      if (files_.size() == kFiles) files_.erase(files_.begin());
      files_.push_back(TextOf(layout));
      return true;
    case kOpen:
      return open();
    case kUndo:
      return stepBack();
    case kRedo:
      return stepForward();
    case kEdits:
      break;
  }
  return false;
}

double EditSession::between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random_);
}

Vec2 EditSession::anyPoint() {
  return {between(-2000.0, 2000.0), between(-2000.0, 2000.0)};
}

std::string_view EditSession::anyPart() {
  static constexpr const char* usual[] = {"24188", "24130", "24611", "24672", "24640",
                                          "74618", "24922", "24360", "74636", "74861"};
  if (below(4) > 0) return usual[below(10)];
  const auto rows = static_cast<std::size_t>(catalog().pieceCount());
  return catalog().pieceAt(static_cast<std::int32_t>(below(rows)))->partNumber;
}

const Piece& EditSession::anyPiece() {
  return layout.pieces[below(layout.pieces.size())];
}

// Mostly near an end of a piece that stands, as the mouse would drop it.
Pose EditSession::poseAtAnEnd(std::string_view part) {
  const PieceDef& def = *findPart(part);
  if (layout.pieces.empty() || below(6) == 0) {
    const Vec2 at = anyPoint();
    return {at.x, at.y, 15.0 * static_cast<double>(below(24))};
  }
  const Piece& piece = anyPiece();
  const std::vector<WorldConnector> ends = worldConnectors(piece, *findPart(piece.cat));
  const WorldConnector end = ends[below(ends.size())];
  const auto own = static_cast<std::int32_t>(below(def.connectors.size()));
  return poseForConnector(def, own,
                          {end.x + between(-9.0, 9.0), end.y + between(-9.0, 9.0), end.heading});
}

bool EditSession::place() {
  const std::string_view part = anyPart();
  const PieceDef& def = *findPart(part);
  const Pose pose = poseAtAnEnd(part);
  const std::vector<const Piece*> others = VisiblePieces(layout);
  const std::int32_t id = placePiece(layout, def, findSnap(def, pose, others), pose);
  addPairPartner(layout, id);
  SelectOnly(layout, id);
  return true;
}

bool EditSession::select() {
  if (layout.pieces.empty()) return false;
  switch (below(6)) {
    case 0:
      ClearSelection(layout);
      break;
    case 1:
      clickPieceToggle(layout, anyPiece().id);
      break;
    case 2:
      SelectOnly(layout, anyPiece().id);
      clickPieceChain(layout, anyPiece().id);
      break;
    case 3:
      for (Piece& piece : layout.pieces) piece.sel = below(5) == 0;
      break;
    case 4:
      for (SceneryItem& item : layout.scenery) item.sel = true;
      break;
    default:
      ClearSelection(layout);
      clickPiece(layout, anyPiece().id);
      break;
  }
  return true;
}

bool EditSession::paste() {
  if (clipboard_.pieces.size() > kManyPieces / 4) clipboard_ = {};
  return pasteClipboard(layout, clipboard_, anyPoint());
}

// What was copied last, as it would come back from a block's file.
bool EditSession::block() {
  Block block{.pieces = clipboard_.pieces, .scenery = clipboard_.scenery};
  if (block.pieces.size() > kManyPieces / 4) return false;
  for (Piece& piece : block.pieces) {
    piece.z = 0.0;
    piece.grade = 0.0;
    piece.rev = false;
    piece.helix = kNone;
    piece.free = false;
  }
  return placeBlock(layout, std::move(block));
}

// A tape, a polygon or a label, as the tools and the panel lay them.
bool EditSession::annotate() {
  const Vec2 at = anyPoint();
  PushUndo(layout);
  const std::int32_t id = TakeId(layout);
  switch (below(3)) {
    case 0:
      layout.measurements.push_back({.id = id, .startX = at.x, .startY = at.y});
      break;
    case 1:
      layout.shapes.push_back({.id = id, .vertices = {at, {at.x + 90.0, at.y}, {at.x, 70.0}}});
      break;
    default:
      layout.labels.push_back({.id = id, .text = "Yard", .x = at.x, .y = at.y});
      break;
  }
  return true;
}

bool EditSession::startNew() {
  StartNewPlan(layout);
  layout.levels[0].r = kReadRed;
  return true;
}

// A load keeps the grades in force, whose anchors then stand nowhere: who wants none of them takes
// New first.
bool EditSession::open() {
  if (files_.empty()) return false;
  if (!layout.gradeRuns.empty()) {
    startNew();
    record();
  }
  std::string name;
  ReadLayoutText(layout, files_[below(files_.size())], "session.vtl", name);
  GrowAllJoints(layout);
  RenewTapeIds(layout);
  return true;
}

bool EditSession::remove() {
  if (!hasDeletableSelection(layout, true)) return false;
  selectPairPartners(layout);
  record();
  deleteSelection(layout);
  return true;
}

// Any end to any other, whatever they are joined to.
bool EditSession::join() {
  if (layout.pieces.empty()) return false;
  PushUndo(layout);
  const Piece& a = anyPiece();
  const Piece& b = anyPiece();
  joinPieces(layout, a.id, static_cast<std::int32_t>(below(a.joints.size() + 1)), b.id,
             static_cast<std::int32_t>(below(b.joints.size() + 1)));
  return true;
}

// From an end of the selection to near an end outside it; somewhere when there are none.
Vec2 EditSession::wayToAnEnd() {
  const auto anyEnd = [this](bool selected) -> std::optional<WorldConnector> {
    std::vector<WorldConnector> ends;
    for (const Piece& piece : layout.pieces) {
      if (piece.sel != selected) continue;
      for (const WorldConnector& end : worldConnectors(piece, *findPart(piece.cat)))
        if (end.open) ends.push_back(end);
    }
    if (ends.empty()) return std::nullopt;
    return ends[below(ends.size())];
  };
  const std::optional<WorldConnector> from = anyEnd(true);
  const std::optional<WorldConnector> to = anyEnd(false);
  if (!from || !to || below(6) == 0) return anyPoint();
  return {to->x - from->x + between(-5.0, 5.0), to->y - from->y + between(-5.0, 5.0)};
}

bool EditSession::drag() {
  if (!hasSelectedObject(layout)) return false;
  PushUndo(layout);
  const MoveStart start = takeMoveStart(layout);
  breakEdgeJoints(layout);
  BlockSnap held;
  for (std::size_t motions = 1 + below(3); motions > 0; --motions) {
    moveSelection(layout, start, wayToAnEnd());
    held = findBlockSnap(layout);
  }
  snappedDrops += held.snap.found ? 1 : 0;
  dropSelection(layout, start, held);
  return true;
}

bool EditSession::grade() {
  if (layout.pieces.empty()) return false;
  const std::int32_t id = anyPiece().id;
  switch (below(3)) {
    case 0:
      return startGrade(layout, id, 0.5 * static_cast<double>(below(13)) - 3.0);
    case 1:
      return endGrade(layout, id);
    default:
      return recalcElevation(layout, id);
  }
}

// Over a row of track; or away again, when that row is covered.
bool EditSession::tunnel() {
  if (layout.pieces.empty()) return false;
  const std::int32_t first = anyPiece().id;
  SelectOnly(layout, first);
  for (const Joint& joint : Piece(*FindPiece(layout, first)).joints)
    if (!joint.open()) clickPieceChain(layout, joint.target);
  record();
  return toggleTunnel(layout);
}

// Two straights in line, some way apart, then what the search finds for the gap between them.
bool EditSession::autofill() {
  const Vec2 at = anyPoint();
  const PieceDef& def = *findPart("24188");
  const std::int32_t a = placePiece(layout, def, {}, {at.x, at.y, 0.0});
  const std::int32_t b = placePiece(layout, def, {}, {at.x + 376.6 + 188.3, at.y, 0.0});
  SelectOnly(layout, a);
  clickPieceToggle(layout, b);
  const std::optional<AutofillPlan> plan = planAutofill(layout);
  texts_.resize(std::min(texts_.size(), layout.undoHistory.size()));
  record();
  return plan && !plan->notice && placeAutofill(layout, *plan, below(plan->solutions.size()));
}

bool EditSession::stepBack() {
  const bool any = !layout.undoHistory.empty();
  Undo(layout);
  return any;
}

bool EditSession::stepForward() {
  const bool any = !layout.redoHistory.empty();
  Redo(layout);
  return any;
}

// Selecting and starting a grade take no undo step: of several texts at one depth the last counts.
void EditSession::record() {
  if (!records_) return;
  const std::size_t depth = layout.undoHistory.size();
  if (texts_.size() < depth + 1) texts_.resize(depth + 1);
  texts_[depth] = TextOf(layout);
}

// Takes the text for a state that an edit of two undo steps went through.
std::string EditSession::differenceHere(std::string_view when) {
  if (!records_) return {};
  const std::size_t depth = layout.undoHistory.size();
  if (texts_.size() < depth + 1 || texts_[depth].empty()) {
    record();
    return {};
  }
  if (texts_[depth] == TextOf(layout)) return {};
  return "after " + std::string(when) + " the text at depth " + std::to_string(depth) + " differs";
}

std::string EditSession::undoAllAndRedoAll() {
  while (stepForward()) {
  }
  while (stepBack())
    if (std::string wrong = differenceHere("undo"); !wrong.empty()) return wrong;
  while (stepForward())
    if (std::string wrong = differenceHere("redo"); !wrong.empty()) return wrong;
  return {};
}

}  // namespace vantrel
