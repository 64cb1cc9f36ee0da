// A table on its way to the printer.
#pragma once

#include <windows.h>

#include <string>

#include "publishing/core/pages.h"

namespace publishing {

struct PrintJob {
  HDC printer;
  const Pages& pages;
  LOGFONTW font;  // of PageFontOf
  std::wstring documentName;
  bool toFile;    // the system then asks for the file
  int firstPage;  // from 0
  int lastPage;
};

// Prints, while a dialog tells how far it is and lets the user cancel; the owner gets no input meanwhile. What fails is
// told to the user. Whether everything went to the printer.
bool Print(HWND owner, const PrintJob& job);

}  // namespace publishing
