// What a document holds, as the tables and calendars that users take away are made from it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/core/records.h"
#include "readings/core/readings_record.h"
#include "shabbat/core/shabbat_record.h"
#include "zmanim/core/zman_texts.h"
#include "zmanim/core/zmanim_block.h"

// What is kept on a day, or a moment of it.
struct DocumentOccasion {
  std::string title;              // UTF-8
  std::optional<ClockTime> time;  // none for a whole day; kNoTime where the moment does not occur
  bool operator==(const DocumentOccasion&) const = default;
};

// What only libraries and the system know. Day numbers are Rata Die; Jewish months count from Nisan = 1.
class DocumentServices {
 public:
  DocumentServices() = default;
  DocumentServices(const DocumentServices&) = delete;
  DocumentServices& operator=(const DocumentServices&) = delete;
  virtual ~DocumentServices() = default;

  virtual int32_t AbsoluteDay(const CalendarDate& gregorian) const = 0;
  virtual CalendarDate Gregorian(int32_t absoluteDay) const = 0;
  virtual CalendarDate Jewish(int32_t absoluteDay) const = 0;

  // Names in a language of the readings (document_words.h), UTF-8. weekday: from 0, Sunday.
  virtual std::string Weekday(int32_t weekday, uint32_t language) const = 0;
  virtual std::string CivilMonth(const CalendarDate& gregorian, uint32_t language) const = 0;
  virtual std::string JewishMonth(const CalendarDate& jewish, uint32_t language) const = 0;

  // UTF-8 of a text of the readings, whose charset goes with their language, and of a text in windows-1252.
  virtual std::string OfReadings(std::string_view text) const = 0;
  virtual std::string OfWestern(std::string_view text) const = 0;

  // How many seconds the place's clock is ahead of UTC when it shows a minute of a date; minuteOfDay counts from the
  // date's midnight and may be another date's.
  virtual int32_t ClockOffsetSeconds(const CalendarDate& date, int32_t minuteOfDay) const = 0;

  // How many civil days after its date a time of a zman is that the block holds for the date: -1, 0 or 1.
  virtual int32_t ZmanDayOffset(const ZmanimDay& day, uint32_t zman) const = 0;

  // What is kept on a day of the document's range at its place, in the order of times; titles in Hebrew where the
  // language is Hebrew, else in English.
  virtual std::vector<DocumentOccasion> Occasions(int32_t absoluteDay, uint32_t language) const = 0;
};

// UTF-8 in reading order; hebrew may be blank.
struct DocumentZman {
  std::string english;
  std::string hebrew;
};

struct DocumentSource {
  const DocumentServices& services;
  Location location = {};
  std::string place = {};  // UTF-8
  DateRange range = {};
  std::span<const ShabbatTimeEntry> shabbatTimes = {};
  std::span<const ZmanimDay> zmanimDays = {};
  std::span<const ReadingsEntry> readings = {};
  std::vector<DocumentZman> zmanim = {};  // in the order of the days' times
  // Beside the range: the Friday before it where it begins with a Shabbat, and the readings of the Shabbat after it
  // where it ends with a Friday.
  std::vector<ShabbatTimeEntry> fridayBefore = {};
  std::vector<ReadingsEntry> shabbatAfter = {};
  std::vector<std::string> customs = {};  // the readings' words for them, UTF-8
  bool hasOccasions = false;              // whether anyone knows them
  FormatTime formatTime;
};

// The entry of a date, null when there is none. Blocks are in date order.
const ReadingsEntry* ReadingsOf(const DocumentSource& source, const CalendarDate& date);
const ShabbatTimeEntry* ShabbatTimesOf(const DocumentSource& source, const CalendarDate& friday);
const ZmanimDay* ZmanimOf(const DocumentSource& source, const CalendarDate& date);

inline CalendarDate FridayOf(const ShabbatTimeEntry& entry) {
  return {entry.day, entry.month, entry.year};
}

// Whether an hour of candle lighting or of the end of Shabbat is one of the date after: in the far north the sun sets
// after midnight, which is told as the small hours, or as hours from 24 on.
bool IsAfterMidnight(uint32_t hour);

// How many days after its date the time of a zman is that a day has: -1, 0 or 1.
int32_t DayOffsetOf(const DocumentSource& source, const ZmanimDay& day, uint32_t zman);

// "18 Kislev 5787", as the language writes it.
std::string JewishDateOf(const DocumentSource& source, int32_t absoluteDay, uint32_t language);

// What is read on a day by its name, without verses and customs: "Vayechi" of "Vayechi: Genesis 47:28-50:26",
// "Chanukah, day 1" of "Chanukah, day 1, Ashkenazi, Chabad: Numbers 7:1-17". Empty for a day without readings.
std::string PortionOf(const DocumentSource& source, const CalendarDate& date);
