#include "game/cargo/artifact_name.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "tests/cargo/working_folder.h"

namespace {

using namespace std::string_literals;

const std::string k30 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234";

TEST(ArtifactName, FirstLineOfTheFileAtMostNineteenCharacters) {
  struct Case {
    const char* what;
    std::string bytes;
    std::string name;
  };
  const Case cases[] = {
      {"a name and more lines", "Golden Idol\nSecond\n", "Golden Idol"},
      {"no line feed", "Crystal Skull", "Crystal Skull"},
      {"CR LF", "Crystal Skull\r\nSecond\r\n", "Crystal Skull"},
      {"empty file", "", ""},
      {"empty first line", "\nSecond\n", ""},
      {"30 characters", k30 + "\n", k30.substr(0, 19)},
      {"19 characters", k30.substr(0, 19) + "\n", k30.substr(0, 19)},
      {"18 and CR LF", k30.substr(0, 18) + "\r\n", k30.substr(0, 18)},
      {"19 and CR LF", k30.substr(0, 19) + "\r\n", k30.substr(0, 19)},
      {"a lone CR stays", "ab\rcd\n", "ab\rcd"},
      {"NUL ends the name", "ab\0cd\n"s, "ab"},
      {"high bytes kept as codes", "\x80\xE9t\xE9\xFF\n", "\x80\xE9t\xE9\xFF"},
      {"a first line of a megabyte", std::string(1 << 20, 'M') + "\nx\n", std::string(19, 'M')},
  };
  WorkingFolder folder;
  EXPECT_EQ(artifactName(5, 0).view(), "") << "no file";
  for (const Case& c : cases) {
    folder.write(c.bytes);
    EXPECT_EQ(std::string(artifactName(5, 4).view()), c.name) << c.what;
    EXPECT_EQ(folder.read(), c.bytes) << c.what << ": the file is never written";
  }
}

TEST(ArtifactName, AFileThatCannotBeReadGivesABlankName) {
  WorkingFolder folder;
  std::filesystem::create_directory(folder.path() / "artifacts.txt");
  EXPECT_EQ(artifactName(1, 0).view(), "") << "a directory in its place";
  std::filesystem::remove(folder.path() / "artifacts.txt");
  folder.write("Secret\n");
  std::filesystem::permissions("artifacts.txt", std::filesystem::perms::none);
  // A user who reads any file (root) cannot try this one.
  if (access("artifacts.txt", R_OK) != 0) {
    EXPECT_EQ(artifactName(1, 0).view(), "") << "no read permission";
  }
}

}  // namespace
