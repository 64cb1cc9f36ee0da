// An unhandled exception leaves a report in the settings folder, and a word to the user, before the program ends.
#pragma once

#include <string>

// From now on. folder: of the settings; made when there is something to report. program: its name and version in ASCII;
// must live as long as the process. The report is "crash report.txt" there; the one before it becomes
// "crash report (previous).txt". It is written by the crashed process itself, nothing is sent anywhere, and the exit
// code is the exception's.
void WatchForCrashes(const std::wstring& folder, const char* program);
