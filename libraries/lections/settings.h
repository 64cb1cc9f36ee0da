// What the user has chosen, and how the file "lections.ini" says it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/day_readings.h"

namespace lections {

enum class Customs : uint8_t { kAshkenazi, kSephardi, kBoth };

struct Settings {
  calendar::Land land = calendar::Land::kDiaspora;
  Customs customs = Customs::kBoth;
  bool chabad = false;   // listed too
  bool verses = true;    // chapters and verses, or the books alone
  bool newMonth = true;  // announced on the Shabbat before
  Optional optional;
  uint32_t language = 1;    // a code of language.h
  bool ownNumbers = false;  // chapters and verses as the language's own Bibles number them

  friend bool operator==(const Settings&, const Settings&) = default;
};

constexpr char kSettingsFile[] = "lections.ini";
constexpr char kSettingsSection[] = "Readings";

// The value of a key; empty when the file has none.
using ReadKey = std::function<std::string(const char* key)>;

// A key that is missing, or whose value means nothing, leaves its default; that of the land is the region's.
Settings SettingsFrom(const ReadKey& read, calendar::Land landOfRegion);

// The settings without the language and its numbers in one number, never 0: the same number for the same settings,
// another for others.
uint32_t ChoiceOf(const Settings& settings);

// The settings that ChoiceOf made the number of, with the stored ones' language and numbers. A number that it never
// makes stands for the stored settings.
Settings SettingsBy(uint32_t choice, const Settings& stored);

struct KeyValue {
  const char* key;
  std::string value;
};

// Each key with the value that says the setting; SettingsFrom reads it back.
std::vector<KeyValue> ValuesOf(const Settings& settings);

}  // namespace lections
