// The system's print dialog, printers and spooler, scripted and recorded. The printer is a device context of memory, so
// that fonts are real; its size and resolution are the script's.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/doubles/library_doubles.h"

struct PrinterScript {
  bool chosen = true;         // the answer of the print dialog
  bool givesPrinter = true;   // whether it then has a device context
  bool printsToFile = false;  // the user wants a file in its place
  int width = 2000;
  int height = 1000;
  int dotsPerInchX = 254;  // ten dots a millimetre
  int dotsPerInchY = 127;

  int setAbortProcAnswer = 1;
  int startDocAnswer = 1;
  int startPageAnswer = 1;
  int endPageAnswer = 1;
  int endDocAnswer = 1;

  // Called as a page starts, with its number from 1 on, and as it ends.
  std::function<void(int page)> onStartPage;
  std::function<void(int page)> onEndPage;

  // What the program did.
  int devices = 0;  // device contexts that it holds
  int startedPages = 0;
  ABORTPROC abortProc = nullptr;
  std::vector<std::vector<Draw>> pages;  // what was drawn on each

  // The preview of documents: no printer is asked for its paper, and the dialog of page setup has the user choose this
  // for all margins, in 1/100 mm; 0: cancelled.
  int chosenMargin = 0;
  std::vector<std::string> shownTexts;  // what is drawn in UTF-16, as UTF-8
};

PrinterScript& Printer();

void ResetPrinter();
