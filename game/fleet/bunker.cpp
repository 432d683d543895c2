#include "game/fleet/bunker.h"

#include <string>

#include "game/messages/message_log.h"

namespace {
// Materials used a day for each point of the crew's rate.
constexpr double kMaterialsPerRate = 50.0;
constexpr double kRateDivisor = 250.0;
}  // namespace

std::int32_t Bunker::buildOneDay() {
  std::int32_t work = 0;
  for (std::int32_t i = 0; i < crew_.getCount(); ++i) {
    work += crew_.at(i).getMaintenance() * crew_.at(i).getPerformance();
  }
  double rate = work / kRateDivisor;
  materials_ = static_cast<std::int32_t>(materials_ - rate * kMaterialsPerRate);
  if (materials_ < 0) {
    rate /= 2.0;
    materials_ = 0;
  }
  progress_ += rate;
  if (progress_ >= 100.0) {
    built_ = true;
    return 0;
  }
  // A crew that cannot work (captives alone) makes no headway at all.
  const std::int32_t days = rate > 0.0 ? static_cast<std::int32_t>((100.0 - progress_) / rate) : 0;
  if (materials_ == 0 && days >= 2) {
    theMessageLog().post(std::string("Bunker in sector ") + sectorLetter_ +
                             " is low on materials. Send more so the crew can build faster.",
                         4);
  }
  return days;
}

void Bunker::clear() {
  food_ = 0;
  fuel_ = 0;
  materials_ = 0;
  artifacts_ = 0;
  aircraft_.clear();
  crew_.clear();
  bombs_.clear();
  built_ = false;
}
