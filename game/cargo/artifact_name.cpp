#include "game/cargo/artifact_name.h"

#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace {
constexpr std::size_t kNameLength = 19;
}  // namespace

FixedText<20> artifactName(std::int32_t /*count*/, std::int32_t /*index*/) {
  FixedText<20> name;
  // Only a plain file is opened: a directory or a pipe in its place would
  // read nothing or wait forever.
  std::error_code error;
  if (!std::filesystem::is_regular_file(kArtifactsFile, error)) return name;
  std::FILE* file = std::fopen(kArtifactsFile, "rb");
  if (file == nullptr) return name;
  // The name, then room for a carriage return and a line feed behind it.
  char buffer[kNameLength + 2];
  const std::size_t got = std::fread(buffer, 1, sizeof buffer, file);
  std::fclose(file);
  std::string_view line(buffer, got);
  line = line.substr(0, line.find('\n'));
  if (line.size() <= kNameLength + 1 && got > line.size() && !line.empty() && line.back() == '\r') {
    line.remove_suffix(1);  // a line ending of CR LF
  }
  name.assign(line.substr(0, kNameLength));  // stops at a NUL when shown
  return name;
}
