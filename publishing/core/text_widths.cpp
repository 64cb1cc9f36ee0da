#include "publishing/core/text_widths.h"

#include <algorithm>

#include "publishing/core/printed_text.h"
#include "publishing/core/wrapped_text.h"

namespace publishing {
namespace {

// Texts that are remembered: more than there are minutes in a day, and little memory.
constexpr std::size_t kMostKnown = 8192;
constexpr std::size_t kLongText = 64;  // is hardly met again

}  // namespace

TextWidth TextWidths::Of(const std::string& text) {
  if (text.empty()) return {0, 0, true};
  const auto found = known_.find(text);
  if (found != known_.end()) return found->second;
  const std::u16string printed = PrintedText(text);
  TextWidth width{};
  width.whole = WidthUnwrapped(printed, [this](std::u16string_view line) { return Measure(line); });
  width.isOneLine = printed.find(u'\n') == std::u16string::npos;
  width.widestWord = printed.find_first_of(u" \n") == std::u16string::npos ? width.whole : WidestWord(printed);
  if (text.size() > kLongText) return width;
  if (known_.size() >= kMostKnown) known_.clear();
  known_.emplace(text, width);
  return width;
}

int TextWidths::WidestWord(std::u16string_view text) const {
  int widest = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(u" \n"), text.size());
    widest = std::max(widest, Measure(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return widest;
}

}  // namespace publishing
