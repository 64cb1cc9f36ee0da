#include "libraries/occasions/occasion_table.h"

#include <cstdio>
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
  int32_t day;  // on whose evening it begins
  std::string name;
  std::string lighting;
  std::string end;  // on the evening of the day after
};

// The evening that an end belongs to has begun a day before it, two where the end is after midnight.
Evening* EveningEndingOn(int32_t day, std::vector<Evening>& evenings) {
  constexpr size_t kNearby = 3;
  for (size_t back = 1; back <= kNearby && back <= evenings.size(); ++back) {
    Evening& evening = evenings[evenings.size() - back];
    const int32_t days = day - evening.day;
    if (evening.end.empty() && (days == 1 || days == 2)) return &evening;
  }
  return nullptr;
}

std::vector<Evening> EveningsOf(const Taken& taken) {
  std::vector<Evening> evenings;
  for (const Row& row : taken.rows) {
    const std::string time = TimeText(row, taken.wording.form);
    const std::string name = NameOf(row, taken.wording.language);
    if (row.moment == Moment::kCandles) {
      const bool isSame = !evenings.empty() && evenings.back().day == row.day && evenings.back().lighting == time;
      if (isSame) {
        evenings.back().name += ", " + name;
      } else {
        evenings.push_back({row.day, name, time, ""});
      }
    } else if (row.moment == Moment::kEnd) {
      if (Evening* const evening = EveningEndingOn(row.day, evenings)) {
        evening->end = time;
      } else {
        evenings.push_back({row.day - 1, name, "", time});
      }
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

std::vector<publishing::Row> RowsInMonths(const std::vector<Evening>& evenings, Language language) {
  std::vector<publishing::Row> rows;
  std::string month;
  for (const Evening& evening : evenings) {
    std::string its = MonthText(calendar::GregorianFromAbsolute(evening.day), language);
    if (its != month) {
      month = std::move(its);
      rows.push_back({.cells = {month}, .kind = publishing::RowKind::kGroup});
    }
    rows.push_back({.cells = {DayText(evening.day, language), evening.name, evening.lighting, evening.end}});
  }
  return rows;
}

std::vector<publishing::Row> RowsForSpreadsheet(const std::vector<Evening>& evenings) {
  std::vector<publishing::Row> rows;
  for (const Evening& evening : evenings) {
    rows.push_back({.cells = {IsoDate(evening.day), evening.name, evening.lighting, evening.end}});
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
  const std::vector<Evening> evenings = EveningsOf(taken);
  return publishing::Listed(forSpreadsheet ? RowsForSpreadsheet(evenings)
                                           : RowsInMonths(evenings, taken.wording.language));
}

}  // namespace

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
