#include "game/cargo/artifact_name.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "game/cargo/cargo_deck.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/fresh_game.h"

namespace {

using namespace std::string_literals;

TEST(ArtifactName, TheFirstLineOfTheFileAtMostNineteenCharacters) {
  const std::string k20 = "ABCDEFGHIJKLMNOPQRST";
  const struct {
    std::string bytes, name;
  } cases[] = {
      {"Golden Idol\nSecond\n", "Golden Idol"},
      {"Crystal Skull", "Crystal Skull"},  // no line feed
      {"Crystal Skull\r\nSecond\r\n", "Crystal Skull"},
      {"", ""},
      {"\nSecond\n", ""},
      {k20 + "\n", k20.substr(0, 19)},
      {k20.substr(0, 19) + "\n", k20.substr(0, 19)},
      {k20.substr(0, 18) + "\r\n", k20.substr(0, 18)},  // the CR would be the 19th
      {k20.substr(0, 19) + "\r\n", k20.substr(0, 19)},
      {"ab\rcd\n", "ab\rcd"},  // a CR not before the line feed is part of the line
      {"ab\0cd\n"s, "ab"},
  };
  WorkingFolder folder;
  EXPECT_EQ(artifactName(5, 0).view(), "") << "no file";
  for (const auto& c : cases) {
    folder.write(c.bytes);
    EXPECT_EQ(std::string(artifactName(5, 4).view()), c.name) << c.bytes;
    EXPECT_EQ(folder.read(), c.bytes) << "the file is never written";
  }
  std::filesystem::remove(folder.path / "artifacts.txt");
  std::filesystem::create_directory(folder.path / "artifacts.txt");
  EXPECT_EQ(artifactName(1, 0).view(), "") << "a directory in its place";
}

// A bomb asks for 2000 units of room, an egg for 20: the bomb screen brings
// two bombs aboard, the second after the first has taken its room, and a
// visit to the incinerator an egg.
TEST(Hold, BombsAndEggsComeAboardWhileTheyFit) {
  const struct {
    const char* keys;
    int room, bombs, eggs;
  } cases[] = {
      {"Down Enter Esc", 4000, 2, 0}, {"Down Enter Esc", 3999, 1, 0},
      {"Down Enter Esc", 2000, 1, 0}, {"Down Enter Esc", 1999, 0, 0},
      {"Up Up Enter Esc", 20, 0, 1},  {"Up Up Enter Esc", 19, 0, 0},
  };
  for (const auto& c : cases) {
    startFreshRun();
    Mothership& ship = theMothership();
    ship.setFood(ship.food() + static_cast<std::uint32_t>(ship.cargoRoomLeft() - c.room));
    scripted::addKeys(c.keys);
    scripted::run(runCargoDeck);
    EXPECT_EQ(ship.bombs().count(), c.bombs) << c.room;
    EXPECT_EQ(ship.eggs().count(), c.eggs) << c.room;
  }
}

}  // namespace
