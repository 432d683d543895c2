// Visit The Incinerator: everything that could be thrown away (artifacts,
// eggs, the ship's crew), sorted by the player between the cargo list on the
// left and the incinerator on the right. Leaving with something marked asks
// "Burn Resources for Fuel?"; burning takes nothing out of the ship yet, and
// no fuel comes of it.
#pragma once

#include <cstdint>
#include <vector>

#include "game/console/list_box.h"

// One visit's sorting. Items are numbered from 0: the artifacts, then the
// eggs, then the crew, each in list order. The tables grow with the number
// of items, so a hold of any size can be sorted.
struct IncineratorState {
  std::vector<bool> marked;            // by item number: the item is in the incinerator
  std::vector<std::int32_t> cargoMap;  // row of the cargo list to item number
  std::vector<std::int32_t> burnMap;   // row of the incinerator list to item number
  ListBoxState cargoState;
  ListBoxState burnState;
  bool inBurnList = false;      // the right-hand list has the keys
  std::int32_t fuelGained = 0;  // shown; nothing is burnt yet
};

void runIncinerator();
