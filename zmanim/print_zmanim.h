// Prints the zmanim of a document on a printer that the user chooses.
#pragma once

#include <windows.h>

// Asks for the printer and prints, while the owner gets no input and a dialog lets the user cancel. One job at a time:
// does nothing while another is printed. What is printed is a copy of the document's zmanim.
void PrintZmanim(HWND owner, HWND document);

// The system's dialog to set up printers. What it answers is not kept.
void PrinterSetup(HWND owner);

// The spooler asks this whether a job goes on; it lets the waiting messages be handled meanwhile, those of the dialog
// that cancels among them. FALSE: the job has been cancelled.
BOOL CALLBACK AbortPrinting(HDC printer, int code);
