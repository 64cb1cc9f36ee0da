#include "libraries/candles/shabbat_rule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "libraries/twilight/decimal_number.h"
#include "libraries/twilight/twilight_core.h"

namespace candles {
namespace {

constexpr char kFile[] = "shabbat2.ini";
constexpr char kSection[] = "Shabbat";
constexpr std::string_view kJerusalem = "Jerusalem";
constexpr int32_t kMinutesPerDay = 24 * 60;  // whole days too many do not matter to times of the day

double ReadNumber(const sun::SettingsReader& reader, const char* key, double defaultValue, double otherText) {
  std::array<char, 256> text;
  reader.readText(kSection, key, "", text.data(), text.size(), kFile);
  if (text[0] == '\0') return defaultValue;
  const twilight::DecimalPrefix number = twilight::ReadDecimalPrefix(text.data());
  return number.isNumber ? number.value : otherText;
}

// The whole number that the text starts with, 0 when it starts with none.
int32_t ReadMinutes(const sun::SettingsReader& reader, const char* key, int32_t defaultValue) {
  using Limits = std::numeric_limits<int32_t>;
  const double number = std::trunc(ReadNumber(reader, key, defaultValue, 0));
  return static_cast<int32_t>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

}  // namespace

ShabbatRule ReadShabbatRule(const sun::SettingsReader& reader, std::string_view place) {
  ShabbatRule rule;
  rule.isJerusalem = place == kJerusalem;
  rule.candleMinutes = rule.isJerusalem ? kJerusalemMinutes : ReadMinutes(reader, "CandleLighting", rule.candleMinutes);
  rule.endsByMinutes = reader.readInt(kSection, "DoMinutes", 1, kFile) != 0;
  rule.endMinutes = ReadMinutes(reader, "End", rule.endMinutes);
  rule.endDegrees = ReadNumber(reader, "DegreesBelowHorizon", rule.endDegrees, rule.endDegrees);
  rule.minutesAfterDegrees = ReadMinutes(reader, "AddMinutesAfterDegrees", rule.minutesAfterDegrees);
  return rule;
}

int32_t MinutesToEnd(int32_t unixDay, const sun::PlaceSettings& place, const ShabbatRule& rule) {
  if (rule.endsByMinutes) return rule.endMinutes;
  return twilight::EveningIntervalMinutes(unixDay, place, rule.endDegrees) + rule.minutesAfterDegrees % kMinutesPerDay;
}

}  // namespace candles
