// The modeless dialog with which the user cancels a print job. It only sets a flag; the print loop and its abort
// procedure watch that.
#pragma once

#include <windows.h>

struct PrintAbortState {
  HWND owner;    // the window whose input it holds; the system counts only a top-level one as a dialog's parent
  HWND dialog;   // while it exists
  bool aborted;  // the user cancelled, or the job failed to start
};

extern PrintAbortState PrintAbort;

// Clears the flag and shows the dialog; the owner gets no input until the dialog is cancelled or ended. Null on
// failure.
HWND OpenPrintAbortDialog(HWND owner);

// The job is over: the owner gets input again, and the dialog goes if it is still there.
void ClosePrintAbortDialog();
