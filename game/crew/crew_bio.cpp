#include "game/crew/crew_bio.h"

#include <cassert>

#include "game/console/console.h"

namespace {

constexpr int kLabelColour = 15;
constexpr int kValueColour = 14;

constexpr const char* kRaceTexts[kRaceCount] = {
    "BAD",       "Povolnian", "Grekkp",       "Mako",    "Uberfleck",
    "Woot Woot", "Mududu",    "Clucktillian", "Oblivio", "Deorian",
    "Hampster",  "Ivinian",   "Blob",         "Probe",   "Human",
};

// Humans aboard do nothing but this, whatever their job says.
constexpr const char* kHumanJobText = "Jibbering in a corner, screaming in fear.";

}  // namespace

const char* bioRaceText(std::int32_t race, std::uint8_t sex) {
  if (race < 0 || race >= kRaceCount) return "Error";
  if (race == kRaceHampster && sex == 0) return "Widow";
  return kRaceTexts[race];
}

void showCrewBio(std::int32_t index, const CrewList& list) {
  assert(index >= 0 && index < list.getCount());
  const CrewMember& member = list.at(index);
  // Labels first: their trailing blanks wipe the last member's values.
  Console::putText("NAME:                   ", 4, 19, kLabelColour);
  Console::putText("RACE:                   ", 4, 20, kLabelColour);
  Console::putText("SEX:       ", 28, 19, kLabelColour);
  Console::putText("PERFORMANCE:    ", 28, 20, kLabelColour);
  Console::putText("RESEARCH:    ", 46, 19, kLabelColour);
  Console::putText("MILITARY:    ", 46, 20, kLabelColour);
  Console::putText("MAINTENANCE:    ", 60, 19, kLabelColour);
  Console::putText("NAVIGATION:    ", 60, 20, kLabelColour);
  Console::putText("JOB:                                                            ", 4, 21,
                   kLabelColour);

  Console::putText(member.name(), 10, 19, kValueColour);
  Console::putText(bioRaceText(member.getRace(), member.getSex()), 10, 20, kValueColour);
  Console::putText(member.getSex() != 0 ? "Female" : "Male", 33, 19, kValueColour);
  Console::putNumber(member.getPerformance(), 41, 20, kValueColour);
  Console::putNumber(member.getResearch(), 56, 19, kValueColour);
  Console::putNumber(member.getMilitary(), 56, 20, kValueColour);
  Console::putNumber(member.getMaintenance(), 73, 19, kValueColour);
  Console::putNumber(member.getNavigation(), 73, 20, kValueColour);
  Console::putText(member.getRace() == kRaceHuman ? kHumanJobText : jobText(member.getJob()), 9, 21,
                   kValueColour);
}
