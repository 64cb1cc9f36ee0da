#pragma once

#include <string>
#include <string_view>

enum class ExportFormat { kText, kRtf };

// The extension of a format's files, without its point.
const char* ExtensionOf(ExportFormat format);

// The name to offer for an export, after a file was written in some format: the same name with the extension of the
// wanted format. An extension that the user gave a file of the same format, such as csv, stays. A point within a name,
// as in "St. Louis" or "1.5.2007", begins no extension: they have one to four letters and digits, one of them a letter.
std::string OfferedName(std::string_view file, ExportFormat written, ExportFormat wanted);
