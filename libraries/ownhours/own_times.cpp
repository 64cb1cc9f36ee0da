#include "libraries/ownhours/own_times.h"

#include <array>
#include <cstdio>
#include <functional>
#include <utility>

#include "libraries/calendar/gregorian.h"
#include "libraries/settings_folder/text_table.h"

namespace ownhours {
namespace {

// A line's columns, then the texts.
constexpr std::string_view kPattern = "0000-00-00 00:00 ";
constexpr char kSeparator = '|';

bool IsTime(const Time& time) {
  return time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60;
}

std::string Coded(std::string_view text) {
  return settings_folder::PercentCoded(text, std::string_view(&kSeparator, 1));
}

uint64_t BitOf(std::string_view description) {
  return uint64_t{1} << (std::hash<std::string_view>()(description) % 64);
}

}  // namespace

std::optional<PackedDate> PackDate(uint32_t day, uint32_t month, uint32_t year) {
  if (!calendar::IsGregorianDate(day, month, year)) return std::nullopt;
  return (year * 12 + month - 1) * 31 + day - 1;
}

calendar::Date DateOf(PackedDate date) {
  const auto number = [](PackedDate part) { return static_cast<int32_t>(part); };
  return {number(date % 31) + 1, number(date / 31 % 12) + 1, number(date / 31 / 12)};
}

bool CanBeKept(const Entry& entry) {
  return !entry.occasion.description.empty() && IsTime(entry.time);
}

std::optional<Entry> EntryIn(std::string_view line) {
  std::array<uint32_t, 5> numbers;
  const auto texts = settings_folder::TakeColumns(line, kPattern, numbers);
  if (!texts) return std::nullopt;
  const auto [year, month, day, hour, minute] = numbers;
  const auto date = PackDate(day, month, year);
  const Time time = {static_cast<int32_t>(hour), static_cast<int32_t>(minute)};
  const size_t separator = texts->find(kSeparator);
  if (!date || separator == std::string_view::npos) return std::nullopt;
  std::optional<std::string> description = settings_folder::TextIn(texts->substr(0, separator));
  std::optional<std::string> place = settings_folder::TextIn(texts->substr(separator + 1));
  if (!description || !place) return std::nullopt;
  Entry entry = {{*date, std::move(*description), std::move(*place)}, time};
  if (!CanBeKept(entry)) return std::nullopt;
  return entry;
}

std::string LineOf(const Entry& entry) {
  const calendar::Date date = DateOf(entry.occasion.date);
  char columns[64];
  std::snprintf(columns, sizeof columns, "%04d-%02d-%02d %02d:%02d ", date.year, date.month, date.day, entry.time.hour,
                entry.time.minute);
  return columns + Coded(entry.occasion.description) + kSeparator + Coded(entry.occasion.place);
}

std::string Applied(const Changes& changes, std::string_view text) {
  return settings_folder::ChangedTable(changes, EntryIn, LineOf).Applied(text);
}

OwnTimes::OwnTimes(std::string_view text) {
  settings_folder::ForEachEntry(text, EntryIn, [this](Entry entry) { Set(std::move(entry)); });
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

Entries OwnTimes::All() const {
  return {times_.begin(), times_.end()};
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
