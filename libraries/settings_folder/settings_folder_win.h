// The rule of settings_folder.h, asked of the running Windows.
#pragma once

#include <string>

namespace settings_folder {

// The folder that TIMES_READINGS_HOME names at this moment; empty when it names none.
std::wstring HomeNow();

// The folder of files given by bare name, as things stand at this moment.
std::wstring FolderNow();

// The full path of a file of that name: bare names in FolderNow(), others as they stand (relative ones from the current
// folder).
std::wstring PathNow(const std::wstring& name);

// A path made full from the current folder and cleaned of "." and "..".
std::wstring FullPath(const std::wstring& path);

// An 8-bit text of the program's code page as a wide one.
std::wstring Wide(const char* text);

// Makes a folder and those above it, as far as they are missing; whether it stands afterwards.
bool MakeFolder(const std::wstring& folder);

}  // namespace settings_folder
