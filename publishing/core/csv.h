// Tables as comma-separated values (RFC 4180).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "publishing/core/table.h"

namespace publishing {

// UTF-8 with its mark, a record of headings, then the rows; without title and remarks. Texts stand as they are,
// also those that a spreadsheet takes for a formula: what is written is what CsvIn reads.
std::string CsvOf(const Table& table);

// The records of a text with or without mark, its lines ended by CR LF, LF or CR; empty lines are no records. Where the
// first record has no comma outside quotes, but semicolons or else tabs, these separate the fields, as spreadsheets of
// other countries write them. None when a quoted field is never closed, or goes on after its closing quote.
std::optional<std::vector<std::vector<std::string>>> CsvIn(std::string_view text);

}  // namespace publishing
