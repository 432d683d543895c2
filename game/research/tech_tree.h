// The technologies the crew can research: one global table of 54 items,
// built once when the program starts and kept over a new game. Finishing an
// item counts down the items it unlocks, and an item opens when its count
// reaches 0. A finished technology changes nothing else in the game.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "game/console/text.h"

inline constexpr int kTechCount = 54;
inline constexpr int kTechUnlocks = 4;

// One row of the constant table the tree is built from.
struct TechRow {
  const char* code;
  const char* name;
  std::int32_t cost;
  std::int32_t waitsFor;  // count-downs before the item opens
  const char* unlocks[kTechUnlocks];
};
extern const TechRow kTechTable[kTechCount];

class TechItem {
 public:
  TechItem() = default;
  explicit TechItem(const TechRow& row);

  // Open and not finished. Looking at a finished item clears its
  // `available` mark.
  bool isResearchable();
  void countDownPrerequisite();
  // Progress in percent; at 100 the item is complete.
  void setProgress(double percent);
  // The share of the research crew, held within 0 to 100.
  void changePercentOfCrew(std::int32_t delta);

  std::string_view getCode() const { return code_.view(); }
  std::string_view getName() const { return name_.view(); }
  std::int32_t getPercentOfCrew() const { return percentOfCrew_; }
  double getProgress() const { return progress_; }
  std::int32_t getPointsLeft() const { return pointsLeft_; }
  std::int32_t getCost() const { return cost_; }
  std::int32_t prerequisitesLeft() const { return prerequisitesLeft_; }
  bool isComplete() const { return complete_; }
  bool isAvailable() const { return available_; }

 private:
  friend class TechTree;
  bool complete_ = false;
  bool available_ = false;
  std::int32_t prerequisitesLeft_ = 0;
  double progress_ = 0.0;
  FixedText<3> code_;
  FixedText<60> name_;
  FixedText<300> description_;  // empty for every item
  FixedText<3> unlocks_[kTechUnlocks];
  bool unlocksCounted_ = false;
  std::int32_t percentOfCrew_ = 0;
  std::int32_t cost_ = 0;
  std::int32_t pointsLeft_ = 0;
};

class TechTree {
 public:
  TechTree();

  // The research crew's figure: research times performance over the ship's
  // crew on job 3, divided by 150. Stored and returned.
  std::int32_t researchCapability();
  std::int32_t capability() const { return capability_; }
  std::int32_t researchableCount();
  // The researchable items, in table order.
  std::vector<TechItem*> researchableItems();
  // A finished item counts down the items it unlocks, once.
  void finishItem(TechItem& item);

  TechItem& item(std::int32_t index);
  // The item of a code such as "B7", or nullptr.
  TechItem* find(std::string_view code);

 private:
  std::int32_t capability_ = 0;
  TechItem items_[kTechCount];
};

TechTree& theTechTree();
