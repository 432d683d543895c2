#include "tests/support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <fstream>
#include <sstream>
#include <vector>

#include "game/console/console.h"
#include "game/console/cp437.h"
#include "game/console/scripted.h"
#include "game/shell/title_menu.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr char kHex[] = "0123456789abcdef";

std::string utf8(char32_t point) {
  std::string out;
  if (point < 0x80) {
    out.push_back(static_cast<char>(point));
  } else if (point < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (point >> 6)));
    out.push_back(static_cast<char>(0x80 | (point & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xE0 | (point >> 12)));
    out.push_back(static_cast<char>(0x80 | ((point >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (point & 0x3F)));
  }
  return out;
}

// The screen as the golden's body: per row a text line and two colour lines.
std::vector<std::string> render() {
  std::vector<std::string> lines;
  const ScreenModel& screen = Console::screen();
  for (int row = 0; row < kScreenHeight; ++row) {
    std::string text, fg, bg;
    for (const Cell& cell : screen.cells[row]) {
      text += utf8(cp437::toUnicode(cell.code));
      fg.push_back(kHex[cell.colour % 16]);
      bg.push_back(kHex[cell.colour / 16]);
    }
    const std::string number = std::string(1, static_cast<char>('0' + row / 10)) +
                               static_cast<char>('0' + row % 10);
    lines.push_back(number + " |" + text + "|");
    lines.push_back("   |" + fg + "|");
    lines.push_back("   |" + bg + "|");
  }
  return lines;
}

std::string pathOf(const std::string& name) {
  return std::string(SKARMADA_GOLDEN_DIR) + "/" + name + ".golden";
}

const char* const kLegend[] = {
    "#    0         1         2         3         4         5         6         7",
    "#    01234567890123456789012345678901234567890123456789012345678901234567890123456789",
    "# Each row: its text, then each cell's foreground, then its background:",
    "# 0 black 1 blue 2 green 3 cyan 4 red 5 magenta 6 brown 7 light grey",
    "# 8 dark grey 9 light blue a light green b light cyan c light red",
    "# d light magenta e yellow f white",
};

bool isLegend(const std::string& line) {
  for (const char* legend : kLegend) {
    if (line == legend) return true;
  }
  return false;
}

// A golden line without its row number: what lies between the bars.
std::string between(const std::string& line) {
  const auto first = line.find('|');
  const auto last = line.rfind('|');
  return first == std::string::npos || last <= first ? line : line.substr(first + 1, last - first - 1);
}

// Columns where two lines of cells differ, as a line of marks.
std::string marks(const std::string& want, const std::string& got) {
  const std::string a = cp437::fromUtf8(want);
  const std::string b = cp437::fromUtf8(got);
  std::string out;
  for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
    out.push_back(i < a.size() && i < b.size() && a[i] == b[i] ? ' ' : '^');
  }
  return out;
}

}  // namespace

::testing::AssertionResult screenMatches(const std::string& name) {
  const std::vector<std::string> got = render();
  const std::string path = pathOf(name);
  std::vector<std::string> header, want;
  {
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) {
      if (!line.empty() && line[0] == '#') {
        if (!isLegend(line)) header.push_back(line);
      } else if (!line.empty()) {
        want.push_back(line);
      }
    }
  }
  const char* update = std::getenv("SKARMADA_UPDATE_GOLDENS");
  if (update && *update && *update != '0') {
    if (want == got) return ::testing::AssertionSuccess();
    if (header.empty()) header.push_back("# " + name);
    std::ofstream out(path);
    for (const std::string& line : header) out << line << '\n';
    for (const char* line : kLegend) out << line << '\n';
    for (const std::string& line : got) out << line << '\n';
    std::cout << "rewrote " << path << ": review it before committing\n";
    return out ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << "cannot write " << path;
  }
  if (want.empty()) {
    return ::testing::AssertionFailure()
           << "no golden " << path << ": run with SKARMADA_UPDATE_GOLDENS=1 to write it, then review it";
  }
  if (want == got) return ::testing::AssertionSuccess();
  auto failure = ::testing::AssertionFailure();
  failure << "the screen differs from " << path << " (want | got):\n";
  static const char* const kKinds[] = {"text", "fg  ", "bg  "};
  for (int row = 0; row < kScreenHeight; ++row) {
    bool differs = false;
    for (int k = 0; k < 3; ++k) {
      const std::size_t i = static_cast<std::size_t>(row * 3 + k);
      differs = differs || i >= want.size() || want[i] != got[i];
    }
    if (!differs) continue;
    failure << "row " << row << ":\n";
    for (int k = 0; k < 3; ++k) {
      const std::size_t i = static_cast<std::size_t>(row * 3 + k);
      const std::string w = i < want.size() ? between(want[i]) : std::string();
      const std::string g = between(got[i]);
      failure << "  " << kKinds[k] << " |" << w << "|  |" << g << "|\n";
      if (w != g) failure << "        " << marks(w, g) << "\n";
    }
  }
  return failure;
}

void playScenes(const char* area, std::span<const Scene> scenes) {
  for (const Scene& scene : scenes) {
    SCOPED_TRACE(std::string(area) + " scene: " + scene.name);
    startFreshRun(scene.seed);
    if (scene.setup) scene.setup();
    std::istringstream in(scene.script);
    for (std::string token; in >> token;) {
      if (token[0] == '@') {
        const std::string name = std::string(area) + "/" + token.substr(1);
        scripted::addCall([name] { EXPECT_TRUE(screenMatches(name)) << "at checkpoint @" << name; });
      } else {
        scripted::addKeys(token);
      }
    }
    scripted::run(scene.screen ? scene.screen : runTitleMenu);
    EXPECT_EQ(scripted::stepsLeft(), 0) << "the screen returned before the script's end";
  }
}
