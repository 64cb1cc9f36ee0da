// Shabbat and Yom Tov: when they begin and end.
#pragma once

#include <cstdint>
#include <optional>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/occasions/row_collector.h"
#include "libraries/occasions/sky.h"

namespace occasions {

enum class Lands : uint8_t { kBoth, kDiaspora, kIsrael };

constexpr bool IsKept(Lands lands, calendar::Land land) {
  return lands == Lands::kBoth || (lands == Lands::kIsrael) == (land == calendar::Land::kIsrael);
}

// A day on which no work is done: Yom Tov, or a Shabbat that is none.
struct HolyDay {
  Occasion occasion;
  int32_t number;
};
std::optional<HolyDay> HolyDayOn(int32_t day, calendar::Land land);

// A moment with the rule that it came by; notes are bits of Note.
struct RuledMoment {
  ClockMinute moment;
  Rule rule;
  uint16_t notes;
};

class HolyTimes {
 public:
  HolyTimes(const Question& question, Sky& sky) : question_(question), sky_(sky) {}

  // Candles for a holy day, lit on the evening before it or as the day before ends. On a Friday always before sunset.
  RuledMoment Lighting(int32_t holyDay);

  // Of the Friday's own evening, whatever the day after is.
  RuledMoment BeforeSunset(int32_t eve);

  // When a holy day ends; so reckoned too when another follows.
  RuledMoment End(int32_t holyDay);

 private:
  std::optional<candles::Times> OwnTimes(int32_t friday) const;

  const Question& question_;
  Sky& sky_;
};

// Candles, ends and eruv tavshilin of the days from first to last, and the fast of Yom Kippur.
void AddHolyDays(const Question& question, Sky& sky, int32_t first, int32_t last, RowCollector& rows);

}  // namespace occasions
