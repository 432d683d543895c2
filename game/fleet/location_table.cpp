#include "game/fleet/location_table.h"

#include <cassert>

#include "game/planet/planet.h"

namespace {

bool isLocation(std::int32_t location) {
  return location >= kMothershipLocation && location <= kLastLocation;
}

}  // namespace

bool locationName(std::int32_t location, std::string& name) {
  assert(isLocation(location));
  if (location == kMothershipLocation) {
    name = "Mothership";
    return true;
  }
  if (!isLocation(location)) return false;
  const Sector& sector = thePlanet().sector(location);
  if (!sector.bunker().isBuilt()) return false;
  name = "Bunker ";
  name += sector.letter();
  return true;
}

std::string_view craftName(std::int32_t location, std::int32_t row) {
  return aircraftAt(location).at(row).getName();
}

LocationTable::LocationTable() {
  std::string name;
  for (std::int32_t location = kMothershipLocation; location <= kLastLocation; ++location) {
    if (!locationName(location, name)) continue;
    ListRow row;
    row.text.assign(name);
    rows_.push_back(row);
    locations_.push_back(location);
  }
}

std::int32_t LocationTable::location(std::int32_t row) const {
  assert(row >= 0 && row < count());
  return locations_[static_cast<std::size_t>(row)];
}
