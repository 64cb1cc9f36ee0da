// Readings of a civil date as one line of text, for tests.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/reading_texts.h"

namespace lections_test {

using calendar::Land;
using lections::Customs;
using lections::Settings;

inline Settings Of(Land land, Customs customs, bool chabad = false) {
  Settings settings;
  settings.land = land;
  settings.customs = customs;
  settings.chabad = chabad;
  return settings;
}

inline calendar::Date JewishDate(int32_t day, int32_t month, int32_t year) {
  return calendar::JewishFromAbsolute(calendar::AbsoluteFromGregorian({day, month, year}));
}

// "first Torah reading | second | third // first haftarah | second | third", without what is empty.
inline std::string Line(const lections::ReadingTexts& texts) {
  const auto joined = [](const auto& slots) {
    std::string line;
    for (const std::string& slot : slots) line += (line.empty() || slot.empty() ? "" : " | ") + slot;
    return line;
  };
  const std::string haftarot = joined(texts.haftarot);
  return joined(texts.torah) + (haftarot.empty() ? "" : " // ") + haftarot;
}

inline std::string Read(int32_t day, int32_t month, int32_t year, const Settings& settings) {
  return Line(lections::TextsOn(JewishDate(day, month, year), settings));
}

inline std::string InDiaspora(int32_t day, int32_t month, int32_t year, Customs customs = Customs::kBoth) {
  return Read(day, month, year, Of(Land::kDiaspora, customs));
}

inline std::string InIsrael(int32_t day, int32_t month, int32_t year, Customs customs = Customs::kBoth) {
  return Read(day, month, year, Of(Land::kIsrael, customs));
}

}  // namespace lections_test
