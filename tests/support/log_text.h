// The message log, read back for tests.
#pragma once

#include <string>

// Every message in the log, one a line, in the log's order, each behind its
// priority and a blank ("4 Bunker sucessfully built in sector A"): the
// priority is the colour the morning report gives it.
std::string logLines();
