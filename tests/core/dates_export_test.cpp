// The file byte for byte, written out by hand.
#include "readings/core/dates_export.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

ReadingsEntry Entry(std::initializer_list<const char*> torah, std::initializer_list<const char*> haftarah) {
  ReadingsEntry entry{};
  entry.date = {6, 1, 2007};
  char(*const torahSlots[])[kTextSize] = {&entry.torah1, &entry.torah2, &entry.torah3};
  char(*const haftarahSlots[])[kTextSize] = {&entry.haftarah1, &entry.haftarah2, &entry.haftarah3};
  std::size_t i = 0;
  for (const char* text : torah) std::strcpy(*torahSlots[i++], text);
  i = 0;
  for (const char* text : haftarah) std::strcpy(*haftarahSlots[i++], text);
  std::strcpy(entry.extraText, "extra");
  entry.isYizkor = 1;
  return entry;
}

// 6 January 2007 was 16 Tevet 5767.
DatesExport::JewishDate Tevet(const CalendarDate& date, uint32_t language) {
  return {date.uDay + 10, "Tevet" + std::to_string(language), 5767};
}

std::string Write(const std::vector<ReadingsEntry>& entries, bool header = false, uint32_t language = 1) {
  StringSink sink;
  WriteDatesDelimited(sink, {.separator = ";",
                             .readingsSeparator = ", ",
                             .header = header,
                             .entries = entries,
                             .jewishDate = Tevet,
                             .language = language});
  return sink.text();
}

}  // namespace

TEST(DatesExport, HeaderNamesTheFourFields) {
  EXPECT_EQ(Write({}, true), "Gregorian date;Jewish date;Torah readings;Haphtarah readings\r\n");
}

TEST(DatesExport, WithoutHeaderTheFileStartsWithTheFirstDay) {
  EXPECT_EQ(Write({Entry({"Vayechi"}, {"I Kings 2:1-12"})}), "06.01.2007;16 Tevet1 5767;Vayechi;I Kings 2:1-12\r\n");
}

TEST(DatesExport, FurtherReadingsFollowInTheirField) {
  EXPECT_EQ(Write({Entry({"T1", "T2", "T3"}, {"H1", "", "H3"})}), "06.01.2007;16 Tevet1 5767;T1, T2, T3;H1, H3\r\n");
}

TEST(DatesExport, ADayWithoutAFirstReadingLosesTheField) {
  EXPECT_EQ(Write({Entry({""}, {"H1"})}), "06.01.2007;16 Tevet1 5767;H1\r\n");
  EXPECT_EQ(Write({Entry({"T1"}, {""})}), "06.01.2007;16 Tevet1 5767;T1\r\n");
  EXPECT_EQ(Write({Entry({"", "T2"}, {"", "H2"})}), "06.01.2007;16 Tevet1 5767, T2, H2\r\n");
}

TEST(DatesExport, GermanDatesHaveAPointAfterTheDay) {
  EXPECT_EQ(Write({Entry({"T1"}, {"H1"})}, false, 3), "06.01.2007;16. Tevet3 5767;T1;H1\r\n");
  EXPECT_EQ(Write({Entry({"T1"}, {"H1"})}, false, 5), "06.01.2007;16 Tevet5 5767;T1;H1\r\n");
}

TEST(DatesExport, YearsHaveFourDigits) {
  EXPECT_EQ(JewishDateText({1, "Nisan", 7}, 1), "1 Nisan 0007");
}
