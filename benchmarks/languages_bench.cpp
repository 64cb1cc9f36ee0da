#include "benchmarks/languages_bench.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <numeric>
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
constexpr int32_t kDaysAtATime = 1000;

using Dates = std::vector<calendar::Date>;

void ReadAll(const Dates& days) {
  for (const calendar::Date& day : days) {
    LectionsReadings readings;
    LectionsGetReadings(static_cast<uint32_t>(day.day), static_cast<uint32_t>(day.month),
                        static_cast<uint32_t>(day.year), &readings);
  }
}

// All days, so many at a time that the machine seldom does something else meanwhile.
std::vector<Dates> AllDays() {
  std::vector<Dates> all(kDays / kDaysAtATime);
  for (int32_t day = 0; day < kDays; ++day) {
    all[static_cast<size_t>(day / kDaysAtATime)].push_back(calendar::JewishFromAbsolute(kFirstDay + day));
  }
  return all;
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
  const std::vector<Dates> all = AllDays();
  const std::span<const lections::Language* const> languages = lections::Languages();
  std::vector<std::vector<double>> least(languages.size(),
                                         std::vector<double>(all.size(), std::numeric_limits<double>::max()));
  for (int round = 0; round < kRounds; ++round) {
    for (size_t i = 0; i < languages.size(); ++i) {
      Choose(home, *languages[i]);
      for (size_t part = 0; part < all.size(); ++part) {
        least[i][part] = std::min(least[i][part], BestMilliseconds(1, [&] { ReadAll(all[part]); }));
      }
    }
  }
  std::vector<double> sums;
  for (size_t i = 0; i < languages.size(); ++i) {
    sums.push_back(std::accumulate(least[i].begin(), least[i].end(), 0.0));
    Report((std::string("readings of 32,000 days in ") + languages[i]->name + ", ms").c_str(), sums[i]);
  }
  Report("readings of 32,000 days, slowest language to English, times", *std::ranges::max_element(sums) / sums[0]);
  std::filesystem::remove(home.Path("lections.ini"));
  WaitUntilSeen();
}
