#include "libraries/candles/candle_changes.h"

#include <set>
#include <vector>

#include "libraries/settings_folder/text_lines.h"

namespace candles {
namespace {

using settings_folder::Line;

// The lines that stay, the last first, with the changes made in them. placed collects the occasions that have their
// line: of several lines the last is the one that counts.
std::vector<std::string> RemainingBackwards(const Changes& changes, std::string_view text, std::set<Occasion>& placed) {
  std::vector<std::string> remaining;
  const std::vector<Line> lines = settings_folder::LinesOf(text);
  for (auto at = lines.rbegin(); at != lines.rend(); ++at) {
    const Line& line = *at;
    const std::optional<Entry> entry = EntryIn(line.content);
    const auto change = entry ? changes.find(entry->occasion) : changes.end();
    if (change == changes.end()) {
      remaining.push_back(std::string(line.content).append(line.end));
    } else if (change->second && placed.insert(change->first).second) {
      const bool isSame = entry->times == *change->second;
      const std::string content = isSame ? std::string(line.content) : LineOf({change->first, *change->second});
      remaining.push_back(content + std::string(line.end));
    }
  }
  return remaining;
}

}  // namespace

Changes Difference(const Entries& before, const Entries& after) {
  Changes changes;
  for (const auto& [occasion, times] : before) {
    if (!after.contains(occasion)) changes.emplace(occasion, std::nullopt);
  }
  for (const auto& [occasion, times] : after) {
    const auto old = before.find(occasion);
    if (old == before.end() || old->second != times) changes.emplace(occasion, times);
  }
  return changes;
}

std::string Applied(const Changes& changes, std::string_view text) {
  std::string result(text.substr(0, settings_folder::MarkLength(text)));
  text.remove_prefix(result.size());
  std::set<Occasion> placed;
  const std::vector<std::string> remaining = RemainingBackwards(changes, text, placed);
  for (auto line = remaining.rbegin(); line != remaining.rend(); ++line) result += *line;

  const std::string_view end = settings_folder::FirstLineEnd(text);
  bool isEndMissing = !remaining.empty() && remaining.front().back() != '\n' && remaining.front().back() != '\r';
  for (const auto& [occasion, times] : changes) {
    if (!times || placed.contains(occasion)) continue;
    if (isEndMissing) result += end;
    isEndMissing = false;
    result.append(LineOf({occasion, *times})).append(end);
  }
  return result;
}

}  // namespace candles
