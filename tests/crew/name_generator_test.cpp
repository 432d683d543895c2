#include "game/crew/name_generator.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "game/console/random.h"
#include "game/crew/name_tables.h"

namespace {

constexpr int kManyNames = 20000;

// The name a race's rule gives from a fresh member (race name in place).
std::string nameFor(int race, int sex) {
  CrewMember member;
  member.setUp(race, static_cast<std::uint8_t>(sex));
  return std::string(member.name());
}

// The draws a rule takes: the generator's next draw after the name is the
// n-th draw of the same seed.
int drawsTaken(int race, int sex, unsigned seed) {
  seedRandom(seed);
  CrewName name("x");
  generateCrewName(race, name, static_cast<std::uint8_t>(sex));
  const int next[2] = {gameRand(), gameRand()};
  seedRandom(seed);
  std::vector<int> stream;
  for (int i = 0; i < 40; ++i) stream.push_back(gameRand());
  for (int n = 0; n + 1 < 40; ++n) {
    if (stream[n] == next[0] && stream[n + 1] == next[1]) return n;
  }
  return -1;
}

// The first `n` draws of a seed.
std::vector<int> drawsOf(unsigned seed, int n) {
  seedRandom(seed);
  std::vector<int> draws;
  for (int i = 0; i < n; ++i) draws.push_back(gameRand());
  return draws;
}

TEST(NameGenerator, EachRuleDrawsItsCountWhateverTheSex) {
  struct Case {
    int race, draws;
  };
  const Case cases[] = {
      {kRaceNone, 0},         {kRacePovolnian, 6}, {kRaceGrekkp, 3},
      {kRaceMako, 2},         {kRaceUberfleck, 2}, {kRaceMududu, 2},
      {kRaceClucktillian, 0}, {kRaceOblivion, 2},  {kRaceDeorian, 2},
      {kRaceHampster, 1},     {kRaceIvinian, 3},   {kRaceBlob, 0},
      {kRaceProbe, 4},        {kRaceHuman, 4},     {15, 0},
  };
  for (const Case& c : cases) {
    for (unsigned seed : {3u, 77u, 1234u}) {
      EXPECT_EQ(drawsTaken(c.race, 0, seed), c.draws) << c.race;
      EXPECT_EQ(drawsTaken(c.race, 1, seed), c.draws) << c.race;
    }
  }
  // A Woot Woot's serial: the length, the first character, then one draw a
  // character.
  for (unsigned seed = 1; seed < 200; ++seed) {
    const int length = drawsOf(seed, 1)[0] % 4 + 2;
    ASSERT_EQ(drawsTaken(kRaceWootWoot, 0, seed), 2 + length) << seed;
  }
}

TEST(NameGenerator, RacesWithoutARuleKeepTheirRaceName) {
  EXPECT_EQ(nameFor(kRaceClucktillian, 0), "Clucktillian");
  EXPECT_EQ(nameFor(kRaceBlob, 1), "Blob");
  EXPECT_EQ(nameFor(kRaceNone, 0), "BAD");
}

TEST(NameGenerator, PovolniansAreAFamilyOrAGivenNameWithTitleAndSuffix) {
  std::set<std::string> forms;
  for (unsigned seed = 1; seed <= 3000; ++seed) {
    const std::vector<int> d = drawsOf(seed, 6);
    const int family = d[0] % 30, given = d[1] % 41, style = d[2] % 2, title = d[3] % 3,
              suffixed = d[4] % 3, suffix = d[5] % 5;
    seedRandom(seed);
    const std::string name = nameFor(kRacePovolnian, 0);
    if (style == 0) {
      ASSERT_EQ(name, povolnianFamily[family]) << seed;
      continue;
    }
    std::string expected = std::string(title == 1 ? "Dr. " : "") + povolnianGiven[given];
    if (suffixed == 1) expected += std::string(" ") + povolnianSuffix[suffix];
    ASSERT_EQ(name, expected) << seed;
    forms.insert(std::to_string(title == 1) + std::to_string(suffixed == 1));
  }
  EXPECT_EQ(forms.size(), 4u) << "every form met";
}

TEST(NameGenerator, SexRulesAndTheJokeTable) {
  // Grekkp tails follow the sex; the other table is drawn all the same.
  for (unsigned seed = 1; seed <= 500; ++seed) {
    seedRandom(seed);
    const std::string he = nameFor(kRaceGrekkp, 0);
    seedRandom(seed);
    const std::string she = nameFor(kRaceGrekkp, 1);
    ASSERT_TRUE(he.ends_with("us")) << he;
    ASSERT_TRUE(she.ends_with("a")) << she;
    const std::vector<int> d = drawsOf(seed, 3);
    const std::string head = grekkpStem[d[0] % 65];
    ASSERT_EQ(he, head + grekkpMale[d[1] % 63]);
    ASSERT_EQ(she, head + grekkpFemale[d[2] % 47]);
  }
  // Humans: the male row, the female row, then one in 25 a joke for either.
  int jokes = 0;
  bool maleWithAWomansJoke = false;
  for (unsigned seed = 1; seed <= 5000; ++seed) {
    const std::vector<int> d = drawsOf(seed, 4);
    for (int sex : {0, 1}) {
      seedRandom(seed);
      const std::string name = nameFor(kRaceHuman, sex);
      if (d[2] % 25 == 5) {
        ASSERT_EQ(name, jokeName[d[3] % 9]) << seed;
        jokes += sex;
        if (sex == 0 && name == "Ivana Tinkle") maleWithAWomansJoke = true;
      } else {
        ASSERT_EQ(name, sex == 0 ? humanMale[d[0] % 274] : humanFemale[d[1] % 303]) << seed;
      }
    }
  }
  EXPECT_NEAR(jokes, 5000 / 25, 60);
  EXPECT_TRUE(maleWithAWomansJoke);
}

// Which of the three serial forms a Woot Woot name has: 0 letters behind a
// digit, 1 a hyphen and digits behind a letter, 2 the pool behind a sign;
// -1 for none.
int wootForm(const std::string& name) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ", digits = "0123456789",
                    signs = "-!@#$%^&*_=~", pool = letters + digits + signs;
  auto all = [&](std::size_t from, const std::string& set) {
    const std::size_t n = name.size() - from;
    return n >= 2 && n <= 5 && name.find_first_not_of(set, from) == std::string::npos;
  };
  if (name.empty()) return -1;
  if (digits.find(name[0]) != std::string::npos) return all(1, letters) ? 0 : -1;
  if (letters.find(name[0]) != std::string::npos)
    return name.size() > 1 && name[1] == '-' && all(2, digits) ? 1 : -1;
  if (signs.find(name[0]) != std::string::npos) return all(1, pool) ? 2 : -1;
  return -1;
}

