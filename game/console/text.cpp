#include "game/console/text.h"

std::string formatNumber(std::int32_t value, int width, bool useCommas) {
  if (width <= 0) return std::string();
  std::string out(static_cast<std::size_t>(width), ' ');
  if (value < 0) return out;
  std::string digits = std::to_string(value);
  std::string grouped;
  int count = 0;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
    if (useCommas && count > 0 && count % 3 == 0) grouped.insert(grouped.begin(), ',');
    grouped.insert(grouped.begin(), *it);
    ++count;
  }
  // Right-align; what does not fit is lost from the left.
  int n = static_cast<int>(grouped.size());
  for (int i = 0; i < width && i < n; ++i) out[width - 1 - i] = grouped[n - 1 - i];
  return out;
}

std::string leftAlignNumber(std::string_view text, int width) {
  std::string out;
  std::size_t start = 0;
  while (start < text.size() && text[start] == ' ') ++start;
  for (std::size_t i = start; i < text.size(); ++i) {
    char c = text[i];
    out.push_back((c >= '0' && c <= '9') || c == ',' ? c : ' ');
  }
  out.resize(static_cast<std::size_t>(width > 0 ? width : 0), ' ');
  return out;
}

std::string cutAtBlank(std::string_view text) {
  return std::string(text.substr(0, text.find(' ')));
}

void joinText(std::string& destination, std::string_view first, std::string_view second) {
  destination.assign(first);
  destination.append(second);
}

std::string leftAlignedNumber(std::int32_t value, int width) {
  return leftAlignNumber(formatNumber(value, width, true), width);
}
