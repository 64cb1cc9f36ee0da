#include "output/text_layout.h"

std::string PadRight(std::string_view text, std::size_t width) {
  std::string padded(text);
  if (padded.size() < width) padded.append(width - padded.size(), ' ');
  return padded;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == text.npos;
}

std::string RtfEscape(std::string_view text, std::string_view special) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : text) {
    if (special.find(c) == special.npos) {
      escaped += c;
      continue;
    }
    escaped += "\\'";
    escaped += kDigits[c >> 4];
    escaped += kDigits[c & 15];
  }
  return escaped;
}