TEST(NameGenerator, WootWootSerialsComeInThreeForms) {
  int seen[3] = {};
  bool signAfterHyphen = false;
  seedRandom(5);
  for (int i = 0; i < kManyNames; ++i) {
    const std::string name = nameFor(kRaceWootWoot, i % 2);
    const int form = wootForm(name);
    ASSERT_NE(form, -1) << name;
    ++seen[form];
    if (name[0] == '-' && name.find_first_of("!@#$%^&*_=~", 1) != std::string::npos)
      signAfterHyphen = true;
  }
  EXPECT_GT(seen[0], 0);
  EXPECT_GT(seen[1], 0);
  EXPECT_GT(seen[2], 0);
  EXPECT_TRUE(signAfterHyphen) << "a hyphen first goes on with the whole pool";
}

TEST(NameGenerator, NoNameIsLongerThan19AndHampstersEndInABlank) {
  seedRandom(11);
  for (int race = 0; race <= 15; ++race) {
    std::size_t longest = 0;
    for (int i = 0; i < kManyNames; ++i) {
      const std::string name = nameFor(race, i % 2);
      longest = std::max(longest, name.size());
      ASSERT_FALSE(name.empty());
      if (race == kRaceHampster) {
        ASSERT_EQ(name.back(), ' ') << name;
      }
    }
    EXPECT_LE(longest, 19u) << race;
    if (race == kRacePovolnian) {
      EXPECT_EQ(longest, 18u) << "Dr. Enyalioide III";
    }
  }
}

}  // namespace
