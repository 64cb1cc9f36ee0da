#include "app/core/document_rows.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "app/core/document_words.h"
#include "output/date_text.h"

namespace {

using publishing::Row;
using publishing::RowKind;

constexpr int32_t kFriday = 5;  // of the week, from Sunday
constexpr int32_t kSaturday = 6;

// Rata Die day 0 was a Sunday.
int32_t WeekdayOf(int32_t absoluteDay) {
  return (absoluteDay % 7 + 7) % 7;
}

bool IsWeekly(DocumentKind kind) {
  return kind == DocumentKind::kShabbatTimes || kind == DocumentKind::kWeeks || kind == DocumentKind::kDoorPage;
}

// "22.11.", on the door page, whose months have headings.
std::string ShortDate(const CalendarDate& date) {
  char text[24];
  std::snprintf(text, sizeof text, "%02u.%02u.", static_cast<unsigned>(date.uDay), static_cast<unsigned>(date.uMonth));
  return text;
}

// A time of the date after or before the row's says so.
std::string Marked(std::string time, int32_t dayOffset) {
  if (dayOffset != 0) time += dayOffset > 0 ? " (+1)" : " (-1)";
  return time;
}

void AppendLine(std::string& lines, const std::string& line) {
  if (line.empty()) return;
  if (!lines.empty()) lines += '\n';
  lines += line;
}

// Items are what rows are of: weeks, days, or days with readings. Rows of months stand between them.
class DocumentRows : public publishing::Rows {
 public:
  DocumentRows(const DocumentSource& source, const DocumentChoice& choice);
  std::size_t Count() const override { return ItemCount() + months_.size(); }
  void Read(std::size_t index, Row& row) const override;

 private:
  std::size_t ItemCount() const;
  CalendarDate DateOf(std::size_t item) const;
  void AddMonths();
  void ReadMonth(std::size_t item, Row& row) const;
  void ReadWeek(const ShabbatTimeEntry& entry, Row& row) const;
  void ReadDay(const ZmanimDay& day, Row& row) const;
  void ReadReadings(const ReadingsEntry& entry, Row& row) const;
  void AddZmanim(const ZmanimDay* day, Row& row) const;
  std::string Date(const CalendarDate& date) const { return DocumentDate(date, choice_.isoDates); }
  std::string Jewish(int32_t day) const { return JewishDateOf(source_, day, choice_.language); }
  std::string Weekday(int32_t day) const { return source_.services.Weekday(WeekdayOf(day), choice_.language); }
  std::string Yizkor() const { return std::string(WordOf(Word::kYizkor, choice_.language)); }
  std::string Time(ClockTime time) const;
  std::string Candles(const ShabbatTimeEntry& entry) const;
  std::string End(const ShabbatTimeEntry& entry) const;
  std::string Occasions(int32_t day) const;

