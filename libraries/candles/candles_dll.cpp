#include "companion/candles.h"

#include <cstring>
#include <optional>

#include "libraries/candles/candles_dialog.h"
#include "libraries/candles/candles_file.h"

int32_t CandlesGetTime(const char* location, uint32_t day, uint32_t month, uint32_t year, int32_t* candleHour,
                       int32_t* candleMinute, int32_t* endHour, int32_t* endMinute) try {
  if (!location || !candleHour || !candleMinute || !endHour || !endMinute) return 0;
  const std::optional<candles::Times> times = candles::StoredTimes(location, day, month, year);
  if (!times) return 0;
  *candleHour = times->candleHour;
  *candleMinute = times->candleMinute;
  *endHour = times->endHour;
  *endMinute = times->endMinute;
  return 1;
} catch (...) {
  return 0;
}

void CandlesDoDialog(HWND owner) try { candles::DoCandlesDialog(owner, ""); } catch (...) {
}

void CandlesDoDialogAt(HWND owner, const char* place) try {
  constexpr std::size_t kMostPlaceBytes = 255;  // the program's places are shorter than 256 bytes
  const bool isUsable = place && std::strlen(place) <= kMostPlaceBytes;
  candles::DoCandlesDialog(owner, isUsable ? place : "");
} catch (...) {
}
