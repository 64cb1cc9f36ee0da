// What a user does in the program's and the system's dialogs, in the tests of several commands.
#pragma once

#include <filesystem>
#include <string>

#include "tests/end_to_end/program_driver.h"

// Opens a document for a range of dates ("5.1.2007"), the second one of a fresh run; its window.
HWND OpenRange(const ProgramRun& program, const std::string& start, const std::string& end);

// Answers a box or dialog with one of its buttons. A click on the button itself is lost where the box is not yet
// active.
void Answer(HWND box, int button);

// Saves under a name in the save dialog that is open or about to open. The dialog closes, or asks whether to overwrite
// a file that exists.
void SaveAs(const ProgramRun& program, const std::filesystem::path& file);

// The type of file that is chosen in it, counted from 0; and chooses another.
int TypeToSave(const ProgramRun& program);
void ChooseTypeToSave(const ProgramRun& program, int type);

// Cancels that dialog, and waits until it is gone.
void CancelSaving(const ProgramRun& program);

// Adds a place of the user's own by the dialogs: "Home" at 32°49' N, 34°59' E, zone +2, 754 m high.
void AddHome(const ProgramRun& program);
