// Files that the user takes away or brings in.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace dialogs {

// filter: pairs of a name and a pattern, each ended by a null, and one null more. extension: added to a name without
// one.
struct FileQuestion {
  const wchar_t* title;
  const wchar_t* filter;
  const wchar_t* extension;
};

// Empty when cancelled. An existing file is written over only when the user says so.
std::wstring AskForFileToWrite(HWND owner, const FileQuestion& question, const std::wstring& offered);
std::wstring AskForFileToRead(HWND owner, const FileQuestion& question);

// Writes a file at once and whole. Where that fails, an older one stays as it was, and the user is told. again: what
// the user does to have it tried again, "export again".
bool WriteOrTell(HWND owner, const std::wstring& path, const std::string& text, const std::wstring& again);

// The bytes of a file; nothing, and the user is told why, when it cannot be read. what: what such a file is, "a table
// of dates". again: what the user does to have it tried again, "import again".
std::optional<std::string> BytesOfFileOrTell(HWND owner, const std::wstring& path, const std::wstring& what,
                                             const std::wstring& again);

// The text of a file to import, which is UTF-8 or has the mark of UTF-16; nothing, and the user is told why,
// when it cannot be read. what: as above.
std::optional<std::string> TextOfFileOrTell(HWND owner, const std::wstring& path, const std::wstring& what);

// Whether two paths name one file, as far as their full paths tell.
bool IsSamePath(const std::wstring& left, const std::wstring& right);

}  // namespace dialogs
