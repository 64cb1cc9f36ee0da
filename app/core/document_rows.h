// The rows of a document's table.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "app/core/document_table.h"

// Longer ranges than this have a row above each month.
inline constexpr int32_t kDaysWithoutMonths = 62;

std::shared_ptr<const publishing::Rows> RowsOfDocument(const DocumentSource& source, const DocumentChoice& choice);

// The columns of the same.
std::vector<publishing::Column> ColumnsOfDocument(const DocumentSource& source, const DocumentChoice& choice);

// "22.11.2026", or "2026-11-22".
std::string DocumentDate(const CalendarDate& date, bool iso);
