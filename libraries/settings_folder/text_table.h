// Text files with an entry to a line: columns of fixed widths, then texts (text_lines.h). Lines that are no entries are
// nobody's and stay as they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "libraries/settings_folder/text_lines.h"

namespace settings_folder {

// Reads the columns of a line by a pattern, in which "0" stands for any digit and all else for itself: each run of at
// most 9 digits is one of the numbers. What follows the columns, not empty; none for a line that starts otherwise or
// ends with its columns.
std::optional<std::string_view> TakeColumns(std::string_view line, std::string_view pattern,
                                            std::span<uint32_t> numbers);

// The bytes that a text behind the columns stands for, blanks at its end left out; none when it is damaged.
std::optional<std::string> TextIn(std::string_view written);

// Calls take with every line of a file's text that is an entry, in their order.
template <typename Entry, typename Take>
void ForEachEntry(std::string_view text, std::optional<Entry> (*entryIn)(std::string_view line), Take take) {
  text.remove_prefix(MarkLength(text));
  while (!text.empty()) {
    std::optional<Entry> entry = entryIn(TakeLine(text).content);
    if (entry) take(std::move(*entry));
  }
}

// What turns the entries before into those after, both maps from what an entry is for to what it says; none where an
// entry goes.
template <typename Entries>
std::map<typename Entries::key_type, std::optional<typename Entries::mapped_type>> Difference(const Entries& before,
                                                                                              const Entries& after) {
  std::map<typename Entries::key_type, std::optional<typename Entries::mapped_type>> changes;
  for (const auto& [key, value] : before) {
    if (!after.contains(key)) changes.emplace(key, std::nullopt);
  }
  for (const auto& [key, value] : after) {
    const auto old = before.find(key);
    if (old == before.end() || old->second != value) changes.emplace(key, value);
  }
  return changes;
}

// What a change makes of an entry; null where the entry is to go.
template <typename Value>
const Value* Wanted(const Value& value) {
  return &value;
}
template <typename Value>
const Value* Wanted(const std::optional<Value>& value) {
  return value ? &*value : nullptr;
}

// The text of a file with changes made, in a map from what an entry is for to what it is to say. A changed entry keeps
// its line, the last one where there are several, and the others go; new ones come at the end in the order of the map,
// their lines ended as the text's first one. Everything else keeps its bytes. An entry has two members, the key and the
// value of that map.
template <typename Entry, typename Changes>
class ChangedTable {
 public:
  ChangedTable(const Changes& changes, std::optional<Entry> (*entryIn)(std::string_view line),
               std::string (*lineOf)(const Entry& entry))
      : changes_(changes), entryIn_(entryIn), lineOf_(lineOf) {}

  std::string Applied(std::string_view text) {
    std::string result(text.substr(0, MarkLength(text)));
    text.remove_prefix(result.size());
    const std::vector<std::string> remaining = RemainingBackwards(text);
    for (auto line = remaining.rbegin(); line != remaining.rend(); ++line) result += *line;

    const std::string_view end = FirstLineEnd(text);
    bool isEndMissing = !remaining.empty() && remaining.front().back() != '\n' && remaining.front().back() != '\r';
    for (const auto& [key, change] : changes_) {
      const auto* const value = Wanted(change);
      if (!value || placed_.contains(key)) continue;
      if (isEndMissing) result += end;
      isEndMissing = false;
      result.append(lineOf_({key, *value})).append(end);
    }
    return result;
  }

 private:
  // The lines that stay, the last first, with the changes made in them.
  std::vector<std::string> RemainingBackwards(std::string_view text) {
    std::vector<std::string> remaining;
    const std::vector<Line> lines = LinesOf(text);
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
      const std::optional<std::string> content = Changed(line->content);
      if (content) remaining.push_back(std::string(*content).append(line->end));
    }
    return remaining;
  }

  // The line as it is to be; none when it goes.
  std::optional<std::string> Changed(std::string_view line) {
    const std::optional<Entry> entry = entryIn_(line);
    if (!entry) return std::string(line);
    const auto& [key, value] = *entry;
    const auto change = changes_.find(key);
    if (change == changes_.end()) return std::string(line);
    const auto* const wanted = Wanted(change->second);
    if (!wanted || !placed_.insert(key).second) return std::nullopt;
    return value == *wanted ? std::string(line) : lineOf_({key, *wanted});
  }

  const Changes& changes_;
  std::optional<Entry> (*const entryIn_)(std::string_view line);
  std::string (*const lineOf_)(const Entry& entry);
  std::set<typename Changes::key_type> placed_;  // what has its line
};

}  // namespace settings_folder
