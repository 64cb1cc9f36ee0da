#include "libraries/occasions/occasion_cells.h"

#include <cstdio>

#include "libraries/calendar/gregorian.h"

namespace occasions {
namespace {

constexpr int32_t kMinutesPerHour = 60;
constexpr char kNoTime[] = "----";

struct Heading {
  const char* english;
  const char* hebrew;
};

// In the order of Column.
constexpr Heading kHeadings[kColumns] = {{"Date", "תאריך לועזי"}, {"Day", "יום"},  {"Jewish date", "תאריך עברי"},
                                         {"Occasion", "מועד"},    {"Time", "שעה"}, {"Remark", "הערה"}};

}  // namespace

const char* HeadingOf(Column column, Language language) {
  const Heading& heading = kHeadings[static_cast<int>(column)];
  return language == Language::kHebrew ? heading.hebrew : heading.english;
}

std::string DateText(int32_t day) {
  const calendar::Date date = calendar::GregorianFromAbsolute(day);
  char text[40];
  std::snprintf(text, sizeof text, "%02d.%02d.%04d", date.day, date.month, date.year);
  return text;
}

std::string TimeText(const Row& row, stamp::Form form) {
  if (row.minute) return stamp::TimeText(*row.minute / kMinutesPerHour, *row.minute % kMinutesPerHour, form);
  return row.moment == Moment::kWholeDay ? "" : kNoTime;
}

std::string CellOf(const Question& question, const Row& row, Column column, const Wording& wording) {
  switch (column) {
    case Column::kDate: return DateText(row.day);
    case Column::kWeekday: return WeekdayName(row.day, wording.language);
    case Column::kJewishDate: return JewishDateText(row.day, wording.language);
    case Column::kOccasion: return TitleOf(row, wording.language);
    case Column::kTime: return TimeText(row, wording.form);
    case Column::kRemark: return RemarkOf(question, row, wording.language);
  }
  return {};
}

}  // namespace occasions
