#include <gtest/gtest.h>

#include "libraries/candles/candles_core.h"

namespace candles {
namespace {

using std::string_literals::operator""s;

constexpr Times kTimes = {17, 25, 18, 31};

TEST(CandlesStore, FindsTheTimesOfAPlaceAndFriday) {
  const Store store("2024-03-08 17:25 18:31 Jerusalem\r\n2024-03-15 17:30 18:36 Jerusalem\r\n");
  EXPECT_EQ(store.Find("Jerusalem", 8, 3, 2024), kTimes);
  EXPECT_EQ(store.Find("Jerusalem", 15, 3, 2024), (Times{17, 30, 18, 36}));
  EXPECT_EQ(store.Find("Jerusalem", 22, 3, 2024), std::nullopt);
  EXPECT_EQ(store.Find("Aachen", 8, 3, 2024), std::nullopt);
}

TEST(CandlesStore, PlaceIsKnownByItsExactSpelling) {
  const Store store("2024-03-08 17:25 18:31 New  York \xE4\n");
  EXPECT_EQ(store.Find("New  York \xE4", 8, 3, 2024), kTimes);
  for (const char* other : {"new  york \xE4", "New York \xE4", "New  York", " New  York \xE4", "New  York \xE4 ", ""}) {
    EXPECT_EQ(store.Find(other, 8, 3, 2024), std::nullopt) << other;
  }
}

TEST(CandlesStore, PlaceMayHoldAnyByte) {
  std::string text;
  constexpr char kHex[] = "0123456789ABCDEF";
  for (int byte = 1; byte <= 255; ++byte) {
    text.append("2024-03-08 17:25 18:31 %").append({kHex[byte / 16], kHex[byte % 16]}).append("x\n");
  }
  const Store store(text);
  for (int byte = 1; byte <= 255; ++byte) {
    EXPECT_EQ(store.Find(std::string(1, static_cast<char>(byte)) + "x", 8, 3, 2024), kTimes) << byte;
  }
}

TEST(CandlesStore, AllButPercentSignsAndLineEndsStandForThemselves) {
  for (int byte = 0x21; byte <= 0xFF; ++byte) {
    if (byte == '%') continue;
    const std::string place(1, static_cast<char>(byte));
    EXPECT_EQ(Store("2024-03-08 17:25 18:31 " + place).Find(place, 8, 3, 2024), kTimes) << byte;
  }
}

TEST(CandlesStore, WrittenSpacesAtTheEndsOfAPlaceAreThePlaces) {
  const Store store("2024-03-08 17:25 18:31 %20a b%20  \n2024-03-08 01:02 03:04  lead\n");
  EXPECT_EQ(store.Find(" a b ", 8, 3, 2024), kTimes);
  EXPECT_EQ(store.Find(" lead", 8, 3, 2024), (Times{1, 2, 3, 4}));
}

TEST(CandlesStore, LastOfSeveralEntriesCounts) {
  const Store store("2024-03-08 01:01 02:02 a\n2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(store.Find("a", 8, 3, 2024), kTimes);
}

TEST(CandlesStore, DamagedLinesArePassedOver) {
  const char* const damaged[] = {"",
                                 "# 2024-03-08 17:25 18:31 a",
                                 "2024-03-08 17:25 18:31",
                                 "2024-03-08 17:25 18:31 ",
                                 "2024-03-08 17:25 18:31    ",
                                 "2024-03-08 17:25 a",
                                 "2024-3-8 17:25 18:31 a",
                                 "2024-03-08  17:25 18:31 a",
                                 "2024-03-08\t17:25 18:31 a",
                                 " 2024-03-08 17:25 18:31 a",
                                 "08.03.2024 17:25 18:31 a",
                                 "2024-13-08 17:25 18:31 a",
                                 "2024-00-08 17:25 18:31 a",
                                 "2024-03-00 17:25 18:31 a",
                                 "2024-03-32 17:25 18:31 a",
                                 "2023-02-29 17:25 18:31 a",
                                 "0000-03-08 17:25 18:31 a",
                                 "2024-03-08 24:25 18:31 a",
                                 "2024-03-08 17:60 18:31 a",
                                 "2024-03-08 17:25 24:31 a",
                                 "2024-03-08 17:25 18:60 a",
                                 "2024-03-08 -7:25 18:31 a",
                                 "2024-03-08 17:25 18:31 a%",
                                 "2024-03-08 17:25 18:31 a%4",
                                 "2024-03-08 17:25 18:31 a%4g"};
  for (const char* line : damaged) {
    const Store store(std::string(line).append("\n2024-03-15 17:25 18:31 a\n"));
    EXPECT_EQ(store.Find("a", 15, 3, 2024), kTimes) << line;
    EXPECT_EQ(store.Find("a", 8, 3, 2024), std::nullopt) << line;
    EXPECT_EQ(store.Find("", 8, 3, 2024), std::nullopt) << line;
  }
}

TEST(CandlesStore, DatesThatAreNoneAreNotFound) {
  const Store store("2024-02-29 17:25 18:31 a\n");
  EXPECT_EQ(store.Find("a", 29, 2, 2024), kTimes);
  // 129 January would have the place of 29 February if it were merely added up.
  EXPECT_EQ(store.Find("a", 129, 1, 2024), std::nullopt);
  EXPECT_EQ(store.Find("a", 29, 2, 0xFFFFFFFF), std::nullopt);
  EXPECT_EQ(store.Find("a", 0, 0, 0), std::nullopt);
  EXPECT_EQ(store.Find("a", 29, 0xFFFFFFFF, 2024), std::nullopt);
}

TEST(CandlesStore, PlaceOfDigitsIsNotTakenForADate) {
  const Store store("2024-03-08 17:25 18:31 5\n");
  EXPECT_EQ(store.Find("5", 8, 3, 2024), kTimes);
  EXPECT_EQ(store.Find("", 8, 3, 2024), std::nullopt);
  EXPECT_EQ(store.Find("85", 3, 3, 2024), std::nullopt);
}

TEST(CandlesStore, AnyLineEndAndAByteOrderMarkWillDo) {
  for (const char* text : {"\xEF\xBB\xBF"
                           "2024-03-08 17:25 18:31 a",
                           "\r2024-03-08 17:25 18:31 a\r", "x\n\r2024-03-08 17:25 18:31 a\n"}) {
    EXPECT_EQ(Store(text).Find("a", 8, 3, 2024), kTimes) << text;
  }
}

TEST(CandlesStore, BinaryTextHoldsNothing) {
  EXPECT_EQ(Store(std::string(1000, '\0')).Find("a", 8, 3, 2024), std::nullopt);
  EXPECT_EQ(Store("2024-03-08 17:25 18:31 a\0b"s).Find("a", 8, 3, 2024), std::nullopt);
}

}  // namespace
}  // namespace candles
