#include "benchmarks/languages_bench.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "benchmarks/measured.h"
#include "companion/lections.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/language.h"

namespace {

constexpr int kRounds = 5;
constexpr int32_t kFirstDay = 726468;  // 1 January 1990
constexpr int32_t kDays = 32000;

void ReadAll(const std::vector<calendar::Date>& days) {
  for (const calendar::Date& day : days) {
    LectionsReadings readings;
    LectionsGetReadings(static_cast<uint32_t>(day.day), static_cast<uint32_t>(day.month),
                        static_cast<uint32_t>(day.year), &readings);
  }
}

}  // namespace

void MeasureLanguages(const SettingsHome& home) {
  std::vector<calendar::Date> days;
  for (int32_t day = kFirstDay; day < kFirstDay + kDays; ++day) days.push_back(calendar::JewishFromAbsolute(day));
  double english = 0;
  double slowest = 0;
  for (const lections::Language* language : lections::Languages()) {
    home.Put("lections.ini",
             "[Readings]\r\nLand=Diaspora\r\nChabad=1\r\nMondayThursday=1\r\nShabbatAfternoon=1\r\nLanguage=" +
                 std::to_string(language->code));
    WaitUntilSeen();
    if (LectionsGetLanguage() != language->code) std::fprintf(stderr, "language %s is not taken\n", language->name);
    const double milliseconds = BestMilliseconds(kRounds, [&days] { ReadAll(days); });
    Report((std::string("readings of 32,000 days in ") + language->name + ", ms").c_str(), milliseconds);
    if (language == &lections::kEnglish) english = milliseconds;
    slowest = std::max(slowest, milliseconds);
  }
  Report("readings of 32,000 days, slowest language to English, times", slowest / english);
  std::filesystem::remove(home.Path("lections.ini"));
  WaitUntilSeen();
}
