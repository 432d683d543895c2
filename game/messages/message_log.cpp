#include "game/messages/message_log.h"

#include "game/console/console.h"

namespace {
constexpr int kPageSize = 6;
constexpr int kMessageColumn = 3;
constexpr int kFirstMessageRow = 4;
constexpr int kRowsPerMessage = 3;
constexpr int kWrapWidth = 70;
}  // namespace

void MessageLog::post(std::string_view text, std::int32_t priority) {
  Message message;
  message.text.assign(text);
  message.priority = priority;
  // Behind every message at least as urgent: the most urgent first, and
  // among equals the first posted first.
  auto it = messages_.begin();
  while (it != messages_.end() && it->priority >= priority) ++it;
  messages_.insert(it, message);
}

const Message* MessageLog::at(std::int32_t index) const {
  if (index < 0 || index >= count()) return nullptr;
  return &messages_[static_cast<std::size_t>(index)];
}

int messageColour(std::int32_t priority) {
  switch (priority) {
    case 0: return 5;
    case 1:
    case 2: return 3;
    case 3:
    case 4: return 10;
    case 5: return 14;
    case 6: return 12;
    default: return 240;
  }
}

void MessageLog::drawMessage(const Message& message, int column, int row) {
  Console::putWrapped(message.text.view(), column, row, kWrapWidth,
                      messageColour(message.priority));
}

void MessageLog::showPage(std::int32_t first) const {
  const std::int32_t total = count();
  const std::int32_t last = first + kPageSize;
  auto rowOf = [](int place) { return kFirstMessageRow + kRowsPerMessage * place; };
  if (total <= kPageSize || last > total) {
    for (std::int32_t i = first; i < total; ++i) {
      drawMessage(messages_[static_cast<std::size_t>(i)], kMessageColumn, rowOf(i - first));
    }
    if (total > kPageSize) {
      // The places this last page leaves empty are wiped of the page before.
      const int empty = kPageSize - total % kPageSize;
      for (int place = kPageSize - empty; place < kPageSize; ++place) {
        Console::putTextPadded(" ", kMessageColumn, rowOf(place), 15, 72);
        Console::putTextPadded(" ", kMessageColumn, rowOf(place) + 1, 15, 72);
      }
    }
  } else {
    for (int place = 0; place < kPageSize; ++place) {
      drawMessage(messages_[static_cast<std::size_t>(first + place)], kMessageColumn, rowOf(place));
    }
  }
  Console::setColour(15);
  Console::putChar(last < total ? 16 : ' ', 71, 21, 15);
  Console::putChar(first > 0 ? 17 : ' ', 3, 21, 15);
  Console::putText("Press ESCAPE to exit, or SPACE to see next page or use L/R keys", 2, 22, 15);
}

void runMorningReport() {
  MessageLog& log = theMessageLog();
  Console::setColour(15);
  Console::clearScreen();
  Console::putText("Corolla says, 'Good Morning captain, I have ", 2, 2, 15);
  Console::setColour(14);
  Console::printNumber(log.count());
  Console::setColour(15);
  Console::print(log.count() == 1 ? " message for you.' " : " messages for you.' ");
  std::int32_t first = 0;
  log.showPage(first);
  for (;;) {
    KeyEvent key = Console::readKey();
    if (!key.keyDown) continue;
    if (key.virtualKey == kKeySpace || key.virtualKey == kKeyRight) {
      if (first < log.count() - kPageSize) first += kPageSize;
      log.showPage(first);
    } else if (key.virtualKey == kKeyBackspace || key.virtualKey == kKeyLeft) {
      if (first - kPageSize >= 0) {
        first -= kPageSize;
        log.showPage(first);
      }
    } else if (key.virtualKey == kKeyEscape) {
      break;
    }
  }
  log.clear();
}
