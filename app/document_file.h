// The file that a document is saved into.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "app/core/document_name.h"
#include "app/core/document_table.h"
#include "publishing/core/table_rtf.h"

struct DocumentFile {
  std::wstring path;
  DocumentType type;
};

// Asks for it in the system's dialog; nothing when cancelled. The extension that the user types says the type, else the
// type that is chosen there, first that given. offered: a name without folder and extension, in UTF-8.
std::optional<DocumentFile> AskForDocumentFile(HWND owner, DocumentType type, const std::string& offered);

struct DocumentForm {
  DocumentChoice choice;  // without what goes with the type
  bool isoDates = false;  // in files for spreadsheets
  int32_t reminderMinutes = 0;
  publishing::RtfStyle rtf = {};
};

enum class SavingResult : uint8_t { kSaved, kCancelled, kUnwritable, kNoEvents };

// With progress over the owner. But for kSaved an older file is as it was, and there is no new one.
SavingResult SaveDocument(HWND owner, const DocumentSource& source, const DocumentForm& form, const DocumentFile& file);