  const DocumentSource& source_;
  DocumentChoice choice_;
  mutable ZmanTexts texts_;
  std::vector<std::size_t> months_;  // the first item of each month; empty: no rows for months
};

DocumentRows::DocumentRows(const DocumentSource& source, const DocumentChoice& choice)
    : source_(source), choice_(choice), texts_(source.formatTime) {
  const int32_t days =
      source.services.AbsoluteDay(source.range.end) - source.services.AbsoluteDay(source.range.start) + 1;
  const bool hasMonths = choice.kind == DocumentKind::kDoorPage || days > kDaysWithoutMonths;
  if (hasMonths && !choice.forSpreadsheet) AddMonths();
}

std::size_t DocumentRows::ItemCount() const {
  if (IsWeekly(choice_.kind)) return source_.shabbatTimes.size();
  return choice_.kind == DocumentKind::kReadings ? source_.readings.size() : source_.zmanimDays.size();
}

CalendarDate DocumentRows::DateOf(std::size_t item) const {
  if (IsWeekly(choice_.kind)) return FridayOf(source_.shabbatTimes[item]);
  return choice_.kind == DocumentKind::kReadings ? source_.readings[item].date : source_.zmanimDays[item].date;
}

void DocumentRows::AddMonths() {
  uint32_t month = 0;
  uint32_t year = 0;
  for (std::size_t item = 0; item < ItemCount(); ++item) {
    const CalendarDate date = DateOf(item);
    if (date.uMonth == month && date.uYear == year) continue;
    month = date.uMonth;
    year = date.uYear;
    months_.push_back(item);
  }
}

// The row of a month stands at its first item's index and the number of months before it.
void DocumentRows::Read(std::size_t index, Row& row) const {
  row.cells.clear();
  row.kind = RowKind::kRow;
  row.isBold = false;
  row.beginsPage = false;
  std::size_t before = 0;  // months that have begun before the index
  std::size_t end = months_.size();
  while (before < end) {
    const std::size_t middle = (before + end) / 2;
    if (months_[middle] + middle < index) {
      before = middle + 1;
    } else {
      end = middle;
    }
  }
  if (before < months_.size() && months_[before] + before == index) return ReadMonth(months_[before], row);
  const std::size_t item = index - before;
  if (IsWeekly(choice_.kind)) return ReadWeek(source_.shabbatTimes[item], row);
  if (choice_.kind == DocumentKind::kReadings) return ReadReadings(source_.readings[item], row);
  ReadDay(source_.zmanimDays[item], row);
}

void DocumentRows::ReadMonth(std::size_t item, Row& row) const {
  const CalendarDate date = DateOf(item);
  row.kind = RowKind::kGroup;
  row.isBold = true;
  row.beginsPage = item > 0 && (choice_.kind == DocumentKind::kDays || choice_.kind == DocumentKind::kZmanim);
  row.cells.push_back(source_.services.CivilMonth(date, choice_.language) + " " + std::to_string(date.uYear));
}

std::string DocumentRows::Time(ClockTime time) const {
  const bool isMissing = time.hour == kNoTimeHour || time.hour == kUnknownTimeHour;
  return isMissing && choice_.forSpreadsheet ? std::string() : texts_.TextOf(time);
}

std::string DocumentRows::Candles(const ShabbatTimeEntry& entry) const {
  return Marked(Time({static_cast<int32_t>(entry.candleHour), static_cast<int32_t>(entry.candleMinute)}),
                IsAfterMidnight(entry.candleHour) ? 1 : 0);
}

std::string DocumentRows::End(const ShabbatTimeEntry& entry) const {
  return Marked(Time({static_cast<int32_t>(entry.endHour), static_cast<int32_t>(entry.endMinute)}),
                IsAfterMidnight(entry.endHour) ? 1 : 0);
}

// What is kept on a day, with its times: "Fast of Gedaliah: begins 05:11; Fast of Gedaliah: ends 19:38".
std::string DocumentRows::Occasions(int32_t day) const {
  std::string text;
  for (const DocumentOccasion& occasion : source_.services.Occasions(day, choice_.language)) {
    if (!text.empty()) text += "; ";
    text += occasion.title;
    const std::string time = occasion.time ? Time(*occasion.time) : std::string();
    if (!time.empty()) text += " " + time;
  }
  return text;
}

// A day that is not in the document has no times here.
void DocumentRows::AddZmanim(const ZmanimDay* day, Row& row) const {
  for (const uint32_t zman : choice_.zmanim) {
    row.cells.push_back(day ? Marked(Time(day->times[zman]), DayOffsetOf(source_, *day, zman)) : std::string());
  }
}

void DocumentRows::ReadWeek(const ShabbatTimeEntry& entry, Row& row) const {
  const CalendarDate friday = FridayOf(entry);
  const int32_t shabbat = source_.services.AbsoluteDay(friday) + 1;
  const CalendarDate saturday = source_.services.Gregorian(shabbat);
  if (choice_.kind == DocumentKind::kDoorPage) {
    row.cells = {ShortDate(friday), PortionOf(source_, saturday), Candles(entry), End(entry)};
    return;
  }
  row.cells = {Date(friday), Candles(entry), Date(saturday), Jewish(shabbat), PortionOf(source_, saturday)};
  if (choice_.kind == DocumentKind::kWeeks) {
    const ZmanimDay* const day = ZmanimOf(source_, saturday);
    AddZmanim(day, row);
  }
  row.cells.push_back(End(entry));
}

void DocumentRows::ReadDay(const ZmanimDay& day, Row& row) const {
  const int32_t number = source_.services.AbsoluteDay(day.date);
  const int32_t weekday = WeekdayOf(number);
  row.isBold = weekday == kSaturday;
  row.cells = {Weekday(number), Date(day.date), Jewish(number)};
  if (choice_.kind == DocumentKind::kZmanim) return AddZmanim(&day, row);
  const ShabbatTimeEntry* const ofFriday = weekday == kFriday ? ShabbatTimesOf(source_, day.date)
                                           : weekday == kSaturday
                                               ? ShabbatTimesOf(source_, source_.services.Gregorian(number - 1))
                                               : nullptr;
  row.cells.push_back(PortionOf(source_, day.date));
  row.cells.push_back(ofFriday && weekday == kFriday ? Candles(*ofFriday) : std::string());
  AddZmanim(&day, row);
  row.cells.push_back(ofFriday && weekday == kSaturday ? End(*ofFriday) : std::string());
  if (HasOccasions(source_, choice_)) row.cells.push_back(Occasions(number));
}

void DocumentRows::ReadReadings(const ReadingsEntry& entry, Row& row) const {
  const DocumentServices& services = source_.services;
  const int32_t number = services.AbsoluteDay(entry.date);
  std::string torah;
  for (const char* const text : {entry.torah1, entry.torah2, entry.torah3})
    AppendLine(torah, services.OfReadings(text));
  std::string haftarah;
  for (const char* const text : {entry.haftarah1, entry.haftarah2, entry.haftarah3}) {
    AppendLine(haftarah, services.OfReadings(text));
  }
  AppendLine(torah, services.OfWestern(entry.extraText));
  row.isBold = WeekdayOf(number) == kSaturday;
  row.cells = {Date(entry.date), Weekday(number),     Jewish(number),
               std::move(torah), std::move(haftarah), entry.isYizkor != 0 ? Yizkor() : std::string()};
}

}  // namespace

