#include "benchmarks/languages_bench.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "benchmarks/measured.h"
#include "companion/lections.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/language.h"

namespace {

constexpr int kRounds = 10;
constexpr int32_t kFirstDay = 726468;  // 1 January 1990
constexpr int32_t kDays = 32000;

void ReadAll(const std::vector<calendar::Date>& days) {
  for (const calendar::Date& day : days) {
    LectionsReadings readings;
    LectionsGetReadings(static_cast<uint32_t>(day.day), static_cast<uint32_t>(day.month),
                        static_cast<uint32_t>(day.year), &readings);
  }
}

void Choose(const SettingsHome& home, const lections::Language& language) {
  home.Put("lections.ini",
           "[Readings]\r\nLand=Diaspora\r\nChabad=1\r\nMondayThursday=1\r\nShabbatAfternoon=1\r\nLanguage=" +
               std::to_string(language.code) + "\r\n");
  WaitUntilSeen();
  if (LectionsGetLanguage() != language.code) std::fprintf(stderr, "language %s is not taken\n", language.name);
}

}  // namespace

// The languages take turns, so that what else the machine does for a while is not laid to one of them.
void MeasureLanguages(const SettingsHome& home) {
  std::vector<calendar::Date> days;
  for (int32_t day = kFirstDay; day < kFirstDay + kDays; ++day) days.push_back(calendar::JewishFromAbsolute(day));
  const std::span<const lections::Language* const> languages = lections::Languages();
  std::vector<double> least(languages.size(), std::numeric_limits<double>::max());
  for (int round = 0; round < kRounds; ++round) {
    for (size_t i = 0; i < languages.size(); ++i) {
      Choose(home, *languages[i]);
      least[i] = std::min(least[i], BestMilliseconds(1, [&days] { ReadAll(days); }));
    }
  }
  for (size_t i = 0; i < languages.size(); ++i) {
    Report((std::string("readings of 32,000 days in ") + languages[i]->name + ", ms").c_str(), least[i]);
  }
  const double slowest = *std::max_element(least.begin(), least.end());
  Report("readings of 32,000 days, slowest language to English, times", slowest / least[0]);
  std::filesystem::remove(home.Path("lections.ini"));
  WaitUntilSeen();
}
