#include "game/cargo/artifact_name.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/cargo/working_folder.h"

namespace {

using namespace std::string_literals;

TEST(ArtifactName, TheFirstLineOfTheFileAtMostNineteenCharacters) {
  const std::string k30 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234";
  const struct {
    std::string bytes, name;
  } cases[] = {
      {"Golden Idol\nSecond\n", "Golden Idol"},
      {"Crystal Skull", "Crystal Skull"},  // no line feed
      {"Crystal Skull\r\nSecond\r\n", "Crystal Skull"},
      {"", ""},
      {"\nSecond\n", ""},
      {k30 + "\n", k30.substr(0, 19)},
      {k30.substr(0, 18) + "\r\n", k30.substr(0, 18)},  // the CR would be the 19th
      {k30.substr(0, 19) + "\r\n", k30.substr(0, 19)},
      {"ab\rcd\n", "ab\rcd"},  // a CR not before the line feed is part of the line
      {"ab\0cd\n"s, "ab"},
      {"\x80\xE9t\xFF\n", "\x80\xE9t\xFF"},
      {std::string(1 << 20, 'M') + "\nx\n", std::string(19, 'M')},
  };
  WorkingFolder folder;
  EXPECT_EQ(artifactName(5, 0).view(), "") << "no file";
  for (const auto& c : cases) {
    folder.write(c.bytes);
    EXPECT_EQ(std::string(artifactName(5, 4).view()), c.name) << c.bytes.substr(0, 30);
    EXPECT_EQ(folder.read(), c.bytes) << "the file is never written";
  }
  std::filesystem::permissions(folder.path / "artifacts.txt", std::filesystem::perms::none);
  if (access("artifacts.txt", R_OK) != 0) {  // not for a user who reads any file
    EXPECT_EQ(artifactName(1, 0).view(), "") << "no read permission";
  }
  std::filesystem::remove(folder.path / "artifacts.txt");
  std::filesystem::create_directory(folder.path / "artifacts.txt");
  EXPECT_EQ(artifactName(1, 0).view(), "") << "a directory in its place";
}

}  // namespace
