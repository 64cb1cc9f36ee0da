#include "libraries/occasions/occasion_table.h"

#include <cstdio>
#include <map>
#include <utility>

#include "libraries/calendar/gregorian.h"

namespace occasions {
namespace {

using publishing::Align;
using publishing::Table;

std::string IsoDate(int32_t day) {
  const calendar::Date date = calendar::GregorianFromAbsolute(day);
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

// A century has too many rows for all of their texts to be kept.
class TextsOfRows : public publishing::Rows {
 public:
  TextsOfRows(const Taken& taken, bool forSpreadsheet) : taken_(taken), forSpreadsheet_(forSpreadsheet) {}

  size_t Count() const override { return taken_.rows.size(); }

  void Read(size_t index, publishing::Row& row) const override {
    row = {};
    for (int column = 0; column < kColumns; ++column) {
      const bool isIso = forSpreadsheet_ && static_cast<Column>(column) == Column::kDate;
      const Row& shown = taken_.rows[index];
      row.cells.push_back(isIso ? IsoDate(shown.day)
                                : CellOf(taken_.question, shown, static_cast<Column>(column), taken_.wording));
    }
  }

 private:
  Taken taken_;
  bool forSpreadsheet_;
};

// A row of the table of candles.
struct Evening {
  std::string name;
  std::string lighting;
  std::string end;  // on the evening of the day after
};

// By the day on whose evening they begin.
using Evenings = std::map<int32_t, Evening>;

Evenings EveningsOf(const Taken& taken) {
  Evenings evenings;
  for (const Row& row : taken.rows) {
    if (row.moment != Moment::kCandles && row.moment != Moment::kEnd) continue;
    const std::string name = NameOf(row, taken.wording.language);
    const std::string time = TimeText(row, taken.wording.form);
    Evening& evening = evenings[EveningOf(row)];
    if (row.moment == Moment::kEnd) {
      evening.end = time;
      if (evening.name.empty()) evening.name = name;
    } else {
      evening.name = evening.lighting.empty() ? name : evening.name + ", " + name;
      evening.lighting = time;
    }
  }
  return evenings;
}

constexpr const char* kMonths[][2] = {{"January", "ינואר"},   {"February", "פברואר"}, {"March", "מרץ"},
                                      {"April", "אפריל"},     {"May", "מאי"},         {"June", "יוני"},
                                      {"July", "יולי"},       {"August", "אוגוסט"},   {"September", "ספטמבר"},
                                      {"October", "אוקטובר"}, {"November", "נובמבר"}, {"December", "דצמבר"}};

std::string MonthText(const calendar::Date& date, Language language) {
  return std::string(kMonths[date.month - 1][language == Language::kHebrew]) + " " + std::to_string(date.year);
}

constexpr const char* kShortDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

// "Fri 27": the month stands above.
std::string DayText(int32_t day, Language language) {
  const bool isHebrew = language == Language::kHebrew;
  const std::string name =
      isHebrew ? WeekdayName(day, language) : kShortDays[static_cast<int>(calendar::WeekdayOf(day))];
  return name + " " + std::to_string(calendar::GregorianFromAbsolute(day).day);
}

std::vector<publishing::Row> RowsInMonths(const Evenings& evenings, Language language) {
  std::vector<publishing::Row> rows;
  std::string month;
  for (const auto& [day, evening] : evenings) {
    std::string its = MonthText(calendar::GregorianFromAbsolute(day), language);
    if (its != month) {
      month = std::move(its);
      rows.push_back({.cells = {month}, .kind = publishing::RowKind::kGroup});
    }
    rows.push_back({.cells = {DayText(day, language), evening.name, evening.lighting, evening.end}});
  }
  return rows;
}

std::vector<publishing::Row> RowsForSpreadsheet(const Evenings& evenings) {
  std::vector<publishing::Row> rows;
  for (const auto& [day, evening] : evenings) {
    rows.push_back({.cells = {IsoDate(day), evening.name, evening.lighting, evening.end}});
  }
  return rows;
}

std::vector<publishing::Column> ListColumns(Language language) {
  std::vector<publishing::Column> columns;
  for (int i = 0; i < kColumns; ++i) {
    const auto column = static_cast<Column>(i);
    columns.push_back({HeadingOf(column, language), column == Column::kTime ? Align::kEnd : Align::kStart});
  }
  return columns;
}

std::vector<publishing::Column> CandleColumns(Language language) {
  const bool isHebrew = language == Language::kHebrew;
  return {{isHebrew ? "ערב" : "Evening"},
          {HeadingOf(Column::kOccasion, language)},
          {.heading = isHebrew ? "הדלקה" : "Lighting", .align = Align::kEnd, .isLarge = true},
          {.heading = isHebrew ? "יציאה" : "End", .align = Align::kEnd, .isLarge = true}};
}

std::shared_ptr<const publishing::Rows> CandleRows(const Taken& taken, bool forSpreadsheet) {
  const Evenings evenings = EveningsOf(taken);
  return publishing::Listed(forSpreadsheet ? RowsForSpreadsheet(evenings)
                                           : RowsInMonths(evenings, taken.wording.language));
}

}  // namespace

// Where the sun hardly sets, an evening's lighting or end may be after midnight: what is in the hours before morning is
// of the evening before.
int32_t EveningOf(const Row& row) {
  constexpr int32_t kMorning = 6 * 60;
  const int32_t day = row.minute && *row.minute < kMorning ? row.day - 1 : row.day;
  return row.moment == Moment::kEnd ? day - 1 : day;
}

Table TableOf(const Taken& taken, bool forSpreadsheet) {
  const Language language = taken.wording.language;
  const bool isHebrew = language == Language::kHebrew;
  Table table;
  table.title = TitleText(taken);
  table.remarks = RemarksOf(taken);
  table.rightToLeft = isHebrew;
  table.language = isHebrew ? "he" : "en";
  if (isHebrew) table.pageText = "עמוד %1 מתוך %2";
  table.runningHead = table.title + (taken.place.empty() ? "" : ", " + taken.place);
  table.columns = taken.candlesAlone ? CandleColumns(language) : ListColumns(language);
  if (taken.candlesAlone) {
    table.rows = CandleRows(taken, forSpreadsheet);
    table.notes = {isHebrew ? "ההדלקה בערב התאריך הנקוב, היציאה בערב שלמחרתו."
                            : "Lighting is on the evening of the date, the end on the evening after it."};
  } else {
    table.rows = std::make_shared<const TextsOfRows>(taken, forSpreadsheet);
  }
  return table;
}

}  // namespace occasions
