#include "game/fleet/bunker.h"

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
