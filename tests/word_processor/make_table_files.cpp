// Writes tables in every form, and their rows as calendars: make_table_files FOLDER
// The tables come from FOLDER/table.csv, english.csv and hebrew.csv, as another program writes them.
// table.csv: a record of headings, then records of date (20260309), name and further texts. Files: table.txt,
// table.rtf, wide.rtf (each text four times), table.html, written.csv, calendar.ics. The others: records of date
// (2026-03-09), texts and at the end times (16:05:09 UTC), in groups by month. Files: english.txt, english.rtf,
// letter.rtf, across.rtf, english.html, english.ics (the times, with alarms), english_out.csv, and hebrew.rtf,
// hebrew.html of a table that begins at the right.
// The occasions of 2026 at three places, whose clocks change twice in that year: newyork.csv as the list shows them and
// newyork.ics as events, and so on.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "libraries/occasions/occasion_events.h"
#include "libraries/occasions/occasion_table.h"
#include "tests/core/occasions_places.h"
#include "tests/core/written_files.h"

namespace {

namespace fs = std::filesystem;
using namespace publishing;
using namespace written;

std::string ContentOf(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

void Save(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::vector<std::vector<std::string>> RecordsIn(const fs::path& file) {
  const auto records = CsvIn(ContentOf(file));
  if (!records || records->empty()) throw std::runtime_error(file.string() + " is no table");
  return *records;
}

Table TableOf(const std::vector<std::vector<std::string>>& records) {
  Table table = {.title = "Persons {of} \\2026", .remarks = {"Лица", "אנשים (2026)"}};
  for (const std::string& heading : records.front()) table.columns.push_back({heading, Align::kStart});
  table.columns.front().align = Align::kEnd;
  table.rows = ListedTexts({records.begin() + 1, records.end()});
  return table;
}

Table Widened(Table table) {
  for (Column& column : table.columns) column.heading += column.heading;
  std::vector<Row> rows;
  ForEachRow(table, [&](const Row& row) {
    rows.push_back(row);
    for (std::string& text : rows.back().cells) text = text + " " + text + " " + text + " " + text;
  });
  table.rows = Listed(std::move(rows));
  return table;
}

// A group for each month, a page for each quarter, every seventh row bold.
Table GroupedBy(const Table& table) {
  Table grouped = table;
  std::vector<Row> rows;
  std::string month;
  ForEachRow(table, [&](const Row& row) {
    constexpr std::size_t kMonth = 7;  // of 2026-03-09
    constexpr std::string_view kQuarters[] = {"04", "07", "10"};
    if (row.cells.front().substr(0, kMonth) != month) {
      month = row.cells.front().substr(0, kMonth);
      const bool isQuarter = std::ranges::find(kQuarters, month.substr(5)) != std::end(kQuarters);
      rows.push_back({.cells = {month}, .kind = RowKind::kGroup, .beginsPage = isQuarter});
    }
    rows.push_back(row);
    rows.back().isBold = rows.size() % 7 == 0;
  });
  grouped.rows = Listed(std::move(rows));
  grouped.notes = {"Times are those of the place.", "<b>=1+1{\\rtf"};
  return grouped;
}

Table English(const fs::path& folder) {
  Table table = GroupedBy(TableOf(RecordsIn(folder / "english.csv")));
  table.title = "Shabbat times, Jerusalem, 2026";
  table.remarks = {"Candle lighting 40 minutes before sunset", "Latitude 31\u00B046' N"};
  table.language = "en";
  return table;
}

Table Hebrew(const fs::path& folder) {
  Table table = GroupedBy(TableOf(RecordsIn(folder / "hebrew.csv")));
  table.title = "זמני שבת, ירושלים, תשפ\"ו";
  table.remarks = {"הדלקת נרות 40 דקות לפני השקיעה"};
  table.rightToLeft = true;
  table.language = "he";
  return table;
}

std::string CalendarOfRows(const Table& table) {
  std::vector<Event> events;
  ForEachRow(table, [&](const Row& row) {
    const int date = std::stoi(row.cells.at(0));
    std::string description;
    for (std::size_t column = 2; column < row.cells.size(); ++column) description += row.cells[column] + "\n";
    events.push_back({.uid = "row" + std::to_string(events.size()) + "@times.readings",
                      .date = {date / 10000, date / 100 % 100, date % 100},
                      .summary = row.cells.at(1),
                      .description = description});
  });
  return CalendarOf("Persons, שמות; Имена", events, {{2026, 11, 2}, 7, 5, 9});
}

UtcMoment MomentOf(const std::string& date, const std::string& time) {
  const auto number = [](const std::string& text, std::size_t at, std::size_t length) {
    return std::stoi(text.substr(at, length));
  };
  return {{number(date, 0, 4), number(date, 5, 2), number(date, 8, 2)},
          number(time, 0, 2),
          number(time, 3, 2),
          number(time, 6, 2)};
}

// From the last but one text of each row to its last.
std::string CalendarOfTimes(const Table& table) {
  std::vector<Event> events;
  ForEachRow(table, [&](const Row& row) {
    if (row.kind == RowKind::kGroup) return;
    const std::string& date = row.cells.front();
    const std::size_t last = row.cells.size() - 1;
    events.push_back({.uid = date + "@times.readings",
                      .start = MomentOf(date, row.cells[last - 1]),
                      .end = MomentOf(date, row.cells[last]),
                      .summary = row.cells[1],
                      .location = "Jerusalem, ירושלים; Israel",
                      .categories = {"Shabbat", "שבת; זמנים"},
                      .alarmMinutesBefore = 18});
  });
  return CalendarOf("Shabbat times", events, {{2026, 11, 2}, 7, 5, 9});
}

void SaveMixed(const fs::path& folder) {
  const Table table = TableOf(RecordsIn(folder / "table.csv"));
  Save(folder / "table.txt", TextOf(table));
  Save(folder / "table.rtf", RtfOf(table, {"Times New Roman", 20}));
  Save(folder / "wide.rtf", RtfOf(Widened(table), {"Times New Roman", 20}));
  Save(folder / "table.html", HtmlOf(table));
  Save(folder / "written.csv", CsvOf(table));
  Save(folder / "calendar.ics", CalendarOfRows(table));
}

void SaveGrouped(const fs::path& folder) {
  const Table english = English(folder);
  Save(folder / "english.txt", TextOf(english));
  Save(folder / "english.rtf", RtfOf(english, {"Times New Roman", 20}));
  Save(folder / "letter.rtf", RtfOf(english, {"Times New Roman", 20, PaperSize::kLetter, Orientation::kPortrait}));
  Save(folder / "across.rtf", RtfOf(english, {"Times New Roman", 20, PaperSize::kLetter, Orientation::kLandscape}));
  Save(folder / "english.html", HtmlOf(english));
  Save(folder / "english_out.csv", CsvOf(english));
  Save(folder / "english.ics", CalendarOfTimes(english));
  const Table hebrew = Hebrew(folder);
  Save(folder / "hebrew.rtf", RtfOf(hebrew, {"Times New Roman", 20}));
  Save(folder / "hebrew.html", HtmlOf(hebrew));
}

struct OccasionPlace {
  const char* file;
  sun::PackedPlace place;
  const char* zoneId;
  calendar::Land land;
};
constexpr OccasionPlace kOccasionPlaces[] = {
    {"newyork", occasions::kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora},
    {"jerusalem", occasions::kJerusalemPlace, "Asia/Jerusalem", calendar::Land::kIsrael},
    {"sydney", occasions::kSydneyPlace, "Australia/Sydney", calendar::Land::kDiaspora}};

void SaveOccasions(const fs::path& folder) {
  for (const OccasionPlace& one : kOccasionPlaces) {
    const occasions::Taken taken =
        occasions::TakenYear(one.place, one.zoneId, one.land, occasions::Span::kCivilYear, 2026);
    const std::string file = one.file;
    Save(folder / (file + ".csv"), CsvOf(occasions::TableOf(taken, true)));
    Save(folder / (file + ".ics"), TextBy([&](TextSink& sink) {
           occasions::WriteCalendar(taken, {{2026, 11, 2}, 7, 5, 9}, sink);
         }));
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  SaveMixed(arguments[1]);
  SaveGrouped(arguments[1]);
  SaveOccasions(arguments[1]);
}
