// Eggs of the races of the galaxy, the hives in incubation. An egg is
// stored, counted and listed; it does not hatch. Each weighs 20 units.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "game/console/text.h"

inline constexpr std::int32_t kEggWeight = 20;
inline constexpr std::int32_t kIncubationDays = 90;

struct Egg {
  FixedText<20> name;  // the egg's own name, by race
  std::int32_t race = 0;
  std::int32_t incubationDays = kIncubationDays;  // nothing counts it down
};

// What the lists show for an egg of this race ("Povolnian Eggs"); "" for a
// race without a label.
std::string_view eggLabel(std::int32_t race);

class EggList {
 public:
  // Appends a new egg; false and no change if the room left is below an
  // egg's weight.
  bool add(std::int32_t race, std::int32_t roomLeft);
  const Egg& at(std::int32_t index) const;
  std::int32_t count() const { return static_cast<std::int32_t>(eggs_.size()); }
  void clear() { eggs_.clear(); }

 private:
  std::vector<Egg> eggs_;
};
