// The message log, read back for tests.
#pragma once

#include <string>

// Every message in the log, one a line, in the log's order.
std::string logLines();
