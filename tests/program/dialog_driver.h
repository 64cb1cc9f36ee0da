// Drives a modal dialog of the program from inside its own message loop.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

// Runs open, which shows a modal dialog, and drive on the dialog once it is there. A dialog that drive leaves open is
// reported and cancelled. end: of its caption, where another may come up before it.
void WithDialog(const std::function<void()>& open, const std::function<void(HWND dialog)>& drive,
                const std::string& end = "");

std::string FieldText(HWND dialog, int field);
void SetField(HWND dialog, int field, const char* text);
// What a click on a button of the dialog does.
void Click(HWND dialog, int button);
