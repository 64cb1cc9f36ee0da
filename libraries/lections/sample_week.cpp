#include "libraries/lections/sample_week.h"

#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/language.h"
#include "libraries/lections/reading_names.h"
#include "libraries/lections/reading_texts.h"

namespace lections {
namespace {

constexpr int32_t kDaysOfWeek = 7;
constexpr size_t kDaysThatShowALanguage = 2;

std::string DayText(int32_t day, const ReadingTexts& texts, CodePage page) {
  std::string lines = CivilDateText(day) + "\n";
  for (const auto& slots : {texts.torah, texts.haftarot}) {
    for (const std::string& slot : slots) {
      if (!slot.empty()) lines += Decoded(slot, page) + "\n";
    }
  }
  return lines;
}

std::vector<std::string> DaysOf(int32_t sunday, const Settings& settings, const OwnReadings* own) {
  const CodePage page = LanguageOf(settings.language).codePage;
  std::vector<std::string> days;
  for (int32_t day = sunday; day < sunday + kDaysOfWeek; ++day) {
    const ReadingTexts texts = TextsOn(calendar::JewishFromAbsolute(day), settings, own);
    if (!texts.torah[0].empty()) days.push_back(DayText(day, texts, page));
  }
  return days;
}

}  // namespace

std::string SampleWeek(int32_t today, const Settings& settings, const OwnReadings* own) {
  const int32_t sunday = today - today % kDaysOfWeek;  // day 0 is one
  std::vector<std::string> days = DaysOf(sunday, settings, own);
  if (days.size() < kDaysThatShowALanguage) {
    Settings weekdays = settings;
    weekdays.optional.mondayAndThursday = true;
    days = DaysOf(sunday, weekdays, own);
  }
  std::string week;
  for (const std::string& day : days) week += (week.empty() ? "" : "\n") + day;
  if (!week.empty()) week.pop_back();
  return week;
}

}  // namespace lections
