// The dialog in which the user writes a text of a reading.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

#include "libraries/lections/own_text.h"
#include "libraries/lections/settings.h"

namespace lections {

// texts: all own texts as they stand; old: the one to be changed, null for a new one; today: an absolute day.
struct OwnTextQuestion {
  When when;
  const OwnTexts& texts;
  const Settings& settings;
  const OwnPlace* old;
  int32_t today;
};

// The entry as it is to be; its place may be another than the old one's. None when cancelled.
std::optional<OwnEntry> AskForOwnText(HWND owner, const OwnTextQuestion& question);

}  // namespace lections
