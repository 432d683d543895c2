// A list of crew members with a capacity: the ship's crew (250), a bunker's
// (50), a craft's (its crew capacity). The list owns its members; copying a
// list copies every member. Members are numbered from 0 in list order, and
// a member keeps its address while it stays in the list.
//
// Job codes live in the member; the job screen shows code 3 under
// RESEARCH, 7 to 19 and above under MAINTENANCE, the rest under OTHER.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "game/crew/crew_member.h"

inline constexpr int kShipCrewCapacity = 250;
inline constexpr int kBunkerCrewCapacity = 50;

// The jobs the job screen gives.
inline constexpr std::int32_t kJobRelaxing = 0;
inline constexpr std::int32_t kJobResearch = 3;
inline constexpr std::int32_t kJobRepairing = 7;

// The three lists of the job screen.
enum JobGroup { kGroupResearch = 0, kGroupMaintenance = 1, kGroupOther = 2 };
JobGroup jobGroup(std::int32_t job);
// What the biography panel says the member is doing.
std::string_view jobText(std::int32_t job);

class CrewList {
 public:
  explicit CrewList(std::int32_t capacity) : capacity_(capacity) {}
  CrewList(const CrewList& other);
  CrewList& operator=(const CrewList& other);
  CrewList(CrewList&&) = default;
  CrewList& operator=(CrewList&&) = default;

  std::int32_t capacity() const { return capacity_; }
  // A craft's list takes the bound of its type when the craft is set up.
  void setCapacity(std::int32_t capacity) { capacity_ = capacity; }
  bool isFull() const { return getCount() > capacity_ - 1; }
  std::int32_t getCount() const { return static_cast<std::int32_t>(members_.size()); }

  // A new member set up for the race and sex at the end; false if full.
  bool add(std::int32_t race, std::uint8_t sex);
  // A copy of `member` at index 0; false if full.
  bool addFront(const CrewMember& member);
  // Takes out exactly this member (by address). True if members are left;
  // false if the list is now empty, or the member was not in it.
  bool remove(const CrewMember& member);
  CrewMember& at(std::int32_t index);
  const CrewMember& at(std::int32_t index) const;
  // Exchanges the two members' contents.
  void swapMembers(std::int32_t i, std::int32_t j);
  // Member i out and back in: at the front when j is 0, just before the
  // member that stood at j when j is below the count, else at the end.
  void moveBefore(std::int32_t i, std::int32_t j);
  // Every member from the last down to index 2 goes to the front of
  // `other` while it has room; members 0 and 1 stay.
  void transferTo(CrewList& other);
  void clear() { members_.clear(); }

 private:
  std::int32_t capacity_;
  std::vector<std::unique_ptr<CrewMember>> members_;
};
