// Candle lightings and ends that the occasions library tells are those of the Shabbat view: what the finished program
// exports is compared with what the same folder's library answers under the same settings.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <sstream>
#include <vector>

#include "companion/occasions.h"
#include "companion/solar.h"
#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;
using namespace std::chrono;

namespace {

constexpr unsigned kExportText = 1005;
constexpr int kMinutesPerDay = 1440;
constexpr int kMorning = 6 * 60;

// A place with the settings that its Shabbat times depend on. Numbers are those of a place of the user's own; a
// built-in one has its name alone.
struct Case {
  const char* test;
  const char* place;
  const char* preferences;  // in section "Shabbat"
  const char* candles;      // the user's own times
  int elevation;
  bool isOwn;
  int latitude, longitude, zoneHours, zoneMinutes;
};

void PrintTo(const Case& of, std::ostream* out) {
  *out << of.test;
}

constexpr char kByMinutes[] = "CandleLighting=22\r\nDoMinutes=1\r\nEnd=51\r\n";
constexpr char kByDegrees[] = "DoMinutes=0\r\nDegreesBelowHorizon=8.5\r\nAddMinutesAfterDegrees=3\r\n";

const Case kCases[] = {
    {"JerusalemAsItIs", "Jerusalem", "", "", 0, false, 0, 0, 0, 0},
    {"JerusalemByDegrees", "Jerusalem", kByDegrees, "", 0, false, 0, 0, 0, 0},
    {"NewYorkByMinutes", "New York", kByMinutes, "", 0, false, 0, 0, 0, 0},
    {"NewYorkOwnTimes", "New York", "", "2026-09-11 17:01 19:44 New York\r\n2027-03-12 17:11 18:22 New York\r\n", 0,
     false, 0, 0, 0, 0},
    {"LondonByDegrees", "London", kByDegrees, "", 0, false, 0, 0, 0, 0},
    {"SydneyByMinutes", "Sydney", kByMinutes, "", 0, false, 0, 0, 0, 0},
    {"AdelaideByDegrees", "Adelaide", kByDegrees, "", 0, false, 0, 0, 0, 0},
    {"ReykjavikByDegrees", "Reykjavik", kByDegrees, "", 0, false, 0, 0, 0, 0},
    {"FarNorthByMinutes", "Tromso", kByMinutes, "", 0, true, 6939, 1857, 1, 0},
    {"FarNorthByDegrees", "Tromso", kByDegrees, "", 0, true, 6939, 1857, 1, 0},
    {"HighHalfHourZone", "Home", "CandleLighting=40\r\n", "2027-01-01 16:00 18:08 Home\r\n", 754, true, 2234, 8822, 5,
     30},
};

std::string IniOf(const Case& of) {
  const auto of100 = [](int packed) { return std::pair(std::abs(packed) / 100, std::abs(packed) % 100); };
  const auto [latitudeDegrees, latitudeMinutes] = of100(of.latitude);
  const auto [longitudeDegrees, longitudeMinutes] = of100(of.longitude);
  std::ostringstream text;
  text << "[" << of.place << "]\r\nLatitudeDegrees=" << latitudeDegrees << "\r\nLatitudeHours=" << latitudeMinutes
       << "\r\nLatitudeFlag=0\r\nLongitudeDegrees=" << longitudeDegrees << "\r\nLongitudeHours=" << longitudeMinutes
       << "\r\nLongitudeFlag=0\r\nTimeZone=" << of.zoneHours << "\r\nTimeZoneMin=" << of.zoneMinutes << "\r\n";
  return text.str();
}

std::string ElevationIniOf(const Case& of) {
  char text[128];
  std::snprintf(text, sizeof text, "[Elevation]\r\n%d-%d-%d-%d-%d-%d=%d\r\n", of.latitude / 100, of.latitude % 100,
                of.longitude / 100, of.longitude % 100, of.zoneHours, of.zoneMinutes, of.elevation);
  return text;
}

// A library of the program's folder, with what it needs from there.
class Library {
 public:
  explicit Library(const char* name)
      : module_(LoadLibraryExA((ProgramFolder() / name).string().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {
    EXPECT_NE(module_, nullptr) << name;
  }
  ~Library() { FreeLibrary(module_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  template <typename Function>
  Function* Entry(const char* name) const {
    const FARPROC found = GetProcAddress(module_, name);
    EXPECT_NE(found, nullptr) << name;
    Function* entry = nullptr;
    std::memcpy(&entry, &found, sizeof found);
    return entry;
  }

 private:
  HMODULE module_;
};

Case WithNumbers(Case of) {
  if (of.isOwn) return of;
  const Library solar("solar.dll");
  const uint32_t count = solar.Entry<decltype(SolarGetCountOfBuiltInLocations)>("SolarGetCountOfBuiltInLocations")();
  const auto get = solar.Entry<decltype(SolarGetBuiltInLocation)>("SolarGetBuiltInLocation");
  for (uint32_t index = 0; index < count; ++index) {
    char name[256] = "";
    get(index, name, &of.latitude, &of.longitude, &of.zoneHours, &of.zoneMinutes);
    if (std::strcmp(name, of.place) == 0) return of;
  }
  ADD_FAILURE() << "no place " << of.place;
  return of;
}

// Of moments: minutes since 1970 on the place's clock.
struct Weekend {
  int64_t friday;  // its midnight
  int64_t candles;
  int64_t end;
};

int64_t MidnightOf(int day, int month, int year_) {
  return int64_t{sys_days(year(year_) / month / day).time_since_epoch().count()} * kMinutesPerDay;
}

// A time of an evening: small hours are those of the day after.
int64_t Evening(int64_t midnight, int hour, int minute) {
  const int minutes = hour * 60 + minute;
  return midnight + minutes + (minutes < kMorning ? kMinutesPerDay : 0);
}

std::vector<Weekend> WeekendsIn(const std::string& exported) {
  std::vector<Weekend> weekends;
  std::istringstream lines(exported);
  for (std::string line; std::getline(lines, line);) {
    int day, month, year_, candleHour, candleMinute, endHour, endMinute;
    if (std::sscanf(line.c_str(), "%d.%d.%d %d:%d %d:%d", &day, &month, &year_, &candleHour, &candleMinute, &endHour,
                    &endMinute) != 7) {
      continue;
    }
    const int64_t friday = MidnightOf(day, month, year_);
    weekends.push_back(
        {friday, Evening(friday, candleHour, candleMinute), Evening(friday + kMinutesPerDay, endHour, endMinute)});
  }
  return weekends;
}

using Moments = std::multimap<std::string, int64_t>;

int32_t CALLBACK Take(const OccasionsRecord* record, void* context) {
  const int64_t midnight =
      MidnightOf(static_cast<int>(record->day), static_cast<int>(record->month), static_cast<int>(record->year));
  if (record->hour >= 0) {
    static_cast<Moments*>(context)->emplace(record->moment, midnight + record->hour * 60 + record->minute);
  }
  return 1;
}

// Those of a name from six o'clock of a day until six of the next.
std::vector<int64_t> Of(const Moments& moments, const char* name, int64_t midnight) {
  std::vector<int64_t> found;
  const auto [begin, end] = moments.equal_range(name);
  for (auto moment = begin; moment != end; ++moment) {
    const int64_t since = moment->second - midnight - kMorning;
    if (since >= 0 && since < kMinutesPerDay) found.push_back(moment->second);
  }
  return found;
}

class OccasionsCandlesTest : public testing::TestWithParam<Case> {
 protected:
  void Put(const char* file, const std::string& text) { WriteFileText(settings_.path() / file, text); }

  void PutSettings(const Case& of) {
    const std::string list =
        std::string("[Locations]\r\n") + (of.isOwn ? of.place + std::string("=Available\r\n") : "");
    Put("stamp.ini", "[Times]\r\nForm=24\r\n");
    Put("almanac13.ini", std::string("[Preferences]\r\nDefaultLocation=") + of.place + "\r\n");
    Put("shabbat2.ini", list + "[Shabbat]\r\n" + of.preferences);
    Put("candles.txt", of.candles);
    if (of.isOwn) Put("shabloc2.ini", IniOf(of));
    if (of.elevation != 0) Put("almanacelevation.ini", ElevationIniOf(of));
  }

  std::string Exported(const std::string& start, const std::string& end) {
    const ProgramRun program(ProgramFolder(), settings_.path());
    if (!OpenRange(program, start, end)) return {};
    const fs::path file = folder_.path() / "times.txt";
    program.PostCommand(kExportText);
    SaveAs(program, file);
    EXPECT_TRUE(program.Eventually([&] { return ReadFileText(file).ends_with("\r\n"); }));
    return ReadFileText(file);
  }

  TemporaryFolder settings_;
  TemporaryFolder folder_;
};

}  // namespace

// Two Jewish years, 5787 and 5788. Where Yom Tov follows a Shabbat, its candles are lit at the end of that Shabbat.
TEST_P(OccasionsCandlesTest, AreThoseOfTheShabbatView) {
  const Case of = WithNumbers(GetParam());
  PutSettings(of);
  const std::vector<Weekend> weekends = WeekendsIn(Exported("12.9.2026", "20.9.2028"));
  ASSERT_EQ(weekends.size(), 105u);
  const Library library("occasions.dll");
  const auto enumerate = library.Entry<decltype(OccasionsEnumerate)>("OccasionsEnumerate");
  Moments moments;
  ASSERT_EQ(enumerate(of.place, of.latitude, of.longitude, of.zoneHours, of.zoneMinutes, 11, 9, 2026, 25, 9, 2028, Take,
                      &moments),
            1);
  for (const Weekend& weekend : weekends) {
    const int64_t day = weekend.friday / kMinutesPerDay;
    const std::vector<int64_t> candles = Of(moments, "candles", weekend.friday);
    ASSERT_FALSE(candles.empty()) << "day " << day;
    for (const int64_t moment : candles) EXPECT_EQ(moment - weekend.candles, 0) << "day " << day;
    const int64_t shabbat = weekend.friday + kMinutesPerDay;
    std::vector<int64_t> ends = Of(moments, "end", shabbat);
    if (ends.empty()) ends = Of(moments, "candles", shabbat);
    ASSERT_FALSE(ends.empty()) << "day " << day;
    for (const int64_t moment : ends) EXPECT_EQ(moment - weekend.end, 0) << "day " << day;
  }
}

INSTANTIATE_TEST_SUITE_P(Places, OccasionsCandlesTest, testing::ValuesIn(kCases),
                         [](const auto& of) { return std::string(of.param.test); });
