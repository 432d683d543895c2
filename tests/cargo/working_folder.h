// A fresh empty folder as the working directory of one test, for an
// artifacts.txt of its own; the old directory comes back at the end.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

class WorkingFolder {
 public:
  WorkingFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "skarmada-XXXXXX").string();
    path = mkdtemp(pattern.data());
    std::filesystem::current_path(path);
  }
  ~WorkingFolder() {
    std::filesystem::current_path(old_);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    std::filesystem::remove_all(path);
  }
  void write(const std::string& bytes) {
    std::ofstream(path / "artifacts.txt", std::ios::binary) << bytes;
  }
  std::string read() const {
    std::ifstream in(path / "artifacts.txt", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  std::filesystem::path path;

 private:
  std::filesystem::path old_ = std::filesystem::current_path();
};
