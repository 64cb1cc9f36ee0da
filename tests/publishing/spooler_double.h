// The system's printing as the preview's code sees it: its own, or what a script says in its place. Counts what that
// code creates and deletes.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

struct SpoolerScript {
  bool isReal = true;  // the rest is for a spooler that is not

  bool hasPrinters = true;
  DWORD dialogError = 0;  // the print dialog's, for which it answers that nothing was chosen
  DWORD dialogFlags = 0;  // that the user sets
  WORD firstPage = 1;
  WORD lastPage = 1;
  std::vector<int> chosenMargins;  // 1/100 mm in the page setup dialog, one time after the other; then it is cancelled
  int startDocAnswer = 1;
  int startPageAnswer = 1;
  int endPageAnswer = 1;
  int endDocAnswer = 1;
  DWORD lastError = 0;                // set by a call that fails
  std::function<void()> onStartPage;  // in the thread of the job
};
SpoolerScript& Spooler();
void ResetSpooler();

// What the code has called so far, in the thread of its job: "StartDoc Names" with the document's name.
std::vector<std::string> SpoolerCalls();

// Fonts, bitmaps and device contexts that the code holds.
long HeldObjects();
