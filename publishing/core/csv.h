// Tables as comma-separated values (RFC 4180).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/text_sink.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

// UTF-8 with its mark, a record of headings, then the rows, each with a text for every column; without title, remarks,
// groups and notes.
// A text that a spreadsheet would run as a formula has an apostrophe before it, and CsvIn takes that off: a text that
// begins with = + - @, their full-width forms, a tab or a CR, whatever apostrophes stand before these. Numbers such as
// -3 and texts of nothing but hyphens are no formulas.
// False when progress ended it; what the sink got until then is no file.
bool WriteCsv(const Table& table, TextSink& sink, const Progress& progress = {});

// The records of a text with or without mark, its lines ended by CR LF, LF or CR; empty lines are no records. Where the
// first record has no comma outside quotes, but semicolons or else tabs, these separate the fields, as spreadsheets of
// other countries write them. None when a quoted field is never closed, or goes on after its closing quote.
std::optional<std::vector<std::vector<std::string>>> CsvIn(std::string_view text);

}  // namespace publishing
