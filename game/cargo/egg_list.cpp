#include "game/cargo/egg_list.h"

#include <cassert>

namespace {
constexpr const char* kLabels[] = {
    "BAD",
    "Povolnian Eggs",
    "Grekkp Eggs",
    "Mako Eggs",
    "Uberfleck Eggs",
    "Woot Woot Eggs shouldnt exist",
    "Mududu Eggs",
    "Clucktillian Eggs",
    "Oblivio Eggs",
    "Lemure Eggs",
    "Hampster Eggs",
    "Ivinian Eggs",
    "",
    "Probe Eggs",
    "Human Eggs",
};
constexpr int kLabelCount = sizeof(kLabels) / sizeof(kLabels[0]);
}  // namespace

std::string_view eggLabel(std::int32_t race) {
  if (race < 0 || race >= kLabelCount) return "";
  return kLabels[race];
}

bool EggList::add(std::int32_t race, std::int32_t roomLeft) {
  if (roomLeft < kEggWeight) return false;
  Egg egg;
  egg.race = race;
  // The egg's own name is its label, but for two races whose labels differ.
  if (race == 8) {
    egg.name.assign("Oblivion Eggs");
  } else if (race == 9) {
    egg.name.assign("Deorian Eggs");
  } else {
    egg.name.assign(eggLabel(race));
  }
  eggs_.push_back(egg);
  return true;
}

const Egg& EggList::at(std::int32_t index) const {
  assert(index >= 0 && index < count());
  return eggs_[static_cast<std::size_t>(index)];
}
