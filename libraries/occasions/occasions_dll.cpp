#include <cstdio>
#include <cstring>
#include <string>

#include "companion/occasions.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/occasion_texts.h"
#include "libraries/occasions/occasions_question.h"
#include "libraries/occasions/occasions_window.h"
#include "libraries/occasions/settings_dialog.h"
#include "libraries/sun/sun_day.h"

namespace {

using namespace occasions;

constexpr size_t kMostPlaceBytes = 255;
constexpr int32_t kMinutesPerHour = 60;

template <size_t size>
void Put(char (&buffer)[size], const std::string& text) {
  std::snprintf(buffer, size, "%s", text.c_str());
}

void PutDates(int32_t day, OccasionsRecord& record) {
  const calendar::Date civil = calendar::GregorianFromAbsolute(day);
  record.day = static_cast<uint32_t>(civil.day);
  record.month = static_cast<uint32_t>(civil.month);
  record.year = static_cast<uint32_t>(civil.year);
  record.weekday = static_cast<uint32_t>(calendar::WeekdayOf(day));
  const calendar::Date jewish = calendar::JewishFromAbsolute(day);
  record.jewishDay = static_cast<uint32_t>(jewish.day);
  record.jewishMonth = static_cast<uint32_t>(jewish.month);
  record.jewishYear = static_cast<uint32_t>(jewish.year);
}

void PutTime(const Row& row, OccasionsRecord& record) {
  const int32_t missing = row.moment == Moment::kWholeDay ? OCCASIONS_WHOLE_DAY : OCCASIONS_NONE;
  record.hour = row.minute ? *row.minute / kMinutesPerHour : missing;
  record.minute = row.minute ? *row.minute % kMinutesPerHour : missing;
}

OccasionsRecord RecordOf(const Question& question, const Row& row) {
  OccasionsRecord record = {};
  PutDates(row.day, record);
  PutTime(row, record);
  record.number = row.number;
  Put(record.kind, IdOf(KindOf(row.occasion)));
  Put(record.occasion, IdOf(row.occasion));
  Put(record.moment, IdOf(row.moment));
  Put(record.english, TitleOf(row, Language::kEnglish));
  Put(record.hebrew, TitleOf(row, Language::kHebrew));
  Put(record.englishRemark, RemarkOf(question, row, Language::kEnglish));
  Put(record.hebrewRemark, RemarkOf(question, row, Language::kHebrew));
  return record;
}

int32_t AbsoluteDay(uint32_t day, uint32_t month, uint32_t year) {
  return sun::UnixDayOfDate(day, month, year) + calendar::kAbsoluteDayOfUnixDay0;
}

}  // namespace

int32_t OccasionsEnumerate(const char* place, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                           int32_t timeZoneMinutes, uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear,
                           uint32_t lastDay, uint32_t lastMonth, uint32_t lastYear, OccasionsReceiver receiver,
                           void* context) try {
  if (!receiver || !place || std::strlen(place) > kMostPlaceBytes) return 0;
  const Question question = QuestionOf(place, {latitude, longitude, timeZoneHours, timeZoneMinutes});
  const int32_t first = AbsoluteDay(firstDay, firstMonth, firstYear);
  for (const Row& row : RowsBetween(question, first, AbsoluteDay(lastDay, lastMonth, lastYear))) {
    const OccasionsRecord record = RecordOf(question, row);
    if (!receiver(&record, context)) return 0;
  }
  return 1;
} catch (...) {
  return 0;
}

void OccasionsDoDialog(HWND owner, const char* place, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                       int32_t timeZoneMinutes, uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear,
                       uint32_t lastDay, uint32_t lastMonth, uint32_t lastYear) try {
  const Days range = {AbsoluteDay(firstDay, firstMonth, firstYear), AbsoluteDay(lastDay, lastMonth, lastYear)};
  RunOccasionsWindow(owner, {place ? place : "", {latitude, longitude, timeZoneHours, timeZoneMinutes}, range});
} catch (...) {
  MessageBeep(MB_ICONSTOP);  // want of memory
}

int32_t OccasionsDoSettingsDialog(HWND owner) try { return RunSettingsDialog(owner); } catch (...) {
  MessageBeep(MB_ICONSTOP);
  return 0;
}
