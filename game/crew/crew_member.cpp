#include "game/crew/crew_member.h"

#include <cstring>

#include "game/crew/name_generator.h"

namespace {

struct RaceRow {
  const char* name;  // nullptr: set-up leaves the name as it is
  std::int32_t performance, research, navigation, military, maintenance, firstJob;
  std::uint8_t performanceMutable, raceMark;
};

// What set-up stores for each race.
constexpr RaceRow kRaces[kRaceCount] = {
    {"BAD", 0, 1, 1, 1, 1, 0, 0, 1},         {nullptr, 50, 10, 5, 1, 8, 3, 0, 1},
    {"Grekkp", 50, 6, 6, 6, 6, 0, 0, 1},     {"Mako", 50, 1, 10, 5, 8, 7, 0, 1},
    {"Uberfleck", 50, 5, 1, 8, 10, 7, 0, 1}, {"Woot Woot", 50, 3, 9, 9, 9, 1, 0, 0},
    {"Mududu", 50, 1, 8, 10, 5, 1, 0, 1},    {"Clucktillian", 50, 10, 10, 1, 1, 3, 0, 1},
    {"Oblivion", 50, 8, 1, 1, 8, 3, 0, 0},   {"Deorian", 100, 4, 3, 4, 3, 0, 1, 1},
    {"Hampster", 50, 1, 1, 10, 1, 0, 1, 0},  {"Ivinian", 50, 1, 5, 5, 1, 0, 0, 1},
    {"Blob", 25, 1, 1, 1, 1, 0, 0, 0},       {"Probe", 50, 4, 4, 4, 4, 0, 0, 0},
    {"Human", 0, 4, 4, 4, 4, 0, 1, 0},
};

bool inTable(std::int32_t race) { return race >= 0 && race < kRaceCount; }

}  // namespace

std::string_view raceName(std::int32_t race) {
  if (!inTable(race) || kRaces[race].name == nullptr) return "";
  return kRaces[race].name;
}

void CrewMember::setUp(std::int32_t race, std::uint8_t sex) {
  if (inTable(race) && kRaces[race].name != nullptr) name_.assign(kRaces[race].name);
  race_ = race;
  sex_ = sex;
  generateCrewName(race, name_, sex);
  const RaceRow row = inTable(race) ? kRaces[race] : RaceRow{nullptr, 0, 0, 0, 0, 0, 0, 0, 0};
  performance_ = row.performance;
  research_ = row.research;
  navigation_ = row.navigation;
  military_ = row.military;
  maintenance_ = row.maintenance;
  performanceMutable_ = row.performanceMutable;
  raceMark_ = row.raceMark;
  job_ = row.firstJob;
}

void CrewMember::getName(char* out) const {
  std::memcpy(out, name_.c_str(), name_.view().size() + 1);
}
