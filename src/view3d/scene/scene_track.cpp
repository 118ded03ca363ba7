#include <cmath>

#include "catalog/piece_builders.h"
#include "catalog/scenery_catalog.h"
#include "view3d/scene/scene_build.h"

namespace vantrel {
namespace {

TrackInstance InstanceOf(const Piece& piece, const PieceDef& def) {
  const Vec3f at = ViewPoint(piece.x, piece.y, piece.z);
  return {.key = def.partNumber,
          .x = at.x,
          .y = at.y,
          .z = at.z,
          .heading = static_cast<float>(-MeantAngle(piece.heading)),
          .grade = static_cast<float>(MeantAngle(piece.grade)),
          .length = static_cast<float>(def.length),
          .rev = piece.rev};
}

// A factor that can't be meant counts as no resizing.
float MeantScale(double factor) {
  constexpr double kLargestScale = 1e6;
  return std::abs(factor) <= kLargestScale ? static_cast<float>(factor) : 1.0F;
}

}  // namespace

// A piece whose x, y or z is no place is left out.
void AddTrack(SceneBuild& build) {
  build.scene.trackInstances.reserve(build.layout.pieces.size());
  for (std::size_t i = 0; i < build.layout.pieces.size(); ++i) {
    const Piece& piece = build.layout.pieces[i];
    const PieceDef* const def = build.defs[i];
    if (def == nullptr || build.levels.isHidden(piece.level) || !IsPlace(piece)) continue;
    build.needTrackModel(*def);
    build.scene.trackInstances.push_back(InstanceOf(piece, *def));
    const double heading = Radians(MeantAngle(piece.heading));
    build.box.takeIn(piece.x, -piece.y);
    build.box.takeIn(piece.x + def->length * std::cos(heading),
                     -(piece.y + def->length * std::sin(heading)));
    build.box.seen = true;
  }
}

// An item whose x or y is no place is left out.
void AddScenery(SceneBuild& build) {
  for (const SceneryItem& item : build.layout.scenery) {
    const SceneryDef* const def = findScenery(item.item);
    if (def == nullptr || build.levels.isHidden(item.level)) continue;
    if (!IsPlace(Vec2{item.x, item.y})) continue;
    const auto [entry, isNew] = build.scene.sceneryModels.try_emplace(def->id);
    if (isNew) entry->second = build.makers.scenery(*def);
    const Vec3f at = ViewPoint(item.x, item.y, build.levels.heightOf(item.level));
    build.scene.sceneryInstances.push_back(
        {.key = def->id,
         .x = at.x,
         .y = at.y,
         .z = at.z,
         .heading = static_cast<float>(-MeantAngle(item.heading)),
         .halfWidth = static_cast<float>(def->width / 2.0),
         .halfDepth = static_cast<float>(def->depth / 2.0),
         .scaleX = MeantScale(item.scalex),
         .scaleY = MeantScale(item.scaley)});
    build.box.takeIn(item.x, -item.y);
    build.box.takeIn(item.x + def->width, -item.y + def->depth);
    build.box.seen = true;
  }
}

}  // namespace vantrel
