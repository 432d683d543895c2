// Bombs: a bomb is its type code. The ship, every craft and every bunker
// hold a list of them; a bomb weighs 2000 units in the ship's hold.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

enum BombType : std::int32_t {
  kBombFlack = 0,
  kBombPlasmaFusion = 1,
  kBombLiquifernoNapalm = 2,
  kBombNeuronutralizerGas = 3,
};
inline constexpr int kBombTypeCount = 4;
inline constexpr std::int32_t kBombWeight = 2000;

// "FLACK", "Plasma Fusion Bomb", ...; "" for a code without a name.
std::string_view bombName(std::int32_t type);

class BombList {
 public:
  // Appends a bomb; false and no change if the room left is below a bomb's
  // weight.
  bool add(std::int32_t type, std::int32_t roomLeft);
  std::int32_t at(std::int32_t index) const;
  std::int32_t count() const { return static_cast<std::int32_t>(bombs_.size()); }
  void clear() { bombs_.clear(); }

 private:
  std::vector<std::int32_t> bombs_;
};
