// The name that is offered for a document's file, and what a file's name says of its type.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class DocumentType : uint8_t { kHtml, kRtf, kCsv, kCalendar, kText };

// Without its point.
const char* ExtensionOf(DocumentType type);

// By the extension, whatever the case of its letters: html and htm, rtf, csv, ics, txt; nothing for any other. UTF-8.
std::optional<DocumentType> TypeOfName(std::string_view file);

// Whether a name ends in an extension: a point and one to four letters and digits, one of them a letter. Points in
// "St. Louis" and "1.5.2007" begin none.
bool HasExtension(std::string_view file);

// The parts joined by blanks, without characters that no file's name may have, the place cut where they are longer than
// such names usually are.
// UTF-8.
std::string FileNameOf(std::string_view kind, std::string_view place, std::string_view range);
