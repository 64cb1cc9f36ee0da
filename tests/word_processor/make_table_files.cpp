// Writes a table in every form, and its rows as a calendar: make_table_files FOLDER
// The table comes from FOLDER/table.csv, as another program writes it: a record of headings, then records of date
// (20260309), name and further texts. Files: table.txt, table.rtf, wide.rtf (each text four times), written.csv,
// calendar.ics.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

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

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const fs::path folder = arguments[1];
  const auto records = CsvIn(ContentOf(folder / "table.csv"));
  if (!records || records->empty()) return 1;
  const Table table = TableOf(*records);
  Save(folder / "table.txt", TextOf(table));
  Save(folder / "table.rtf", RtfOf(table, {"Times New Roman", 20}));
  Save(folder / "wide.rtf", RtfOf(Widened(table), {"Times New Roman", 20}));
  Save(folder / "written.csv", CsvOf(table));
  Save(folder / "calendar.ics", CalendarOfRows(table));
}
