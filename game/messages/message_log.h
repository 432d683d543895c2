// The message log: the game's news. Any part of the game posts a short line
// with a priority (0 to 6, higher is more urgent); the morning report shows
// the log in pages of six, most urgent first, and empties it.
//
// The log is kept sorted by priority, highest first, and in posting order
// among equal priorities. Texts are kept to 150 characters.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "game/console/text.h"

struct Message {
  FixedText<151> text{"Message input failed"};
  std::int32_t priority = 0;
};

class MessageLog {
 public:
  void post(std::string_view text, std::int32_t priority);
  std::int32_t count() const { return static_cast<std::int32_t>(messages_.size()); }
  // The message at a place in the sorted log, or nullptr past its end.
  const Message* at(std::int32_t index) const;
  void clear() { messages_.clear(); }

  // The text in the colour of its priority, wrapped at 70 cells.
  static void drawMessage(const Message& message, int column, int row);
  // The page of six that starts at `first`, with its arrows and help line.
  void showPage(std::int32_t first) const;

 private:
  std::vector<Message> messages_;
};

MessageLog& theMessageLog();

// The colour a priority is shown in.
int messageColour(std::int32_t priority);

// Corolla's morning report: pages of six, Space or Right for the next,
// Backspace or Left for the one before, Escape to end. The log is empty
// afterwards, read or not.
void runMorningReport();