std::string DocumentDate(const CalendarDate& date, bool iso) {
  if (!iso) return DateText(date);
  char text[40];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u", static_cast<unsigned>(date.uYear),
                static_cast<unsigned>(date.uMonth), static_cast<unsigned>(date.uDay));
  return text;
}

std::shared_ptr<const publishing::Rows> RowsOfDocument(const DocumentSource& source, const DocumentChoice& choice) {
  return std::make_shared<const DocumentRows>(source, choice);
}

std::vector<publishing::Column> ColumnsOfDocument(const DocumentSource& source, const DocumentChoice& choice) {
  std::vector<publishing::Column> columns;
  const auto add = [&](Word word) {
    const bool isLarge = word == Word::kCandleLighting || word == Word::kEndOfShabbat;
    columns.push_back({.heading = std::string(WordOf(word, choice.language)), .isLarge = isLarge});
  };
  const auto addAll = [&](std::initializer_list<Word> words) { std::ranges::for_each(words, add); };
  const auto addZmanim = [&] {
    for (const uint32_t zman : choice.zmanim)
      columns.push_back({.heading = ZmanName(source, zman, choice.hebrewZmanim)});
  };
  switch (choice.kind) {
    case DocumentKind::kShabbatTimes:
    case DocumentKind::kWeeks:
      addAll({Word::kFriday, Word::kCandleLighting, Word::kShabbat, Word::kJewishDate, Word::kPortion});
      if (choice.kind == DocumentKind::kWeeks) addZmanim();
      add(Word::kEndOfShabbat);
      break;
    case DocumentKind::kDays:
      addAll({Word::kDay, Word::kDate, Word::kJewishDate, Word::kPortion, Word::kCandleLighting});
      addZmanim();
      add(Word::kEndOfShabbat);
      if (HasOccasions(source, choice)) add(Word::kOccasions);
      break;
    case DocumentKind::kZmanim:
      addAll({Word::kDay, Word::kDate, Word::kJewishDate});
      addZmanim();
      break;
    case DocumentKind::kReadings:
      addAll({Word::kDate, Word::kDay, Word::kJewishDate, Word::kTorah, Word::kHaftarah, Word::kYizkor});
      break;
    case DocumentKind::kDoorPage:
      addAll({Word::kFriday, Word::kPortion, Word::kCandleLighting, Word::kEndOfShabbat});
      break;
  }
  return columns;
}
