#include "libraries/ownhours/own_times.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/settings_folder/text_lines.h"

namespace ownhours {
namespace {

using settings_folder::Line;

// A line is columns of fixed widths, then the texts. In the pattern "0" stands for any digit.
constexpr std::string_view kPattern = "0000-00-00 00:00 ";
constexpr char kSeparator = '|';

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool HasPattern(std::string_view line) {
  return line.size() > kPattern.size() && std::equal(kPattern.begin(), kPattern.end(), line.begin(),
                                                     [](char p, char c) { return p == '0' ? IsDigit(c) : p == c; });
}

uint32_t Number(std::string_view digits) {
  uint32_t number = 0;
  for (const char digit : digits) number = number * 10 + static_cast<uint32_t>(digit - '0');
  return number;
}

bool IsTime(const Time& time) {
  return time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60;
}

std::optional<std::string> Decoded(std::string_view written) {
  return settings_folder::PercentDecoded(written.substr(0, written.find_last_not_of(" \t") + 1));
}

std::string Coded(std::string_view text) {
  return settings_folder::PercentCoded(text, std::string_view(&kSeparator, 1));
}

uint64_t BitOf(std::string_view description) {
  return uint64_t{1} << (std::hash<std::string_view>()(description) % 64);
}

// The lines that stay, the last first, with the changes made in them. placed collects the occasions that have their
// line: of several lines the last is the one that counts.
std::vector<std::string> RemainingBackwards(const Changes& changes, std::string_view text, std::set<Occasion>& placed) {
  std::vector<std::string> remaining;
  const std::vector<Line> lines = settings_folder::LinesOf(text);
  for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
    const std::optional<Entry> entry = EntryIn(line->content);
    const auto change = entry ? changes.find(entry->occasion) : changes.end();
    if (change == changes.end()) {
      remaining.push_back(std::string(line->content).append(line->end));
    } else if (placed.insert(change->first).second) {
      const bool isSame = entry->time == change->second;
      const std::string content = isSame ? std::string(line->content) : LineOf({change->first, change->second});
      remaining.push_back(content + std::string(line->end));
    }
  }
  return remaining;
}

}  // namespace

std::optional<PackedDate> PackDate(uint32_t day, uint32_t month, uint32_t year) {
  if (year < 1 || year > static_cast<uint32_t>(calendar::kLastYear) || month < 1 || month > 12) return std::nullopt;
  const int32_t days = calendar::DaysInGregorianMonth(static_cast<int32_t>(month), static_cast<int32_t>(year));
  if (day < 1 || day > static_cast<uint32_t>(days)) return std::nullopt;
  return (year * 12 + month - 1) * 31 + day - 1;
}

bool CanBeKept(const Entry& entry) {
  return !entry.occasion.description.empty() && IsTime(entry.time);
}

std::optional<Entry> EntryIn(std::string_view line) {
  if (!HasPattern(line)) return std::nullopt;
  const auto date = PackDate(Number(line.substr(8, 2)), Number(line.substr(5, 2)), Number(line.substr(0, 4)));
  const Time time = {static_cast<int32_t>(Number(line.substr(11, 2))),
                     static_cast<int32_t>(Number(line.substr(14, 2)))};
  const std::string_view texts = line.substr(kPattern.size());
  const size_t separator = texts.find(kSeparator);
  if (!date || separator == std::string_view::npos) return std::nullopt;
  std::optional<std::string> description = Decoded(texts.substr(0, separator));
  std::optional<std::string> place = Decoded(texts.substr(separator + 1));
  if (!description || !place) return std::nullopt;
  Entry entry = {{*date, std::move(*description), std::move(*place)}, time};
  if (!CanBeKept(entry)) return std::nullopt;
  return entry;
}

std::string LineOf(const Entry& entry) {
  const PackedDate date = entry.occasion.date;
  char columns[64];
  std::snprintf(columns, sizeof columns, "%04u-%02u-%02u %02d:%02d ", date / 31 / 12, date / 31 % 12 + 1, date % 31 + 1,
                entry.time.hour, entry.time.minute);
  return columns + Coded(entry.occasion.description) + kSeparator + Coded(entry.occasion.place);
}

std::string Applied(const Changes& changes, std::string_view text) {
  std::string result(text.substr(0, settings_folder::MarkLength(text)));
  text.remove_prefix(result.size());
  std::set<Occasion> placed;
  const std::vector<std::string> remaining = RemainingBackwards(changes, text, placed);
  for (auto line = remaining.rbegin(); line != remaining.rend(); ++line) result += *line;

  const std::string_view end = settings_folder::FirstLineEnd(text);
  bool isEndMissing = !remaining.empty() && remaining.front().back() != '\n' && remaining.front().back() != '\r';
  for (const auto& [occasion, time] : changes) {
    if (placed.contains(occasion)) continue;
    if (isEndMissing) result += end;
    isEndMissing = false;
    result.append(LineOf({occasion, time})).append(end);
  }
  return result;
}

OwnTimes::OwnTimes(std::string_view text) {
  text.remove_prefix(settings_folder::MarkLength(text));
  while (!text.empty()) {
    std::optional<Entry> entry = EntryIn(settings_folder::TakeLine(text).content);
    if (entry) Set(std::move(*entry));
  }
}

std::optional<Time> OwnTimes::Find(PackedDate date, std::string_view description, std::string_view place) const {
  const auto zmanim = zmanimOfDate_.find(date);
  if (zmanim == zmanimOfDate_.end() || (zmanim->second & BitOf(description)) == 0) return std::nullopt;
  const auto found = times_.find(Key{date, description, place});
  if (found == times_.end()) return std::nullopt;
  return found->second;
}

void OwnTimes::Set(Entry entry) {
  zmanimOfDate_[entry.occasion.date] |= BitOf(entry.occasion.description);
  times_.insert_or_assign(std::move(entry.occasion), entry.time);
}

size_t OwnTimes::Hash::operator()(const Key& key) const {
  // Odd numbers keep the pieces apart (the golden ratio's fraction, as hash tables have it since Knuth).
  constexpr size_t kGolden = static_cast<size_t>(0x9E3779B97F4A7C15u);
  const std::hash<std::string_view> hash;
  return (hash(key.description) * 31 + hash(key.place)) ^ (key.date * kGolden);
}

size_t OwnTimes::Hash::operator()(const Occasion& occasion) const {
  return operator()(Key{occasion.date, occasion.description, occasion.place});
}

bool OwnTimes::Equal::operator()(const Key& left, const Occasion& right) const {
  return left.date == right.date && left.description == right.description && left.place == right.place;
}

}  // namespace ownhours
