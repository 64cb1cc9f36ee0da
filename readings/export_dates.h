#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

// Writes a document's dates and readings as delimited text; language is one of kCalendarLanguages. A file that cannot
// be written leaves no word.
void WriteDatesExport(HWND document, const std::string& file, const std::string& separator, bool header,
                      const std::string& readingsSeparator, uint32_t language);
