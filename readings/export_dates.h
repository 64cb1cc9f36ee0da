#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

// Writes a document's dates and readings as delimited text; language is one of kCalendarLanguages. Whether the file
// could be written, of which nothing is said.
bool WriteDatesExport(HWND document, const std::string& file, const std::string& separator, bool header,
                      const std::string& readingsSeparator, uint32_t language);
