#include <algorithm>
#include <cstring>
#include <optional>
#include <string>

#include "companion/hours.h"
#include "companion/profile.h"
#include "libraries/dialogs/windows_1252.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/description_text.h"
#include "libraries/hours/hours_dialog.h"
#include "libraries/hours/hours_file.h"
#include "libraries/hours/zman_day.h"
#include "libraries/sun/place_settings.h"

namespace {

// What the zmanim of a day depend on, the settings aside.
struct DayQuestion {
  sun::PackedPlace place;
  uint32_t day, month, year;
  hours::ShownSun shown;

  bool operator==(const DayQuestion&) const = default;
};

// The settings of the last place and the last day that were asked for: programs ask for all zmanim of a day before they
// go on to the next. Both are old when the tick has advanced. Guarded by the selection's lock.
struct Known {
  std::optional<sun::PackedPlace> place;
  DWORD placeTick = 0;
  sun::PlaceSettings settings;
  DayQuestion question;
  DWORD dayTick = 0;
  std::optional<hours::ZmanDay> zmanim;  // by question and settings
};

Known known;

void ReadSettings(const sun::PackedPlace& place, DWORD tick) {
  known.settings = sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString}, place);
  known.place = place;
  known.placeTick = tick;
}

void ComputeDay(const DayQuestion& question, DWORD tick) {
  const int32_t unixDay = sun::UnixDayOfDate(question.day, question.month, question.year);
  known.zmanim.emplace(unixDay, known.settings, question.shown);
  known.question = question;
  known.dayTick = tick;
}

hours::ZmanDay& DayFor(const DayQuestion& question) {
  const DWORD tick = GetTickCount();
  if (known.zmanim && tick == known.dayTick && question == known.question) return *known.zmanim;

  const bool isPlaceKnown = tick == known.placeTick && question.place == known.place;
  if (!isPlaceKnown) ReadSettings(question.place, tick);
  ComputeDay(question, tick);
  if (isPlaceKnown && !known.zmanim->AgreesWithShown()) {
    ReadSettings(question.place, tick);
    ComputeDay(question, tick);
  }
  return *known.zmanim;
}

constexpr int64_t kMinutesPerDay = 24 * 60;

// A zman of the selection on the clock in force, in minutes after midnight of 1970-01-01; nothing when it does not
// occur or there is no such zman.
std::optional<int64_t> ClockMinute(const DayQuestion& question, uint32_t index) {
  const hours::SelectionLock selection;
  if (index >= selection.Zmanim().size()) return std::nullopt;
  return DayFor(question).ClockMinute(selection.Zmanim()[index].definition);
}

hours::ShownSun ShownSunOf(int32_t sunriseHour, int32_t sunriseMinute, int32_t sunsetHour, int32_t sunsetMinute) {
  return {int64_t{sunriseHour} * 60 + sunriseMinute, int64_t{sunsetHour} * 60 + sunsetMinute};
}

// The text that one of the zmanim has; 0 when there is no such zman.
int32_t Answer(uint32_t index, std::string hours::AnsweredZman::*text, char* buffer) {
  if (!buffer) return 0;
  const hours::SelectionLock selection;
  if (index >= selection.Zmanim().size()) return 0;
  const std::string& answer = selection.Zmanim()[index].*text;
  static_assert(hours::kMostDescriptionBytes < HOURS_TEXT_SIZE);
  std::memcpy(buffer, answer.c_str(), answer.size() + 1);
  return 1;
}

}  // namespace

uint32_t HoursGetCount(void) try {
  const hours::SelectionLock selection;
  return static_cast<uint32_t>(selection.Zmanim().size());
} catch (...) {
  return 0;
}

int32_t HoursGetDescription(uint32_t index, char* text) try {
  return Answer(index, &hours::AnsweredZman::description, text);
} catch (...) {
  return 0;
}

int32_t HoursGetDescriptionHebrew(uint32_t index, char* text) try {
  return Answer(index, &hours::AnsweredZman::displayHebrew, text);
} catch (...) {
  return 0;
}

uint32_t HoursGetDefinition(uint32_t index, WCHAR* text, uint32_t size) try {
  const hours::SelectionLock selection;
  if (index >= selection.Zmanim().size()) return 0;
  const std::wstring sentence = dialogs::Wide(hours::DefinitionSentence(selection.Zmanim()[index].definition));
  if (text && size > 0) {
    const std::size_t length = std::min<std::size_t>(sentence.size(), size - 1);
    text[sentence.copy(text, length)] = L'\0';
  }
  return static_cast<uint32_t>(sentence.size()) + 1;
} catch (...) {
  return 0;
}

void HoursGetFingerprint(uint32_t fingerprint[2]) try {
  if (!fingerprint) return;
  const hours::SelectionLock selection;
  fingerprint[0] = static_cast<uint32_t>(selection.Fingerprint());
  fingerprint[1] = static_cast<uint32_t>(selection.Fingerprint() >> 32);
} catch (...) {
  fingerprint[0] = 0;
  fingerprint[1] = 0;
}

int32_t HoursCalculate2(HWND, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes, uint32_t day,
                        uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour, int32_t sunriseMinute,
                        int32_t sunsetHour, int32_t sunsetMinute) try {
  const hours::ShownSun shown = ShownSunOf(sunriseHour, sunriseMinute, sunsetHour, sunsetMinute);
  const auto minute = ClockMinute({{latitude, longitude, zoneHours, zoneMinutes}, day, month, year, shown}, index);
  if (!minute) return HOURS_NONE;
  return static_cast<int32_t>((*minute % kMinutesPerDay + kMinutesPerDay) % kMinutesPerDay);
} catch (...) {
  return HOURS_NONE;
}

int32_t HoursGetDayOffset(int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes, uint32_t day,
                          uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour, int32_t sunriseMinute,
                          int32_t sunsetHour, int32_t sunsetMinute) try {
  const hours::ShownSun shown = ShownSunOf(sunriseHour, sunriseMinute, sunsetHour, sunsetMinute);
  const auto minute = ClockMinute({{latitude, longitude, zoneHours, zoneMinutes}, day, month, year, shown}, index);
  if (!minute) return 0;
  const int64_t midnight = sun::UnixDayOfDate(day, month, year) * kMinutesPerDay;
  const int64_t ofDate = *minute - midnight;
  return static_cast<int32_t>(ofDate < 0 ? -((kMinutesPerDay - 1 - ofDate) / kMinutesPerDay) : ofDate / kMinutesPerDay);
} catch (...) {
  return 0;
}

void HoursDoDialogInitLoc(HWND owner, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes) try {
  hours::RunSelectionDialog(owner, {latitude, longitude, zoneHours, zoneMinutes});
} catch (...) {
}
