#include "game/crew/crew_list.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A list of `count` members told apart by their job codes 100, 101, ...
CrewList numbered(int count, int capacity = 250) {
  CrewList list(capacity);
  for (int i = 0; i < count; ++i) {
    list.add(kRaceBlob, 0);
    list.at(i).setJob(100 + i);
  }
  return list;
}

std::string jobs(const CrewList& list) {
  std::string out;
  for (int i = 0; i < list.getCount(); ++i) out += std::to_string(list.at(i).getJob() - 100);
  return out;
}

TEST(CrewList, TakesMembersUpToItsCapacityAndNoMore) {
  CrewList list(3);
  EXPECT_TRUE(list.add(kRaceMako, 0));
  EXPECT_TRUE(list.add(kRaceMako, 0));
  EXPECT_FALSE(list.isFull());
  EXPECT_TRUE(list.addFront(list.at(0)));
  EXPECT_TRUE(list.isFull());
  EXPECT_FALSE(list.add(kRaceMako, 0));
  EXPECT_FALSE(list.addFront(list.at(0)));
  EXPECT_EQ(list.getCount(), 3);
}

TEST(CrewList, MoveBeforeReordersAsTheJobScreenNeeds) {
  struct Case {
    int from, before;
    const char* order;
  } cases[] = {
      {3, 0, "30124"},  // to the head
      {0, 0, "01234"},  // the head before itself stays
      {1, 4, "02314"},  // before a member further down
      {4, 1, "04123"},  // before a member further up
      {1, 5, "02341"},  // j equal to the count: to the end
      {1, 9, "02341"},  // and past it
      {2, 2, "01234"},
  };
  for (const Case& c : cases) {
    CrewList list = numbered(5);
    list.moveBefore(c.from, c.before);
    EXPECT_EQ(jobs(list), c.order) << c.from << " before " << c.before;
  }
}

TEST(CrewList, TransferLandsAllButTheFirstTwoInTheirOrder) {
  struct Case {
    int count, room;
    const char* left;
    const char* landed;
  } cases[] = {
      {2, 10, "01", ""},
      {3, 10, "01", "2"},
      {5, 10, "01", "234"},
      {5, 2, "012", "34"},  // the receiving list fills up: the rest stay aboard
  };
  for (const Case& c : cases) {
    CrewList craft = numbered(c.count);
    CrewList ground(c.room);
    craft.transferTo(ground);
    EXPECT_EQ(jobs(craft), c.left) << c.count << " aboard";
    EXPECT_EQ(jobs(ground), c.landed) << c.count << " aboard";
  }
}

TEST(CrewList, RemoveTakesExactlyTheMemberGivenAndCopiesAreDeep) {
  CrewList list = numbered(3);
  CrewList copy = list;
  EXPECT_TRUE(list.remove(list.at(1)));
  EXPECT_EQ(jobs(list), "02");
  EXPECT_EQ(jobs(copy), "012");
  EXPECT_FALSE(list.remove(copy.at(0))) << "not a member of this list";
  list.swapMembers(0, 1);
  EXPECT_EQ(jobs(list), "20");
  EXPECT_TRUE(list.remove(list.at(0)));
  EXPECT_FALSE(list.remove(list.at(0))) << "the list is now empty";
}

TEST(CrewList, JobsFallIntoTheThreeListsOfTheJobScreen) {
  struct Case {
    int job;
    JobGroup group;
  } cases[] = {{0, kGroupOther},        {2, kGroupOther},       {3, kGroupResearch},
               {6, kGroupResearch},     {7, kGroupMaintenance}, {19, kGroupMaintenance},
               {20, kGroupMaintenance}, {-1, kGroupOther}};
  for (const Case& c : cases) EXPECT_EQ(jobGroup(c.job), c.group) << c.job;
  EXPECT_EQ(jobText(19), "Building a crater-maker nuclear bombs.");
  EXPECT_EQ(jobText(20), "Error!!!!");
  EXPECT_EQ(jobText(4), "Error!!!!");
}

}  // namespace
