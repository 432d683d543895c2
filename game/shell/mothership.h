// The Mothership: the player's ship, its stores, where it is and how the
// crew feel. One global record, built before the title menu; the decks and
// the day change it through the operations below.
//
// Stores are whole units; fuel never goes below 0. The hold and the dock
// have limits (2,000,000 and 6,000,000 units); what is in use is worked out
// afresh each time it is asked for.
#pragma once

#include <cstdint>
#include <vector>

#include "game/cargo/bomb_list.h"
#include "game/cargo/egg_list.h"
#include "game/console/text.h"
#include "game/crew/crew_list.h"
#include "game/fleet/aircraft.h"

// One of the ship's named officers. The game only counts them: each eats
// like a crew member.
struct Advisor {
  FixedText<20> name;
  int id = 0;
};

inline constexpr int kAdvisorCapacity = 100;
inline constexpr int kHoldLimit = 2000000;
inline constexpr int kDockLimit = 6000000;

class Mothership {
 public:
  // Stores.
  std::uint32_t food() const { return food_; }
  std::int32_t fuel() const { return fuel_; }
  std::int32_t materials() const { return materials_; }
  std::int32_t artifacts() const { return artifacts_; }
  std::int32_t readyCapsules() const { return readyCapsules_; }
  std::int32_t cargoUsed() const;
  std::int32_t dockSpaceUsed() const;

  // A store that would pass the largest number it can hold stays there.
  void addFood(std::int32_t amount) {
    std::int64_t sum = static_cast<std::int64_t>(food_) + amount;
    food_ = sum > UINT32_MAX ? UINT32_MAX : sum < 0 ? 0 : static_cast<std::uint32_t>(sum);
  }
  void addFuel(std::int32_t amount) { fuel_ = saturatingAdd(fuel_, amount); }
  void addMaterials(std::int32_t amount) { materials_ = saturatingAdd(materials_, amount); }
  void addArtifacts(std::int32_t amount) { artifacts_ = saturatingAdd(artifacts_, amount); }
  void addCapsules(std::int32_t amount) { readyCapsules_ = saturatingAdd(readyCapsules_, amount); }
  void setFood(std::uint32_t amount) { food_ = amount; }
  void setFuel(std::int32_t amount) { fuel_ = amount; }
  void setMaterials(std::int32_t amount) { materials_ = amount; }

  // Takes fuel for something the ship does; a charge larger than what is
  // left leaves the tank at 0.
  void chargeFuel(std::int32_t amount) { fuel_ = fuel_ > amount ? fuel_ - amount : 0; }

  // Where the ship is: 0 in orbit, 1 to 24 over that sector.
  std::int32_t currentSector() const { return currentSector_; }
  std::int32_t destinationSector() const { return destinationSector_; }
  void setDestination(std::int32_t sector) { destinationSector_ = sector; }

  bool shieldsOn() const { return shieldsOn_; }
  void toggleShields() { shieldsOn_ = !shieldsOn_; }
  std::int32_t engineLevel() const { return engineLevel_; }
  void upgradeEngine() {
    if (engineLevel_ < 5) ++engineLevel_;
  }
  std::int32_t workSchedule() const { return workSchedule_; }
  void setWorkSchedule(std::int32_t schedule) { workSchedule_ = schedule; }

  // Morale, 0 to 100, and its whole part as the rules compare it.
  float morale() const { return morale_; }
  std::int32_t moraleWhole() const { return static_cast<std::int32_t>(morale_); }
  void setMorale(float morale) { morale_ = morale; }

  // What the ship carries: its craft, crew, bombs and eggs.
  AircraftList& aircraft() { return aircraft_; }
  const AircraftList& aircraft() const { return aircraft_; }
  CrewList& crew() { return crew_; }
  const CrewList& crew() const { return crew_; }
  BombList& bombs() { return bombs_; }
  const BombList& bombs() const { return bombs_; }
  EggList& eggs() { return eggs_; }
  const EggList& eggs() const { return eggs_; }
  // The room left in the hold and in the dock.
  std::int32_t cargoRoomLeft() const { return kHoldLimit - cargoUsed(); }
  std::int32_t dockRoomLeft() const { return kDockLimit - dockSpaceUsed(); }

  std::vector<Advisor>& advisors() { return advisors_; }
  const std::vector<Advisor>& advisors() const { return advisors_; }
  // False, and nothing added, when the list is full.
  bool addAdvisor(int id);

  // The day's meal: every crew member and advisor eats one unit, and so
  // does the captain.
  void eatFood();
  // Morale moves by the work schedule, or falls hard without food.
  void updateMorale();

  // The day's movement: one step toward the destination, and its fuel.
  void moveOneDay();

  // Every field back to a new game's first value but the work schedule and
  // the lists, which stay as they are.
  void reset();

 private:
  static std::int32_t saturatingAdd(std::int32_t value, std::int32_t amount) {
    std::int64_t sum = static_cast<std::int64_t>(value) + amount;
    if (sum > INT32_MAX) return INT32_MAX;
    if (sum < INT32_MIN) return INT32_MIN;
    return static_cast<std::int32_t>(sum);
  }

  std::uint32_t food_ = 1000;
  std::int32_t fuel_ = 150000;
  std::int32_t materials_ = 10000;
  std::int32_t artifacts_ = 0;
  std::int32_t readyCapsules_ = 2;
  AircraftList aircraft_;
  CrewList crew_{kShipCrewCapacity};
  std::vector<Advisor> advisors_;
  BombList bombs_;
  EggList eggs_;
  std::int32_t currentSector_ = 0;
  std::int32_t destinationSector_ = 0;
  float morale_ = 100.0f;
  std::int32_t engineLevel_ = 0;
  bool shieldsOn_ = false;
  std::int32_t workSchedule_ = 2;
};

// The global values beside the ship.
struct GlobalValues {
  std::int32_t day = 1;                  // shown in the status bar
  std::int32_t cosmicCredits = 5000;     // shown in the status bar; nothing spends it
  std::int32_t freighterCountdown = 30;  // days until the Super Freighter; 0 to -6 in orbit
  bool lowFoodWarned = false;            // the famine warning was shown for this famine
  bool gameOver = false;                 // an ending was shown: every loop unwinds
  bool gamePlayed = false;               // a game was started in this run of the program
};

Mothership& theMothership();
GlobalValues& globals();

inline bool isGameOver() { return globals().gameOver; }
inline void setGameOver(bool over) { globals().gameOver = over; }

// The calendar: one more day, and the Super Freighter's 37-day round (30 days
// away, then 7 in orbit).
void advanceDay();
void advanceFreighter();
