// The places from which the player commands craft: the ship and the built
// bunkers. A row of the table and a location number are different things:
// everything that reaches a craft takes the location number of the row.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "game/console/list_box.h"
#include "game/fleet/locations.h"

// "Mothership" for 0, "Bunker " and the sector's letter for a sector whose
// bunker is built; false for any other sector.
bool locationName(std::int32_t location, std::string& name);

// The name of the craft at that row of the location's list.
std::string_view craftName(std::int32_t location, std::int32_t row);

// Built afresh each time a screen opens: row 0 the ship, then the built
// bunkers in sector order.
class LocationTable {
 public:
  LocationTable();
  std::int32_t count() const { return static_cast<std::int32_t>(locations_.size()); }
  std::int32_t location(std::int32_t row) const;
  const ListRow* rows() const { return rows_.data(); }

 private:
  std::vector<ListRow> rows_;
  std::vector<std::int32_t> locations_;
};
