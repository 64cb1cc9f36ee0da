#include "libraries/ownhours/own_times.h"

#include <gtest/gtest.h>

#include <string>

namespace ownhours {
namespace {

using std::string_literals::operator""s;

PackedDate On(uint32_t day, uint32_t month, uint32_t year) {
  return PackDate(day, month, year).value();
}

const PackedDate kFriday = On(8, 3, 2024);
constexpr Time kTime = {17, 25};

std::optional<Time> Find(const std::string& text, const std::string& description, const std::string& place) {
  return OwnTimes(text).Find(kFriday, description, place);
}

TEST(OwnTimes, AreFoundByDateZmanAndPlace) {
  const OwnTimes times("2024-03-08 17:25 Shkia|Jerusalem\r\n2024-03-15 17:30 Shkia|Jerusalem\r\n");
  EXPECT_EQ(times.Find(kFriday, "Shkia", "Jerusalem"), kTime);
  EXPECT_EQ(times.Find(On(15, 3, 2024), "Shkia", "Jerusalem"), (Time{17, 30}));
  EXPECT_EQ(times.Find(On(9, 3, 2024), "Shkia", "Jerusalem"), std::nullopt);
  EXPECT_EQ(times.Find(kFriday, "Chatzot", "Jerusalem"), std::nullopt);
  EXPECT_EQ(times.Find(kFriday, "Shkia", "Aachen"), std::nullopt);
  EXPECT_EQ(times.Find(kFriday, "shkia", "Jerusalem"), std::nullopt);
  EXPECT_EQ(times.Find(kFriday, "Shkia", "jerusalem"), std::nullopt);
  EXPECT_EQ(times.Find(kFriday, "ShkiaJerusalem", ""), std::nullopt);
  EXPECT_EQ(OwnTimes().Find(kFriday, "Shkia", "Jerusalem"), std::nullopt);
}

TEST(OwnTimes, TextsMayHoldAnyByte) {
  for (int byte = 1; byte <= 255; ++byte) {
    for (const std::string& text : {"a"s + static_cast<char>(byte), static_cast<char>(byte) + "a"s}) {
      const Entry entry = {{kFriday, text, text}, kTime};
      EXPECT_EQ(EntryIn(LineOf(entry)), entry) << byte;
      EXPECT_EQ(Find(LineOf(entry) + "\n", text, text), kTime) << byte;
    }
  }
  EXPECT_EQ(LineOf({{kFriday, "a|b%", " c\n"}, {5, 4}}), "2024-03-08 05:04 a%7Cb%25|%20c%0A");
  EXPECT_EQ(LineOf({{kFriday, "Alot (16.1\xB0)", ""}, kTime}), "2024-03-08 17:25 Alot (16.1\xB0)|");
}

TEST(OwnTimes, BlanksAtTheEndOfATextAreNobodys) {
  EXPECT_EQ(Find("2024-03-08 17:25 Shkia  |Jerusalem  ", "Shkia", "Jerusalem"), kTime);
  EXPECT_EQ(Find("2024-03-08 17:25 Shkia| Jerusalem", "Shkia", " Jerusalem"), kTime);
  EXPECT_EQ(Find("2024-03-08 17:25 a|b|c", "a", "b|c"), kTime);
}

TEST(OwnTimes, LastOfSeveralLinesCounts) {
  EXPECT_EQ(Find("2024-03-08 01:01 a|b\n2024-03-08 17:25 a|b\n", "a", "b"), kTime);
}

TEST(OwnTimes, DamagedLinesArePassedOverAndSurvive) {
  const char* const damaged[] = {"",
                                 "# 2024-03-08 17:25 a|b",
                                 "2024-03-08 17:25",
                                 "2024-03-08 17:25 ",
                                 "2024-03-08 17:25 a",
                                 "2024-03-08 17:25 |b",
                                 "2024-03-08 17:25   |b",
                                 "2024-03-08 a|b",
                                 "2024-3-8 17:25 a|b",
                                 "2024-03-08  17:25 a|b",
                                 "2024-03-08\t17:25 a|b",
                                 " 2024-03-08 17:25 a|b",
                                 "2024-13-08 17:25 a|b",
                                 "2024-00-08 17:25 a|b",
                                 "2024-03-00 17:25 a|b",
                                 "2024-03-32 17:25 a|b",
                                 "2023-02-29 17:25 a|b",
                                 "0000-03-08 17:25 a|b",
                                 "2024-03-08 24:25 a|b",
                                 "2024-03-08 17:60 a|b",
                                 "2024-03-08 -7:25 a|b",
                                 "2024-03-08 17:25 a%|b",
                                 "2024-03-08 17:25 a|b%4g"};
  for (const char* line : damaged) {
    const std::string text = std::string(line).append("\n2024-03-15 17:25 a|b\n");
    const OwnTimes times(text);
    EXPECT_EQ(times.Find(On(15, 3, 2024), "a", "b"), kTime) << line;
    EXPECT_EQ(times.Find(kFriday, "a", "b"), std::nullopt) << line;
    EXPECT_EQ(Applied({{{kFriday, "a", "b"}, kTime}}, text), text + "2024-03-08 17:25 a|b\n") << line;
  }
}

TEST(OwnTimes, AnyLineEndAndAByteOrderMarkWillDo) {
  for (const char* text : {"\xEF\xBB\xBF"
                           "2024-03-08 17:25 a|b",
                           "\r2024-03-08 17:25 a|b\r", "x\n\r2024-03-08 17:25 a|b\n"}) {
    EXPECT_EQ(Find(text, "a", "b"), kTime) << text;
  }
  EXPECT_EQ(Find(std::string(1000, '\0'), "a", "b"), std::nullopt);
}

TEST(OwnTimes, DatesAreThoseOfTheCalendar) {
  EXPECT_TRUE(PackDate(29, 2, 2024));
  EXPECT_TRUE(PackDate(1, 1, 1));
  EXPECT_TRUE(PackDate(31, 12, 9999));
  EXPECT_LT(On(31, 12, 2024), On(1, 1, 2025));
  constexpr uint32_t kMost = 0xFFFFFFFF;
  for (const auto& [day, month, year] : {std::tuple{29u, 2u, 2023u},
                                         {0u, 1u, 2024u},
                                         {32u, 1u, 2024u},
                                         {1u, 0u, 2024u},
                                         {1u, 13u, 2024u},
                                         {1u, 1u, 0u},
                                         {1u, 1u, 10000u},
                                         {kMost, 1u, 2024u},
                                         {1u, kMost, 2024u},
                                         {1u, 1u, kMost}}) {
    EXPECT_EQ(PackDate(day, month, year), std::nullopt) << day << "." << month << "." << year;
  }
}

TEST(OwnTimes, OnlyTimesAndNamedZmanimCanBeKept) {
  EXPECT_TRUE(CanBeKept({{kFriday, "a", ""}, {0, 0}}));
  EXPECT_TRUE(CanBeKept({{kFriday, "a", "b"}, {23, 59}}));
  EXPECT_FALSE(CanBeKept({{kFriday, "", "b"}, {0, 0}}));
  for (const Time& time : {Time{24, 0}, {-1, 0}, {0, 60}, {0, -1}, {2000, 0}}) {
    EXPECT_FALSE(CanBeKept({{kFriday, "a", "b"}, time})) << time.hour;
  }
}

TEST(OwnTimesChanges, KeepTheirLineAndTheTextAroundIt) {
  const std::string text = "# mine\r\n2024-03-08 01:01 a|b\nrubbish\r\n2024-03-08 02:02 a|b  \n2024-03-08 03:03 a|c";
  EXPECT_EQ(Applied({{{kFriday, "a", "b"}, kTime}}, text),
            "# mine\r\nrubbish\r\n2024-03-08 17:25 a|b\n2024-03-08 03:03 a|c");
  EXPECT_EQ(Applied({{{kFriday, "a", "c"}, Time{3, 3}}}, text), text);
  EXPECT_EQ(Applied({}, text), text);
}

TEST(OwnTimesChanges, NewOnesComeAtTheEnd) {
  const Changes changes = {{{kFriday, "b", "x"}, kTime}, {{kFriday, "a", "x"}, kTime}};
  EXPECT_EQ(Applied(changes, ""), "2024-03-08 17:25 a|x\r\n2024-03-08 17:25 b|x\r\n");
  EXPECT_EQ(Applied(changes, "# mine\nend"), "# mine\nend\n2024-03-08 17:25 a|x\n2024-03-08 17:25 b|x\n");
  EXPECT_EQ(Applied(changes, "\xEF\xBB\xBF"), "\xEF\xBB\xBF" + Applied(changes, ""));
}

TEST(OwnTimesChanges, AreFoundAtOnceInTheOpenTimes) {
  OwnTimes times("2024-03-08 01:01 a|b\n");
  times.Set({{kFriday, "a", "b"}, kTime});
  times.Set({{On(1, 1, 1), "c", "d"}, {1, 2}});
  EXPECT_EQ(times.Find(kFriday, "a", "b"), kTime);
  EXPECT_EQ(times.Find(On(1, 1, 1), "c", "d"), (Time{1, 2}));
}

}  // namespace
}  // namespace ownhours
