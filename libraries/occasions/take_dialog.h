// What of the occasions is to be printed or saved, and in which form.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>

#include "libraries/occasions/window_settings.h"

namespace occasions {

struct TakeQuestion {
  bool isToSave = false;  // else to print
  int listed = 0;         // occasions in the list
  int32_t days = 0;       // of what is shown
};

struct TakeAnswer {
  bool candlesAlone;
  Format format;  // where it is to be saved
};

// before: what was chosen last. Nothing when cancelled.
std::optional<TakeAnswer> AskWhatToTake(HWND owner, const TakeQuestion& question, const TakeAnswer& before);

}  // namespace occasions
