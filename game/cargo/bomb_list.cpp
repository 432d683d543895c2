#include "game/cargo/bomb_list.h"

#include <cassert>

std::string_view bombName(std::int32_t type) {
  static constexpr const char* kNames[kBombTypeCount] = {
      "FLACK", "Plasma Fusion Bomb", "Liquiferno Napalm Bomb", "Neuronutralizer Gas"};
  if (type < 0 || type >= kBombTypeCount) return "";
  return kNames[type];
}

bool BombList::add(std::int32_t type, std::int32_t roomLeft) {
  if (roomLeft < kBombWeight) return false;
  bombs_.push_back(type);
  return true;
}

std::int32_t BombList::at(std::int32_t index) const {
  assert(index >= 0 && index < count());
  return bombs_[static_cast<std::size_t>(index)];
}
