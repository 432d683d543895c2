// Whole screens kept as data. A golden is one screen of the game as the
// player sees it, in tests/golden/<area>/<name>.golden: the 25 rows of text,
// each followed by the foreground and the background of its 80 cells, one
// hex digit a cell. A test compares the screen model with it cell for cell;
// on a difference it shows the rows that differ, wanted and got side by side.
//
// SKARMADA_UPDATE_GOLDENS=1 in the environment writes the screen into the
// golden instead (keeping the file's leading # lines). A new or changed
// golden is read against what the screen must show, cell by cell, before it
// is committed.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>

// The whole screen against the golden `name` ("crew/assign_jobs_carried").
::testing::AssertionResult screenMatches(const std::string& name);

// One scene: a fresh run of the program from `seed`, changed by `setup`,
// then `screen` played under `script` (the whole program from its title menu
// when `screen` is null). The script is key names as scripted::addKeys takes
// them, and checkpoints: "@name" compares the screen with the golden
// <area>/name at the moment the game next looks for a key. Every checkpoint
// must be reached.
struct Scene {
  const char* name;
  const char* script;
  void (*screen)() = nullptr;
  void (*setup)() = nullptr;
  unsigned seed = 1;
};

// Plays the scenes in order, each checkpoint a check of its own.
void playScenes(const char* area, std::span<const Scene> scenes);
