// Text helpers for numbers in fixed fields, and the fixed-size text that
// records hold.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// Exactly `width` characters, the number right-aligned behind blanks; with
// `useCommas` a comma between groups of three digits. 0 is a single zero in
// the last place; a value below 0 is all blanks; digits that do not fit are
// lost from the left.
std::string formatNumber(std::int32_t value, int width, bool useCommas);

// The same text with its leading blanks moved to the end, so the number
// starts in the first place; anything but digits and commas becomes a blank.
std::string leftAlignNumber(std::string_view text, int width);

// The text up to its first blank: the digits of a left-aligned number.
std::string cutAtBlank(std::string_view text);

// `first` followed by `second`, into `destination`.
void joinText(std::string& destination, std::string_view first, std::string_view second);

// A number as the status bar and the lists show it: `width` cells with
// commas, starting in the first cell.
std::string leftAlignedNumber(std::int32_t value, int width);

// NUL-terminated text of at most N - 1 characters, as records hold it.
// Longer text is cut to fit.
template <std::size_t N>
class FixedText {
 public:
  FixedText() { data_[0] = '\0'; }
  FixedText(std::string_view text) { assign(text); }  // NOLINT: plain text converts
  void assign(std::string_view text) {
    std::size_t n = text.size() < N - 1 ? text.size() : N - 1;
    std::memcpy(data_, text.data(), n);
    data_[n] = '\0';
  }
  std::string_view view() const { return std::string_view(data_); }
  const char* c_str() const { return data_; }
  static constexpr std::size_t capacity() { return N - 1; }

 private:
  char data_[N];
};
