#include <cassert>

#include "game/fleet/aircraft.h"
#include "game/fleet/location_table.h"
#include "game/fleet/missions.h"

namespace {

constexpr int kMaxRows = 5;

struct TypeMenu {
  int count;
  MissionRow rows[kMaxRows];
};

constexpr MissionRow kInactive = {"Inactive", kMissionInactive, 0, TargetKind::None};
constexpr MissionRow kTravel = {"Travel", kMissionTraveling, 1, TargetKind::Bunkers};

constexpr TypeMenu kMenus[kAircraftTypeCount] = {
    {5,
     {kInactive,
      kTravel,
      {"Scout", kMissionScouting, 1, TargetKind::AnySector},
      {"Abduct Large Lifeforms", kMissionAbductingCows, 1, TargetKind::AnySector},
      {"Abduct Intelligent Lifeforms", kMissionAbductingHumans, 1, TargetKind::AnySector}}},
    {5,
     {kInactive,
      kTravel,
      {"Attack Destination", kMissionAttacking, 2, TargetKind::AnySector},
      {"Defend Destination", kMissionDefending, 2, TargetKind::Bunkers},
      {"Escorting Local Craft", kMissionEscorting, 2, TargetKind::None}}},
    {3, {kInactive, kTravel, {"Bomb Destination", kMissionBombing, 2, TargetKind::AnySector}}},
    {3,
     {kInactive,
      kTravel,
      {"Shuttle Cargo to Destination", kMissionShuttling, 1, TargetKind::Bunkers}}},
};

// A craft of no known type is offered the two rows every craft has.
constexpr TypeMenu kUnknownMenu = {2, {kInactive, kTravel}};

const TypeMenu& menuOf(std::int32_t type) {
  return type >= 0 && type < kAircraftTypeCount ? kMenus[type] : kUnknownMenu;
}

}  // namespace

int missionRowCount(std::int32_t type) { return menuOf(type).count; }

const MissionRow& missionRow(std::int32_t type, int row) {
  assert(row >= 0 && row < missionRowCount(type));
  return menuOf(type).rows[row];
}

int presentJobRow(std::int32_t type, std::int32_t mission, int previous) {
  if (mission == kMissionInactive) return kInactiveRow;
  if (mission == kMissionTraveling) return kTravelRow;
  const TypeMenu& menu = menuOf(type);
  for (int row = kTravelRow + 1; row < menu.count; ++row) {
    if (menu.rows[row].mission == mission) return row;
  }
  return previous;
}

bool takeMissionRow(std::int32_t location, std::int32_t craftRow, int menuRow) {
  Aircraft& craft = aircraftAt(location).at(craftRow);
  const MissionRow& row = missionRow(craft.getType(), menuRow);
  if (craft.getCrew().getCount() < row.leastCrew) return false;
  if (menuRow == kTravelRow) {
    // Aimed at its own place, a journey is no journey.
    const bool moves = pickTarget(location, craftRow, false);
    craft.setMission(moves ? kMissionTraveling : kMissionInactive);
    return true;
  }
  // The job stands whatever was picked: Escape at once leaves the craft
  // aimed at its own place.
  if (row.target != TargetKind::None) {
    pickTarget(location, craftRow, row.target == TargetKind::AnySector);
  }
  craft.setMission(row.mission);
  return row.target != TargetKind::None;
}
