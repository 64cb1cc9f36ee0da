#include "output/text_layout.h"

std::string PadRight(std::string_view text, std::size_t width) {
  std::string padded(text);
  if (padded.size() < width) padded.append(width - padded.size(), ' ');
  return padded;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string ReverseText(std::string_view text) {
  return {text.rbegin(), text.rend()};
}

std::string_view FirstWord(std::string_view text) {
  const std::size_t end = text.find_first_not_of(' ', text.find(' '));
  return text.substr(0, end);
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
    const auto byte = static_cast<unsigned char>(c);
    escaped += kDigits[byte >> 4];
    escaped += kDigits[byte & 15];
  }
  return escaped;
}
