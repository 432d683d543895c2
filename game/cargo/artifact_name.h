// The names of the artifacts in the hold. An artifact has no record of its
// own: the ship only counts them, and every row of a list takes its name
// from the first line of artifacts.txt in the working directory.
#pragma once

#include <cstdint>

#include "game/console/text.h"

inline constexpr const char* kArtifactsFile = "artifacts.txt";

// The name of artifact `index` of `count`: the first line of artifacts.txt,
// read afresh at every call, at most 19 characters, without its line feed
// (nor a carriage return just before it). The game never writes the file.
// A missing, unreadable or empty file, or one that is not a plain file,
// gives the empty name; a NUL byte ends the name.
FixedText<20> artifactName(std::int32_t count, std::int32_t index);
