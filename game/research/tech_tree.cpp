#include "game/research/tech_tree.h"

#include <algorithm>
#include <cassert>

#include "game/shell/mothership.h"

namespace {
constexpr std::int32_t kCapabilityDivisor = 150;
}  // namespace

TechItem::TechItem(const TechRow& row)
    : available_(row.waitsFor == 0),
      prerequisitesLeft_(row.waitsFor),
      code_(row.code),
      name_(row.name),
      cost_(row.cost),
      pointsLeft_(row.cost) {
  for (int i = 0; i < kTechUnlocks; ++i) {
    if (row.unlocks[i] != nullptr) unlocks_[i].assign(row.unlocks[i]);
  }
}

bool TechItem::isResearchable() {
  if (progress_ >= 100.0) available_ = false;
  return prerequisitesLeft_ <= 0 && progress_ < 100.0;
}

void TechItem::countDownPrerequisite() {
  if (--prerequisitesLeft_ <= 0) available_ = true;
}

void TechItem::setProgress(double percent) {
  progress_ = percent;
  pointsLeft_ = cost_ * (static_cast<std::int32_t>(progress_) / 100);
  if (progress_ >= 100.0) {
    complete_ = true;
    available_ = false;
  }
}

void TechItem::changePercentOfCrew(std::int32_t delta) {
  percentOfCrew_ = std::clamp(percentOfCrew_ + delta, 0, 100);
}

TechTree::TechTree() {
  for (int i = 0; i < kTechCount; ++i) items_[i] = TechItem(kTechTable[i]);
}

std::int32_t TechTree::researchCapability() {
  const CrewList& crew = theMothership().crew();
  std::int32_t sum = 0;
  for (std::int32_t i = 0; i < crew.getCount(); ++i) {
    const CrewMember& member = crew.at(i);
    if (member.getJob() == kJobResearch) sum += member.getResearch() * member.getPerformance();
  }
  capability_ = sum / kCapabilityDivisor;
  return capability_;
}

std::int32_t TechTree::researchableCount() {
  std::int32_t count = 0;
  for (TechItem& item : items_) count += item.isResearchable() ? 1 : 0;
  return count;
}

std::vector<TechItem*> TechTree::researchableItems() {
  std::vector<TechItem*> open;
  for (TechItem& item : items_) {
    if (item.isResearchable()) open.push_back(&item);
  }
  return open;
}

void TechTree::finishItem(TechItem& item) {
  if (item.progress_ < 100.0 || item.unlocksCounted_) return;
  for (const auto& code : item.unlocks_) {
    if (code.view().empty()) break;
    if (TechItem* next = find(code.view())) next->countDownPrerequisite();
  }
  item.unlocksCounted_ = true;
}

TechItem& TechTree::item(std::int32_t index) {
  assert(index >= 0 && index < kTechCount);
  return items_[index];
}

TechItem* TechTree::find(std::string_view code) {
  for (TechItem& item : items_) {
    if (item.getCode() == code) return &item;
  }
  return nullptr;
}
