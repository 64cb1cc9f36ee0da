// The one rule where the program's own files live.
//
// Paths are wide texts, so that a user whose name the code page cannot spell has a working folder too.
#pragma once

#include <string>
#include <string_view>

namespace settings_folder {

// What the rule looks at; an empty text means that there is no such thing.
struct Surroundings {
  std::wstring_view home;          // the environment variable TIMES_READINGS_HOME, cleaned
  std::wstring_view exeFolder;     // the folder that the program was started from
  bool settingsBesideExe = false;  // a folder "settings" stands in exeFolder
  std::wstring_view appData;       // %APPDATA%
};

// The folder that the value of TIMES_READINGS_HOME names: without the quotes and blanks around it that a command line
// or a settings box leaves there.
std::wstring CleanedHome(std::wstring_view variable);

// The folder of files given by bare name: home (counted from exeFolder when it is relative, because save dialogs move
// the current folder), else "settings" beside the exe when it stands there (portable use), else "Times Readings" in
// appData; without an appData, "settings" beside the exe. The folder need not exist.
std::wstring FolderFor(const Surroundings& surroundings);

// Whether a file's name has no path: no slash, backslash or colon. Other names are used as they stand.
bool IsBareName(std::wstring_view name);

// folder\name, with one separator between them.
std::wstring Joined(std::wstring_view folder, std::wstring_view name);

// A full path in a form that the system takes whatever its length: paths near the limit of plain ones (247 characters
// for a folder, 259 for a file) get the prefix that lifts it.
std::wstring WithoutLengthLimit(std::wstring fullPath);

}  // namespace settings_folder
