#include "libraries/settings_folder/text_lines.h"

#include <algorithm>
#include <cstdio>

namespace settings_folder {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::optional<char> HexByte(std::string_view digits) {
  constexpr std::string_view kDigits = "0123456789ABCDEF0123456789abcdef";
  if (digits.size() < 2) return std::nullopt;
  const size_t high = kDigits.find(digits[0]);
  const size_t low = kDigits.find(digits[1]);
  if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
  return static_cast<char>((high % 16) << 4 | low % 16);
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

}  // namespace

size_t MarkLength(std::string_view text) {
  return text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
}

Line TakeLine(std::string_view& text) {
  const size_t length = std::min(text.find_first_of("\r\n"), text.size());
  const size_t endLength = text.substr(length).starts_with("\r\n") ? 2 : length < text.size() ? 1 : 0;
  const Line line = {text.substr(0, length), text.substr(length, endLength)};
  text.remove_prefix(length + endLength);
  return line;
}

std::vector<Line> LinesOf(std::string_view text) {
  std::vector<Line> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

std::string_view FirstLineEnd(std::string_view text) {
  const std::string_view end = text.empty() ? text : TakeLine(text).end;
  return end.empty() ? "\r\n" : end;
}

std::string PercentCoded(std::string_view text, std::string_view separators) {
  std::string written;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool isEdge = i == 0 || i + 1 == text.size();
    const bool isSpecial = c == '%' || separators.find(c) != std::string_view::npos;
    if (!isSpecial && !IsControl(c) && !(isEdge && IsBlank(c))) {
      written += c;
      continue;
    }
    char code[4];
    std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    written += code;
  }
  return written;
}

std::optional<std::string> PercentDecoded(std::string_view written) {
  std::string text;
  for (size_t i = 0; i < written.size(); ++i) {
    if (written[i] != '%') {
      text += written[i];
      continue;
    }
    const std::optional<char> byte = HexByte(written.substr(i + 1));
    if (!byte) return std::nullopt;
    text += *byte;
    i += 2;
  }
  return text;
}

}  // namespace settings_folder
