#include <cstring>
#include <optional>

#include "companion/hours.h"
#include "companion/profile.h"
#include "libraries/hours/description_text.h"
#include "libraries/hours/hours_file.h"
#include "libraries/hours/zman_day.h"
#include "libraries/sun/place_settings.h"

namespace {

// What the zmanim of a day depend on, the settings aside.
struct DayQuestion {
  sun::PackedPlace place;
  uint32_t day, month, year;
  hours::ShownSun shown;
};

bool AreEqual(const DayQuestion& left, const DayQuestion& right) {
  return left.place.latitude == right.place.latitude && left.place.longitude == right.place.longitude &&
         left.place.zoneHours == right.place.zoneHours && left.place.zoneMinutes == right.place.zoneMinutes &&
         left.day == right.day && left.month == right.month && left.year == right.year &&
         left.shown.sunriseMinutes == right.shown.sunriseMinutes &&
         left.shown.sunsetMinutes == right.shown.sunsetMinutes;
}

// The last day that was asked for: programs ask for all its zmanim before they go on to the next. Guarded by the
// selection's lock.
struct KnownDay {
  DayQuestion question;
  DWORD tick;  // when the settings were read
  hours::ZmanDay zmanim;
};

std::optional<KnownDay> knownDay;

hours::ZmanDay& DayFor(const DayQuestion& question) {
  const DWORD tick = GetTickCount();
  const bool isKnown = knownDay && tick == knownDay->tick && AreEqual(question, knownDay->question);
  if (!isKnown) {
    const sun::PlaceSettings place = sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString}, question.place);
    const int32_t unixDay = sun::UnixDayOfDate(question.day, question.month, question.year);
    knownDay.emplace(KnownDay{question, tick, hours::ZmanDay(unixDay, place, question.shown)});
  }
  return knownDay->zmanim;
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

int32_t HoursCalculate2(HWND, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes, uint32_t day,
                        uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour, int32_t sunriseMinute,
                        int32_t sunsetHour, int32_t sunsetMinute) try {
  const hours::SelectionLock selection;
  if (index >= selection.Zmanim().size()) return HOURS_NONE;
  const hours::ShownSun shown = {int64_t{sunriseHour} * 60 + sunriseMinute, int64_t{sunsetHour} * 60 + sunsetMinute};
  hours::ZmanDay& zmanim = DayFor({{latitude, longitude, zoneHours, zoneMinutes}, day, month, year, shown});
  const std::optional<int64_t> minute = zmanim.ClockMinute(selection.Zmanim()[index].definition);
  if (!minute) return HOURS_NONE;
  constexpr int64_t kMinutesPerDay = 24 * 60;
  return static_cast<int32_t>((*minute % kMinutesPerDay + kMinutesPerDay) % kMinutesPerDay);
} catch (...) {
  return HOURS_NONE;
}
