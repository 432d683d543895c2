// Launch Space Capsule: the one-way carrier that founds and supplies a
// bunker. The player loads up to 20 crew and up to 20000 units of food and
// materials, picks a sector (and, the first time, a site), and launches:
// what it carried stands in the bunker at once. Leaving without a launch
// puts everything back.
#pragma once

#include <cstdint>

#include "game/crew/crew_list.h"

inline constexpr std::int32_t kCapsuleCrew = 20;
inline constexpr std::int32_t kCapsuleCargo = 20000;

// What the launch screen holds while it is open.
struct CapsuleLoad {
  CrewList capsuleCrew{kCapsuleCrew};
  std::int32_t foodStock = 0;
  std::int32_t materialsStock = 0;
  std::int32_t foodLoad = 0;
  std::int32_t materialsLoad = 0;
  std::int32_t targetSector = 0;  // 0 until a target is chosen
  std::int32_t targetSite = -1;
  bool launchYes = false;
  std::int32_t step = 10000;  // the digit being changed; 0 for none
  int focus = 0;              // 0 CREW, 1 ONBOARD, 2 the panel
  int panelRow = 0;           // see the panel's rows below
};

// The panel's rows.
enum CapsulePanelRow {
  kFoodLabel = 0,
  kMaterialsLabel = 1,
  kFoodDigits = 2,
  kMaterialsDigits = 3,
  kDestinationRow = 4,
  kLaunchRow = 5,
};

// The screen; the docking bay calls it with at least one capsule ready.
void launchSpaceCapsule();

// The target: a sector and its site, or sector 0 if none was chosen.
struct CapsuleTarget {
  std::int32_t sector = 0;
  std::int32_t site = -1;
};
CapsuleTarget pickCapsuleTarget();

// One Up (`add` true) or Down on the food or materials digits: the load
// moves by `step`, held to the capsule's room and to the stock.
void stepLoad(CapsuleLoad& load, bool food, bool add);
