#include "output/text_wrap.h"

#include "output/text_layout.h"

std::vector<std::string> WrapText(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  std::string line;
  while (!text.empty()) {
    const std::string_view word = FirstWord(text);
    if (line.size() + word.size() >= width) {
      lines.push_back(line);
      line.clear();
    }
    line += word;
    text.remove_prefix(word.size());
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}
