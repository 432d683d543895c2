// The shell's screens, whole, against their goldens in tests/golden/shell.
#include "tests/support/golden.h"

namespace {

const Scene kScenes[] = {
    {"the title, then a new game's ship map", "@title Enter @ship_map"},
};

TEST(Screens, Shell) { playScenes("shell", kScenes); }

}  // namespace
