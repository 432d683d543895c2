#include "game/crew/name_generator.h"

#include <cassert>
#include <cstddef>
#include <string>
#include <string_view>

#include "game/console/random.h"
#include "game/crew/name_tables.h"

namespace {

constexpr std::string_view kWootAny = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-!@#$%^&*_=~";
constexpr std::string_view kWootLetter = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kWootDigit = "0123456789";

// One in this many Probes and Humans gets a joke for a name.
constexpr int kJokeOdds = 25;
constexpr int kJokeDraw = 5;

// A row of a name table, by a drawn index.
template <std::size_t Rows, std::size_t Width>
std::string_view row(const char (&table)[Rows][Width], int index) {
  assert(index >= 0 && static_cast<std::size_t>(index) < Rows);
  return table[index];
}

// A draw of 0 to n - 1.
int draw(int n) { return gameRand() % n; }

std::string povolnianName() {
  const int family = draw(30);
  const int given = draw(41);
  const int style = draw(2);
  const int title = draw(3);
  const int suffixed = draw(3);
  const int suffix = draw(5);
  if (style == 0) return std::string(row(povolnianFamily, family));
  std::string name = title == 1 ? "Dr. " : "";
  name += row(povolnianGiven, given);
  if (suffixed == 1) {
    name += ' ';
    name += row(povolnianSuffix, suffix);
  }
  return name;
}

std::string grekkpName(std::uint8_t sex) {
  const int head = draw(65);
  const int male = draw(63);
  const int female = draw(47);
  std::string name(row(grekkpStem, head));
  name += sex == 1 ? row(grekkpFemale, female) : row(grekkpMale, male);
  return name;
}

// A head and a tail, each by its own draw, the head's first.
template <std::size_t H, std::size_t HW, std::size_t T, std::size_t TW>
std::string joined(const char (&heads)[H][HW], const char (&tails)[T][TW]) {
  const int head = draw(static_cast<int>(H));
  const int tail = draw(static_cast<int>(T));
  std::string name(row(heads, head));
  name += row(tails, tail);
  return name;
}

// A serial number: a first character from the whole pool, then letters
// behind a digit, a hyphen and digits behind a letter, or more of the pool
// behind a sign.
std::string wootWootName() {
  const int length = draw(4) + 2;
  const char first = kWootAny[static_cast<std::size_t>(draw(static_cast<int>(kWootAny.size())))];
  std::string name(1, first);
  std::string_view pool = kWootAny;
  if (first >= '0' && first <= '9') {
    pool = kWootLetter;
  } else if (first >= 'A' && first <= 'Z') {
    name += '-';
    pool = kWootDigit;
  }
  for (int i = 0; i < length; ++i)
    name += pool[static_cast<std::size_t>(draw(static_cast<int>(pool.size())))];
  return name;
}

std::string ivinianName() {
  if (draw(2) == 0) return joined(ivinianTreeHead, ivinianFlowerTail);
  return joined(ivinianFlowerHead, ivinianTreeTail);
}

std::string humanName(std::uint8_t sex) {
  const int male = draw(274);
  const int female = draw(303);
  const int joke = draw(kJokeOdds);
  const int jokeRow = draw(9);
  if (joke == kJokeDraw) return std::string(row(jokeName, jokeRow));
  return std::string(sex == 0 ? row(humanMale, male) : row(humanFemale, female));
}

}  // namespace

void generateCrewName(std::int32_t race, CrewName& name, std::uint8_t sex) {
  std::string made;
  switch (race) {
    case kRacePovolnian: made = povolnianName(); break;
    case kRaceGrekkp: made = grekkpName(sex); break;
    case kRaceMako: made = joined(makoHead, makoTail); break;
    case kRaceUberfleck: made = joined(uberfleckHead, uberfleckTail); break;
    case kRaceWootWoot: made = wootWootName(); break;
    case kRaceMududu: made = joined(mududuHead, mududuTail); break;
    case kRaceOblivion: made = joined(oblivionHead, oblivionTail); break;
    case kRaceDeorian: made = joined(deorianHead, deorianTail); break;
    case kRaceHampster: made = row(hampsterName, draw(106)); break;
    case kRaceIvinian: made = ivinianName(); break;
    case kRaceProbe:
    case kRaceHuman: made = humanName(sex); break;
    default: return;  // no rule: the race name stays
  }
  assert(made.size() <= CrewName::capacity());
  name.assign(made);
}
