#include "tests/support/log_text.h"

#include "game/messages/message_log.h"

std::string logLines() {
  std::string lines;
  const MessageLog& log = theMessageLog();
  for (int i = 0; i < log.count(); ++i) lines += std::to_string(log.at(i)->priority) + " " + std::string(log.at(i)->text.view()) + "\n";
  return lines;
}
