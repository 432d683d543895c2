// One member of the crew: a person or creature aboard the ship, a bunker or
// a craft. Set up once from the race table (skills, first job, a generated
// name); after that only the job changes.
#pragma once

#include <cstdint>
#include <string_view>

#include "game/console/text.h"

// Race codes. The game creates Povolnians, Makos, Uberflecks, Mududus and
// Humans; the other rows stand ready.
enum Race : std::int32_t {
  kRaceNone = 0,
  kRacePovolnian = 1,
  kRaceGrekkp = 2,
  kRaceMako = 3,
  kRaceUberfleck = 4,
  kRaceWootWoot = 5,
  kRaceMududu = 6,
  kRaceClucktillian = 7,
  kRaceOblivion = 8,
  kRaceDeorian = 9,
  kRaceHampster = 10,
  kRaceIvinian = 11,
  kRaceBlob = 12,
  kRaceProbe = 13,
  kRaceHuman = 14,
};
inline constexpr int kRaceCount = 15;

using CrewName = FixedText<20>;

class CrewMember {
 public:
  // The default record: "BAD", race 0, performance 50, every skill 1.
  CrewMember() = default;

  // Every field from the race table, the name generated. A code outside the
  // table gets zeros and keeps the name it had.
  void setUp(std::int32_t race, std::uint8_t sex);
  void copyFrom(const CrewMember& other) { *this = other; }

  // The name into a caller's buffer of 20 characters.
  void getName(char* out) const;
  std::string_view name() const { return name_.view(); }
  std::int32_t getRace() const { return race_; }
  std::uint8_t getSex() const { return sex_; }
  std::int32_t getPerformance() const { return performance_; }
  std::int32_t getNavigation() const { return navigation_; }
  std::int32_t getMaintenance() const { return maintenance_; }
  std::int32_t getResearch() const { return research_; }
  std::int32_t getMilitary() const { return military_; }
  bool performanceMutable() const { return performanceMutable_ != 0; }
  bool raceMark() const { return raceMark_ != 0; }
  std::int32_t getJob() const { return job_; }

  void setJob(std::int32_t job) { job_ = job; }

 private:
  CrewName name_{"BAD"};
  std::int32_t race_ = kRaceNone;
  std::uint8_t sex_ = 0;  // 0 male; anything else counts as female
  std::int32_t performance_ = 50;
  std::int32_t navigation_ = 1;
  std::int32_t maintenance_ = 1;
  std::int32_t research_ = 1;
  std::int32_t military_ = 1;
  std::uint8_t performanceMutable_ = 0;  // carried and copied; no rule reads it
  std::uint8_t raceMark_ = 0;            // carried and copied; no rule reads it
  std::int32_t job_ = 0;
};

// The name a race's members start from before the generator runs ("" for a
// race without one, such as the Povolnians).
std::string_view raceName(std::int32_t race);
