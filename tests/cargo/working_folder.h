// A fresh empty folder as the working directory for one test, where the
// test can put an artifacts.txt of its own; the old directory comes back
// at the end.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

class WorkingFolder {
 public:
  WorkingFolder() {
    old_ = std::filesystem::current_path();
    std::string pattern = (std::filesystem::temp_directory_path() / "skarmada-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
    std::filesystem::current_path(path_);
  }
  ~WorkingFolder() {
    std::filesystem::current_path(old_);
    std::error_code ignored;
    std::filesystem::permissions(path_ / "artifacts.txt", std::filesystem::perms::owner_all,
                                 ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

  void write(const std::string& bytes) {
    std::ofstream(path_ / "artifacts.txt", std::ios::binary | std::ios::trunc) << bytes;
  }
  std::string read() const {
    std::ifstream in(path_ / "artifacts.txt", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path old_;
  std::filesystem::path path_;
};
