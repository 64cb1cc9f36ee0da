#pragma once

#include <windows.h>

// A message with the stop icon and one button. A null owner is allowed.
void ShowStop(HWND owner, const char* text, const char* caption);

// A message with the information icon and one button.
void ShowInformation(HWND owner, const char* text, const char* caption);

// A question with the buttons Yes and No; true for Yes.
bool Ask(HWND owner, const char* text, const char* caption);

// A warning with the buttons Retry and Cancel; true for Retry.
bool AskToRetry(HWND owner, const char* text, const char* caption);

// A warning with the buttons Cancel, Try Again (the default) and Continue.
enum class Onward { kCancel, kTryAgain, kContinue };
Onward AskHowToGoOn(HWND owner, const char* text, const char* caption);

// What the user typed could not be stored: names the file and what to do.
void ShowUnwritableSettings(HWND owner, const char* file);
