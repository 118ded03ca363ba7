#include "inspection/selection_page.h"

#include <algorithm>

#include "canvas/operations/selection.h"
#include "catalog/track_catalog.h"
#include "doc/layout_ops.h"
#include "inspection/page_texts.h"
#include "inspection/shown_unit.h"
#include "inspection/straight_run.h"

namespace vantrel {
namespace {

using PieceList = std::vector<const Piece*>;

constexpr double kFlatGradeDeg = 0.001;

LevelEntry LevelsWithChosen(const Layout& layout, std::int32_t levelId) {
  LevelEntry entry;
  entry.enabled = true;
  for (const Level& level : layout.levels) {
    if (level.id == levelId && entry.chosen < 0)
      entry.chosen = static_cast<std::int32_t>(entry.rows.size());
    entry.rows.push_back({level.id, level.name});
  }
  return entry;
}

void PutMixedInFront(LevelEntry& entry) {
  entry.rows.insert(entry.rows.begin(), {kMixedLevels, "(mixed)"});
  entry.chosen = 0;
}

bool HaveOneLevel(const PieceList& pieces) {
  return std::ranges::all_of(
      pieces, [&](const Piece* piece) { return piece->level == pieces.front()->level; });
}

GradeEntry DescribeGrade(const Layout& layout, double grade) {
  const double steepness = std::abs(grade);
  GradeEntry entry;
  if (steepness > kFlatGradeDeg) {
    entry.text = GradeText(grade);
    entry.up = grade > 0.0;
    entry.degrees = std::min(steepness, kMaxGradeDeg);
  }
  if (steepness > kMaxGradeDeg) entry.warning = GradeWarningText(grade, kMaxGradeDeg);
  entry.settingEnabled = true;
  entry.startEnabled = true;
  entry.endEnabled = layout.currentGrade.active;
  entry.recalcEnabled = true;
  return entry;
}

SelectionPage DescribePiece(const Layout& layout, const Piece& piece, const PieceDef& def) {
  const ShownUnit unit = UnitOf(layout);
  SelectionPage page;
  page.kind = PageKind::piece;
  page.pieceId = piece.id;
  page.title = def.description;
  page.info = PieceInfo(def);
  page.height = {
      .caption = HeightCaption(unit), .text = HeightText(piece.z, unit), .enabled = true};
  page.level = LevelsWithChosen(layout, piece.level);
  page.grade = DescribeGrade(layout, piece.grade);
  return page;
}

// The piece that stands for the height and the level of the helix, or null when both are gone.
const Piece* BottomPiece(const Layout& layout, const Helix& helix) {
  const Piece* inner = FindPiece(layout, helix.bottomR1);
  return inner != nullptr ? inner : FindPiece(layout, helix.bottomR2);
}

SelectionPage DescribeHelix(const Layout& layout, const Helix& helix) {
  const ShownUnit unit = UnitOf(layout);
  const Piece* bottom = BottomPiece(layout, helix);
  SelectionPage page;
  page.kind = PageKind::helix;
  page.helixId = helix.id;
  page.title = HelixTitle(helix);
  page.info = HelixInfo(helix, unit);
  page.height.caption = BaseHeightCaption(unit);
  if (bottom != nullptr) page.height.text = HeightText(bottom->z, unit);
  page.level = LevelsWithChosen(layout, bottom != nullptr ? bottom->level : kNone);
  return page;
}

SelectionPage DescribeScenery(const Layout& layout, const SceneryItem& item) {
  SelectionPage page;
  page.kind = PageKind::scenery;
  page.sceneryId = item.id;
  page.title = SceneryTitle(item);
  page.info = SceneryInfo(item);
  page.height.caption = kPlainHeightCaption;
  page.level = LevelsWithChosen(layout, item.level);
  return page;
}

SelectionPage DescribePolygon(const Layout& layout, const Shape& shape) {
  SelectionPage page;
  page.kind = PageKind::polygon;
  page.shapeId = shape.id;
  page.title = PolygonTitle(shape);
  page.info = PolygonInfo(shape);
  page.height.caption = kPlainHeightCaption;
  page.level = LevelsWithChosen(layout, shape.level);
  return page;
}

SelectionPage DescribeRun(const Layout& layout, const PieceList& pieces) {
  SelectionPage page;
  page.kind = PageKind::run;
  page.title = RunTitle(walkRun(pieces));
  page.info = RunInfo(pieces, UnitOf(layout));
  page.level = LevelsWithChosen(layout, pieces.front()->level);
  if (!HaveOneLevel(pieces)) PutMixedInFront(page.level);
  return page;
}

// An unknown part shows nothing.
SelectionPage DescribeNewestPiece(const Layout& layout, const PieceList& pieces) {
  const Piece& newest =
      **std::ranges::max_element(pieces, {}, [](const Piece* piece) { return piece->id; });
  const PieceDef* def = findPart(newest.cat);
  if (def == nullptr) return DescribeNothing(layout);
  SelectionPage page = DescribePiece(layout, newest, *def);
  if (!HaveOneLevel(pieces)) PutMixedInFront(page.level);
  return page;
}

SelectionPage DescribeWithoutPieces(const Layout& layout) {
  const std::vector<const SceneryItem*> items = selectedScenery(layout);
  if (items.size() == 1) return DescribeScenery(layout, *items.front());
  const auto selected = [](const Shape& shape) { return shape.sel; };
  if (std::ranges::count_if(layout.shapes, selected) == 1)
    return DescribePolygon(layout, *std::ranges::find_if(layout.shapes, selected));
  return DescribeNothing(layout);
}

}  // namespace

SelectionPage DescribeNothing(const Layout& layout) {
  SelectionPage page;
  page.title = "No selection";
  page.height.caption = HeightCaption(UnitOf(layout));
  page.height.text = "0";
  return page;
}

SelectionPage DescribeSelection(const Layout& layout) {
  const PieceList pieces = selectedPieces(layout);
  if (pieces.empty()) return DescribeWithoutPieces(layout);
  const std::int32_t helixId = commonHelixOfSelection(layout);
  if (helixId != kNone) {
    const auto helix = std::ranges::find(layout.helices, helixId, &Helix::id);
    if (helix != layout.helices.end()) return DescribeHelix(layout, *helix);
  }
  if (isStraightRun(pieces)) return DescribeRun(layout, pieces);
  return DescribeNewestPiece(layout, pieces);
}

}  // namespace vantrel
