// A document of a few days in January 2007 for what is made of documents: 6 January 2007 is a Shabbat, 16 Tevet 5767
// (Hebcal).
#pragma once

#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "app/core/document_source.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"

// Real calendars, names as "month 10", and a clock that the test sets.
class DocumentFakes : public DocumentServices {
 public:
  static calendar::Date Of(const CalendarDate& date) {
    return {static_cast<int32_t>(date.uDay), static_cast<int32_t>(date.uMonth), static_cast<int32_t>(date.uYear)};
  }
  static CalendarDate Of(const calendar::Date& date) {
    return {static_cast<uint32_t>(date.day), static_cast<uint32_t>(date.month), static_cast<uint32_t>(date.year)};
  }
  int32_t AbsoluteDay(const CalendarDate& gregorian) const override {
    return calendar::AbsoluteFromGregorian(Of(gregorian));
  }
  CalendarDate Gregorian(int32_t absoluteDay) const override {
    return Of(calendar::GregorianFromAbsolute(absoluteDay));
  }
  CalendarDate Jewish(int32_t absoluteDay) const override { return Of(calendar::JewishFromAbsolute(absoluteDay)); }
  std::string Weekday(int32_t weekday, uint32_t) const override { return "weekday " + std::to_string(weekday); }
  std::string CivilMonth(const CalendarDate& date, uint32_t) const override {
    return "civil " + std::to_string(date.uMonth);
  }
  std::string JewishMonth(const CalendarDate& date, uint32_t) const override {
    return "month " + std::to_string(date.uMonth);
  }
  std::string OfReadings(std::string_view text) const override { return std::string(text); }
  std::string OfWestern(std::string_view text) const override { return std::string(text); }
  int32_t ClockOffsetSeconds(const CalendarDate& date, int32_t minuteOfDay) const override {
    const int64_t minute = int64_t{AbsoluteDay(date)} * 1440 + minuteOfDay;
    return minute < summerBegins ? offset : offset + 3600;
  }
  int32_t ZmanDayOffset(const ZmanimDay&, uint32_t zman) const override {
    const auto found = dayOffsets.find(zman);
    return found == dayOffsets.end() ? 0 : found->second;
  }

  std::vector<DocumentOccasion> Occasions(int32_t absoluteDay, uint32_t language) const override {
    ++questions;
    const auto found = occasions.find({absoluteDay, language});
    return found == occasions.end() ? std::vector<DocumentOccasion>() : found->second;
  }

  int32_t offset = 3600;
  int64_t summerBegins = INT64_MAX;  // in minutes of the clock since day 0
  std::map<uint32_t, int32_t> dayOffsets;
  std::map<std::pair<int32_t, uint32_t>, std::vector<DocumentOccasion>> occasions;  // by day and language
  mutable int32_t questions = 0;                                                    // about occasions
};

inline void FormatDocumentTime(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour % 24, minute);
}

// Zman 0 is at 7:01 and a minute later each day, zman 1 an hour later, and so on.
class DocumentFixture {
 public:
  DocumentFixture(const CalendarDate& first, const CalendarDate& last, uint32_t zmanim = 2) {
    source.location = {};
    source.location.latitude = 5047;
    source.location.longitude = 605;
    source.location.zoneHours = 1;
    source.place = "Aachen";
    source.range = {first, last};
    for (uint32_t zman = 0; zman < zmanim; ++zman) {
      source.zmanim.push_back({"Z" + std::to_string(zman), zman == 0 ? "זמן" : " "});
    }
    const int32_t firstDay = services.AbsoluteDay(first);
    for (int32_t day = firstDay; day <= services.AbsoluteDay(last); ++day) AddDay(day, day - firstDay, zmanim);
    Refresh();
  }

  void AddReadings(const CalendarDate& date, const char* torah1, const char* torah2 = "", const char* haftarah1 = "",
                   const char* extra = "", bool isYizkor = false) {
    ReadingsEntry entry{};
    entry.date = date;
    std::strcpy(entry.torah1, torah1);
    std::strcpy(entry.torah2, torah2);
    std::strcpy(entry.haftarah1, haftarah1);
    std::strcpy(entry.extraText, extra);
    entry.isYizkor = isYizkor ? 1 : 0;
    readings.push_back(entry);
    Refresh();
  }

  void Refresh() {
    source.shabbatTimes = shabbatTimes;
    source.zmanimDays = days;
    source.readings = readings;
  }

  DocumentFakes services;
  std::vector<ShabbatTimeEntry> shabbatTimes;
  std::vector<ZmanimDay> days;
  std::vector<ReadingsEntry> readings;
  DocumentSource source{.services = services, .formatTime = FormatDocumentTime};

 private:
  void AddDay(int32_t day, int32_t index, uint32_t zmanim) {
    ZmanimDay record{};
    record.date = services.Gregorian(day);
    for (uint32_t zman = 0; zman < kMostZmanim; ++zman) {
      record.times[zman] = zman < zmanim ? ClockTime{7 + static_cast<int32_t>(zman % 12), 1 + index % 59} : kNoTime;
    }
    days.push_back(record);
    if (day % 7 == 5) {
      shabbatTimes.push_back({record.date.uDay, record.date.uMonth, record.date.uYear, 16, 27, 16, 46, 17, 31});
    }
  }
};
